// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "messagelist.h"

#include "datetext.h"

#include <algorithm>

namespace {

QString timeText(const QDateTime &when)
{
    return dateText(when, MessageList::tr("d MMM HH:mm"));
}

} // namespace

int MessageList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(messages.size());
}

QVariant MessageList::data(const QModelIndex &index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid()) {
        return QVariant();
    }
    const Message &message = messages.at(std::size_t(index.row()));
    const QString count =
        message.count > 1 ? QStringLiteral("%1×  ").arg(message.count) : QString();
    return QStringLiteral("%1  %2%3").arg(timeText(message.last), count, message.text);
}

QString MessageList::wholeText(int row) const
{
    const Message &message = messages.at(std::size_t(row));
    const QString when = message.count > 1
        ? tr("%n keer, van %1 tot %2", nullptr, message.count)
              .arg(timeText(message.first), timeText(message.last))
        : timeText(message.last);
    return QStringLiteral("<p>%1</p><p>%2</p>").arg(message.text.toHtmlEscaped(), when);
}

void MessageList::add(const QString &message, const QDateTime &when, const QString &kind)
{
    Message added {message, kind.isEmpty() ? message : kind, when, when};
    const auto same = std::find_if(messages.begin(), messages.end(),
                                   [&](const Message &each) { return each.kind == added.kind; });
    if (same != messages.end()) {
        added.first = same->first;
        added.count = same->count + 1;
        const int row = int(std::distance(messages.begin(), same));
        beginRemoveRows(QModelIndex(), row, row);
        messages.erase(same);
        endRemoveRows();
    }
    beginInsertRows(QModelIndex(), 0, 0);
    messages.insert(messages.begin(), added);
    endInsertRows();
    if (rowCount() > most) {
        beginRemoveRows(QModelIndex(), most, rowCount() - 1);
        messages.resize(most);
        endRemoveRows();
    }
    setUnseen();
}

void MessageList::markSeen()
{
    for (Message &message : messages) {
        message.isSeen = true;
    }
    setUnseen();
}

void MessageList::setUnseen()
{
    notSeen = int(std::count_if(messages.begin(), messages.end(),
                                [](const Message &message) { return !message.isSeen; }));
    Q_EMIT unseenChanged(notSeen);
}

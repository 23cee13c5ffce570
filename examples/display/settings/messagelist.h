// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGELIST_H
#define MESSAGELIST_H

#include <QAbstractListModel>
#include <QDateTime>
#include <QString>
#include <vector>

/**
 * The messages to the people of the house, newest first, and how many of them were not seen yet.
 * Each has its time. One that comes again is the newest, and counted, and so is one of the same
 * kind with other words: what is told a hundred times a day must not bury what is told once.
 */
class MessageList : public QAbstractListModel
{
    Q_OBJECT

public:
    /** The oldest messages are dropped above this number. */
    static constexpr int most = 200;

    using QAbstractListModel::QAbstractListModel;

    int unseen() const { return notSeen; }

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    /** Qt::DisplayRole: one line, "9 mrt. 14:05  3×  the text". */
    QVariant data(const QModelIndex &index, int role) const override;
    /** The text of a row, the last of its kind, and below it when they came and how often. */
    QString wholeText(int row) const;

public Q_SLOTS:
    /**
     * @p when is by the clock of the house. @p kind is any name that messages of one kind share;
     * without one, a message is of a kind with those that have the same text.
     */
    void add(const QString &message, const QDateTime &when, const QString &kind = QString());
    /** All messages were seen. */
    void markSeen();

Q_SIGNALS:
    /** A message that comes again before it was seen is not counted twice. */
    void unseenChanged(int count);

private:
    struct Message
    {
        QString text;
        QString kind;
        QDateTime first;
        QDateTime last;
        int count = 1;
        bool isSeen = false;
    };

    void setUnseen();

    std::vector<Message> messages;
    int notSeen = 0;
};

#endif

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef MESSAGELIST_H
#define MESSAGELIST_H

#include <QStringListModel>

/** The messages to the people of the house, newest first, and how many of them were not seen yet.
 */
class MessageList : public QStringListModel
{
    Q_OBJECT

public:
    /** The oldest messages are dropped above this number. */
    static constexpr int most = 200;

    using QStringListModel::QStringListModel;

    int unseen() const { return notSeen; }

public Q_SLOTS:
    void add(const QString &message);
    /** All messages were seen. */
    void markSeen();

Q_SIGNALS:
    void unseenChanged(int count);

private:
    int notSeen = 0;
};

#endif

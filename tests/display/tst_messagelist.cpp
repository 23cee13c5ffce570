// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "messagelist.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

class tst_MessageList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newestComesFirst();
    void unseenAreCounted();
    void oldestAreDropped();
};

void tst_MessageList::newestComesFirst()
{
    MessageList list;
    const QAbstractItemModelTester tester(&list);
    list.add(QStringLiteral("one"));
    list.add(QStringLiteral("two"));
    QCOMPARE(list.stringList(), (QStringList {QStringLiteral("two"), QStringLiteral("one")}));
}

void tst_MessageList::unseenAreCounted()
{
    MessageList list;
    QSignalSpy counts(&list, &MessageList::unseenChanged);
    QCOMPARE(list.unseen(), 0);
    list.add(QStringLiteral("one"));
    list.add(QStringLiteral("two"));
    QCOMPARE(list.unseen(), 2);
    list.markSeen();
    QCOMPARE(list.unseen(), 0);
    QCOMPARE(list.rowCount(), 2);
    list.add(QStringLiteral("three"));
    QCOMPARE(list.unseen(), 1);
    QCOMPARE(counts.count(), 4);
    QCOMPARE(counts.at(1).constFirst().toInt(), 2);
    QCOMPARE(counts.at(2).constFirst().toInt(), 0);
}

void tst_MessageList::oldestAreDropped()
{
    MessageList list;
    const QAbstractItemModelTester tester(&list);
    for (int i = 0; i < MessageList::most + 3; ++i) {
        list.add(QString::number(i));
    }
    QCOMPARE(list.rowCount(), MessageList::most);
    QCOMPARE(list.unseen(), MessageList::most);
    QCOMPARE(list.stringList().constFirst(), QString::number(MessageList::most + 2));
    QCOMPARE(list.stringList().constLast(), QStringLiteral("3"));
}

QTEST_GUILESS_MAIN(tst_MessageList)
#include "tst_messagelist.moc"

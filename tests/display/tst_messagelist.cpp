// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dutchmonths.h"
#include "messagelist.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QSignalSpy>
#include <QTest>
#include <QTimeZone>

class tst_MessageList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newestComesFirst();
    void sameAgainIsCounted();
    void oneKindIsOneLine();
    void unseenAreCounted();
    void oldestAreDropped();
    void wholeTextTellsWhen();

private:
    static QStringList linesOf(const MessageList &list);

    const QDateTime noon {QDate(2016, 3, 9), QTime(12, 0), QTimeZone::utc()};
};

void tst_MessageList::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

QStringList tst_MessageList::linesOf(const MessageList &list)
{
    QStringList lines;
    for (int row = 0; row < list.rowCount(); ++row) {
        lines << list.index(row).data().toString();
    }
    return lines;
}

void tst_MessageList::newestComesFirst()
{
    MessageList list;
    const QAbstractItemModelTester tester(&list);
    list.add(QStringLiteral("one"), noon);
    list.add(QStringLiteral("two"), noon.addSecs(60));
    QCOMPARE(linesOf(list),
             (QStringList {withMonthsOfQt(QStringLiteral("9 mrt. 12:01  two")),
                           withMonthsOfQt(QStringLiteral("9 mrt. 12:00  one"))}));
}

void tst_MessageList::sameAgainIsCounted()
{
    MessageList list;
    const QAbstractItemModelTester tester(&list);
    list.add(QStringLiteral("once"), noon);
    for (int i = 1; i <= 1000; ++i) {
        list.add(QStringLiteral("often"), noon.addSecs(i));
    }
    list.add(QStringLiteral("later"), noon.addDays(1));
    QCOMPARE(linesOf(list),
             (QStringList {withMonthsOfQt(QStringLiteral("10 mrt. 12:00  later")),
                           withMonthsOfQt(QStringLiteral("9 mrt. 12:16  1000×  often")),
                           withMonthsOfQt(QStringLiteral("9 mrt. 12:00  once"))}));
    list.add(QStringLiteral("once"), noon.addDays(2));
    QCOMPARE(linesOf(list).constFirst(), withMonthsOfQt(QStringLiteral("11 mrt. 12:00  2×  once")));
    QCOMPARE(list.rowCount(), 3);
}

void tst_MessageList::oneKindIsOneLine()
{
    MessageList list;
    const QAbstractItemModelTester tester(&list);
    list.add(QStringLiteral("the meter was replaced"), noon);
    for (int i = 1; i <= 2 * MessageList::most; ++i) {
        list.add(QStringLiteral("telegram %1 is dropped").arg(i), noon.addSecs(i),
                 QStringLiteral("telegram"));
    }
    QCOMPARE(
        linesOf(list),
        (QStringList {withMonthsOfQt(QStringLiteral("9 mrt. 12:06  400×  telegram 400 is dropped")),
                      withMonthsOfQt(QStringLiteral("9 mrt. 12:00  the meter was replaced"))}));
    QCOMPARE(list.unseen(), 2);
    QCOMPARE(list.wholeText(0),
             withMonthsOfQt(QStringLiteral("<p>telegram 400 is dropped</p>"
                                           "<p>400 keer, van 9 mrt. 12:00 tot 9 mrt. 12:06</p>")));
}

void tst_MessageList::unseenAreCounted()
{
    MessageList list;
    QSignalSpy counts(&list, &MessageList::unseenChanged);
    QCOMPARE(list.unseen(), 0);
    list.add(QStringLiteral("one"), noon);
    list.add(QStringLiteral("two"), noon);
    list.add(QStringLiteral("two"), noon);
    QCOMPARE(list.unseen(), 2);
    list.markSeen();
    QCOMPARE(list.unseen(), 0);
    QCOMPARE(list.rowCount(), 2);
    // One that was seen is news when it comes again.
    list.add(QStringLiteral("two"), noon);
    QCOMPARE(list.unseen(), 1);
    QCOMPARE(counts.constLast().constFirst().toInt(), 1);
}

void tst_MessageList::oldestAreDropped()
{
    MessageList list;
    const QAbstractItemModelTester tester(&list);
    for (int i = 0; i < MessageList::most + 3; ++i) {
        list.add(QString::number(i), noon);
    }
    QCOMPARE(list.rowCount(), MessageList::most);
    QCOMPARE(list.unseen(), MessageList::most);
    QVERIFY(linesOf(list).constFirst().endsWith(QString::number(MessageList::most + 2)));
    QVERIFY(linesOf(list).constLast().endsWith(QStringLiteral("  3")));
}

void tst_MessageList::wholeTextTellsWhen()
{
    MessageList list;
    list.add(QStringLiteral("1 < 2"), noon);
    QCOMPARE(list.wholeText(0),
             withMonthsOfQt(QStringLiteral("<p>1 &lt; 2</p><p>9 mrt. 12:00</p>")));
    list.add(QStringLiteral("1 < 2"), noon.addDays(1));
    QCOMPARE(list.wholeText(0),
             withMonthsOfQt(QStringLiteral(
                 "<p>1 &lt; 2</p><p>2 keer, van 9 mrt. 12:00 tot 10 mrt. 12:00</p>")));
}

QTEST_GUILESS_MAIN(tst_MessageList)
#include "tst_messagelist.moc"

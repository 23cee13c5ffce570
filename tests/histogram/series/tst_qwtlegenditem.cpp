// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QwtLegendItem>

#include "paintcounter.h"
#include "zemtest.h"

#include <QTest>

class tst_QwtLegendItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void identifierSizeSetsTheIndent_data();
    void identifierSizeSetsTheIndent();
    void spacingSetsTheIndent();
    void marginCountsAtTheNextIndent();
    void textIsSetWithItsFlags();
    void textOfTheBaseClassGetsTheFlagsToo();
    void identifierIsPaintedAtTheMargin();
    void textBeginsBehindTheIdentifier();
    void identifierUpdatesTheItem();
};

void tst_QwtLegendItem::defaults()
{
    const QwtLegendItem item;
    QCOMPARE(item.margin(), 2);
    QCOMPARE(item.spacing(), 2);
    QCOMPARE(item.identifierSize(), QSize(8, 8));
    QCOMPARE(item.indent(), 14);
    QVERIFY(item.identifier().isNull());
    QVERIFY(item.text().isEmpty());
    QCOMPARE(item.parent(), nullptr);
}

void tst_QwtLegendItem::identifierSizeSetsTheIndent_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("stored");
    QTest::addColumn<int>("indent");

    QTest::newRow("square") << QSize(9, 9) << QSize(9, 9) << 15;
    QTest::newRow("wide") << QSize(30, 4) << QSize(30, 4) << 36;
    QTest::newRow("none") << QSize(0, 0) << QSize(0, 0) << 6;
    QTest::newRow("negative") << QSize(-7, 5) << QSize(0, 5) << 6;
}

void tst_QwtLegendItem::identifierSizeSetsTheIndent()
{
    QFETCH(QSize, size);
    QFETCH(QSize, stored);
    QFETCH(int, indent);

    QwtLegendItem item;
    item.setIdentifierSize(size);
    QCOMPARE(item.identifierSize(), stored);
    QCOMPARE(item.indent(), indent);
}

void tst_QwtLegendItem::spacingSetsTheIndent()
{
    QwtLegendItem item;
    item.setSpacing(5);
    QCOMPARE(item.spacing(), 5);
    QCOMPARE(item.indent(), 20);
    item.setSpacing(-1);
    QCOMPARE(item.spacing(), 0);
    QCOMPARE(item.indent(), 10);
}

void tst_QwtLegendItem::marginCountsAtTheNextIndent()
{
    QwtLegendItem item;
    item.setMargin(6);
    item.setIdentifierSize(QSize(8, 8));
    QCOMPARE(item.indent(), 18);
}

void tst_QwtLegendItem::textIsSetWithItsFlags()
{
    QwtLegendItem item;
    QwtText text(QStringLiteral("Gas"));
    text.setRenderFlags(Qt::AlignRight);
    item.setText(text);
    QCOMPARE(item.text().text(), QStringLiteral("Gas"));
    QCOMPARE(item.text().renderFlags(),
             int(Qt::AlignLeft | Qt::AlignVCenter | Qt::TextExpandTabs | Qt::TextWordWrap));
}

void tst_QwtLegendItem::textOfTheBaseClassGetsTheFlagsToo()
{
    constexpr int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextExpandTabs | Qt::TextWordWrap;
    QwtLegendItem item;
    static_cast<QwtTextLabel &>(item).setText(QwtText(QStringLiteral("Gas")));
    QCOMPARE(item.text().renderFlags(), flags);

    QwtLegendItem other;
    other.setText(QStringLiteral("Water"));
    QCOMPARE(other.text().text(), QStringLiteral("Water"));
    QCOMPARE(other.text().renderFlags(), flags);
}

void tst_QwtLegendItem::identifierIsPaintedAtTheMargin()
{
    QwtLegendItem item;
    item.resize(60, 21);
    item.setIdentifier(ZemTest::flatPixmap(QSize(9, 7), Qt::green));
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&item)), QRect(2, 7, 9, 7));

    // Made for a sharp screen, it has more pixels.
    QPixmap sharp = ZemTest::flatPixmap(QSize(18, 14), Qt::green);
    sharp.setDevicePixelRatio(2.0);
    item.setIdentifier(sharp);
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&item)), QRect(2, 7, 9, 7));
}

void tst_QwtLegendItem::textBeginsBehindTheIdentifier()
{
    QwtLegendItem item;
    item.resize(120, 24);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::white);
    item.setPalette(palette);
    item.setText(QStringLiteral("MMM"));
    const QRect ink = ZemTest::inkRect(ZemTest::render(&item));
    QVERIFY(ink.left() >= item.margin() + item.indent());
    QVERIFY(ink.left() <= item.margin() + item.indent() + 4);
    QVERIFY(ink.right() < 100);
}

void tst_QwtLegendItem::identifierUpdatesTheItem()
{
    QwtLegendItem item;
    item.resize(60, 21);
    item.show();
    QVERIFY(QTest::qWaitForWindowExposed(&item, ZemTest::hangs));
    QCoreApplication::processEvents();
    const ZemTest::PaintCounter counter(&item);
    const QPixmap identifier = ZemTest::flatPixmap(QSize(9, 9), Qt::green);
    item.setIdentifier(identifier);
    QCOMPARE(counter.count, 0);
    QTRY_COMPARE(counter.count, 1);
    QCOMPARE(item.identifier().cacheKey(), identifier.cacheKey());
}

QTEST_MAIN(tst_QwtLegendItem)
#include "tst_qwtlegenditem.moc"

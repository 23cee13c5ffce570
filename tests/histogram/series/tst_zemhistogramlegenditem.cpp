// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMHistogramLegendItem>

#include "histogramgeometry_p.h"
#include "paintcounter.h"
#include "zemtest.h"

#include <QPainter>
#include <QTest>

class tst_ZEMHistogramLegendItem : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaults();
    void objectNameOfASubclassOrAHostIsKept();
    void textColorReachesAllGroupsAndNoOtherRole();
    void backgroundFixesTheSize();
    void picturesOfASharpScreenCountBySizeAndRatio();
    void backgroundRepaintsAtOnce();
    void identifierIndentSetsTheIndent_data();
    void identifierIndentSetsTheIndent();
    void identifierPlace_data();
    void identifierPlace();
    void backgroundIsStretchedToTheItem();
    void identifierStandsBehindItsIndent();
    void newItemHasItsIdentifierAtTheMargin();
    void identifierKeepsItsOwnSize();
    void textAndIdentifierKeepToTheContents();
    void textHasItsColorAndBeginsBehindTheIdentifier();
};

void tst_ZEMHistogramLegendItem::defaults()
{
    ZEMHistogramLegendItem item(nullptr);
    QVERIFY(item.getBackground().isNull());
    QCOMPARE(item.objectName(), QStringLiteral("ZEMHistogramLegendItem"));
    QCOMPARE(item.margin(), 2);
    QCOMPARE(item.indent(), 14);
    QCOMPARE(item.metaObject()->className(), "ZEMHistogramLegendItem");
    QCOMPARE(item.metaObject()->methodCount(), QwtLegendItem::staticMetaObject.methodCount());
    QCOMPARE(item.metaObject()->propertyCount(), QwtLegendItem::staticMetaObject.propertyCount());
}

void tst_ZEMHistogramLegendItem::objectNameOfASubclassOrAHostIsKept()
{
    ZEMHistogramLegendItem item;
    item.setObjectName(QStringLiteral("gas"));
    item.setBackground(ZemTest::flatPixmap(QSize(30, 20), Qt::blue));
    QCOMPARE(item.objectName(), QStringLiteral("gas"));
}

void tst_ZEMHistogramLegendItem::textColorReachesAllGroupsAndNoOtherRole()
{
    ZEMHistogramLegendItem item;
    const QPalette before = item.palette();
    item.setTextColor(QColor(1, 2, 3));
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(item.palette().brush(group, QPalette::Text), QBrush(QColor(1, 2, 3)));
        QCOMPARE(item.palette().brush(group, QPalette::WindowText),
                 before.brush(group, QPalette::WindowText));
    }
}

void tst_ZEMHistogramLegendItem::backgroundFixesTheSize()
{
    ZEMHistogramLegendItem item;
    const QPixmap background = ZemTest::flatPixmap(QSize(127, 27), Qt::blue);
    item.setBackground(background);
    QCOMPARE(item.getBackground().cacheKey(), background.cacheKey());
    QCOMPARE(item.size(), QSize(127, 27));
    QCOMPARE(item.minimumSize(), QSize(127, 27));
    QCOMPARE(item.maximumSize(), QSize(127, 27));

    item.setBackground(ZemTest::flatPixmap(QSize(40, 50), Qt::red));
    QCOMPARE(item.size(), QSize(40, 50));
    QCOMPARE(item.minimumSize(), QSize(40, 50));
    QCOMPARE(item.maximumSize(), QSize(40, 50));

    item.setBackground(QPixmap());
    QCOMPARE(item.size(), QSize(0, 0));
}

void tst_ZEMHistogramLegendItem::picturesOfASharpScreenCountBySizeAndRatio()
{
    const auto sharpPicture = [](const QSize &size, const QColor &color) {
        QPixmap picture = ZemTest::flatPixmap(2 * size, color);
        picture.setDevicePixelRatio(2.0);
        return picture;
    };
    ZEMHistogramLegendItem item;
    item.setIdentifierIndent(10);
    item.setIdentifier(sharpPicture(QSize(15, 5), Qt::green));
    item.setBackground(sharpPicture(QSize(127, 27), Qt::blue));
    QCOMPARE(item.size(), QSize(127, 27));
    QCOMPARE(item.minimumSize(), QSize(127, 27));
    QCOMPARE(item.maximumSize(), QSize(127, 27));
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&item), Qt::blue), QRect(10, 11, 15, 5));
}

void tst_ZEMHistogramLegendItem::backgroundRepaintsAtOnce()
{
    ZEMHistogramLegendItem item;
    item.setBackground(ZemTest::flatPixmap(QSize(127, 27), Qt::blue));
    item.show();
    QVERIFY(QTest::qWaitForWindowExposed(&item, ZemTest::hangs));
    QCoreApplication::processEvents();
    const ZemTest::PaintCounter counter(&item);
    item.setBackground(ZemTest::flatPixmap(QSize(127, 27), Qt::red));
    QCOMPARE(counter.count, 1);
}

void tst_ZEMHistogramLegendItem::identifierIndentSetsTheIndent_data()
{
    QTest::addColumn<int>("indent");
    QTest::addColumn<int>("margin");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("expected");

    QTest::newRow("usual") << 10 << 2 << QSize(9, 9) << 2 << 25;
    QTest::newRow("none") << 0 << 2 << QSize(9, 9) << 2 << 15;
    QTest::newRow("negative") << -5 << 2 << QSize(9, 9) << 2 << 15;
    QTest::newRow("others") << 3 << 4 << QSize(20, 5) << 7 << 41;
}

void tst_ZEMHistogramLegendItem::identifierIndentSetsTheIndent()
{
    QFETCH(int, indent);
    QFETCH(int, margin);
    QFETCH(QSize, size);
    QFETCH(int, spacing);
    QFETCH(int, expected);

    ZEMHistogramLegendItem item;
    item.setMargin(margin);
    item.setIdentifierSize(size);
    item.setSpacing(spacing);
    item.setIdentifierIndent(indent);
    QCOMPARE(item.indent(), expected);

    item.setIdentifier(ZemTest::flatPixmap(QSize(4, 4), Qt::green));
    item.resize(80, 20);
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&item)).left(), qMax(indent, 0));
}

void tst_ZEMHistogramLegendItem::identifierPlace_data()
{
    QTest::addColumn<QRect>("contents");
    QTest::addColumn<int>("indent");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("expected");

    QTest::newRow("odd in odd") << QRect(0, 0, 127, 27) << 10 << QSize(9, 9) << QRect(10, 9, 9, 9);
    QTest::newRow("odd in even") << QRect(0, 0, 80, 20) << 10 << QSize(9, 9) << QRect(10, 5, 9, 9);
    QTest::newRow("even in even") << QRect(0, 0, 80, 20) << 10 << QSize(8, 8) << QRect(10, 6, 8, 8);
    QTest::newRow("even in odd") << QRect(0, 0, 80, 21) << 10 << QSize(8, 8) << QRect(10, 7, 8, 8);
    QTest::newRow("within a frame")
        << QRect(3, 5, 80, 21) << 4 << QSize(9, 9) << QRect(7, 11, 9, 9);
    QTest::newRow("taller") << QRect(0, 0, 80, 5) << 0 << QSize(9, 9) << QRect(0, -2, 9, 9);
}

void tst_ZEMHistogramLegendItem::identifierPlace()
{
    QFETCH(QRect, contents);
    QFETCH(int, indent);
    QFETCH(QSize, size);
    QFETCH(QRect, expected);
    QCOMPARE(HistogramGeometry::identifierRect(contents, indent, size), expected);
}

void tst_ZEMHistogramLegendItem::backgroundIsStretchedToTheItem()
{
    QPixmap halves(40, 20);
    halves.fill(Qt::blue);
    QPainter(&halves).fillRect(20, 0, 20, 20, Qt::red);

    ZEMHistogramLegendItem item;
    item.setBackground(halves);
    item.setContentsMargins(8, 8, 8, 8);
    item.setMaximumSize(200, 200);
    item.resize(80, 60);
    const QImage image = ZemTest::render(&item);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(38, 59), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(42, 0), QColor(Qt::red));
    QCOMPARE(image.pixelColor(79, 59), QColor(Qt::red));
}

void tst_ZEMHistogramLegendItem::identifierStandsBehindItsIndent()
{
    ZEMHistogramLegendItem item;
    item.setIdentifierSize(QSize(9, 9));
    item.setIdentifierIndent(10);
    item.setIdentifier(ZemTest::flatPixmap(QSize(9, 9), Qt::green));
    item.setBackground(ZemTest::flatPixmap(QSize(127, 27), Qt::blue));
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&item), Qt::blue), QRect(10, 9, 9, 9));

    item.setIdentifier(QPixmap());
    QVERIFY(ZemTest::inkRect(ZemTest::render(&item), Qt::blue).isNull());
}

void tst_ZEMHistogramLegendItem::newItemHasItsIdentifierAtTheMargin()
{
    ZEMHistogramLegendItem item;
    item.setMargin(5);
    item.setIdentifier(ZemTest::flatPixmap(QSize(9, 9), Qt::green));
    item.setBackground(ZemTest::flatPixmap(QSize(127, 27), Qt::blue));
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&item), Qt::blue), QRect(2, 9, 9, 9));
}

void tst_ZEMHistogramLegendItem::identifierKeepsItsOwnSize()
{
    ZEMHistogramLegendItem item;
    item.setIdentifierSize(QSize(9, 9));
    item.setIdentifierIndent(10);
    item.setIdentifier(ZemTest::flatPixmap(QSize(15, 5), Qt::green));
    item.setBackground(ZemTest::flatPixmap(QSize(127, 27), Qt::blue));
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&item), Qt::blue), QRect(10, 11, 15, 5));
}

void tst_ZEMHistogramLegendItem::textAndIdentifierKeepToTheContents()
{
    ZEMHistogramLegendItem item;
    item.setIdentifier(ZemTest::flatPixmap(QSize(40, 60), Qt::green));
    item.setIdentifierIndent(0);
    item.setTextColor(Qt::green);
    item.setText(QStringLiteral("MMMMMMMMMMMMMMMMMMMMMMMM"));
    item.setBackground(ZemTest::flatPixmap(QSize(60, 27), Qt::blue));
    item.setContentsMargins(6, 3, 20, 4);
    const QRect ink = ZemTest::inkRect(ZemTest::render(&item), Qt::blue);
    QCOMPARE(ink, QRect(6, 3, 34, 20));
}

void tst_ZEMHistogramLegendItem::textHasItsColorAndBeginsBehindTheIdentifier()
{
    ZEMHistogramLegendItem item;
    item.setIdentifierSize(QSize(9, 9));
    item.setIdentifierIndent(10);
    item.setBackground(ZemTest::flatPixmap(QSize(127, 27), Qt::black));
    item.setTextColor(QColor(Qt::red));
    item.setText(QStringLiteral("HHH"));
    const QImage image = ZemTest::render(&item);
    const QRect ink = ZemTest::inkRect(image);
    QVERIFY(ink.left() >= 27 && ink.left() <= 31);
    QVERIFY(qAbs(ink.center().y() - 13) <= 3);
    for (int x = ink.left(); x <= ink.right(); ++x) {
        QCOMPARE(image.pixelColor(x, ink.center().y()).blue(), 0);
        QCOMPARE(image.pixelColor(x, ink.center().y()).green(), 0);
    }
}

QTEST_MAIN(tst_ZEMHistogramLegendItem)
#include "tst_zemhistogramlegenditem.moc"

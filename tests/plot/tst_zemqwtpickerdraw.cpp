// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPickerDraw>
#include <ZEMQwtPickerDrawAdvanced>

#include "recordingdevice.h"
#include "zemtest.h"

#include <QPainter>
#include <QTest>
#include <QWidget>

#include <qwt_picker.h>

#include <memory>

using namespace PlotTest;

namespace {

/** A picker with a selection of the test's choice, that counts its tracker texts. */
class Picker : public QwtPicker
{
public:
    explicit Picker(QWidget *parent) : QwtPicker(parent) { }
    ~Picker() override = default;

    void select(const QPolygon &points)
    {
        end(false);
        begin();
        for (const QPoint &point : points) {
            append(point);
        }
    }
    void drawTracker(QPainter *) const override { ++trackers; }

    mutable int trackers = 0;
};

class TextDraw : public ZEMQwtPickerDraw
{
public:
    explicit TextDraw(QwtPicker *observed) : ZEMQwtPickerDraw(observed) { trackerText = true; }
};

/** Turns all drags round, to see who is asked. */
template <typename Base>
class Contrary : public Base
{
public:
    using Base::Base;

protected:
    bool isZoomQuadrant(QPoint start, QPoint end) const override
    {
        return !Base::isZoomQuadrant(start, end);
    }
};

QPolygon points(const QPoint &first, const QPoint &last)
{
    return QVector<QPoint> {first, last};
}

} // namespace

class tst_ZEMQwtPickerDraw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void trackerTextIsOffByDefault();
    void subclassTurnsTrackerTextOn();
    void onlyTwoPointsAreDrawn();
    void bandAndCross_data();
    void bandAndCross();
    void subclassDecidesOnTheCross();
    void pixelsOfTheCross();
    void pickerMayDieFirst();

    void advancedHasTheCrossToo();
    void ticks_data();
    void ticks();
    void advancedStartsAlongY();
    void crossReplacesTheTicks();
    void subclassOfAdvancedDecidesOnTicks();
    void pixelsOfTheTicks();
    void advancedPickerMayDieFirst();

private:
    std::unique_ptr<QWidget> widget;
    Picker *picker = nullptr;
};

void tst_ZEMQwtPickerDraw::init()
{
    widget = std::make_unique<QWidget>();
    widget->resize(400, 300);
    picker = new Picker(widget.get());
}

void tst_ZEMQwtPickerDraw::cleanup()
{
    widget.reset();
}

#define DRAW(device, draw)                                                                         \
    RecordingDevice device;                                                                        \
    {                                                                                              \
        QPainter painter(&(device));                                                               \
        (draw).drawRubberBand(&painter);                                                           \
    }

void tst_ZEMQwtPickerDraw::trackerTextIsOffByDefault()
{
    const ZEMQwtPickerDraw draw(picker);
    QVERIFY(!draw.trackerTextEnabled());
    draw.drawTracker(nullptr);
    const ZEMQwtPickerDrawAdvanced advanced(50, picker);
    QVERIFY(!advanced.trackerTextEnabled());
    advanced.drawTracker(nullptr);
    QCOMPARE(picker->trackers, 0);
}

void tst_ZEMQwtPickerDraw::subclassTurnsTrackerTextOn()
{
    const TextDraw draw(picker);
    QVERIFY(draw.trackerTextEnabled());
    draw.drawTracker(nullptr);
    QCOMPARE(picker->trackers, 1);
}

void tst_ZEMQwtPickerDraw::onlyTwoPointsAreDrawn()
{
    const ZEMQwtPickerDraw draw(picker);
    const ZEMQwtPickerDrawAdvanced advanced(50, picker);
    const QVector<QPoint> three = {QPoint(1, 1), QPoint(20, 20), QPoint(5, 9)};
    for (const int count : {0, 1, 3}) {
        picker->select(three.mid(0, count));
        DRAW(plain, draw);
        QVERIFY(plain.drawn().isEmpty());
        DRAW(rich, advanced);
        QVERIFY(rich.drawn().isEmpty());
    }
}

void tst_ZEMQwtPickerDraw::bandAndCross_data()
{
    QTest::addColumn<QPoint>("end");
    QTest::addColumn<QRectF>("band");
    QTest::addColumn<bool>("isStruckOut");

    // All rows start at (100, 100).
    QTest::newRow("lower right") << QPoint(140, 120) << QRectF(100, 100, 41, 21) << false;
    QTest::newRow("lower left") << QPoint(60, 120) << QRectF(60, 100, 41, 21) << false;
    QTest::newRow("upper right") << QPoint(140, 80) << QRectF(100, 80, 41, 21) << false;
    QTest::newRow("upper left") << QPoint(60, 80) << QRectF(60, 80, 41, 21) << true;
    QTest::newRow("left") << QPoint(90, 100) << QRectF(90, 100, 11, 1) << false;
    QTest::newRow("up") << QPoint(100, 90) << QRectF(100, 90, 1, 11) << false;
    QTest::newRow("nowhere") << QPoint(100, 100) << QRectF(100, 100, 1, 1) << false;
}

void tst_ZEMQwtPickerDraw::bandAndCross()
{
    QFETCH(QPoint, end);
    QFETCH(QRectF, band);
    QFETCH(bool, isStruckOut);
    picker->select(points(QPoint(100, 100), end));
    const ZEMQwtPickerDraw draw(picker);
    DRAW(device, draw);

    QCOMPARE(device.drawn().first().kind, Drawn::Rect);
    QCOMPARE(device.points(Drawn::Rect),
             QVector<QPolygonF> {QVector<QPointF>({band.topLeft(), band.bottomRight()})});
    QVector<QLineF> cross;
    if (isStruckOut) {
        cross << QLineF(60, 80, 100, 100) << QLineF(100, 80, 60, 100);
    }
    QCOMPARE(device.points(Drawn::Line), lines(cross));
    QCOMPARE(device.drawn().size(), 1 + cross.size());
}

void tst_ZEMQwtPickerDraw::subclassDecidesOnTheCross()
{
    const Contrary<ZEMQwtPickerDraw> draw(picker);
    picker->select(points(QPoint(100, 100), QPoint(140, 120)));
    DRAW(zoom, draw);
    QCOMPARE(zoom.points(Drawn::Line).size(), 2);
    picker->select(points(QPoint(100, 100), QPoint(60, 80)));
    DRAW(back, draw);
    QCOMPARE(back.points(Drawn::Line).size(), 0);
}

void tst_ZEMQwtPickerDraw::pixelsOfTheCross()
{
    QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    picker->select(points(QPoint(140, 140), QPoint(100, 100)));
    {
        QPainter painter(&image);
        painter.setPen(Qt::red);
        ZEMQwtPickerDraw(picker).drawRubberBand(&painter);
    }
    for (const QPoint &ink :
         {QPoint(100, 100), QPoint(120, 120), QPoint(130, 110), QPoint(120, 100), QPoint(100, 120),
          QPoint(141, 120), QPoint(120, 141)}) {
        QCOMPARE(image.pixelColor(ink), QColor(Qt::red));
    }
    QCOMPARE(image.pixelColor(120, 110), QColor(Qt::black));
    QCOMPARE(ZemTest::inkRect(image), QRect(QPoint(100, 100), QPoint(141, 141)));
}

void tst_ZEMQwtPickerDraw::pickerMayDieFirst()
{
    picker->select(points(QPoint(100, 100), QPoint(140, 120)));
    const TextDraw draw(picker);
    delete picker;
    DRAW(device, draw);
    draw.drawTracker(nullptr);
    QVERIFY(device.drawn().isEmpty());
}

void tst_ZEMQwtPickerDraw::advancedHasTheCrossToo()
{
    ZEMQwtPickerDrawAdvanced draw(50, picker);
    draw.setDirection(2);
    picker->select(points(QPoint(100, 100), QPoint(60, 80)));
    DRAW(device, draw);
    QCOMPARE(device.points(Drawn::Rect).size(), 1);
    QCOMPARE(device.points(Drawn::Line),
             lines({QLineF(60, 80, 100, 100), QLineF(100, 80, 60, 100)}));
}

void tst_ZEMQwtPickerDraw::ticks_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QPoint>("first");
    QTest::addColumn<QPoint>("last");
    QTest::addColumn<QVector<QLineF>>("expected");

    // The drag began at (100, 100), the corridor is 30 wide to each side.
    QTest::newRow("along x to the right")
        << 1 << QPoint(100, 0) << QPoint(299, 299)
        << QVector<QLineF> {QLineF(289, 70, 309, 70), QLineF(289, 130, 309, 130)};
    QTest::newRow("along x to the left")
        << 1 << QPoint(100, 0) << QPoint(39, 299)
        << QVector<QLineF> {QLineF(29, 70, 49, 70), QLineF(29, 130, 49, 130)};
    QTest::newRow("along y down") << 0 << QPoint(0, 100) << QPoint(399, 249)
                                  << QVector<QLineF> {QLineF(70, 239, 70, 259),
                                                      QLineF(130, 239, 130, 259)};
    QTest::newRow("along y up") << 0 << QPoint(0, 100) << QPoint(399, 19)
                                << QVector<QLineF> {QLineF(70, 9, 70, 29), QLineF(130, 9, 130, 29)};
    QTest::newRow("free") << 2 << QPoint(100, 100) << QPoint(300, 250) << QVector<QLineF> {};
    QTest::newRow("any other") << -1 << QPoint(100, 100) << QPoint(300, 250) << QVector<QLineF> {};
}

void tst_ZEMQwtPickerDraw::ticks()
{
    QFETCH(int, direction);
    QFETCH(QPoint, first);
    QFETCH(QPoint, last);
    QFETCH(QVector<QLineF>, expected);
    ZEMQwtPickerDrawAdvanced draw(50, picker);
    draw.setMargin(30);
    draw.setOrigin(QPoint(100, 100));
    draw.setDirection(direction);
    picker->select(points(first, last));
    DRAW(device, draw);
    QCOMPARE(device.points(Drawn::Rect).size(), 1);
    QCOMPARE(device.points(Drawn::Line), lines(expected));
}

void tst_ZEMQwtPickerDraw::advancedStartsAlongY()
{
    const ZEMQwtPickerDrawAdvanced draw(50, picker);
    picker->select(points(QPoint(0, 20), QPoint(399, 200)));
    DRAW(device, draw);
    QCOMPARE(device.points(Drawn::Line),
             lines({QLineF(-50, 190, -50, 210), QLineF(50, 190, 50, 210)}));
}

void tst_ZEMQwtPickerDraw::crossReplacesTheTicks()
{
    ZEMQwtPickerDrawAdvanced draw(50, picker);
    for (const int direction : {0, 1}) {
        draw.setDirection(direction);
        picker->select(points(QPoint(100, 100), QPoint(60, 80)));
        DRAW(device, draw);
        QCOMPARE(device.points(Drawn::Line),
                 lines({QLineF(60, 80, 100, 100), QLineF(100, 80, 60, 100)}));
    }
}

void tst_ZEMQwtPickerDraw::subclassOfAdvancedDecidesOnTicks()
{
    Contrary<ZEMQwtPickerDrawAdvanced> draw(50, picker);
    draw.setDirection(1);
    draw.setOrigin(QPoint(100, 90));
    picker->select(points(QPoint(100, 100), QPoint(60, 80)));
    DRAW(device, draw);
    QCOMPARE(device.points(Drawn::Line), lines({QLineF(50, 40, 70, 40), QLineF(50, 140, 70, 140)}));
}

void tst_ZEMQwtPickerDraw::pixelsOfTheTicks()
{
    QImage image(400, 300, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    ZEMQwtPickerDrawAdvanced draw(50, picker);
    draw.setDirection(1);
    draw.setOrigin(QPoint(100, 100));
    picker->select(points(QPoint(100, 0), QPoint(299, 299)));
    {
        QPainter painter(&image);
        painter.setPen(Qt::red);
        draw.drawRubberBand(&painter);
    }
    for (const QPoint &ink : {QPoint(289, 50), QPoint(309, 50), QPoint(289, 150), QPoint(309, 150),
                              QPoint(100, 200), QPoint(300, 200)}) {
        QCOMPARE(image.pixelColor(ink), QColor(Qt::red));
    }
    for (const QPoint &ground : {QPoint(288, 50), QPoint(310, 50), QPoint(289, 49), QPoint(289, 51),
                                 QPoint(289, 149), QPoint(200, 200)}) {
        QCOMPARE(image.pixelColor(ground), QColor(Qt::black));
    }
}

void tst_ZEMQwtPickerDraw::advancedPickerMayDieFirst()
{
    picker->select(points(QPoint(0, 20), QPoint(399, 200)));
    const ZEMQwtPickerDrawAdvanced draw(50, picker);
    delete picker;
    DRAW(device, draw);
    QVERIFY(device.drawn().isEmpty());
}

QTEST_MAIN(tst_ZEMQwtPickerDraw)
#include "tst_zemqwtpickerdraw.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "barcomb_p.h"
#include "formtest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMBarIndicator>

#include <QPaintEvent>
#include <QPainter>
#include <QTest>

#include <limits>
#include <random>

using namespace WidgetTest;
using ZemTest::render;

namespace {

const QColor ground(Qt::blue);
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/** A bar whose paint event can be called without a window system. */
class OpenBar : public ZEMBarIndicator
{
public:
    using ZEMBarIndicator::paintEvent;
};

/** The pixels of one row: v value, m mid value, r rest, a point where nothing was drawn. */
QString row(const QImage &image, int y = 0)
{
    QString letters;
    for (int x = 0; x < image.width(); ++x) {
        const QColor color = image.pixelColor(x, y);
        letters.append(QLatin1Char(color == QColor(Qt::white)       ? 'v'
                                       : color == QColor(Qt::black) ? 'r'
                                       : color == QColor(Qt::red)   ? 'm'
                                       : color == ground            ? '.'
                                                                    : '?'));
    }
    return letters;
}

/** The lines of a bar, counted one after the other. */
BarComb::Comb referenceComb(int left, int right, double valueX, int valueWidth, int restWidth)
{
    BarComb::Comb comb;
    int x = left;
    while (x < valueX) {
        comb.filled.append(x);
        x += 2 * qMax(valueWidth, 1);
    }
    while (x < right) {
        comb.rest.append(x);
        x += 2 * qMax(restWidth, 1);
    }
    return comb;
}

} // namespace

class tst_ZEMBarIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newBar();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void sizeHintIsThePresentSize();
    void valuesAreLimited_data();
    void valuesAreLimited();
    void limits_data();
    void limits();
    void limitsLeaveTheValuesAlone();
    void whenSettersPaint();
    void comb_data();
    void comb();
    void combHasOnePixelLinesAndGaps();
    void linesReachFromTopToBottom();
    void widePensHaveWideGaps();
    void pensAreUsed();
    void midValueIsDrawnOnTop();
    void midValueIsMeasuredLikeTheValue();
    void partIsPaintedAsASmallBar();
    void partMovesTheMidValueToo();
    void noEventPaintsNothing();
    void midValueFarOutsideIsNotDrawn();
    void randomPositions();
    void randomCombs();
    void farValuesEndTheComb();
};

void tst_ZEMBarIndicator::newBar()
{
    ZEMBarIndicator bar;
    QCOMPARE(bar.objectName(), QStringLiteral("ZEMBarIndicator"));
    QCOMPARE(bar.windowTitle(), QString());
    QCOMPARE(bar.getMinValue(), 0.0);
    QCOMPARE(bar.getValue(), 10.0);
    QCOMPARE(bar.getMidValue(), 50.0);
    QCOMPARE(bar.getMaxValue(), 100.0);
    QVERIFY(!bar.getEnableMidValue());
    QCOMPARE(bar.getValuePen(), QPen(Qt::white, 1));
    QCOMPARE(bar.getMidValuePen(), QPen(Qt::red, 1));
    QCOMPARE(bar.getMaxValuePen(), QPen(Qt::black, 1));

    QWidget host;
    QCOMPARE((new ZEMBarIndicator(&host))->parentWidget(), &host);
}

void tst_ZEMBarIndicator::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMBarIndicator::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(
        ownProperties(metaObject),
        FormTest::strings({"value:double", "maxValue:double", "valuePen:QPen", "maxValuePen:QPen",
                           "setEnableMidValue:bool", "midValue:double", "midValuePen:QPen"}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMBarIndicator::propertiesReachTheAccessors()
{
    ZEMBarIndicator bar;
    const QPen first(Qt::green, 2);
    const QPen second(Qt::yellow, 3);
    const QPen third(Qt::cyan, 4);
    QVERIFY(bar.setProperty("maxValue", 200.0));
    QVERIFY(bar.setProperty("value", 150.0));
    QVERIFY(bar.setProperty("midValue", 120.0));
    QVERIFY(bar.setProperty("valuePen", first));
    QVERIFY(bar.setProperty("maxValuePen", second));
    QVERIFY(bar.setProperty("midValuePen", third));
    QVERIFY(bar.setProperty("setEnableMidValue", true));
    QCOMPARE(bar.getMaxValue(), 200.0);
    QCOMPARE(bar.getValue(), 150.0);
    QCOMPARE(bar.getMidValue(), 120.0);
    QCOMPARE(bar.getValuePen(), first);
    QCOMPARE(bar.getMaxValuePen(), second);
    QCOMPARE(bar.getMidValuePen(), third);
    QVERIFY(bar.getEnableMidValue());
    QCOMPARE(bar.property("value").toDouble(), 150.0);
    QCOMPARE(bar.property("midValue").toDouble(), 120.0);
    QCOMPARE(bar.property("maxValue").toDouble(), 200.0);
    QCOMPARE(bar.property("valuePen").value<QPen>(), first);
    QCOMPARE(bar.property("maxValuePen").value<QPen>(), second);
    QCOMPARE(bar.property("midValuePen").value<QPen>(), third);
    QVERIFY(bar.property("setEnableMidValue").toBool());
}

void tst_ZEMBarIndicator::sizeHintIsThePresentSize()
{
    ZEMBarIndicator bar;
    bar.resize(71, 23);
    QCOMPARE(bar.sizeHint(), QSize(71, 23));
    bar.resize(200, 12);
    QCOMPARE(bar.sizeHint(), QSize(200, 12));
}

void tst_ZEMBarIndicator::valuesAreLimited_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 0.0 << 42.5 << 42.5;
    QTest::newRow("minimum") << 0.0 << 0.0 << 0.0;
    QTest::newRow("maximum") << 0.0 << 100.0 << 100.0;
    QTest::newRow("above") << 0.0 << 200.0 << 100.0;
    QTest::newRow("below") << 0.0 << -0.1 << 0.0;
    QTest::newRow("below a positive minimum") << 20.0 << 5.0 << 20.0;
    QTest::newRow("above a negative minimum") << -20.0 << -5.0 << -5.0;
    QTest::newRow("infinite") << 0.0 << infinity << 100.0;
    QTest::newRow("negative infinite") << -5.0 << -infinity << -5.0;
    QTest::newRow("no number") << 0.0 << notANumber << 33.0;
}

void tst_ZEMBarIndicator::valuesAreLimited()
{
    QFETCH(double, minimum);
    QFETCH(double, value);
    ZEMBarIndicator bar;
    bar.setValue(33.0);
    bar.setMidValue(33.0);
    bar.setMinValue(minimum);
    bar.setValue(value);
    QTEST(bar.getValue(), "expected");
    bar.setMidValue(value);
    QTEST(bar.getMidValue(), "expected");
}

void tst_ZEMBarIndicator::limits_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("expectedMinimum");
    QTest::addColumn<double>("expectedMaximum");
    // The minimum is set first, in a bar from 0 to 100.
    QTest::newRow("wider") << -10.0 << 110.0 << -10.0 << 110.0;
    QTest::newRow("narrower") << 40.0 << 60.0 << 40.0 << 60.0;
    QTest::newRow("minimum at the maximum") << 100.0 << 110.0 << 0.0 << 110.0;
    QTest::newRow("minimum above the maximum") << 101.0 << 110.0 << 0.0 << 110.0;
    QTest::newRow("maximum at the minimum") << 10.0 << 10.0 << 10.0 << 100.0;
    QTest::newRow("maximum below the minimum") << 0.0 << -5.0 << 0.0 << 100.0;
    QTest::newRow("no numbers") << notANumber << notANumber << 0.0 << 100.0;
}

void tst_ZEMBarIndicator::limits()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    ZEMBarIndicator bar;
    bar.setMinValue(minimum);
    bar.setMaxValue(maximum);
    QTEST(bar.getMinValue(), "expectedMinimum");
    QTEST(bar.getMaxValue(), "expectedMaximum");
}

void tst_ZEMBarIndicator::limitsLeaveTheValuesAlone()
{
    ZEMBarIndicator bar;
    bar.setValue(80.0);
    bar.setMidValue(90.0);
    bar.setMaxValue(70.0);
    QCOMPARE(bar.getValue(), 80.0);
    QCOMPARE(bar.getMidValue(), 90.0);
    bar.setMaxValue(200.0);
    bar.setMinValue(150.0);
    QCOMPARE(bar.getValue(), 80.0);
    QCOMPARE(bar.getMidValue(), 90.0);
}

void tst_ZEMBarIndicator::whenSettersPaint()
{
    ZEMBarIndicator bar;
    bar.resize(50, 10);
    const Stage stage(&bar);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(&bar, [&] { bar.setValue(20.0); }), Painted::Later);
    QCOMPARE(paintedBy(&bar, [&] { bar.setMidValue(20.0); }), Painted::Later);
    QCOMPARE(paintedBy(&bar, [&] { bar.setMinValue(5.0); }), Painted::Later);
    QCOMPARE(paintedBy(&bar, [&] { bar.setMaxValue(50.0); }), Painted::Later);
    QCOMPARE(paintedBy(&bar, [&] { bar.setValuePen(QPen()); }), Painted::Later);
    QCOMPARE(paintedBy(&bar, [&] { bar.setMaxValuePen(QPen()); }), Painted::Later);
    QCOMPARE(paintedBy(&bar, [&] { bar.setMidValuePen(QPen()); }), Painted::Later);
    QCOMPARE(paintedBy(&bar, [&] { bar.setEnableMidValue(true); }), Painted::Never);
    QCOMPARE(paintedBy(&bar, [&] { bar.setMinValue(60.0); }), Painted::Never);
    QCOMPARE(paintedBy(&bar, [&] { bar.setMaxValue(1.0); }), Painted::Never);
}

void tst_ZEMBarIndicator::comb_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected"); // 20 pixels, none of which is a line at the right edge

    const auto row = [](const char *name, double minimum, double maximum, double value,
                        const char *expected) {
        QTest::newRow(name) << minimum << maximum << value << QString::fromLatin1(expected);
    };
    row("minimum", 0, 100, 0, "r.r.r.r.r.r.r.r.r.r.");
    row("just below half a pixel", 0, 100, 2.4, "r.r.r.r.r.r.r.r.r.r.");
    row("half a pixel", 0, 100, 2.5, "v.r.r.r.r.r.r.r.r.r.");
    row("two pixels", 0, 100, 12.4, "v.r.r.r.r.r.r.r.r.r.");
    row("three pixels", 0, 100, 12.5, "v.v.r.r.r.r.r.r.r.r.");
    row("half", 0, 100, 50, "v.v.v.v.v.r.r.r.r.r.");
    row("maximum", 0, 100, 100, "v.v.v.v.v.v.v.v.v.v.");
    row("a minimum of half the maximum", 50, 100, 100, "v.v.v.v.v.r.r.r.r.r.");
    row("a minimum, and a value between", 50, 100, 75, "v.v.v.r.r.r.r.r.r.r.");
    row("the minimum itself", 50, 100, 50, "r.r.r.r.r.r.r.r.r.r.");
    row("a negative minimum lengthens", -50, 100, 50, "v.v.v.v.v.v.v.v.v.v.");
    row("another maximum", 0, 40, 10, "v.v.v.r.r.r.r.r.r.r.");
    row("a maximum of 0, its minimum", -10, 0, -10, "r.r.r.r.r.r.r.r.r.r.");
    row("a maximum of 0, above", -10, 0, -5, "v.v.v.v.v.v.v.v.v.v.");
    row("a negative maximum", -10, -5, -5, "r.r.r.r.r.r.r.r.r.r.");
}

void tst_ZEMBarIndicator::comb()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    ZEMBarIndicator bar;
    bar.resize(20, 4);
    bar.setMinValue(minimum);
    bar.setMaxValue(maximum);
    bar.setValue(value);
    QCOMPARE(bar.getMinValue(), minimum);
    QCOMPARE(bar.getMaxValue(), maximum);
    QCOMPARE(bar.getValue(), value);
    QTEST(row(render(&bar, ground)), "expected");
}

void tst_ZEMBarIndicator::combHasOnePixelLinesAndGaps()
{
    ZEMBarIndicator bar;
    bar.resize(21, 4);
    bar.setValue(50.0);
    // The last column stays free: the rest ends before the right edge.
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.v.v.v.v.r.r.r.r.."));
    bar.setValue(100.0); // the value does not
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.v.v.v.v.v.v.v.v.v"));
}

void tst_ZEMBarIndicator::linesReachFromTopToBottom()
{
    ZEMBarIndicator bar;
    bar.resize(20, 9);
    bar.setEnableMidValue(true);
    const QImage image = render(&bar, ground);
    for (int y = 0; y < 9; ++y) {
        QCOMPARE(row(image, y), row(image, 0));
    }
}

void tst_ZEMBarIndicator::widePensHaveWideGaps()
{
    // Lines with a width of 2 begin half of it to the left of their place.
    QCOMPARE(BarComb::step(0), 2);
    QCOMPARE(BarComb::step(1), 2);
    QCOMPARE(BarComb::step(2), 4);
    QCOMPARE(BarComb::step(3), 6);

    ZEMBarIndicator bar;
    bar.resize(30, 4);
    bar.setValue(50.0);
    bar.setValuePen(QPen(Qt::white, 3));
    bar.setMaxValuePen(QPen(Qt::black, 1));
    // White at 0, 6 and 12, each from one before to one after, then black from 18 on.
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("vv...vvv...vvv....r.r.r.r.r.r."));
    bar.setValuePen(QPen(Qt::white, 1));
    bar.setMaxValuePen(QPen(Qt::black, 3));
    // White at 0 to 14, then black at 16, 22 and 28.
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.v.v.v.v.v.vrrr...rrr...rrr"));
    bar.setValuePen(QPen(Qt::white, 0));
    bar.setMaxValuePen(QPen(Qt::black, 0));
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.v.v.v.v.v.v.r.r.r.r.r.r.r."));
}

void tst_ZEMBarIndicator::pensAreUsed()
{
    ZEMBarIndicator bar;
    bar.resize(20, 4);
    bar.setEnableMidValue(true);
    bar.setValuePen(QPen(Qt::red, 1));
    bar.setMidValuePen(QPen(Qt::black, 1));
    bar.setMaxValuePen(QPen(Qt::white, 1));
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("m.v.v.v.v.r.v.v.v.v."));
}

void tst_ZEMBarIndicator::midValueIsDrawnOnTop()
{
    ZEMBarIndicator bar;
    bar.resize(20, 4);
    bar.setValue(50.0);
    bar.setMidValue(20.0);
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.v.v.v.r.r.r.r.r."));
    bar.setEnableMidValue(true);
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.m.v.v.r.r.r.r.r."));
    bar.setMidValue(65.0);
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.v.v.v.r.rmr.r.r."));
    bar.setMidValue(0.0);
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("m.v.v.v.v.r.r.r.r.r."));
    bar.setMidValue(100.0); // one pixel beyond the right edge
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("v.v.v.v.v.r.r.r.r.r."));
}

void tst_ZEMBarIndicator::midValueIsMeasuredLikeTheValue()
{
    ZEMBarIndicator bar;
    bar.resize(20, 4);
    bar.setEnableMidValue(true);
    bar.setMinValue(50.0);
    bar.setValue(50.0);
    bar.setMidValue(75.0);
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("r.r.rmr.r.r.r.r.r.r."));
    bar.setMidValue(100.0);
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("r.r.r.r.r.m.r.r.r.r."));
}

void tst_ZEMBarIndicator::partIsPaintedAsASmallBar()
{
    ZEMBarIndicator bar;
    bar.resize(40, 10);
    bar.setValue(50.0);
    QImage image(bar.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    const QRect part(11, 3, 12, 4);
    bar.render(&image, part.topLeft(), part, QWidget::DrawChildren);
    const QString empty(40, QLatin1Char('.'));
    for (int y = 0; y < 10; ++y) {
        const bool inside = y >= 3 && y <= 6;
        QCOMPARE(row(image, y),
                 inside ? QStringLiteral("...........v.v.v.r.r.r..................") : empty);
    }
}

void tst_ZEMBarIndicator::partMovesTheMidValueToo()
{
    ZEMBarIndicator bar;
    bar.resize(40, 10);
    bar.setEnableMidValue(true);
    bar.setMidValue(75.0);
    bar.setValue(50.0);
    QImage image(bar.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(ground);
    const QRect part(11, 3, 12, 4);
    bar.render(&image, part.topLeft(), part, QWidget::DrawChildren);
    QCOMPARE(row(image, 4), QStringLiteral("...........v.v.v.r.rmr.................."));
}

void tst_ZEMBarIndicator::noEventPaintsNothing()
{
    OpenBar bar;
    bar.paintEvent(nullptr); // a painter outside of a paint event would give a warning
    QCOMPARE(bar.getValue(), 10.0);
}

void tst_ZEMBarIndicator::midValueFarOutsideIsNotDrawn()
{
    QVERIFY(BarComb::reaches(0, 1, 0, 19));
    QVERIFY(BarComb::reaches(20, 1, 0, 19));
    QVERIFY(BarComb::reaches(-2, 1, 0, 19));
    QVERIFY(!BarComb::reaches(-3, 1, 0, 19));
    QVERIFY(!BarComb::reaches(22, 1, 0, 19));
    QVERIFY(BarComb::reaches(25, 5, 0, 19));
    QVERIFY(!BarComb::reaches(infinity, 1, 0, 19));
    QVERIFY(!BarComb::reaches(-infinity, 1, 0, 19));
    QVERIFY(!BarComb::reaches(notANumber, 1, 0, 19));
    QVERIFY(!BarComb::reaches(1e300, 1, 0, 19));

    ZEMBarIndicator bar;
    bar.resize(20, 4);
    bar.setEnableMidValue(true);
    bar.setMinValue(-1e300);
    bar.setMaxValue(1e-300);
    bar.setMidValue(1e-300);
    bar.setValue(-1e300);
    QCOMPARE(row(render(&bar, ground)), QStringLiteral("r.r.r.r.r.r.r.r.r.r."));
}

void tst_ZEMBarIndicator::randomPositions()
{
    std::mt19937 random(20260301);
    for (int i = 0; i < 5000; ++i) {
        const int left = int(random() % 400) - 100;
        const int span = 1 + int(random() % 640);
        // A power of two, so that no sum is rounded.
        const int maximum = 1 << (random() % 8);
        const int minimum = -int(random() % 40);
        const int value = minimum + int(random() % unsigned(maximum - minimum + 1));
        // Half a pixel more and rounded down, in whole numbers.
        const int expected = left + (2 * span * (value - minimum) + maximum) / (2 * maximum);
        QCOMPARE(BarComb::position(left, span, value, minimum, maximum), double(expected));
    }
}

void tst_ZEMBarIndicator::randomCombs()
{
    std::mt19937 random(20260302);
    for (int i = 0; i < 5000; ++i) {
        const int left = int(random() % 300) - 50;
        const int right = left + int(random() % 200);
        const double valueX = left + int(random() % 240) - 20;
        const int valueWidth = int(random() % 6);
        const int restWidth = int(random() % 6);
        const auto comb = BarComb::comb(left, right, valueX, valueWidth, restWidth);
        const auto reference = referenceComb(left, right, valueX, valueWidth, restWidth);
        QCOMPARE(comb.rest, reference.rest);
        // Only what lies out of sight may be missing.
        QCOMPARE(comb.filled, reference.filled.mid(0, comb.filled.size()));
        if (comb.filled.size() < reference.filled.size()) {
            QVERIFY(reference.filled.at(comb.filled.size()) > right + valueWidth);
        }
    }
}

void tst_ZEMBarIndicator::farValuesEndTheComb()
{
    for (double far : {1e9, 1e300, infinity}) {
        const auto comb = BarComb::comb(0, 9, far, 1, 1);
        QVERIFY(comb.filled.size() >= 5 && comb.filled.size() <= 7);
        QVERIFY(comb.rest.isEmpty());
    }
    for (double far : {-1e300, -infinity, notANumber}) {
        const auto comb = BarComb::comb(0, 9, far, 1, 1);
        QVERIFY(comb.filled.isEmpty());
        QCOMPARE(comb.rest, QVector<int>({0, 2, 4, 6, 8}));
    }
}

QTEST_MAIN(tst_ZEMBarIndicator)
#include "tst_zembarindicator.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMQwtPlotMarker>

#include "countingplot.h"
#include "markertexts_p.h"
#include "recordingdevice.h"
#include "zemtest.h"

#include <QPainter>
#include <QTest>

#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_map.h>
#include <qwt_text.h>

#include <climits>
#include <cmath>
#include <limits>

using namespace PlotTest;

namespace {

const QRectF canvas(10, 20, 200, 150);

class Marker : public ZEMQwtPlotMarker
{
public:
    using ZEMQwtPlotMarker::drawLabel;
};

QFont largeFont()
{
    QFont font;
    font.setPixelSize(22);
    return font;
}

} // namespace

class tst_ZEMQwtPlotMarker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void yIsDrawnFirst();
    void yStandsAtTheLeftEdgeBelowTheLine();
    void xStandsOnTheBottomEdgeRightOfTheLine();
    void painterStaysTranslated();
    void penAndFontAreThePainters();
    void ownLabelIsNotUsed();
    void settersDoNotReplot();
    void markerOnAPlot();
    void penAndFontOnACanvas_data();
    void penAndFontOnACanvas();
};

void tst_ZEMQwtPlotMarker::texts_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("xPlaces");
    QTest::addColumn<int>("yPlaces");
    QTest::addColumn<QString>("xText");
    QTest::addColumn<QString>("yText");

    const auto row = [](const char *name, double x, double y, int xPlaces, int yPlaces,
                        const char *xText, const char *yText) {
        QTest::newRow(name) << x << y << xPlaces << yPlaces << QString::fromLatin1(xText)
                            << QString::fromLatin1(yText);
    };
    row("defaults", 3.7, 1.5, 0, 2, "3", "1.50");
    row("x is cut towards 0", -3.7, 1.0, 0, 2, "-3", "1.00");
    row("x has no negative 0", -0.7, 0.0, 0, 2, "0", "0.00");
    row("places for x", 3.7, 1.5, 1, 2, "3.7", "1.50");
    row("x with places is rounded", 3.76, 1.5, 1, 2, "3.8", "1.50");
    row("y is rounded", 3.7, 2.7, 0, 0, "3", "3");
    row("y is rounded below 0", 3.7, -2.7, 0, 0, "3", "-3");
    row("y with more places", 3.7, 1.23456, 0, 4, "3", "1.2346");
    row("large x", 4e9, 1.0, 0, 0, "2147483647", "1");
    row("small x", -4e9, 1.0, 0, 0, "-2147483648", "1");
    row("no thousands, no exponent", 1234567.0, 1234567.0, 0, 0, "1234567", "1234567");
    row("x is no number", std::nan(""), 1.0, 0, 0, "0", "1");
    row("y is no number", 1.0, std::nan(""), 0, 2, "1", "nan");
    row("endless", std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity(),
        0, 2, "2147483647", "inf");
}

void tst_ZEMQwtPlotMarker::texts()
{
    QFETCH(double, x);
    QFETCH(double, y);
    QFETCH(int, xPlaces);
    QFETCH(int, yPlaces);
    QFETCH(QString, xText);
    QFETCH(QString, yText);

    QCOMPARE(MarkerTexts::xText(x, xPlaces), xText);
    QCOMPARE(MarkerTexts::yText(y, yPlaces), yText);

    Marker marker;
    if (xPlaces != 0) {
        marker.setDecimalPlacesForX(xPlaces);
    }
    if (yPlaces != 2) {
        marker.setDecimalPlacesForY(yPlaces);
    }
    marker.setValue(x, y);
    RecordingDevice device;
    QPainter painter(&device);
    marker.drawLabel(&painter, canvas, QPointF(100, 80));
    QCOMPARE(device.drawn().size(), 2);
    QCOMPARE(device.drawn().at(0).text, yText);
    QCOMPARE(device.drawn().at(1).text, xText);
}

void tst_ZEMQwtPlotMarker::yIsDrawnFirst()
{
    Marker marker;
    marker.setValue(1.0, 2.0);
    RecordingDevice device;
    QPainter painter(&device);
    painter.setFont(largeFont());
    marker.drawLabel(&painter, canvas, QPointF(100.5, 80.25));

    const double height = QwtText(QStringLiteral("1")).textSize(painter.font()).height();
    QCOMPARE(device.drawn().at(0).text, QStringLiteral("2.00"));
    QCOMPARE(device.drawn().at(0).transform, QTransform::fromTranslate(2.0, 80.25));
    QCOMPARE(device.drawn().at(1).text, QStringLiteral("1"));
    QCOMPARE(device.drawn().at(1).transform.dx(), 102.5);
    QCOMPARE(device.drawn().at(1).transform.dy(), 170.0 - height - 2.0);
}

void tst_ZEMQwtPlotMarker::yStandsAtTheLeftEdgeBelowTheLine()
{
    QImage image(240, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QImage expected = image;
    const QwtText text(QStringLiteral("7.25"));
    {
        QPainter painter(&expected);
        painter.setFont(largeFont());
        painter.setPen(Qt::white);
        text.draw(&painter, QRectF(QPointF(2, 60), text.textSize(painter.font())));
    }
    Marker marker;
    marker.setValue(1.0, 7.25);
    {
        QPainter painter(&image);
        painter.setFont(largeFont());
        painter.setPen(Qt::white);
        marker.drawLabel(&painter, canvas, QPointF(120, 60));
    }
    const QRect left(0, 0, 110, 200);
    QVERIFY(!ZemTest::inkRect(expected).isNull());
    QCOMPARE(image.copy(left), expected.copy(left));
    QVERIFY(ZemTest::inkRect(image.copy(left)).top() >= 60);
    QVERIFY(ZemTest::inkRect(image.copy(left)).left() >= 2);
}

void tst_ZEMQwtPlotMarker::xStandsOnTheBottomEdgeRightOfTheLine()
{
    QImage image(240, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QImage expected = image;
    const QwtText text(QStringLiteral("42"));
    {
        QPainter painter(&expected);
        painter.setFont(largeFont());
        painter.setPen(Qt::white);
        const QSizeF size = text.textSize(painter.font());
        text.draw(&painter, QRectF(QPointF(122, 170 - size.height() - 2), size));
    }
    Marker marker;
    marker.setValue(42.0, 7.25);
    {
        QPainter painter(&image);
        painter.setFont(largeFont());
        painter.setPen(Qt::white);
        marker.drawLabel(&painter, canvas, QPointF(120, 30));
    }
    const QRect right(110, 0, 130, 200);
    QVERIFY(!ZemTest::inkRect(expected).isNull());
    QCOMPARE(image.copy(right), expected.copy(right));
    QVERIFY(ZemTest::inkRect(image.copy(right)).bottom() < 168);
}

void tst_ZEMQwtPlotMarker::painterStaysTranslated()
{
    Marker marker;
    RecordingDevice device;
    QPainter painter(&device);
    marker.drawLabel(&painter, canvas, QPointF(100, 80));
    const double height = QwtText(QStringLiteral("0")).textSize(painter.font()).height();
    QCOMPARE(painter.transform(), QTransform::fromTranslate(102.0, 168.0 - height));
}

void tst_ZEMQwtPlotMarker::penAndFontAreThePainters()
{
    Marker marker;
    RecordingDevice device;
    QPainter painter(&device);
    painter.setPen(QPen(Qt::green));
    painter.setFont(largeFont());
    marker.drawLabel(&painter, canvas, QPointF(100, 80));
    QCOMPARE(device.drawn().at(0).pen.color(), QColor(Qt::green));
    QCOMPARE(device.drawn().at(1).pen.color(), QColor(Qt::green));
    QCOMPARE(painter.font().pixelSize(), 22);
}

void tst_ZEMQwtPlotMarker::ownLabelIsNotUsed()
{
    Marker marker;
    marker.setLabel(QwtText(QStringLiteral("label")));
    RecordingDevice device;
    QPainter painter(&device);
    marker.drawLabel(&painter, canvas, QPointF(100, 80));
    QCOMPARE(device.drawn().size(), 2);
    for (const Drawn &item : device.drawn()) {
        QVERIFY(item.text != QStringLiteral("label"));
    }
}

void tst_ZEMQwtPlotMarker::settersDoNotReplot()
{
    ZemTest::CountingPlot<QwtPlot> plot;
    plot.setAutoReplot(true);
    auto *marker = new ZEMQwtPlotMarker;
    marker->attach(&plot);
    plot.replots = 0;
    marker->setDecimalPlacesForX(3);
    marker->setDecimalPlacesForY(3);
    QCOMPARE(plot.replots, 0);
}

void tst_ZEMQwtPlotMarker::markerOnAPlot()
{
    ZEMQwtPlotMarker marker;
    marker.setLineStyle(QwtPlotMarker::Cross);
    marker.setLinePen(Qt::red);
    marker.setValue(100.0, 80.0);
    RecordingDevice device;
    QPainter painter(&device);
    marker.draw(&painter, QwtScaleMap(), QwtScaleMap(), canvas);
    QStringList texts;
    for (const Drawn &item : device.drawn()) {
        if (item.kind == Drawn::Text) {
            texts << item.text;
            QCOMPARE(item.pen.color(), QColor(Qt::red));
        }
    }
    QCOMPARE(texts, QStringList({QStringLiteral("80.00"), QStringLiteral("100")}));
    QCOMPARE(device.points(Drawn::Line).size(), 2);
}

void tst_ZEMQwtPlotMarker::penAndFontOnACanvas_data()
{
    QTest::addColumn<bool>("hasLines");
    QTest::addColumn<bool>("hasStore");
    QTest::addColumn<QColor>("color");

    QTest::newRow("lines, store") << true << true << QColor(Qt::red);
    QTest::newRow("lines, no store") << true << false << QColor(Qt::red);
    QTest::newRow("no lines, store") << false << true << QColor(Qt::black);
    QTest::newRow("no lines, no store") << false << false << QColor(Qt::blue);
}

void tst_ZEMQwtPlotMarker::penAndFontOnACanvas()
{
    class Observed : public ZEMQwtPlotMarker
    {
    public:
        mutable QColor color;
        mutable QFont font;

    protected:
        void drawLabel(QPainter *painter, const QRectF &, const QPointF &) const override
        {
            color = painter->pen().color();
            font = painter->font();
        }
    };
    QFETCH(bool, hasLines);
    QFETCH(bool, hasStore);
    QwtPlot plot;
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::blue);
    plot.setPalette(palette);
    plot.canvas()->setFont(largeFont());
    qobject_cast<QwtPlotCanvas *>(plot.canvas())
        ->setPaintAttribute(QwtPlotCanvas::BackingStore, hasStore);
    Observed marker;
    marker.setLineStyle(hasLines ? QwtPlotMarker::Cross : QwtPlotMarker::NoLine);
    marker.setLinePen(Qt::red);
    marker.attach(&plot);
    plot.resize(300, 200);
    plot.grab();
    QTEST(marker.color, "color");
    QCOMPARE(marker.font.pixelSize(), hasStore ? QFont().pixelSize() : 22);
}

QTEST_MAIN(tst_ZEMQwtPlotMarker)
#include "tst_zemqwtplotmarker.moc"

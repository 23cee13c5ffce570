// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMPlot>
#include <ZEMPlotZoomerAdvanced>

#include "countingplot.h"
#include "plotfixture.h"
#include "zemtest.h"

#include <QMetaMethod>
#include <QPainter>
#include <QSignalSpy>

#include <qwt_plot_panner.h>
#include <qwt_scale_div.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

using namespace PlotTest;

namespace {

using Getter = std::unique_ptr<ZEMQwtPlotCurvePointGetter>;

QwtPlotCurve *namedCurve(const QString &name)
{
    auto *curve = new QwtPlotCurve(name);
    curve->setSamples(QVector<QPointF> {{0.0, 0.0}, {100.0, 50.0}});
    return curve;
}

Qt::MouseButton pannerButton(QwtPlotPanner *panner)
{
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers;
    panner->getMouseButton(button, modifiers);
    return modifiers == Qt::NoModifier ? button : Qt::NoButton;
}

} // namespace

class tst_ZEMPlot : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newPlotIsBare();
    void bearsTheNameOfItsClass();
    void declaresAxisChanged();
    void initAttachesTheGridAndStyles();
    void initPutsPanningOnTheRightButton();
    void initHasTheLastWordOnPanning();
    void restyleStylesInOrderAndReplotsOnce();
    void restyleLeavesMarkersAlone();
    void setStylerRestylesWithTheNewOne();

    void curveIsStyledBeforeItIsAttached();
    void curveIsNotSeenBeforeTheNextReplot();
    void curveCanBecomeTheZoomBase();
    void zoomBaseForgetsZooming();
    void removedCurveIsDetachedAndReplotted();
    void foreignCurveIsDetachedToo();
    void removingKeepsTheZoomBase();
    void curvesBehindARemovedOneMoveUp();
    void sameCurveTwiceIsRemovedOnce();
    void indexOfCurve();
    void markerIsStyledAndAttached();
    void removedMarkerIsDetachedAndReplotted();

    void backgroundColorFillsAndReplots();
    void frontColorMakesThePalette();
    void backgroundGraphicMakesTransparent();
    void backgroundGraphicIsPainted();
    void badPathLeavesNoPicture();
    void fontOfBottomScaleLeavesRoomAtTheEnd();
    void fontUsesCurrentLabels();
    void fontOfOtherScalesLeavesBorders_data();
    void fontOfOtherScalesLeavesBorders();
    void fontByFamilyAndSize();
    void fontOfNoAxisDoesNothing();

    void rightButtonPans();
    void destructorDeletesWhatThePlotMadeInOrder();
    void destructorLeavesTheGetter();
    void destructorLeavesLooseItems();
    void attachedItemsDieWithThePlot();
    void anotherCanvasTakesZoomerAndPannerAway();

private:
    Styler styler;
    std::unique_ptr<ZemTest::CountingPlot<ZEMPlot>> plot;
    Getter getter;
};

void tst_ZEMPlot::init()
{
    plot = std::make_unique<ZemTest::CountingPlot<ZEMPlot>>(&styler);
    getter.reset(plot->getCurvePointGetter());
    plot->replots = 0;
}

void tst_ZEMPlot::cleanup()
{
    plot.reset();
    getter.reset();
    styler = Styler();
}

void tst_ZEMPlot::newPlotIsBare()
{
    QVERIFY(styler.log.isEmpty());
    QVERIFY(plot->itemList().isEmpty());
    QVERIFY(plot->getCurves().isEmpty());
    QCOMPARE(plot->getNumCurves(), 0);
    QCOMPARE(plot->getStyler(), &styler);
    QCOMPARE(plot->getPanner()->canvas(), plot->canvas());
    QCOMPARE(pannerButton(plot->getPanner()), Qt::LeftButton);
    QCOMPARE(plot->getZoomer()->canvas(), plot->canvas());
    QCOMPARE(plot->getZoomer()->xAxis(), int(QwtPlot::xBottom));
    QCOMPARE(plot->getZoomer()->yAxis(), int(QwtPlot::yLeft));
    QCOMPARE(getter->getNumCurves(), 0);
    QVERIFY(!plot->autoReplot());
    QVERIFY(!plot->legend());
    QVERIFY(plot->title().isEmpty());
    QCOMPARE(pannerButton(plot->getPanner()), Qt::LeftButton);
}

void tst_ZEMPlot::bearsTheNameOfItsClass()
{
    QCOMPARE(plot->objectName(), QStringLiteral("ZEMPlot"));
    QVERIFY(plot->inherits("ZEMPlot"));
}

void tst_ZEMPlot::declaresAxisChanged()
{
    const QMetaObject &meta = ZEMPlot::staticMetaObject;
    const int index = meta.indexOfSignal("axisChanged(int)");
    QVERIFY(index >= meta.methodOffset());
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);

    QSignalSpy spy(plot.get(), &ZEMPlot::axisChanged);
    plot->init();
    plot->setAxisScale(QwtPlot::xBottom, 0.0, 5.0);
    plot->addCurve(namedCurve(QStringLiteral("a")), true);
    plot->getZoomer()->zoom(QRectF(1.0, 1.0, 2.0, 2.0));
    QCOMPARE(spy.count(), 0);
}

void tst_ZEMPlot::initAttachesTheGridAndStyles()
{
    plot->init();
    QCOMPARE(styler.log, QStringList({QStringLiteral("plot"), QStringLiteral("attached grid")}));
    QCOMPARE(styler.styledPlot, plot.get());
    QCOMPARE(styler.styledGrid->plot(), plot.get());
    QCOMPARE(plot->itemList(QwtPlotItem::Rtti_PlotGrid).size(), 1);
    QCOMPARE(plot->replots, 1);
}

void tst_ZEMPlot::initPutsPanningOnTheRightButton()
{
    plot->getPanner()->setAxisEnabled(QwtPlot::yLeft, false);
    plot->getPanner()->setAxisEnabled(QwtPlot::xBottom, false);
    plot->init();
    QCOMPARE(pannerButton(plot->getPanner()), Qt::RightButton);
    QVERIFY(plot->getPanner()->isAxisEnabled(QwtPlot::yLeft));
    QVERIFY(plot->getPanner()->isAxisEnabled(QwtPlot::xBottom));
}

void tst_ZEMPlot::initHasTheLastWordOnPanning()
{
    class Meddler final : public ZEMPlotStyler
    {
    public:
        void stylePlot(ZEMPlot *plot) override
        {
            plot->getPanner()->setMouseButton(Qt::MiddleButton, Qt::NoModifier);
        }
        void styleGrid(QwtPlotGrid *) override { }
        void styleCurve(QwtPlotCurve *, int) override { }
        void styleMarker(QwtPlotMarker *) override { }
    };
    Meddler meddler;
    plot->setStyler(&meddler);
    QCOMPARE(pannerButton(plot->getPanner()), Qt::MiddleButton);
    plot->init();
    QCOMPARE(pannerButton(plot->getPanner()), Qt::RightButton);
    plot.reset();
}

void tst_ZEMPlot::restyleStylesInOrderAndReplotsOnce()
{
    plot->addCurve(namedCurve(QStringLiteral("a")), false);
    plot->addCurve(namedCurve(QStringLiteral("b")), false);
    styler.log.clear();
    plot->restyle();
    QCOMPARE(styler.log,
             QStringList({QStringLiteral("plot"), QStringLiteral("loose grid"),
                          QStringLiteral("attached curve a as 0"),
                          QStringLiteral("attached curve b as 1")}));
    QCOMPARE(plot->replots, 1);
}

void tst_ZEMPlot::restyleLeavesMarkersAlone()
{
    plot->addMarker(new QwtPlotMarker);
    styler.log.clear();
    plot->restyle();
    QVERIFY(!styler.log.join(QLatin1Char(' ')).contains(QStringLiteral("marker")));
}

void tst_ZEMPlot::setStylerRestylesWithTheNewOne()
{
    plot->addCurve(namedCurve(QStringLiteral("a")), false);
    styler.log.clear();
    Styler other;
    plot->setStyler(&other);
    QCOMPARE(plot->getStyler(), &other);
    QVERIFY(styler.log.isEmpty());
    QCOMPARE(other.log.size(), 3);
    QCOMPARE(plot->replots, 1);
}

void tst_ZEMPlot::curveIsStyledBeforeItIsAttached()
{
    QwtPlotCurve *const first = namedCurve(QStringLiteral("a"));
    QwtPlotCurve *const second = namedCurve(QStringLiteral("b"));
    const QList<QwtPlotCurve *> &curves = plot->getCurves();
    plot->addCurve(first, false);
    plot->addCurve(second, false);
    QCOMPARE(curves.size(), 2); // the list itself, not a copy
    QCOMPARE(
        styler.log,
        QStringList({QStringLiteral("loose curve a as 0"), QStringLiteral("loose curve b as 1")}));
    QCOMPARE(plot->getCurves(), QList<QwtPlotCurve *>({first, second}));
    QCOMPARE(plot->getNumCurves(), 2);
    QCOMPARE(first->plot(), plot.get());
    QCOMPARE(plot->replots, 0);
}

void tst_ZEMPlot::curveIsNotSeenBeforeTheNextReplot()
{
    arrange(plot.get());
    plot->setCanvasBackground(Qt::black);
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    const auto inkOf = [this] {
        return ZemTest::inkRect(plot->canvas()->grab().toImage(), Qt::black);
    };
    QVERIFY(inkOf().isNull());
    QwtPlotCurve *const curve = namedCurve(QStringLiteral("a"));
    curve->setSamples(QVector<QPointF> {{50.0, 100.0}, {150.0, 100.0}});
    curve->setPen(Qt::red);
    plot->addCurve(curve, false);
    QVERIFY(inkOf().isNull());
    plot->replot();
    QCOMPARE(inkOf(), QRect(pixelOf(50.0, 100.0), pixelOf(150.0, 100.0)));
}

void tst_ZEMPlot::curveCanBecomeTheZoomBase()
{
    plot->addCurve(namedCurve(QStringLiteral("a")), true);
    QCOMPARE(plot->replots, 1);
    const QRectF base = plot->getZoomer()->zoomBase();
    QCOMPARE(base, QRectF(0.0, 0.0, 100.0, 50.0));
    QCOMPARE(plot->axisInterval(QwtPlot::xBottom), QwtInterval(0.0, 100.0));
}

void tst_ZEMPlot::zoomBaseForgetsZooming()
{
    plot->addCurve(namedCurve(QStringLiteral("a")), true);
    plot->getZoomer()->zoom(QRectF(10.0, 10.0, 20.0, 20.0));
    QCOMPARE(plot->getZoomer()->zoomRectIndex(), 1u);
    plot->addCurve(namedCurve(QStringLiteral("b")), false);
    QCOMPARE(plot->getZoomer()->zoomRectIndex(), 1u);
    plot->addCurve(namedCurve(QStringLiteral("c")), true);
    QCOMPARE(plot->getZoomer()->zoomRectIndex(), 0u);
    QCOMPARE(plot->getZoomer()->zoomBase(), QRectF(10.0, 10.0, 20.0, 20.0));
}

void tst_ZEMPlot::removedCurveIsDetachedAndReplotted()
{
    const std::unique_ptr<QwtPlotCurve> curve(namedCurve(QStringLiteral("a")));
    plot->addCurve(curve.get(), false);
    plot->removeCurve(curve.get());
    QCOMPARE(plot->getNumCurves(), 0);
    QVERIFY(!curve->plot());
    QCOMPARE(plot->replots, 1);
}

void tst_ZEMPlot::foreignCurveIsDetachedToo()
{
    plot->addCurve(namedCurve(QStringLiteral("a")), false);
    const std::unique_ptr<QwtPlotCurve> curve(namedCurve(QStringLiteral("b")));
    curve->attach(plot.get());
    plot->removeCurve(curve.get());
    QVERIFY(!curve->plot());
    QCOMPARE(plot->getNumCurves(), 1);
    QCOMPARE(plot->replots, 1);
}

void tst_ZEMPlot::removingKeepsTheZoomBase()
{
    const std::unique_ptr<QwtPlotCurve> curve(namedCurve(QStringLiteral("a")));
    plot->addCurve(curve.get(), true);
    const QRectF base = plot->getZoomer()->zoomBase();
    plot->removeCurve(curve.get());
    QCOMPARE(plot->getZoomer()->zoomBase(), base);
}

void tst_ZEMPlot::curvesBehindARemovedOneMoveUp()
{
    const std::unique_ptr<QwtPlotCurve> first(namedCurve(QStringLiteral("a")));
    QwtPlotCurve *const second = namedCurve(QStringLiteral("b"));
    plot->addCurve(first.get(), false);
    plot->addCurve(second, false);
    styler.log.clear();
    plot->removeCurve(first.get());
    QCOMPARE(plot->getIndexOfCurve(second), 0);
    QVERIFY(styler.log.isEmpty());
    plot->restyle();
    QCOMPARE(styler.log.last(), QStringLiteral("attached curve b as 0"));
}

void tst_ZEMPlot::sameCurveTwiceIsRemovedOnce()
{
    const std::unique_ptr<QwtPlotCurve> curve(namedCurve(QStringLiteral("a")));
    plot->addCurve(curve.get(), false);
    plot->addCurve(curve.get(), false);
    QCOMPARE(plot->getNumCurves(), 2);
    QCOMPARE(plot->getIndexOfCurve(curve.get()), 0);
    plot->removeCurve(curve.get());
    QCOMPARE(plot->getNumCurves(), 1);
    plot->removeCurve(curve.get());
    QCOMPARE(plot->getNumCurves(), 0);
}

void tst_ZEMPlot::indexOfCurve()
{
    QwtPlotCurve *const first = namedCurve(QStringLiteral("a"));
    QwtPlotCurve *const second = namedCurve(QStringLiteral("b"));
    plot->addCurve(first, false);
    plot->addCurve(second, false);
    const QwtPlotCurve foreign;
    QCOMPARE(plot->getIndexOfCurve(first), 0);
    QCOMPARE(plot->getIndexOfCurve(second), 1);
    QCOMPARE(plot->getIndexOfCurve(const_cast<QwtPlotCurve *>(&foreign)), -1);
    QCOMPARE(plot->getIndexOfCurve(nullptr), -1);
}

void tst_ZEMPlot::markerIsStyledAndAttached()
{
    auto *marker = new QwtPlotMarker;
    plot->addMarker(marker);
    QCOMPARE(styler.log, QStringList({QStringLiteral("loose marker")}));
    QCOMPARE(marker->plot(), plot.get());
    QCOMPARE(plot->getNumCurves(), 0);
    QCOMPARE(plot->replots, 0);
}

void tst_ZEMPlot::removedMarkerIsDetachedAndReplotted()
{
    QwtPlotMarker marker;
    plot->addMarker(&marker);
    plot->removeMarker(&marker);
    QVERIFY(!marker.plot());
    QCOMPARE(plot->replots, 1);
}

void tst_ZEMPlot::backgroundColorFillsAndReplots()
{
    plot->setAutoFillBackground(false);
    plot->setBackgroundColor(Qt::darkGreen);
    QVERIFY(plot->autoFillBackground());
    QVERIFY(plot->autoReplot());
    QCOMPARE(plot->canvasBackground(), QBrush(Qt::darkGreen, Qt::SolidPattern));
}

void tst_ZEMPlot::frontColorMakesThePalette()
{
    plot->setFrontColor(QColor(200, 10, 10));
    QCOMPARE(plot->palette().color(QPalette::Active, QPalette::Button), QColor(200, 10, 10));
    QCOMPARE(plot->palette().color(QPalette::Active, QPalette::WindowText),
             QPalette(QColor(200, 10, 10)).color(QPalette::Active, QPalette::WindowText));
}

void tst_ZEMPlot::backgroundGraphicMakesTransparent()
{
    auto *canvas = qobject_cast<QwtPlotCanvas *>(plot->canvas());
    const QPixmap picture = ZemTest::flatPixmap(QSize(20, 10), Qt::cyan);
    plot->setBackgroundGraphic(picture);
    QCOMPARE(plot->canvasBackground().style(), Qt::TexturePattern);
    QCOMPARE(plot->canvasBackground().texture().size(), QSize(20, 10));
    QCOMPARE(canvas->frameStyle(), 0);
    QVERIFY(plot->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(!canvas->testPaintAttribute(QwtPlotCanvas::BackingStore));
    QVERIFY(!canvas->testPaintAttribute(QwtPlotCanvas::Opaque));
    QVERIFY(!canvas->testAttribute(Qt::WA_OpaquePaintEvent));
}

void tst_ZEMPlot::backgroundGraphicIsPainted()
{
    QPixmap picture(QSize(40, 30));
    picture.fill(Qt::transparent);
    {
        QPainter painter(&picture);
        painter.fillRect(0, 0, 20, 30, Qt::cyan);
    }
    arrange(plot.get());
    plot->setBackgroundGraphic(picture);
    const QImage image = ZemTest::render(plot.get(), Qt::magenta);
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::cyan));
    QCOMPARE(image.pixelColor(30, 5), QColor(Qt::magenta));
    QCOMPARE(image.pixelColor(45, 35), QColor(Qt::cyan));
}

void tst_ZEMPlot::badPathLeavesNoPicture()
{
    auto *canvas = qobject_cast<QwtPlotCanvas *>(plot->canvas());
    plot->setBackgroundGraphic(QStringLiteral(":/no/such/picture.png"));
    QVERIFY(plot->canvasBackground().texture().isNull());
    QCOMPARE(canvas->frameStyle(), 0);
    QVERIFY(plot->testAttribute(Qt::WA_TranslucentBackground));
    ZemTest::render(plot.get());

    plot->setBackgroundGraphic(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_med.png"));
    QVERIFY(!plot->canvasBackground().texture().isNull());
}

void tst_ZEMPlot::fontOfBottomScaleLeavesRoomAtTheEnd()
{
    QwtScaleWidget *const scale = plot->axisWidget(QwtPlot::xBottom);
    scale->setMinBorderDist(33, 33);
    scale->setMargin(7);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(31);
    plot->setAxisScale(QwtPlot::xBottom, 0.0, 1000.0);
    plot->setFontForScale(QwtPlot::xBottom, font);
    QCOMPARE(scale->font().pixelSize(), 31);
    QCOMPARE(scale->margin(), 0);
    int start = -1;
    int end = -1;
    scale->getMinBorderDist(start, end);
    QCOMPARE(start, 0);
    const int widest = scale->scaleDraw()->maxLabelWidth(scale->font());
    QVERIFY(widest > 31);
    QCOMPARE(end, (widest + 1) / 2);
}

void tst_ZEMPlot::fontUsesCurrentLabels()
{
    const auto endDistance = [this] {
        plot->setFontForScale(QwtPlot::xBottom, plot->axisWidget(QwtPlot::xBottom)->font());
        int start = -1;
        int end = -1;
        plot->axisWidget(QwtPlot::xBottom)->getMinBorderDist(start, end);
        return end;
    };
    plot->setAxisScale(QwtPlot::xBottom, 0.0, 1.0);
    const int narrow = endDistance();
    plot->setAxisScale(QwtPlot::xBottom, 1e6, 2e6);
    // No replot in between: the labels are brought up to date here.
    QVERIFY(endDistance() > narrow);
}

void tst_ZEMPlot::fontOfOtherScalesLeavesBorders_data()
{
    QTest::addColumn<int>("axis");
    QTest::newRow("left") << int(QwtPlot::yLeft);
    QTest::newRow("right") << int(QwtPlot::yRight);
    QTest::newRow("top") << int(QwtPlot::xTop);
}

void tst_ZEMPlot::fontOfOtherScalesLeavesBorders()
{
    QFETCH(int, axis);
    QwtScaleWidget *const scale = plot->axisWidget(axis);
    scale->setMinBorderDist(33, 34);
    scale->setMargin(7);
    QFont font;
    font.setPixelSize(31);
    plot->setFontForScale(axis, font);
    QCOMPARE(scale->font().pixelSize(), 31);
    QCOMPARE(scale->margin(), 0);
    int start = -1;
    int end = -1;
    scale->getMinBorderDist(start, end);
    QCOMPARE(start, 33);
    QCOMPARE(end, 34);
}

void tst_ZEMPlot::fontByFamilyAndSize()
{
    plot->setFontForScale(QwtPlot::xBottom, QStringLiteral("Cabin"), 17);
    QFont expected;
    expected.setFamily(QStringLiteral("Cabin"));
    expected.setPointSize(17);
    QCOMPARE(plot->axisWidget(QwtPlot::xBottom)->font().family(), expected.family());
    QCOMPARE(plot->axisWidget(QwtPlot::xBottom)->font().pointSize(), 17);
    QCOMPARE(plot->axisWidget(QwtPlot::xBottom)->font().weight(), expected.weight());
}

void tst_ZEMPlot::fontOfNoAxisDoesNothing()
{
    const QFont before = plot->axisWidget(QwtPlot::yLeft)->font();
    const QwtInterval scale = plot->axisInterval(QwtPlot::yLeft);
    plot->addCurve(namedCurve(QStringLiteral("a")), false); // not yet on the axes
    plot->setFontForScale(-1, QStringLiteral("Cabin"), 17);
    plot->setFontForScale(QwtPlot::axisCnt, QStringLiteral("Cabin"), 17);
    QCOMPARE(plot->axisInterval(QwtPlot::yLeft), scale);
    QCOMPARE(plot->axisWidget(QwtPlot::yLeft)->font(), before);
}

void tst_ZEMPlot::rightButtonPans()
{
    arrange(plot.get());
    plot->init();
    plot->show();
    QVERIFY(QTest::qWaitForWindowExposed(plot.get(), ZemTest::hangs));
    drag(plot->canvas(), QPoint(200, 150), QPoint(250, 170), Qt::RightButton);
    plot->updateAxes();
    QCOMPARE(plot->axisScaleDiv(QwtPlot::xBottom).lowerBound(), leftScale - 50.0);
    QCOMPARE(plot->axisScaleDiv(QwtPlot::yLeft).lowerBound(), bottomScale + 20.0);
    QCOMPARE(plot->getZoomer()->zoomRectIndex(), 0u);
}

void tst_ZEMPlot::destructorDeletesWhatThePlotMadeInOrder()
{
    plot->init();
    QStringList log;
    connect(plot.get(), &QwtPlot::itemAttached, this, [&log, this](QwtPlotItem *item, bool on) {
        if (!on && item == styler.styledGrid) {
            log << QStringLiteral("grid");
        }
    });
    connect(plot->getPanner(), &QObject::destroyed, this,
            [&log] { log << QStringLiteral("panner"); });
    connect(plot->getZoomer(), &QObject::destroyed, this,
            [&log] { log << QStringLiteral("zoomer"); });
    connect(plot->canvas(), &QObject::destroyed, this, [&log] { log << QStringLiteral("canvas"); });
    plot.reset();
    QCOMPARE(log,
             QStringList({QStringLiteral("grid"), QStringLiteral("panner"),
                          QStringLiteral("zoomer"), QStringLiteral("canvas")}));
}

void tst_ZEMPlot::destructorLeavesTheGetter()
{
    plot->addCurve(namedCurve(QStringLiteral("a")), false);
    QCOMPARE(getter->getNumCurves(), 1);
    plot.reset();
    QCOMPARE(getter->getNumCurves(), 0);
}

void tst_ZEMPlot::destructorLeavesLooseItems()
{
    const std::unique_ptr<QwtPlotCurve> curve(namedCurve(QStringLiteral("a")));
    plot->addCurve(curve.get(), false);
    curve->detach();
    plot.reset();
    QCOMPARE(curve->title().text(), QStringLiteral("a"));
}

void tst_ZEMPlot::attachedItemsDieWithThePlot()
{
    class Mortal : public QwtPlotCurve
    {
    public:
        explicit Mortal(int &deaths) : count(deaths) { }
        ~Mortal() override { ++count; }

    private:
        int &count;
    };
    int deaths = 0;
    plot->addCurve(new Mortal(deaths), false);
    plot.reset();
    QCOMPARE(deaths, 1);
}

void tst_ZEMPlot::anotherCanvasTakesZoomerAndPannerAway()
{
    plot->setCanvas(new QwtPlotCanvas(plot.get()));
    QVERIFY(!plot->getZoomer());
    QVERIFY(!plot->getPanner());
    plot->init();
    plot->addCurve(namedCurve(QStringLiteral("a")), true);
    QCOMPARE(plot->getNumCurves(), 1);
}

QTEST_MAIN(tst_ZEMPlot)
#include "tst_zemplot.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMPlotZoomer>
#include <ZEMQwtPlotPointPicker>
#include <ZEMQwtPlotTracker>

#include "lifetime.h"
#include "plotfixture.h"

#include <QFrame>
#include <QSignalSpy>

#include <cstring>
#include <functional>

using namespace PlotTest;
using Lifetime::End;

namespace {

using Point = ZEMQwtPlotCurvePointGetter::PlotCurvePoint;

/** Does something in the callbacks of a tracker. */
class Tracker : public ZEMQwtPlotTracker
{
public:
    using ZEMQwtPlotTracker::ZEMQwtPlotTracker;

    std::function<void()> whenValidChanged = [] {};
    std::function<void()> whenMoved = [] {};

protected:
    void curvePointValidChanged(bool) override { runCopyOf(whenValidChanged); }
    void curvePointMoved(Point) override { runCopyOf(whenMoved); }

private:
    /** The function may end the tracker, and itself with it. */
    static void runCopyOf(std::function<void()> function) { function(); } // NOLINT
};

/** What slots of a signal may do. */
enum class Allowed { Anything, DeleteObject, DeleteLater };

struct Row
{
    const char *className;
    const char *signal;
    Allowed allowed;

    bool allows(End end) const
    {
        return allowed == Allowed::Anything || end == End::DeleteLater
            || (allowed == Allowed::DeleteObject && end == End::Delete);
    }
};

const QVector<Row> rows = {
    {"ZEMPlot", "axisChanged(int)", Allowed::Anything},
    {"ZEMPlot", "itemAttached(QwtPlotItem*,bool)", Allowed::DeleteLater},
    {"ZEMPlot", "legendDataChanged(QVariant,QList<QwtLegendData>)", Allowed::DeleteLater},
    {"ZEMPlotZoomer", "activated(bool)", Allowed::DeleteLater},
    {"ZEMPlotZoomer", "appended(QPoint)", Allowed::DeleteLater},
    {"ZEMPlotZoomer", "appended(QPointF)", Allowed::DeleteLater},
    {"ZEMPlotZoomer", "changed(QPolygon)", Allowed::DeleteLater},
    {"ZEMPlotZoomer", "moved(QPoint)", Allowed::DeleteLater},
    {"ZEMPlotZoomer", "moved(QPointF)", Allowed::Anything},
    {"ZEMPlotZoomer", "selected(QPolygon)", Allowed::DeleteLater},
    {"ZEMPlotZoomer", "selected(QRectF)", Allowed::Anything},
    {"ZEMPlotZoomer", "zoomed(QRectF)", Allowed::Anything},
    {"ZEMPlotZoomerAdvanced", "activated(bool)", Allowed::DeleteLater},
    {"ZEMPlotZoomerAdvanced", "moved(QPointF)", Allowed::Anything},
    {"ZEMPlotZoomerAdvanced", "selected(QRectF)", Allowed::Anything},
    {"ZEMPlotZoomerAdvanced", "zoomed(QRectF)", Allowed::Anything},
    {"ZEMQwtPlotPointPicker", "activated(bool)", Allowed::DeleteLater},
    {"ZEMQwtPlotPointPicker", "appended(QPoint)", Allowed::DeleteLater},
    {"ZEMQwtPlotPointPicker", "appended(QPointF)", Allowed::DeleteLater},
    {"ZEMQwtPlotPointPicker", "selected(QPolygon)", Allowed::DeleteLater},
    {"ZEMQwtPlotPointPicker", "selected(QPointF)", Allowed::Anything},
    {"ZEMQwtPlotPointPicker", "selectedPlotPoint(ZEMQwtPlotCurvePointGetter::PlotCurvePoint)",
     Allowed::Anything},
    {"ZEMQwtPlotTracker", "activated(bool)", Allowed::DeleteLater},
    {"ZEMQwtPlotTracker", "appended(QPoint)", Allowed::DeleteLater},
    {"ZEMQwtPlotTracker", "appended(QPointF)", Allowed::DeleteObject},
    {"ZEMQwtPlotTracker", "changed(QPolygon)", Allowed::DeleteLater},
    {"ZEMQwtPlotTracker", "removed(QPoint)", Allowed::DeleteLater},
    {"ZEMQwtPlotTracker", "selected(QPolygon)", Allowed::DeleteLater},
};

/** A signal that Qt 6 names otherwise. */
const QByteArray pointsSelected = QMetaObject::normalizedSignature("selected(QVector<QPointF>)");

/** The signals of Qwt's pickers that do not belong to the way in which a class selects. */
const QHash<QByteArray, QSet<QByteArray>> neverEmitted = {
    {"ZEMPlotZoomer", {"removed(QPoint)", "selected(QPointF)", pointsSelected}},
    {"ZEMQwtPlotPointPicker",
     {"changed(QPolygon)", "moved(QPoint)", "moved(QPointF)", "removed(QPoint)", "selected(QRectF)",
      pointsSelected}},
    {"ZEMQwtPlotTracker",
     {"moved(QPoint)", "moved(QPointF)", "selected(QPointF)", "selected(QRectF)", pointsSelected}},
};

const QPoint pressed(100, 100);
const QPoint released(250, 200);

using Canvas = QPointer<QWidget>;

/** Lets a selection in progress hear that the canvas has become smaller. */
void shrink(const Canvas &canvas)
{
    if (canvas) {
        canvas->resize(canvas->size() - QSize(50, 50));
    }
}

/** A drag that goes on as long as there is a canvas. */
void dragOn(const Canvas &canvas)
{
    ZemTest::press(canvas, pressed);
    for (const QPoint &place : {(pressed + released) / 2, released}) {
        if (canvas) {
            ZemTest::moveTo(canvas, place);
        }
    }
    shrink(canvas);
    if (canvas) {
        ZemTest::release(canvas, released);
    }
}

void tapOn(const Canvas &canvas, const QPoint &place)
{
    ZemTest::press(canvas, place);
    if (canvas) {
        ZemTest::release(canvas, place);
    }
}

/** The mouse comes from beside the canvas, moves and leaves. */
void moveOver(const Canvas &canvas)
{
    ZemTest::moveTo(canvas, {-1, pressed.y()});
    ZemTest::moveTo(canvas, pressed);
    for (const QPoint &place : {(pressed + released) / 2, released}) {
        if (canvas) {
            ZemTest::moveTo(canvas, place);
        }
    }
    shrink(canvas);
    QEvent leave(QEvent::Leave);
    if (canvas) {
        QCoreApplication::sendEvent(canvas, &leave);
    }
}

/** A page with a plot and a level curve. */
class Scene
{
public:
    Scene() : page(Lifetime::shownPage()), plot(new ZEMPlot(&styler, page))
    {
        getter.reset(plot->getCurvePointGetter());
        auto *curve = new QwtPlotCurve;
        curve->setSamples(levelRow(wholeRow, 100.0));
        plot->init();
        plot->addCurve(curve, false);
        plot->setAxisScale(QwtPlot::xBottom, 0.0, 350.0);
        plot->setAxisScale(QwtPlot::yLeft, 0.0, 110.0);
        plot->resize(page->size());
        plot->show();
        plot->updateLayout();
        plot->getZoomer()->setZoomBase(true);
    }

    /** The object of a row, and what makes it emit. */
    Lifetime::Stage stageOf(const QString &className)
    {
        const Canvas canvas = plot->canvas();
        auto *const plotCanvas = qobject_cast<QwtPlotCanvas *>(canvas.data());
        if (className == QLatin1String("ZEMPlot")) {
            return {page, plot.data(), [this] { attachAnItem(); }};
        }
        delete plot->getZoomer();
        QwtPicker *picker = nullptr;
        std::function<void()> act = [canvas] { dragOn(canvas); };
        if (className == QLatin1String("ZEMPlotZoomer")) {
            picker = new ZEMPlotZoomer(plotCanvas, false);
        } else if (className == QLatin1String("ZEMPlotZoomerAdvanced")) {
            picker = new ZEMPlotZoomerAdvanced(plotCanvas, false);
        } else if (className == QLatin1String("ZEMQwtPlotPointPicker")) {
            picker = new ZEMQwtPlotPointPicker(QString(), plot, QwtEventPattern::MouseSelect1);
            act = [canvas, this] { tapOn(canvas, pointOfCurve()); };
        } else {
            picker = new Tracker(plot);
            act = [canvas] { moveOver(canvas); };
        }
        picker->setResizeMode(QwtPicker::Stretch);
        return {page, picker, std::move(act)};
    }

    /** A place on the canvas where the curve is. */
    QPoint pointOfCurve() const
    {
        return {int(plot->transform(QwtPlot::xBottom, 100.0)),
                int(plot->transform(QwtPlot::yLeft, 100.0))};
    }

    void attachAnItem()
    {
        Q_EMIT plot->axisChanged(QwtPlot::xBottom);
        if (plot) {
            (new QwtPlotCurve)->attach(plot);
        }
    }

    Styler styler;
    std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter;
    QPointer<QWidget> page;
    QPointer<ZEMPlot> plot;
};

} // namespace

/** Who ends first, and who notices. */
class tst_PlotLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void deletedCurveLeavesTheList();
    void deletedCurveIsNotRestyled();
    void curveThatIsDetachedFirstLeavesTheListToo();
    void curveOnAnotherPlotLeavesTheList();
    void curveThatIsListedTwiceLeavesOnceOrWhollyWhenDeleted();
    void listIsRightWhenOthersHearOfTheCurve();
    void allItemsMayBeDeletedAtOnce();
    void deletedGridIsNotStyled();
    void stylerMayEndBeforeThePlot();

    void pickerForgetsADeletedCurve_data();
    void pickerForgetsADeletedCurve();
    void pickerKeepsItsPointWhenAnotherCurveGoes();
    void pickerLetsGoInItsOwnSignal();

    void endsInItsSignal_data();
    void endsInItsSignal();
    void allSignalsAreHeard();
    void endsInACallbackOfTheTracker_data();
    void endsInACallbackOfTheTracker();
    void curveEndsInACallbackOfTheTracker();
    void canvasEndsFirst();

private:
    std::unique_ptr<TwoCurves> stage;
    QwtPlotCurve *upper = nullptr;
    QwtPlotCurve *lower = nullptr;
};

void tst_PlotLifetime::init()
{
    stage = std::make_unique<TwoCurves>();
    upper = stage->upper;
    lower = stage->lower;
    stage->styler.log.clear();
}

void tst_PlotLifetime::cleanup()
{
    stage.reset();
}

void tst_PlotLifetime::deletedCurveLeavesTheList()
{
    delete upper;
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
    QCOMPARE(stage->plot->getIndexOfCurve(lower), 0);
    const Point found = stage->getter->getCurvePoint(QPointF(100.0, 190.0));
    QVERIFY(!found.valid);
    delete lower;
    QCOMPARE(stage->plot->getNumCurves(), 0);
}

void tst_PlotLifetime::deletedCurveIsNotRestyled()
{
    delete upper;
    stage->plot->restyle();
    QCOMPARE(stage->styler.log,
             QStringList({QStringLiteral("plot"), QStringLiteral("attached grid"),
                          QStringLiteral("attached curve lower as 0")}));
}

void tst_PlotLifetime::curveThatIsDetachedFirstLeavesTheListToo()
{
    upper->detach();
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
    delete upper;
    stage->plot->restyle();
    QCOMPARE(stage->plot->getNumCurves(), 1);
}

void tst_PlotLifetime::curveOnAnotherPlotLeavesTheList()
{
    QwtPlot other;
    upper->attach(&other);
    QCOMPARE(stage->plot->getIndexOfCurve(upper), -1);
    QCOMPARE(upper->plot(), &other);
}

void tst_PlotLifetime::curveThatIsListedTwiceLeavesOnceOrWhollyWhenDeleted()
{
    stage->plot->addCurve(upper, false);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({upper, lower, upper}));
    stage->plot->removeCurve(upper);
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower, upper}));
    stage->plot->removeCurve(upper);
    stage->plot->addCurve(upper, false);
    stage->plot->addCurve(upper, false);
    delete upper;
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
}

void tst_PlotLifetime::listIsRightWhenOthersHearOfTheCurve()
{
    const QObject listener;
    QList<int> counts;
    connect(stage->plot.get(), &QwtPlot::itemAttached, &listener,
            [&] { counts << stage->plot->getNumCurves(); });
    delete upper;
    delete lower;
    QCOMPARE(counts, QList<int>({1, 0}));
}

void tst_PlotLifetime::allItemsMayBeDeletedAtOnce()
{
    stage->plot->detachItems();
    QCOMPARE(stage->plot->getNumCurves(), 0);
    stage->plot->restyle();
    QCOMPARE(stage->styler.log, QStringList({QStringLiteral("plot")}));
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(stage->getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
}

void tst_PlotLifetime::deletedGridIsNotStyled()
{
    delete stage->styler.styledGrid;
    stage->plot->init();
    QCOMPARE(stage->styler.log.mid(0, 2),
             QStringList({QStringLiteral("plot"), QStringLiteral("attached curve upper as 0")}));
}

void tst_PlotLifetime::stylerMayEndBeforeThePlot()
{
    auto styler = std::make_unique<Styler>();
    auto plot = std::make_unique<ZEMPlot>(styler.get());
    const std::unique_ptr<ZEMQwtPlotCurvePointGetter> getter(plot->getCurvePointGetter());
    plot->init();
    plot->setBackgroundColor(Qt::black);
    plot->addCurve(new QwtPlotCurve, true);
    styler.reset();
    plot->replot();
    plot.reset();
    QCOMPARE(getter->getNumCurves(), 0);
}

void tst_PlotLifetime::pickerForgetsADeletedCurve_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : {"delete", "detach", "remove", "another plot"}) {
        QTest::newRow(way) << QString::fromLatin1(way);
    }
}

void tst_PlotLifetime::pickerForgetsADeletedCurve()
{
    QFETCH(QString, way);
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    picker.selected(QPointF(100.0, 200.0));
    QCOMPARE(picker.getPickedPlotPoint().curve, upper);
    const QSignalSpy spy(&picker, &ZEMQwtPlotPointPicker::selectedPlotPoint);
    QwtPlot other;
    if (way == QLatin1String("detach")) {
        upper->detach();
    } else if (way == QLatin1String("remove")) {
        stage->plot->removeCurve(upper);
    } else if (way == QLatin1String("another plot")) {
        upper->attach(&other);
    }
    delete upper;
    QVERIFY(!picker.getPickedPlotPoint().valid);
    QVERIFY(!picker.getPickedPlotPoint().curve);
    picker.pickNextPlotPoint();
    picker.pickPrevPlotPoint();
    picker.pickNextCurve();
    picker.pickPrevCurve();
    QCOMPARE(spy.count(), 0);
    picker.selected(QPointF(100.0, 50.0));
    QCOMPARE(spy.count(), 1);
}

void tst_PlotLifetime::pickerKeepsItsPointWhenAnotherCurveGoes()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    picker.selected(QPointF(100.0, 200.0));
    delete lower;
    QCOMPARE(picker.getPickedPlotPoint().curve, upper);
    picker.pickNextPlotPoint();
    QCOMPARE(picker.getPickedPlotPoint().index, 51u);
}

void tst_PlotLifetime::pickerLetsGoInItsOwnSignal()
{
    ZEMQwtPlotPointPicker picker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    connect(&picker, &ZEMQwtPlotPointPicker::selectedPlotPoint, this,
            [](const Point &point) { delete point.curve; });
    picker.selected(QPointF(100.0, 200.0));
    QVERIFY(!picker.getPickedPlotPoint().valid);
    picker.pickNextPlotPoint();
    QCOMPARE(stage->plot->getCurves(), QList<QwtPlotCurve *>({lower}));
}

void tst_PlotLifetime::endsInItsSignal_data()
{
    QTest::addColumn<QString>("className");
    QTest::addColumn<QByteArray>("signal");
    QTest::addColumn<int>("end");

    for (const Row &row : rows) {
        for (const End end : {End::Delete, End::DeleteLater, End::DeletePage}) {
            if (row.allows(end)) {
                QTest::addRow("%s %s, %s", row.className, row.signal, Lifetime::nameOf(end))
                    << QString::fromLatin1(row.className) << QByteArray(row.signal) << int(end);
            }
        }
    }
}

void tst_PlotLifetime::endsInItsSignal()
{
    QFETCH(QString, className);
    QFETCH(QByteArray, signal);
    QFETCH(int, end);
    Scene scene;
    QCOMPARE(Lifetime::endIn(scene.stageOf(className), signal, End(end)), QString());
}

void tst_PlotLifetime::allSignalsAreHeard()
{
    const auto unheard = [](const QMetaObject &metaObject, const QMetaObject &base) {
        QSet<QByteArray> heard = neverEmitted.value(metaObject.className());
        for (const Row &row : rows) {
            if (std::strcmp(row.className, metaObject.className()) == 0) {
                heard.insert(row.signal);
            }
        }
        return Lifetime::unheardSignals(metaObject, base, heard);
    };
    const QStringList none;
    QCOMPARE(unheard(ZEMPlot::staticMetaObject, QFrame::staticMetaObject), none);
    QCOMPARE(unheard(ZEMPlotZoomer::staticMetaObject, QObject::staticMetaObject), none);
    QCOMPARE(unheard(ZEMQwtPlotPointPicker::staticMetaObject, QObject::staticMetaObject), none);
    QCOMPARE(unheard(ZEMQwtPlotTracker::staticMetaObject, QObject::staticMetaObject), none);
}

void tst_PlotLifetime::endsInACallbackOfTheTracker_data()
{
    QTest::addColumn<bool>("inMoved");
    QTest::addColumn<bool>("withPage");

    QTest::newRow("valid changed, tracker") << false << false;
    QTest::newRow("valid changed, page") << false << true;
    QTest::newRow("moved, tracker") << true << false;
    QTest::newRow("moved, page") << true << true;
}

void tst_PlotLifetime::endsInACallbackOfTheTracker()
{
    QFETCH(bool, inMoved);
    QFETCH(bool, withPage);
    Scene scene;
    const QPointer<Tracker> tracker = new Tracker(scene.plot);
    const Canvas canvas = scene.plot->canvas();
    const auto end = [&] { withPage ? delete scene.page : delete tracker; };
    (inMoved ? tracker->whenMoved : tracker->whenValidChanged) = end;
    ZemTest::moveTo(canvas, pressed);
    ZemTest::moveTo(canvas, scene.pointOfCurve());
    QVERIFY(!tracker);
    QCOMPARE(canvas.isNull(), withPage);
    delete scene.page;
}

void tst_PlotLifetime::curveEndsInACallbackOfTheTracker()
{
    Scene scene;
    auto *const tracker = new Tracker(scene.plot);
    int moves = 0;
    tracker->whenValidChanged = [&] { delete scene.plot->getCurves().first(); };
    tracker->whenMoved = [&] { ++moves; };
    ZemTest::moveTo(scene.plot->canvas(), pressed);
    ZemTest::moveTo(scene.plot->canvas(), scene.pointOfCurve());
    QCOMPARE(scene.plot->getNumCurves(), 0);
    QCOMPARE(moves, 0);
    delete scene.page;
}

void tst_PlotLifetime::canvasEndsFirst()
{
    const QPointer<Tracker> tracker = new Tracker(stage->plot.get());
    const QPointer<QObject> picker =
        new ZEMQwtPlotPointPicker(QString(), stage->plot.get(), QwtEventPattern::MouseSelect1);
    stage->plot->setCanvas(new QwtPlotCanvas(stage->plot.get()));
    QVERIFY(!tracker && !picker && !stage->plot->getZoomer() && !stage->plot->getPanner());
    stage->plot->restyle();
    delete upper;
    stage->addCurve(levelRow(wholeRow, 100.0));
    QVERIFY(stage->getter->getCurvePoint(QPointF(100.0, 100.0)).valid);
    QVERIFY(stage->show());
}

QTEST_MAIN(tst_PlotLifetime)
#include "tst_plotlifetime.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "paintcounter.h"
#include "quickpathsfixture.h"
#include "qwtcompat_p.h"

#include <QImage>
#include <QLocale>
#include <QScopeGuard>
#include <QTest>
#include <QTimeZone>
#include <QVBoxLayout>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_map.h>
#include <qwt_scale_widget.h>
#include <qwt_text.h>
#include <qwt_text_engine.h>

#include <functional>
#include <memory>
#include <random>
#include <vector>

using namespace QuickPathsTest;

namespace {

/** A chart on a ground, shown and fed. */
class Stage
{
public:
    explicit Stage(const Kind &kind, bool withChild = false)
        : slotCount(kind.slotCount), chart(kind.make())
    {
        ground.resize(520, withChild ? 620 : 340);
        auto *layout = new QVBoxLayout(&ground);
        layout->setContentsMargins(7, 9, 3, 5);
        if (withChild) {
            child = kind.make();
            child->init();
            chart->setChild(child);
        }
        chart->init();
        layout->addWidget(chart);
        fill(chart, 1);
        if (child) {
            fill(child, 5);
        }
        chart->setScalePeriod(slotCount);
        chart->setScaleInterval(QwtInterval(-double(slotCount * (windows - 1)), slotCount));
        chart->setDataChangedTimestamp(QDateTime(QDate(2026, 3, 2), QTime(0, 0), QTimeZone::utc()));
        ground.show();
        chart->replot();
        QCoreApplication::processEvents();
    }

    QwtPlot *plot() const { return plotOf(chart); }
    void drag(int dx) { dragPlot(plot(), dx); }
    QImage picture() { return ground.grab().toImage(); }

    Ground ground;
    unsigned int slotCount;
    ZEMHistogram *chart;
    ZEMHistogram *child = nullptr;

private:
    void fill(ZEMHistogram *histogram, int seed) const
    {
        histogram->addSeries(newSeries(slotCount, false, seed));
        histogram->prependSeries(newSeries(slotCount, true, seed + 1));
        histogram->setValueLimits(QwtInterval(-1.0, 9.0));
    }
};

/** Counts how often a text is measured, as long as it is in place of Qwt's engine. */
class CountingEngine : public QwtPlainTextEngine
{
public:
    explicit CountingEngine(int *measuredTexts) : count(measuredTexts) { }

    QSizeF textSize(const QFont &font, int flags, const QString &text) const override
    {
        ++*count;
        return QwtPlainTextEngine::textSize(font, flags, text);
    }

private:
    int *count;
};

using Story = std::function<std::vector<QImage>()>;

/** Plays a story without and with the quick paths and compares the pictures. */
void compare(const Story &story)
{
    setOpen(false);
    const std::vector<QImage> plain = story();
    setOpen(true);
    const std::vector<QImage> quick = story();
    QCOMPARE(quick.size(), plain.size());
    for (std::size_t i = 0; i < plain.size(); ++i) {
        if (quick[i] != plain[i]) {
            const QString path = qEnvironmentVariable("ZEM_TEST_PICTURES");
            if (!path.isEmpty()) {
                plain[i].save(path + QStringLiteral("/plain.png"));
                quick[i].save(path + QStringLiteral("/quick.png"));
            }
            QFAIL(qPrintable(QStringLiteral("picture %1 differs").arg(i)));
        }
    }
}

} // namespace

Q_DECLARE_METATYPE(std::function<void(Stage &)>)

/** The quick paths of the charts show what the slow ones show, byte for byte. */
class tst_QuickPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void openWithTheVersionsThatWereTried();
    void everyDragLaysOutWithAnUntriedQwt();
    void newChartMeasuresNoLabel_data();
    void newChartMeasuresNoLabel();
    void dragShowsTheSamePixels_data();
    void dragShowsTheSamePixels();
    void dragWithChildShowsTheSamePixels();
    void periodMovesShowTheSamePixels_data();
    void periodMovesShowTheSamePixels();
    void firstSightShowsTheSamePixels_data();
    void firstSightShowsTheSamePixels();
    void quietAxesKeepTheirLabels_data();
    void quietAxesKeepTheirLabels();
    void sizeHintsAreTheSame_data();
    void sizeHintsAreTheSame();
    void plotThatWasNeverShownAnswersTheSame_data();
    void plotThatWasNeverShownAnswersTheSame();
    void changeShowsAtOnce_data();
    void changeShowsAtOnce();
};

void tst_QuickPaths::cleanup()
{
    setOpen(true);
    QLocale::setDefault(QLocale::c());
}

void tst_QuickPaths::openWithTheVersionsThatWereTried()
{
    QCOMPARE(
        std::vector<int>(QuickPaths::triedQwtVersions.begin(), QuickPaths::triedQwtVersions.end()),
        std::vector<int> {0x060104});
    QCOMPARE(QuickPaths::qwtVersion(), QWT_VERSION);
    for (const int untried : {0, 0x060103, 0x060105, 0x060106, 0x060200, 0x060300}) {
        qApp->setProperty(QuickPaths::qwtVersionProperty, untried);
        QVERIFY(!QuickPaths::areOpen());
    }
    qApp->setProperty(QuickPaths::qwtVersionProperty, 0x060104);
    QVERIFY(QuickPaths::areOpen());
}

void tst_QuickPaths::everyDragLaysOutWithAnUntriedQwt()
{
    constexpr int drags = 10;
    for (const bool tried : {true, false}) {
        qApp->setProperty(QuickPaths::qwtVersionProperty, tried ? 0x060104 : 0x060200);
        Stage stage(kinds()[0].second);
        const ZemTest::EventCounter layouts(stage.plot(), QEvent::LayoutRequest);
        for (int i = 0; i < drags; ++i) {
            stage.drag(6);
        }
        QCOMPARE(layouts.count >= drags, !tried);
    }
}

void tst_QuickPaths::newChartMeasuresNoLabel_data()
{
    dragShowsTheSamePixels_data();
}

void tst_QuickPaths::newChartMeasuresNoLabel()
{
    QFETCH(int, kind);
    int measured = 0;
    QwtText::setTextEngine(QwtText::PlainText, new CountingEngine(&measured));
    const auto restore =
        qScopeGuard([] { QwtText::setTextEngine(QwtText::PlainText, new QwtPlainTextEngine); });
    for (const bool open : {true, false}) {
        setOpen(open);
        measured = 0;
        const std::unique_ptr<ZEMHistogram> chart(kinds()[std::size_t(kind)].second.make());
        QCOMPARE(measured > 0, !QuickPaths::areOpen());
    }
}

void tst_QuickPaths::dragShowsTheSamePixels_data()
{
    QTest::addColumn<int>("kind");
    for (std::size_t i = 0; i < kinds().size(); ++i) {
        QTest::newRow(kinds()[i].first) << int(i);
    }
}

void tst_QuickPaths::dragShowsTheSamePixels()
{
    QFETCH(int, kind);
    compare([kind] {
        Stage stage(kinds()[std::size_t(kind)].second);
        std::vector<QImage> pictures {stage.picture()};
        std::mt19937 random(20260302);
        for (int step = 0; step < 120; ++step) {
            const int dx = step < 60 ? 6 + step % 3 : int(random() % 180) - 80;
            stage.drag(dx);
            pictures.push_back(stage.picture());
        }
        return pictures;
    });
}

void tst_QuickPaths::dragWithChildShowsTheSamePixels()
{
    compare([] {
        Stage stage(kinds()[0].second, true);
        std::vector<QImage> pictures;
        for (int step = 0; step < 40; ++step) {
            stage.drag(step % 4 == 3 ? -40 : 37);
            pictures.push_back(stage.picture());
        }
        return pictures;
    });
}

void tst_QuickPaths::periodMovesShowTheSamePixels_data()
{
    dragShowsTheSamePixels_data();
}

void tst_QuickPaths::periodMovesShowTheSamePixels()
{
    QFETCH(int, kind);
    compare([kind] {
        Stage stage(kinds()[std::size_t(kind)].second);
        std::vector<QImage> pictures;
        const auto show = [&](const std::function<void()> &move) {
            move();
            QCoreApplication::processEvents();
            pictures.push_back(stage.picture());
        };
        for (int i = 0; i < 3; ++i) {
            show([&] { stage.chart->showPrevPeriod(); });
        }
        stage.drag(11);
        show([&] { stage.chart->showNextPeriod(); });
        show([&] { stage.chart->showFirstPeriod(); });
        return pictures;
    });
}

void tst_QuickPaths::firstSightShowsTheSamePixels_data()
{
    dragShowsTheSamePixels_data();
}

void tst_QuickPaths::firstSightShowsTheSamePixels()
{
    QFETCH(int, kind);
    using Act = std::function<void(ZEMHistogram *)>;
    const Act acts[] = {
        [](ZEMHistogram *) {},
        [](ZEMHistogram *chart) { chart->replot(); },
        [](ZEMHistogram *chart) { chart->initAxisRefine(); },
        [](ZEMHistogram *chart) { chart->setValueLimits(QwtInterval(0.0, 12345.0)); },
        [](ZEMHistogram *chart) { chart->resize(300, 320); },
        [](ZEMHistogram *chart) { plotOf(chart)->enableAxis(QwtPlot::yRight); },
        [](ZEMHistogram *chart) { plotOf(chart)->enableAxis(QwtPlot::xTop); },
        [](ZEMHistogram *chart) {
            plotOf(chart)->axisWidget(QwtPlot::yLeft)->setFont(QFont(QStringLiteral("Cabin"), 17));
        },
        [](ZEMHistogram *chart) { chart->ensurePolished(); },
    };
    for (const Act &before : acts) {
        for (const Act &after : acts) {
            compare([&] {
                const std::unique_ptr<ZEMHistogram> chart(kinds()[std::size_t(kind)].second.make());
                chart->init();
                chart->resize(493, 340);
                before(chart.get());
                chart->show();
                QCoreApplication::processEvents();
                std::vector<QImage> pictures {chart->grab().toImage()};
                after(chart.get());
                QCoreApplication::processEvents();
                chart->replot();
                QCoreApplication::processEvents();
                pictures.push_back(chart->grab().toImage());
                return pictures;
            });
            if (QTest::currentTestFailed()) {
                qInfo("%d before, %d after", int(&before - acts), int(&after - acts));
                return;
            }
        }
    }
}

void tst_QuickPaths::quietAxesKeepTheirLabels_data()
{
    dragShowsTheSamePixels_data();
}

void tst_QuickPaths::quietAxesKeepTheirLabels()
{
    QFETCH(int, kind);
    const auto labelled = [](ZEMHistogram *chart) {
        std::vector<bool> result;
        for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
            const QwtScaleDraw *draw = chart->findChild<QwtPlot *>()->axisScaleDraw(axis);
            result.push_back(draw->hasComponent(QwtAbstractScaleDraw::Labels));
        }
        return result;
    };
    std::vector<std::vector<bool>> plain;
    for (const bool quick : {false, true}) {
        setOpen(quick);
        const std::unique_ptr<ZEMHistogram> chart(kinds()[std::size_t(kind)].second.make());
        QCOMPARE(labelled(chart.get()), std::vector<bool>(QwtPlot::axisCnt, true));
        chart->init();
        plain.push_back(labelled(chart.get()));
        chart->replot();
        plain.push_back(labelled(chart.get()));
    }
    QCOMPARE(plain[2], plain[0]);
    QCOMPARE(plain[3], plain[1]);
}

void tst_QuickPaths::sizeHintsAreTheSame_data()
{
    dragShowsTheSamePixels_data();
}

void tst_QuickPaths::sizeHintsAreTheSame()
{
    QFETCH(int, kind);
    QVector<QSize> hints[2];
    for (const bool quick : {false, true}) {
        setOpen(quick);
        const std::unique_ptr<ZEMHistogram> chart(kinds()[std::size_t(kind)].second.make());
        auto *plot = chart->findChild<QwtPlot *>();
        const auto note = [&] {
            chart->show();
            QCoreApplication::processEvents();
            hints[quick] << chart->size() << plot->size() << plot->sizeHint()
                         << plot->minimumSizeHint() << plot->minimumSize();
            for (const int axis : {QwtPlot::yLeft, QwtPlot::xBottom}) {
                hints[quick] << plot->axisWidget(axis)->minimumSizeHint();
            }
        };
        chart->init();
        note();
        chart->setValueLimits(QwtInterval(0.0, 1234.5));
        chart->replot();
        note();
        plot->axisWidget(QwtPlot::xBottom)->setFont(QFont(QStringLiteral("Cabin"), 15));
        note();
    }
    QCOMPARE(hints[1], hints[0]);
}

void tst_QuickPaths::plotThatWasNeverShownAnswersTheSame_data()
{
    dragShowsTheSamePixels_data();
}

void tst_QuickPaths::plotThatWasNeverShownAnswersTheSame()
{
    QFETCH(int, kind);
    QVector<QSizeF> answers[2];
    QImage pictures[2];
    for (const bool open : {false, true}) {
        setOpen(open);
        const std::unique_ptr<ZEMHistogram> chart(kinds()[std::size_t(kind)].second.make());
        chart->init();
        auto *plot = chart->findChild<QwtPlot *>();
        const auto note = [&] {
            for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
                const QwtScaleMap map = plot->canvasMap(axis);
                answers[open] << QSizeF(map.p1(), map.p2());
            }
            answers[open] << plot->sizeHint() << plot->minimumSizeHint() << chart->sizeHint();
        };
        note();
        plot->resize(493, 240);
        plot->updateLayout();
        note();
        chart->setValueLimits(QwtInterval(0.0, 12345.0));
        chart->replot();
        note();
        plot->enableAxis(QwtPlot::yRight);
        note();
        pictures[open] = chart->grab().toImage();
        note();
    }
    QCOMPARE(answers[1], answers[0]);
    QCOMPARE(pictures[1], pictures[0]);
}

void tst_QuickPaths::changeShowsAtOnce_data()
{
    using Change = std::function<void(Stage &)>;
    QTest::addColumn<Change>("change");
    const auto scale = [](Stage &stage, int axis) { return stage.plot()->axisWidget(axis); };

    QTest::newRow("font of the x axis") << Change([scale](Stage &stage) {
        scale(stage, QwtPlot::xBottom)->setFont(QFont(QStringLiteral("Cabin"), 15));
    });
    QTest::newRow("font of the value axis") << Change([scale](Stage &stage) {
        scale(stage, QwtPlot::yLeft)->setFont(QFont(QStringLiteral("Cabin"), 14));
    });
    QTest::newRow("lines beside the labels") << Change([scale](Stage &stage) {
        QFont font(QStringLiteral("Cabin"), 12);
        font.setUnderline(true);
        scale(stage, QwtPlot::xBottom)->setFont(font);
        font.setStrikeOut(true);
        scale(stage, QwtPlot::yLeft)->setFont(font);
    });
    QTest::newRow("locale") << Change([](Stage &stage) {
        QLocale::setDefault(QLocale(QLocale::Dutch));
        // Without the quick paths Qwt keeps its labels for as long as the scale stays.
        stage.drag(7);
    });
    QTest::newRow("palette") << Change([](Stage &stage) {
        QPalette palette = stage.plot()->palette();
        palette.setColor(QPalette::Text, QColor(250, 120, 10, 150));
        palette.setColor(QPalette::WindowText, Qt::black);
        stage.plot()->setPalette(palette);
    });
    QTest::newRow("size") << Change([](Stage &stage) { stage.ground.resize(431, 371); });
    QTest::newRow("data") << Change(
        [](Stage &stage) { stage.chart->addSeries(newSeries(stage.slotCount, false, 77)); });
    QTest::newRow("value limits") << Change(
        [](Stage &stage) { stage.chart->setValueLimits(QwtInterval(0.0, 1234.5)); });
    QTest::newRow("decimals") << Change(
        [](Stage &stage) { stage.chart->setScaleDigits(QwtPlot::yLeft, 3); });
    QTest::newRow("title of the value axis") << Change(
        [](Stage &stage) { stage.plot()->setAxisTitle(QwtPlot::yLeft, QStringLiteral("m3")); });
    QTest::newRow("title of the x axis") << Change(
        [](Stage &stage) { stage.plot()->setAxisTitle(QwtPlot::xBottom, QStringLiteral("time")); });
    QTest::newRow("title of the plot")
        << Change([](Stage &stage) { stage.plot()->setTitle(QStringLiteral("Title")); });
    QTest::newRow("value scale of the plot")
        << Change([](Stage &stage) { stage.plot()->setAxisScale(QwtPlot::yLeft, -100.0, 100.0); });
    QTest::newRow("x scale of the plot") << Change(
        [](Stage &stage) { stage.plot()->setAxisScale(QwtPlot::xBottom, -2.0, 5.0, 1.0); });
    QTest::newRow("number of major ticks")
        << Change([](Stage &stage) { stage.plot()->setAxisMaxMajor(QwtPlot::yLeft, 3); });
    QTest::newRow("date") << Change([](Stage &stage) {
        stage.chart->setDataChangedTimestamp(QDateTime(QDate(2025, 11, 17), QTime(0, 0)));
    });
    QTest::newRow("margin") << Change(
        [scale](Stage &stage) { scale(stage, QwtPlot::xBottom)->setMargin(9); });
    QTest::newRow("rotated labels")
        << Change([](Stage &stage) { stage.plot()->setAxisLabelRotation(QwtPlot::xBottom, 30.0); });
    QTest::newRow("spacing") << Change(
        [scale](Stage &stage) { scale(stage, QwtPlot::xBottom)->scaleDraw()->setSpacing(14.0); });
    QTest::newRow("spacing of the value axis") << Change(
        [scale](Stage &stage) { scale(stage, QwtPlot::yLeft)->scaleDraw()->setSpacing(13.0); });
    QTest::newRow("room at the ends of the axes") << Change([scale](Stage &stage) {
        scale(stage, QwtPlot::yLeft)->setMinBorderDist(21, 13);
        scale(stage, QwtPlot::xBottom)->setMinBorderDist(9, 31);
    });
    QTest::newRow("length of ticks") << Change([scale](Stage &stage) {
        scale(stage, QwtPlot::xBottom)->scaleDraw()->setTickLength(QwtScaleDiv::MediumTick, 11.0);
    });
    QTest::newRow("width of ticks") << Change([scale](Stage &stage) {
        QwtCompat::setPenWidth(scale(stage, QwtPlot::xBottom)->scaleDraw(), 3);
    });
    QTest::newRow("second value axis") << Change([](Stage &stage) {
        stage.plot()->setAxisScale(QwtPlot::yRight, 0.0, 5000.0);
        stage.plot()->enableAxis(QwtPlot::yRight);
    });
    QTest::newRow("axis on top") << Change(
        [](Stage &stage) { stage.plot()->enableAxis(QwtPlot::xTop); });
    QTest::newRow("own scale draw") << Change(
        [](Stage &stage) { stage.plot()->setAxisScaleDraw(QwtPlot::xBottom, new QwtScaleDraw); });
    QTest::newRow("scale of its own accord")
        << Change([](Stage &stage) { stage.plot()->setAxisAutoScale(QwtPlot::yLeft); });
    QTest::newRow("layout from right to left")
        << Change([](Stage &stage) { stage.chart->setLayoutDirection(Qt::RightToLeft); });
    QTest::newRow("labels from right to left") << Change([scale](Stage &stage) {
        QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
        // As a replot of the chart does, before labels of another width lay the plot out.
        QwtScaleDraw *draw = scale(stage, QwtPlot::yLeft)->scaleDraw();
        draw->setScaleDiv(draw->scaleDiv());
        stage.drag(7);
    });
    QTest::newRow("decimals and value limits, to and fro") << Change([](Stage &stage) {
        stage.chart->setScaleDigits(QwtPlot::yLeft, 5);
        stage.chart->setValueLimits(QwtInterval(0.0, 1234567.0));
        stage.chart->replot();
        stage.chart->setValueLimits(QwtInterval(-1.0, 9.0));
    });
    QTest::newRow("hidden and shown") << Change([](Stage &stage) {
        stage.chart->hide();
        QCoreApplication::processEvents();
        stage.chart->show();
    });
}

void tst_QuickPaths::changeShowsAtOnce()
{
    using Change = std::function<void(Stage &)>;
    QFETCH(Change, change);
    for (const auto &kind : kinds()) {
        // Once with a replot after the change, once with a drag alone.
        for (const bool replots : {true, false}) {
            const auto story = [&] {
                QLocale::setDefault(QLocale::c());
                Stage stage(kind.second);
                for (int i = 0; i < 5; ++i) {
                    stage.drag(20);
                }
                change(stage);
                QCoreApplication::processEvents();
                std::vector<QImage> pictures;
                if (replots) {
                    stage.chart->replot();
                    QCoreApplication::processEvents();
                    pictures.push_back(stage.picture());
                }
                for (const int dx : {6, 6, -7, 23, -17, 40}) {
                    stage.drag(dx);
                    pictures.push_back(stage.picture());
                }
                return pictures;
            };
            compare(story);
            if (QTest::currentTestFailed()) {
                qInfo("%s, %s", kind.first, replots ? "with a replot" : "without a replot");
                return;
            }
        }
    }
}

QTEST_MAIN(tst_QuickPaths)
#include "tst_quickpaths.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartshortcuts_p.h"
#include "zemhistogramdata.h"
#include "zemhistogramseries.h"
#include "zemminidayhistogram.h"
#include "zemsmartdayhistogram.h"
#include "zemsmartmonthhistogram.h"
#include "zemsmartweekhistogram.h"
#include "zemtest.h"
#include "zemweekhistogram.h"

#include <QImage>
#include <QLocale>
#include <QPainter>
#include <QTest>
#include <QVBoxLayout>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>

#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace {

constexpr unsigned int windows = 40;

/** A ground of many colours, on which text and thin lines blend with something. */
class Ground : public QWidget
{
protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        QLinearGradient gradient(rect().topLeft(), rect().bottomRight());
        gradient.setColorAt(0.0, QColor(200, 30, 60));
        gradient.setColorAt(0.5, QColor(20, 140, 90));
        gradient.setColorAt(1.0, QColor(10, 20, 200));
        painter.fillRect(rect(), gradient);
    }
};

struct Kind
{
    std::function<ZEMHistogram *()> make;
    unsigned int slotCount;
};

const std::vector<std::pair<const char *, Kind>> &kinds()
{
    static const std::vector<std::pair<const char *, Kind>> all {
        {"day", {[] { return new ZEMSmartDayHistogram; }, 24}},
        {"week", {[] { return new ZEMSmartWeekHistogram; }, 7}},
        {"month", {[] { return new ZEMSmartMonthHistogram; }, 5}},
        {"plain week", {[] { return new ZEMWeekHistogram; }, 7}},
        {"mini", {[] { return new ZEMMiniDayHistogram; }, 24}},
    };
    return all;
}

/** A series with gaps, merged runs, zeros and negative values. */
ZEMHistogramSeries *newSeries(unsigned int slotCount, bool iconColumns, int seed)
{
    auto *data = new ZEMHistogramData;
    data->setWindowSize(slotCount);
    data->setCenterValue(iconColumns ? 0.05 : 0.1);
    data->setNrWindows(windows);
    std::mt19937 random(static_cast<std::mt19937::result_type>(seed));
    for (unsigned int window = 0; window < windows; ++window) {
        std::vector<double> values;
        for (unsigned int i = 0; i < slotCount; ++i) {
            values.push_back(double(random() % 40) / 4.0 - 1.0);
        }
        data->setWindowValues(window, 0, slotCount, values.data(), window % 5 == 3);
        data->invalidateValues(window, 0, slotCount, 2.5);
    }
    auto *series = new ZEMHistogramSeries(
        QStringLiteral("Verbruik"), QBrush(iconColumns ? Qt::green : Qt::yellow), iconColumns);
    if (iconColumns) {
        series->setIcon(QStringLiteral(":/zem/graphics/gwe/icons/icon_el_12x16.png"));
    }
    series->setData(data);
    return series;
}

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
        chart->setDataChangedTimestamp(QDateTime(QDate(2026, 3, 2), QTime(0, 0), Qt::UTC));
        ground.show();
        chart->replot();
        QCoreApplication::processEvents();
    }

    QwtPlot *plot() const { return plotOf(chart); }

    void drag(int dx)
    {
        QWidget *canvas = plot()->canvas();
        const QPoint from(canvas->width() / 2, canvas->height() / 2);
        ZemTest::press(canvas, from);
        ZemTest::moveTo(canvas, from + QPoint(dx, 0));
        ZemTest::release(canvas, from + QPoint(dx, 0));
        QCoreApplication::processEvents();
    }

    QImage picture() { return ground.grab().toImage(); }

    Ground ground;
    unsigned int slotCount;
    ZEMHistogram *chart;
    ZEMHistogram *child = nullptr;

private:
    static QwtPlot *plotOf(ZEMHistogram *histogram)
    {
        return histogram->findChild<QwtPlot *>(QString(), Qt::FindDirectChildrenOnly);
    }

    void fill(ZEMHistogram *histogram, int seed) const
    {
        histogram->addSeries(newSeries(slotCount, false, seed));
        histogram->prependSeries(newSeries(slotCount, true, seed + 1));
        histogram->setValueLimits(QwtInterval(-1.0, 9.0));
    }
};

using Story = std::function<std::vector<QImage>()>;

/** Plays a story without and with the shortcuts and compares the pictures. */
void compare(const Story &story)
{
    ChartShortcuts::setEnabled(false);
    const std::vector<QImage> plain = story();
    ChartShortcuts::setEnabled(true);
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

/** The quick ways of the charts show what the slow ones show, byte for byte. */
class tst_ChartShortcuts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
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
    void changeShowsAtOnce_data();
    void changeShowsAtOnce();
};

void tst_ChartShortcuts::cleanup()
{
    ChartShortcuts::setEnabled(true);
    QLocale::setDefault(QLocale::c());
}

void tst_ChartShortcuts::dragShowsTheSamePixels_data()
{
    QTest::addColumn<int>("kind");
    for (std::size_t i = 0; i < kinds().size(); ++i) {
        QTest::newRow(kinds()[i].first) << int(i);
    }
}

void tst_ChartShortcuts::dragShowsTheSamePixels()
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

void tst_ChartShortcuts::dragWithChildShowsTheSamePixels()
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

void tst_ChartShortcuts::periodMovesShowTheSamePixels_data()
{
    dragShowsTheSamePixels_data();
}

void tst_ChartShortcuts::periodMovesShowTheSamePixels()
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

void tst_ChartShortcuts::firstSightShowsTheSamePixels_data()
{
    dragShowsTheSamePixels_data();
}

void tst_ChartShortcuts::firstSightShowsTheSamePixels()
{
    QFETCH(int, kind);
    using Act = std::function<void(ZEMHistogram *)>;
    const auto plotOf = [](ZEMHistogram *chart) { return chart->findChild<QwtPlot *>(); };
    const Act acts[] = {
        [](ZEMHistogram *) {},
        [](ZEMHistogram *chart) { chart->replot(); },
        [](ZEMHistogram *chart) { chart->initAxisRefine(); },
        [](ZEMHistogram *chart) { chart->setValueLimits(QwtInterval(0.0, 12345.0)); },
        [](ZEMHistogram *chart) { chart->resize(300, 320); },
        [plotOf](ZEMHistogram *chart) { plotOf(chart)->enableAxis(QwtPlot::yRight); },
        [plotOf](ZEMHistogram *chart) { plotOf(chart)->enableAxis(QwtPlot::xTop); },
        [plotOf](ZEMHistogram *chart) {
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

void tst_ChartShortcuts::quietAxesKeepTheirLabels_data()
{
    dragShowsTheSamePixels_data();
}

void tst_ChartShortcuts::quietAxesKeepTheirLabels()
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
        ChartShortcuts::setEnabled(quick);
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

void tst_ChartShortcuts::sizeHintsAreTheSame_data()
{
    dragShowsTheSamePixels_data();
}

void tst_ChartShortcuts::sizeHintsAreTheSame()
{
    QFETCH(int, kind);
    QVector<QSize> hints[2];
    for (const bool quick : {false, true}) {
        ChartShortcuts::setEnabled(quick);
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

void tst_ChartShortcuts::changeShowsAtOnce_data()
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
    QTest::newRow("locale") << Change([](Stage &stage) {
        QLocale::setDefault(QLocale(QLocale::Dutch));
        // Without the shortcuts Qwt keeps its labels for as long as the scale stays.
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
    QTest::newRow("width of ticks") << Change(
        [scale](Stage &stage) { scale(stage, QwtPlot::xBottom)->scaleDraw()->setPenWidth(3); });
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
    QTest::newRow("hidden and shown") << Change([](Stage &stage) {
        stage.chart->hide();
        QCoreApplication::processEvents();
        stage.chart->show();
    });
}

void tst_ChartShortcuts::changeShowsAtOnce()
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

QTEST_MAIN(tst_ChartShortcuts)
#include "tst_chartshortcuts.moc"

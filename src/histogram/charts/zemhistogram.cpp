// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogram.h"

#include "histogramlayout_p.h"
#include "histogramplot_p.h"
#include "layoutmargins_p.h"
#include "objectname_p.h"
#include "quickpaths_p.h"
#include "quietaxes_p.h"
#include "qwtplotmover.h"
#include "scalelabels_p.h"
#include "scaletexts_p.h"
#include "sharpground_p.h"
#include "zemhistogramlegend.h"
#include "zemhistogramseries.h"
#include "zemscaledraw.h"
#include "zemstyle.h"

#include <QBrush>
#include <QLocale>
#include <QPixmap>
#include <QPointer>
#include <QResizeEvent>
#include <QTimer>
#include <QVBoxLayout>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_scale_div.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int dragThreshold = 5; // pixels
constexpr int canvasMarginRight = 10; // pixels
constexpr QSize firstSize {200, 200}; // pixels
constexpr QSize leastSpaceBelowPlot {40, 20}; // pixels
constexpr int xScaleFontSize = 11; // points
constexpr int yScaleFontSize = 9; // points

/** As QwtScaleDraw::maxLabelWidth(), quickly for the library's own scales. */
int widestLabel(const QwtScaleWidget &scale)
{
    const auto width = QuickPaths::areOpen() ? ScaleMeasure(scale).maxLabelWidth() : std::nullopt;
    return width ? *width : scale.scaleDraw()->maxLabelWidth(scale.font());
}

/** Of the minimum size hint, whose width nobody has to measure. */
int heightOfXScale(const QwtScaleWidget *scale)
{
    if (!scale->title().isEmpty()) {
        return scale->minimumSizeHint().height(); // a title may take more lines in a narrow scale
    }
    const QMargins margins = scale->contentsMargins();
    return scale->dimForLength(0, scale->font()) + margins.top() + margins.bottom();
}

/** A series of the chart, unless the host has deleted it. */
struct OwnedSeries
{
    ZEMHistogramSeries *series;
    std::weak_ptr<const void> life;

    bool isAlive() const { return !life.expired(); }
};

QFont fontOfScale(const QWidget *scale, int pointSize)
{
    QFont font = scale->font();
    font.setFamily(QStringLiteral("Cabin"));
    font.setPointSize(pointSize);
    return font;
}

} // namespace

class ZEMHistogram::Private
{
public:
    explicit Private(ZEMHistogram *owner) : q(owner) { }

    void watchMover()
    {
        if (q->mover) {
            // A subclass may have put another one in its place.
            QObject::connect(q->mover, &QObject::destroyed, &context, [this, watched = q->mover] {
                if (q->mover == watched) {
                    q->mover = nullptr;
                }
            });
            watchCanvas();
        }
    }

    /** Null once the plot's end has begun. */
    QwtPlot *livingPlot() const { return qobject_cast<QwtPlot *>(plotWidget.data()); }

    /** The plot has its new canvas only when the old one is gone, and the mover with it. */
    void watchCanvas()
    {
        QObject::connect(livingPlot()->canvas(), &QObject::destroyed, &context, [this] {
            if (livingPlot() && q->mover) {
                q->mover->setParent(livingPlot());
                QTimer::singleShot(0, &context, [this] { takeCanvas(); });
            }
        });
    }

    /** Puts a mover that has lost its canvas on the one that the plot has now. */
    void takeCanvas()
    {
        QWidget *canvas = livingPlot() ? livingPlot()->canvas() : nullptr;
        if (!canvas || !q->mover || q->mover->parent() != livingPlot()) {
            return;
        }
        const bool listens = q->mover->isEnabled();
        q->mover->setEnabled(false);
        q->mover->setParent(canvas);
        q->mover->setEnabled(listens);
        watchCanvas();
    }

    /** Nobody is told of a new default locale, in which the labels are worded. */
    void followLocale()
    {
        const QLocale locale;
        if (locale == labelLocale) {
            return;
        }
        labelLocale = locale;
        for (int axis = 0; axis < QwtPlot::axisCnt; ++axis) {
            ScaleTexts::renew(q->plot->axisScaleDraw(axis));
        }
    }

    ZEMHistogram *q;
    QLocale labelLocale;
    QPointer<QWidget> plotWidget;
    QPointer<ZEMHistogram> parentHistogram;
    QPointer<ZEMHistogram> childHistogram;
    QList<OwnedSeries> series;
    QObject context; ///< of connections that must end before the plot does
};

ZEMHistogram::ZEMHistogram(QWidget *parent)
    : QWidget(parent), plot(HistogramPlot::newPlot(this)), yAxisText(QStringLiteral("kWh")),
      d(new Private(this))
{
    d->plotWidget = plot;
    // Time runs to the right.
    setLayoutDirection(Qt::LeftToRight);
    setObjectNameFromClass(this, staticMetaObject);
    resize(firstSize);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(sizePolicy().hasHeightForWidth());
    setSizePolicy(policy);
    setWindowTitle(tr("Form"));
    QMetaObject::connectSlotsByName(this);
}

ZEMHistogram::~ZEMHistogram()
{
    for (const OwnedSeries &owned : std::as_const(d->series)) {
        if (owned.isAlive()) {
            owned.series->detach();
            delete owned.series;
        }
    }
}

void ZEMHistogram::setAxisScale(int axisId, double min, double max, double step)
{
    Q_UNUSED(min)
    Q_UNUSED(max)
    // A step of 0 leaves the choice to the engine and tells nothing of the labels.
    const double magnitude = step > 0.0 ? std::log10(step) : 0.0;
    setScaleDigits(axisId, magnitude < 0.0 ? int(std::ceil(std::fabs(magnitude))) : 0);
}

void ZEMHistogram::setScaleDigits(int axisId, int digits)
{
    if (auto *draw = dynamic_cast<ZEMScaleDraw *>(plot->axisScaleDraw(axisId))) {
        draw->setDigits(digits);
    }
}

void ZEMHistogram::replot()
{
    d->followLocale();
    plot->replot();
    if (d->childHistogram) {
        d->childHistogram->replot();
        d->childHistogram->changed(plot);
    }
}

void ZEMHistogram::init()
{
    initAxis();
    setLookAndFeel();
    d->watchMover();
}

void ZEMHistogram::setYAxisText(QString text)
{
    yAxisText = std::move(text);
}

void ZEMHistogram::initAxis()
{
    initAxisRefine();
    const QuietAxes quiet(plot);
    plot->updateAxes();

    QwtScaleWidget *xScale = plot->axisWidget(QwtPlot::xBottom);
    xScale->setFont(fontOfScale(xScale, xScaleFontSize));
    // Half of a label may stand out beyond the last tick.
    const int labelWidth = widestLabel(*xScale);
    xScale->setMinBorderDist(0, (labelWidth + 1) / 2);
    xScale->setMargin(0);

    QwtScaleWidget *yScale = plot->axisWidget(QwtPlot::yLeft);
    yScale->setMargin(0);
    yScale->setFont(fontOfScale(yScale, yScaleFontSize));
}

void ZEMHistogram::setLookAndFeel()
{
    setPlotLookAndFeel();

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(plot);
    layout->addItem(new QSpacerItem(leastSpaceBelowPlot.width(), leastSpaceBelowPlot.height(),
                                    QSizePolicy::Minimum, QSizePolicy::Expanding));

    auto *legendSpace = new QWidget(this);
    legendSpace->setMinimumHeight(HistogramLayout::legendHeight);
    layout->addWidget(legendSpace);
    auto *legend = new ZEMHistogramLegend(legendSpace);
    insertLegendExternal(plot, legend);
    HistogramLayout::arrangeLegend(legend);
    fillWithoutMargins(legendSpace, legend);
}

void ZEMHistogram::changed(QwtPlot *) { }

QSize ZEMHistogram::sizeHint() const
{
    QSize hint = plot->sizeHint();
    if (d->childHistogram) {
        hint += d->childHistogram->sizeHint();
    }
    return hint;
}

void ZEMHistogram::addSeries(ZEMHistogramSeries *s)
{
    s->setZ(1.0);
    d->series.append({s, s->life()});
    s->attach(plot);
}

void ZEMHistogram::prependSeries(ZEMHistogramSeries *s)
{
    s->setZ(0.0);
    d->series.prepend({s, s->life()});
    s->attach(plot);
}

void ZEMHistogram::delSeries(ZEMHistogramSeries *s)
{
    const auto isTheOne = [s](const OwnedSeries &owned) {
        return owned.series == s && owned.isAlive();
    };
    const auto found = std::find_if(d->series.crbegin(), d->series.crend(), isTheOne);
    if (found != d->series.crend()) {
        s->detach();
        d->series.removeAt(int(d->series.crend() - found) - 1);
        delete s;
    }
}

void ZEMHistogram::setScalePeriod(double period)
{
    for (ZEMHistogram *histogram = this; histogram; histogram = histogram->getChild()) {
        if (histogram->mover) {
            histogram->mover->setAxisPeriod(QwtPlot::xBottom, period);
        }
    }
}

void ZEMHistogram::setScaleInterval(QwtInterval interval)
{
    if (mover) {
        mover->setAxisValidInterval(QwtPlot::xBottom, interval);
    }
    if (d->childHistogram) {
        d->childHistogram->setScaleInterval(interval);
    }
}

void ZEMHistogram::setValueLimits(QwtInterval limits)
{
    double low = limits.minValue();
    double high = limits.maxValue();
    double step = plot->axisStepSize(QwtPlot::yLeft);
    plot->axisScaleEngine(QwtPlot::yLeft)
        ->autoScale(plot->axisMaxMajor(QwtPlot::yLeft), low, high, step);
    setAxisScale(QwtPlot::yLeft, low, high, step);
    plot->setAxisScale(QwtPlot::yLeft, low, high, step);
}

void ZEMHistogram::setDataChangedTimestamp(QDateTime t)
{
    const QPointer<ZEMHistogram> self = this;
    dataChangedTimestamp = t;
    if (d->childHistogram) {
        d->childHistogram->setDataChangedTimestamp(t);
    }
    if (self) {
        updateTitle(plot->axisInterval(QwtPlot::xBottom));
    }
    if (self) {
        // Its labels may tell dates; a replot paints an axis only when its scale is another one.
        plot->axisWidget(QwtPlot::xBottom)->update();
    }
}

QString ZEMHistogram::title()
{
    return titleText;
}

void ZEMHistogram::has_page(bool *prev, bool *next)
{
    if (prev) {
        *prev = mover && mover->hasAxisPrevPeriod(QwtPlot::xBottom);
    }
    if (next) {
        *next = mover && mover->hasAxisNextPeriod(QwtPlot::xBottom);
    }
}

void ZEMHistogram::setChild(ZEMHistogram *child)
{
    if (d->childHistogram || !child) {
        return;
    }
    d->childHistogram = child;
    child->setParent(this);
    child->setParentHistogram(this);
}

ZEMHistogram *ZEMHistogram::getChild() const
{
    return d->childHistogram;
}

ZEMHistogram *ZEMHistogram::getParent() const
{
    return d->parentHistogram;
}

void ZEMHistogram::setParentHistogram(ZEMHistogram *parent)
{
    d->parentHistogram = parent;
}

void ZEMHistogram::insertLegendExternal(QwtPlot *source, QwtLegend *legend)
{
    ZEMHistogramLegend::connectToPlot(source, legend);
}

void ZEMHistogram::syncAxis(int axis, QwtPlot *source)
{
    const QwtInterval wanted = source->axisInterval(axis);
    const double step = source->axisStepSize(axis);
    if (plot->axisInterval(axis) == wanted) {
        // An equal scale would not be divided again; a different one in between makes it so.
        constexpr double difference = 0.1;
        plot->setAxisScale(axis, wanted.minValue(), wanted.maxValue() + difference, step);
        plot->updateAxes();
    }
    HistogramPlot::setAxisScale(plot, axis, wanted.minValue(), wanted.maxValue(), step);
    plot->replot();
}

void ZEMHistogram::showPrevPeriod()
{
    d->takeCanvas();
    if (mover) {
        mover->moveAxisPrevPeriod(QwtPlot::xBottom);
    }
}

void ZEMHistogram::showNextPeriod()
{
    d->takeCanvas();
    if (mover) {
        mover->moveAxisNextPeriod(QwtPlot::xBottom);
    }
}

void ZEMHistogram::showFirstPeriod()
{
    d->takeCanvas();
    if (mover) {
        mover->moveAxisFirstPeriod(QwtPlot::xBottom);
    }
}

void ZEMHistogram::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    plot->resize(event->size());
}

void ZEMHistogram::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (d->childHistogram) {
        d->childHistogram->changed(plot);
    }
}

void ZEMHistogram::setPlotLookAndFeel()
{
    const ZEMStyle style(nullptr);
    QPalette palette = plot->palette();
    palette.setBrush(QPalette::All, QPalette::Text, QBrush(style.color(ZEMStyle::White)));
    palette.setBrush(QPalette::All, QPalette::WindowText,
                     QBrush(style.color(ZEMStyle::WhiteAlpha50)));
    plot->setPalette(palette);

    auto *canvas = qobject_cast<QwtPlotCanvas *>(plot->canvas());
    canvas->setFrameStyle(0);
    // On a button it would take the button's colour instead of its own picture.
    canvas->setBackgroundRole(QPalette::Window);

    mover = new QwtPlotMover(canvas);
    mover->setMouseButton(Qt::LeftButton, Qt::NoModifier);
    mover->setDxSignalThreshold(dragThreshold);
    for (const int axis : {QwtPlot::yLeft, QwtPlot::yRight, QwtPlot::xTop}) {
        mover->setAxisEnabled(axis, false);
    }
    mover->setOrientations(Qt::Horizontal);
    connect(mover, SIGNAL(axisChanged(int)), this, SLOT(axisChanged(int)));

    const QPixmap background(QStringLiteral(":/zem/graphics/main/tab_overview_bg.png"));
    plot->setCanvasBackground(QBrush(background));
    SharpGround::watch(canvas);
    plot->setAttribute(Qt::WA_TranslucentBackground, true);
    canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    canvas->setPaintAttribute(QwtPlotCanvas::Opaque, false);
    canvas->setAttribute(Qt::WA_OpaquePaintEvent, false);

    HistogramLayout::setCanvasMargins(plot, canvasMarginRight);

    plot->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    // The canvas comes out about as high as its picture.
    const int height = background.height() + heightOfXScale(plot->axisWidget(QwtPlot::xBottom)) - 4;
    plot->setMinimumHeight(height);
    plot->setMaximumHeight(height);
}

void ZEMHistogram::axisChanged(int axis)
{
    const QPointer<ZEMHistogram> self = this;
    if (axis == QwtPlot::xBottom) {
        updateTitle(plot->axisInterval(QwtPlot::xBottom));
        if (self) {
            bool hasPrev = false;
            bool hasNext = false;
            has_page(&hasPrev, &hasNext);
            Q_EMIT has_page(hasPrev, hasNext);
        }
    }
    if (!self) {
        return;
    }
    if (ZEMHistogram *partner = d->childHistogram ? getChild() : getParent()) {
        partner->syncAxis(axis, plot);
    }
}

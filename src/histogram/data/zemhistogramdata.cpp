// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemhistogramdata.h"

#include "histogramslots_p.h"

#include <cmath>
#include <limits>

class ZEMHistogramData::Private
{
public:
    HistogramBarShape barShape() const { return {centerValue, shiftValue, borderFlags}; }
    int indexInView(size_t i) const;

    unsigned int windowSize = 0;
    unsigned int nrWindows = 0;
    HistogramSlots samples;
    QRectF rectOfInterest;
    QRectF boundingRect {0.0, 0.0, -1.0, -1.0}; // the base's has another name in each Qwt
    double centerValue = 0.0;
    double shiftValue = 0.0;
    QwtInterval dataInterval {0.0, 0.0};
    QwtInterval::BorderFlags borderFlags = QwtInterval::ExcludeMaximum;
    bool merged = false;
    int mergedCount = 0;
};

/** Array position of the i-th slot of the view, -1 when it lies outside of the array. */
int ZEMHistogramData::Private::indexInView(size_t i) const
{
    constexpr double belowInt = -2147483649.0;
    constexpr double aboveInt = 2147483648.0;
    const double left = rectOfInterest.left();
    if (!(left > belowInt && left < aboveInt)) {
        return -1;
    }
    // The plot item's own reader takes an int, so that a negative one arrives here as a huge size.
    const auto offset = static_cast<qint64>(i);
    if (offset < std::numeric_limits<qint32>::min()
        || offset > std::numeric_limits<quint32>::max()) {
        return -1;
    }
    const int base = static_cast<int>(left);
    const quint32 position =
        static_cast<quint32>(base) + (nrWindows - 1) * windowSize + static_cast<quint32>(offset);
    const int index = static_cast<int>(position);
    return index >= 0 && index < samples.count() ? index : -1;
}

ZEMHistogramData::ZEMHistogramData(QObject *parent)
    : QObject(parent), d(std::make_unique<Private>())
{
}

ZEMHistogramData::~ZEMHistogramData() = default;

size_t ZEMHistogramData::size() const
{
    return d->windowSize;
}

QwtIntervalSample ZEMHistogramData::sample(size_t i) const
{
    const int index = d->indexInView(i);
    if (index < 0) {
        return QwtIntervalSample();
    }
    const int bar = i == 0 ? d->samples.barAtOrBefore(index) : index;
    return d->samples.at(bar < 0 ? index : bar);
}

QRectF ZEMHistogramData::boundingRect() const
{
    if (d->boundingRect.width() < 0.0) {
        d->boundingRect = qwtBoundingRect(*this, 0, -1);
    }
    return d->boundingRect;
}

void ZEMHistogramData::setRectOfInterest(const QRectF &rect)
{
    d->rectOfInterest = rect;
}

void ZEMHistogramData::setWindowSize(unsigned int size)
{
    d->windowSize = size;
}

unsigned int ZEMHistogramData::windowSize() const
{
    return d->windowSize;
}

void ZEMHistogramData::setNrWindows(unsigned int number)
{
    d->nrWindows = number;
    const quint64 count = quint64(number) * d->windowSize;
    d->samples.resize(count <= quint64(std::numeric_limits<int>::max()) ? int(count) : 0);
    d->dataInterval.setMinValue(-static_cast<double>(number - 1)
                                * static_cast<double>(d->windowSize));
    d->dataInterval.setMaxValue(d->windowSize);
}

unsigned int ZEMHistogramData::nrWindows() const
{
    return d->nrWindows;
}

void ZEMHistogramData::setCenterValue(double value)
{
    d->centerValue = value;
}

double ZEMHistogramData::centerValue() const
{
    return d->centerValue;
}

void ZEMHistogramData::setShiftValue(double value)
{
    d->shiftValue = value;
}

double ZEMHistogramData::shiftValue() const
{
    return d->shiftValue;
}

void ZEMHistogramData::setBorderFlags(QFlags<QwtInterval::BorderFlag> flags)
{
    d->borderFlags = flags;
}

void ZEMHistogramData::setWindowValues(unsigned int window, unsigned int offset, unsigned int count,
                                       const double *values, bool merge)
{
    const unsigned int index = window * d->windowSize + offset;
    // Unsigned until here, so that the windows before the newest wrap around to negative x.
    const double x = static_cast<int>((window - d->nrWindows + 1) * d->windowSize + offset);
    if (merge) {
        mergeValues(x, index, count, values);
    } else {
        setValues(x, index, count, values);
    }
}

void ZEMHistogramData::setValues(double x, unsigned int index, unsigned int count,
                                 const double *values)
{
    d->samples.writeBars(x, index, count, values, d->barShape());
    d->merged = false;
}

void ZEMHistogramData::mergeValues(double x, unsigned int index, unsigned int count,
                                   const double *values)
{
    d->mergedCount = d->samples.writeRuns(x, index, count, values, d->barShape());
    d->merged = true;
}

void ZEMHistogramData::invalidateValues(unsigned int window, unsigned int offset,
                                        unsigned int count, double value)
{
    d->samples.clearValue(window * d->windowSize + offset, count, value);
}

QwtInterval ZEMHistogramData::findInterval(unsigned int start, unsigned int count,
                                           const double *values)
{
    return QwtInterval(start, endOfRun(start, count, values));
}

QwtInterval ZEMHistogramData::interval() const
{
    return d->dataInterval;
}

QwtInterval ZEMHistogramData::interval(unsigned int window) const
{
    const double min = window * d->windowSize + d->dataInterval.minValue();
    return QwtInterval(min, min + d->windowSize);
}

QwtInterval ZEMHistogramData::valueLimits() const
{
    const HistogramSlots &samples = d->samples;
    if (samples.count() == 0) {
        return QwtInterval(0.0, 0.0);
    }
    double min = samples.at(0).value;
    double max = min;
    for (int k = 1; k < samples.count(); ++k) {
        // Unlike a comparison, fmin and fmax prefer a number to a NaN.
        min = std::fmin(min, samples.at(k).value);
        max = std::fmax(max, samples.at(k).value);
    }
    return QwtInterval(min, max);
}

QRectF ZEMHistogramData::rectOfInterest() const
{
    return d->rectOfInterest;
}

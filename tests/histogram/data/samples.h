// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SAMPLES_H
#define SAMPLES_H

#include <QByteArray>
#include <QRectF>

#include <ZEMHistogramData>

#include <cmath>
#include <limits>

/** What the tests of chart data share: comparisons that hold for NaN as well, and short names. */
namespace Samples {

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

inline bool same(double a, double b)
{
    return a == b || (std::isnan(a) && std::isnan(b));
}

inline bool same(const QwtInterval &a, const QwtInterval &b)
{
    return same(a.minValue(), b.minValue()) && same(a.maxValue(), b.maxValue())
        && a.borderFlags() == b.borderFlags();
}

inline bool same(const QwtIntervalSample &a, const QwtIntervalSample &b)
{
    return same(a.value, b.value) && same(a.interval, b.interval);
}

inline QByteArray text(const QwtIntervalSample &s)
{
    return QByteArray::number(s.value) + " [" + QByteArray::number(s.interval.minValue(), 'g', 17)
        + ", " + QByteArray::number(s.interval.maxValue(), 'g', 17) + "] "
        + QByteArray::number(int(s.interval.borderFlags()));
}

inline QwtIntervalSample bar(double value, double min, double max,
                             QwtInterval::BorderFlags flags = QwtInterval::ExcludeMaximum)
{
    return QwtIntervalSample(value, QwtInterval(min, max, flags));
}

#define COMPARE_SAMPLES(actual, expected)                                                          \
    QVERIFY2(same(actual, expected), text(actual) + " instead of " + text(expected))

inline void look(ZEMHistogramData &data, double left)
{
    data.setRectOfInterest(QRectF(left, -3.0, 24.0, 7.0));
}

} // namespace Samples

#endif

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMHistogramData>

#include "samples.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstddef>
#include <limits>
#include <vector>

using namespace Samples;

namespace {

/** The rules of the data in their plainest form: every question walks through the whole array. */
struct Model
{
    unsigned int windowSize = 0;
    unsigned int nrWindows = 0;
    double center = 0.0;
    double shift = 0.0;
    QwtInterval::BorderFlags flags = QwtInterval::ExcludeMaximum;
    double left = 0.0;
    std::vector<QwtIntervalSample> array;

    int index(unsigned int window, unsigned int offset) const
    {
        return int(window * windowSize + offset);
    }

    QwtIntervalSample barAt(double value, double slot, double width) const
    {
        const double start = slot + center + shift;
        return bar(value, start, width - (center + center) + start, flags);
    }

    void feed(unsigned int window, unsigned int offset, unsigned int count, const double *values,
              bool merge)
    {
        const int first = index(window, offset);
        const double x =
            (double(window) - double(nrWindows) + 1.0) * double(windowSize) + double(offset);
        if (!merge) {
            for (unsigned int i = 0; i < count; ++i) {
                array[size_t(first) + i] = barAt(values[i], i + x, 1.0);
            }
            return;
        }
        for (unsigned int i = 0; i < count; ++i) {
            array[size_t(first) + i] = QwtIntervalSample();
        }
        for (unsigned int i = 0; i == 0 || i < count;) {
            unsigned int j = i + 1;
            while (j < count && values[j] == values[i]) {
                ++j;
            }
            array[size_t(first) + i] = barAt(values[i], x + i, j - i);
            i = j;
        }
    }

    void invalidate(unsigned int window, unsigned int offset, unsigned int count, double value)
    {
        for (unsigned int i = 0; i < count; ++i) {
            QwtIntervalSample &s = array[size_t(index(window, offset)) + i];
            if (s.value == value) {
                s = bar(0.0, 0.0, -1.0, s.interval.borderFlags());
            }
        }
    }

    QwtIntervalSample sample(int i) const
    {
        const int base = int(left);
        const int k = base + (int(nrWindows) - 1) * int(windowSize) + i;
        if (k < 0 || k >= int(array.size())) {
            return QwtIntervalSample();
        }
        const QwtIntervalSample result = array[size_t(k)];
        if (i != 0 || result.interval.isValid()) {
            return result;
        }
        for (int j = k - 1; j >= 0; --j) {
            if (array[size_t(j)].interval.isValid()) {
                return array[size_t(j)];
            }
        }
        return result;
    }
};

} // namespace

class tst_ZEMHistogramDataView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void viewBeginsAtTheTruncatedLeftEdge_data();
    void viewBeginsAtTheTruncatedLeftEdge();
    void placesOutsideOfTheArrayAreEmpty_data();
    void placesOutsideOfTheArrayAreEmpty();
    void firstSampleIsTheRunThatReachesIntoTheView();
    void firstSampleWithNothingBeforeItIsItsOwnEmptySlot();
    void firstSlotOfTheArrayIsGivenAsItIs();
    void boundingRectIsKeptOnceItIsValid();
    void boundingRectIsComputedAgainWhileItIsInvalid();
    void rectOfInterestIsStored();
    void randomUseAgreesWithTheModel();
};

void tst_ZEMHistogramDataView::viewBeginsAtTheTruncatedLeftEdge_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<double>("firstValue");

    QTest::newRow("start") << 0.0 << 10.0;
    QTest::newRow("just before the start") << -0.9 << 10.0;
    QTest::newRow("whole slot before") << -1.0 << 9.0;
    QTest::newRow("between slots before") << -1.9 << 9.0;
    QTest::newRow("just behind") << 0.9 << 10.0;
    QTest::newRow("between slots behind") << 3.99 << 13.0;
    QTest::newRow("oldest window") << -10.0 << 0.0;
}

void tst_ZEMHistogramDataView::viewBeginsAtTheTruncatedLeftEdge()
{
    QFETCH(double, left);
    QFETCH(double, firstValue);

    ZEMHistogramData data;
    data.setWindowSize(10);
    data.setNrWindows(2);
    double values[20];
    for (int i = 0; i < 20; ++i) {
        values[i] = i;
    }
    data.setValues(-10.0, 0, 20, values);
    look(data, left);
    QCOMPARE(data.sample(0).value, firstValue);
    QCOMPARE(data.sample(2).value, firstValue + 2.0);
}

void tst_ZEMHistogramDataView::placesOutsideOfTheArrayAreEmpty_data()
{
    QTest::addColumn<double>("left");
    QTest::addColumn<qulonglong>("index");

    constexpr double infinity = std::numeric_limits<double>::infinity();
    QTest::newRow("before") << -5.0 << 0ull;
    QTest::newRow("behind") << 0.0 << 4ull;
    QTest::newRow("far behind") << 4.0 << 0ull;
    QTest::newRow("last int") << 2147483647.0 << 0ull;
    QTest::newRow("first int") << -2147483648.0 << 0ull;
    QTest::newRow("beyond int") << 2147483648.0 << 0ull;
    QTest::newRow("before int") << -2147483649.0 << 0ull;
    QTest::newRow("wraps once") << 4294967296.0 << 0ull;
    QTest::newRow("infinite") << infinity << 0ull;
    QTest::newRow("negative infinite") << -infinity << 0ull;
    QTest::newRow("not a number") << notANumber << 0ull;
    QTest::newRow("largest index") << 0.0 << 0x7fffffffull;
    QTest::newRow("negative index before the array") << 0.0 << ~0ull - 4;
    // A processor of 32 bits has no such index.
    if (sizeof(std::size_t) > sizeof(quint32)) {
        QTest::newRow("index beyond 32 bits") << 0.0 << 0x100000000ull;
        QTest::newRow("negative index beyond 32 bits") << 0.0 << 0xffffffff00000000ull;
    }
}

void tst_ZEMHistogramDataView::placesOutsideOfTheArrayAreEmpty()
{
    QFETCH(double, left);
    QFETCH(qulonglong, index);

    ZEMHistogramData data;
    data.setWindowSize(4);
    data.setNrWindows(2);
    const std::vector<double> values(8, 3.0);
    data.setValues(-4.0, 0, 8, values.data());
    look(data, left);
    COMPARE_SAMPLES(data.sample(index), QwtIntervalSample());
}

void tst_ZEMHistogramDataView::firstSampleIsTheRunThatReachesIntoTheView()
{
    ZEMHistogramData data;
    data.setWindowSize(6);
    data.setNrWindows(2);
    const double values[] = {1.0, 4.0, 4.0, 4.0, 4.0, 5.0};
    data.setWindowValues(1, 0, 6, values, true);
    look(data, 3.0);
    COMPARE_SAMPLES(data.sample(0), bar(4.0, 1.0, 5.0));
    COMPARE_SAMPLES(data.sample(1), QwtIntervalSample());
    COMPARE_SAMPLES(data.sample(2), bar(5.0, 5.0, 6.0));
}

void tst_ZEMHistogramDataView::firstSampleWithNothingBeforeItIsItsOwnEmptySlot()
{
    ZEMHistogramData data;
    data.setWindowSize(4);
    data.setNrWindows(2);
    const double values[] = {8.0, 8.0, 8.0, 8.0};
    data.setWindowValues(1, 0, 4, values, false);
    data.setWindowValues(0, 0, 4, values, false);
    data.invalidateValues(0, 0, 4, 8.0);
    look(data, -2.0);
    COMPARE_SAMPLES(data.sample(0), bar(0.0, 0.0, -1.0, QwtInterval::ExcludeMaximum));
    QCOMPARE(data.sample(2).value, 8.0);
}

void tst_ZEMHistogramDataView::firstSlotOfTheArrayIsGivenAsItIs()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(1);
    const double values[] = {8.0, 9.0};
    data.setWindowValues(0, 0, 2, values, false);
    data.invalidateValues(0, 0, 1, 8.0);
    COMPARE_SAMPLES(data.sample(0), bar(0.0, 0.0, -1.0, QwtInterval::ExcludeMaximum));
}

void tst_ZEMHistogramDataView::boundingRectIsKeptOnceItIsValid()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(2);
    const double values[] = {2.0, 6.0};
    data.setWindowValues(1, 0, 2, values, false);
    const QRectF first(0.0, 2.0, 2.0, 4.0);
    QCOMPARE(data.boundingRect(), first);

    const double later[] = {50.0, 60.0};
    data.setWindowValues(0, 0, 2, later, false);
    data.setWindowValues(1, 0, 2, later, false);
    look(data, -2.0);
    data.setNrWindows(3);
    QCOMPARE(data.boundingRect(), first);
}

void tst_ZEMHistogramDataView::boundingRectIsComputedAgainWhileItIsInvalid()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(1);
    QVERIFY(data.boundingRect().width() < 0.0);
    const double values[] = {2.0, 6.0};
    data.setWindowValues(0, 0, 2, values, false);
    QCOMPARE(data.boundingRect(), QRectF(0.0, 2.0, 2.0, 4.0));
}

void tst_ZEMHistogramDataView::rectOfInterestIsStored()
{
    ZEMHistogramData data;
    data.setRectOfInterest(QRectF(-3.5, 2.0, 24.0, -7.0));
    QCOMPARE(data.rectOfInterest(), QRectF(-3.5, 2.0, 24.0, -7.0));
}

void tst_ZEMHistogramDataView::randomUseAgreesWithTheModel()
{
    QRandomGenerator random(20180712);
    const auto below = [&random](int end) { return int(random.bounded(end)); };
    const double choice[] = {0.0, 1.0, 1.0, 1.0, 2.0, -1.0, notANumber};
    const double insets[] = {0.0, 0.1, 0.25, 0.5, 0.75};
    const QwtInterval::BorderFlags flagChoice[] = {
        QwtInterval::IncludeBorders, QwtInterval::ExcludeMinimum, QwtInterval::ExcludeMaximum,
        QwtInterval::ExcludeBorders};

    for (int run = 0; run < 400; ++run) {
        ZEMHistogramData data;
        Model model;
        for (int step = 0; step < 60; ++step) {
            const int action = step == 0 ? 0 : below(12);
            if (action == 0) {
                model.windowSize = uint(below(9));
                model.nrWindows = uint(1 + below(6));
                model.array.resize(model.windowSize * model.nrWindows);
                data.setWindowSize(model.windowSize);
                data.setNrWindows(model.nrWindows);
            } else if (action == 1) {
                model.windowSize = uint(below(9));
                data.setWindowSize(model.windowSize);
            } else if (action == 2) {
                model.center = insets[below(5)];
                model.shift = 0.25 * below(5) - 0.5;
                model.flags = flagChoice[below(4)];
                data.setCenterValue(model.center);
                data.setShiftValue(model.shift);
                data.setBorderFlags(model.flags);
            } else if (!model.array.empty()) {
                const auto window = uint(below(int(model.nrWindows)));
                const auto offset = uint(below(qMax(1, int(model.windowSize))));
                const int room = int(model.array.size()) - model.index(window, offset);
                if (room <= 0) {
                    continue;
                }
                const auto count = uint(below(room + 1));
                double values[64] = {};
                for (uint i = 0; i < count; ++i) {
                    values[i] = choice[below(7)];
                }
                if (action < 6) {
                    const double sentinel = choice[below(7)];
                    model.invalidate(window, offset, count, sentinel);
                    data.invalidateValues(window, offset, count, sentinel);
                } else {
                    const bool merge = action < 10;
                    model.feed(window, offset, count, values, merge);
                    data.setWindowValues(window, offset, count, values, merge);
                }
            }

            const int span = int(model.nrWindows * model.windowSize);
            for (int view = 0; view < 6; ++view) {
                model.left = 0.25 * (below(8 * (span + 2)) - 4 * (span + 2));
                look(data, model.left);
                for (int i = -3; i < int(data.size()) + 4; ++i) {
                    const QwtIntervalSample actual = data.sample(size_t(qint64(i)));
                    const QwtIntervalSample expected = model.sample(i);
                    if (!same(actual, expected)) {
                        qInfo("run %d, step %d, left edge %g, sample %d", run, step, model.left, i);
                        COMPARE_SAMPLES(actual, expected);
                    }
                }
            }
        }
    }
}

QTEST_GUILESS_MAIN(tst_ZEMHistogramDataView)
#include "tst_zemhistogramdataview.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMHistogramData>

#include "samples.h"

#include <QPointer>
#include <QTest>
#include <QVector>

#include <vector>

using namespace Samples;

class tst_ZEMHistogramData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newObjectIsEmpty();
    void newSlotsAreEmptySamples();
    void settersStore();
    void windowSizeAfterNrWindowsOnlyStores();
    void sizeIsTheWindowSizeWhateverTheArrayHolds();
    void rangeOfWindows_data();
    void rangeOfWindows();
    void flagsOfTheRangeStayZero();
    void moreWindowsKeepTheOldestSlots();
    void fewerWindowsKeepTheOldestSlots();
    void hugeProductLeavesNoSlots();
    void barsStandInsetAndShifted();
    void settingsApplyToLaterSamplesOnly();
    void noValuesWriteNothing();
    void olderWindowsHaveNegativeX();
    void mergedRunsTakeTheFirstSlot();
    void equalValuesMergeIntoOneBar();
    void notANumberIsARunOfItsOwn();
    void mergingEmptiesWhatWasThere();
    void mergingNoValuesStillWritesTheFirst();
    void runSearch_data();
    void runSearch();
    void invalidatedValuesKeepTheirFlags();
    void invalidatingAnAbsentValueChangesNothing();
    void invalidatingNoSlotsChangesNothing();
    void writesOutsideOfTheArrayAreSkipped();
    void valueLimits_data();
    void valueLimits();
    void limitsWithoutSlots();
    void dataIsDeletedWithItsParent();
};

void tst_ZEMHistogramData::newObjectIsEmpty()
{
    const ZEMHistogramData data(nullptr);
    QCOMPARE(data.parent(), nullptr);
    QCOMPARE(data.size(), size_t(0));
    QCOMPARE(data.windowSize(), 0u);
    QCOMPARE(data.nrWindows(), 0u);
    QCOMPARE(data.centerValue(), 0.0);
    QCOMPARE(data.shiftValue(), 0.0);
    QCOMPARE(data.interval(), QwtInterval(0.0, 0.0));
    QCOMPARE(data.rectOfInterest(), QRectF(0, 0, 0, 0));
    QVERIFY(data.boundingRect().width() < 0.0);
    COMPARE_SAMPLES(data.sample(0), QwtIntervalSample());
    QCOMPARE(data.metaObject()->className(), "ZEMHistogramData");
    QCOMPARE(data.metaObject()->methodCount(), QObject::staticMetaObject.methodCount());
    QCOMPARE(data.metaObject()->propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_ZEMHistogramData::newSlotsAreEmptySamples()
{
    ZEMHistogramData data;
    data.setWindowSize(3);
    data.setNrWindows(1);
    for (size_t i = 0; i < 3; ++i) {
        COMPARE_SAMPLES(data.sample(i), bar(0.0, 0.0, -1.0, QwtInterval::IncludeBorders));
    }
}

void tst_ZEMHistogramData::settersStore()
{
    ZEMHistogramData data;
    data.setWindowSize(7);
    data.setNrWindows(5);
    data.setCenterValue(0.125);
    data.setShiftValue(-0.5);
    QCOMPARE(data.windowSize(), 7u);
    QCOMPARE(data.nrWindows(), 5u);
    QCOMPARE(data.centerValue(), 0.125);
    QCOMPARE(data.shiftValue(), -0.5);
}

void tst_ZEMHistogramData::windowSizeAfterNrWindowsOnlyStores()
{
    ZEMHistogramData data;
    data.setWindowSize(4);
    data.setNrWindows(3);
    const std::vector<double> values(12, 1.5);
    data.setValues(-8.0, 0, 12, values.data());

    data.setWindowSize(24);
    QCOMPARE(data.windowSize(), 24u);
    QCOMPARE(data.interval(), QwtInterval(-8.0, 4.0));
    look(data, -48.0);
    QCOMPARE(data.sample(11).value, 1.5);
    QCOMPARE(data.sample(12).value, 0.0);
}

void tst_ZEMHistogramData::sizeIsTheWindowSizeWhateverTheArrayHolds()
{
    ZEMHistogramData data;
    data.setNrWindows(3);
    QCOMPARE(data.size(), size_t(0));
    data.setWindowSize(24);
    QCOMPARE(data.size(), size_t(24));
    data.setNrWindows(3);
    QCOMPARE(data.size(), size_t(24));
    data.setWindowSize(0);
    QCOMPARE(data.size(), size_t(0));
}

void tst_ZEMHistogramData::rangeOfWindows_data()
{
    QTest::addColumn<uint>("size");
    QTest::addColumn<uint>("number");
    QTest::addColumn<QwtInterval>("all");
    QTest::addColumn<uint>("window");
    QTest::addColumn<QwtInterval>("one");

    QTest::newRow("three days") << 24u << 3u << QwtInterval(-48, 24) << 0u << QwtInterval(-48, -24);
    QTest::newRow("newest") << 24u << 3u << QwtInterval(-48, 24) << 2u << QwtInterval(0, 24);
    QTest::newRow("one window") << 7u << 1u << QwtInterval(0, 7) << 0u << QwtInterval(0, 7);
    QTest::newRow("no slots") << 0u << 4u << QwtInterval(0, 0) << 1u << QwtInterval(0, 0);
    QTest::newRow("beyond") << 10u << 2u << QwtInterval(-10, 10) << 5u << QwtInterval(40, 50);
    QTest::newRow("no windows") << 2u << 0u << QwtInterval(-2.0 * 4294967295.0, 2) << 0u
                                << QwtInterval(-2.0 * 4294967295.0, -2.0 * 4294967295.0 + 2);
}

void tst_ZEMHistogramData::rangeOfWindows()
{
    QFETCH(uint, size);
    QFETCH(uint, number);
    QFETCH(QwtInterval, all);
    QFETCH(uint, window);
    QFETCH(QwtInterval, one);

    ZEMHistogramData data;
    data.setWindowSize(size);
    data.setNrWindows(number);
    QCOMPARE(data.interval(), all);
    QCOMPARE(data.interval(window), one);
}

void tst_ZEMHistogramData::flagsOfTheRangeStayZero()
{
    ZEMHistogramData data;
    data.setBorderFlags(QwtInterval::ExcludeBorders);
    data.setWindowSize(4);
    data.setNrWindows(2);
    QCOMPARE(data.interval().borderFlags(), QwtInterval::BorderFlags());
    QCOMPARE(data.interval(1).borderFlags(), QwtInterval::BorderFlags());
    QCOMPARE(data.valueLimits().borderFlags(), QwtInterval::BorderFlags());
}

void tst_ZEMHistogramData::moreWindowsKeepTheOldestSlots()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(1);
    const double values[] = {5.0, 6.0};
    data.setWindowValues(0, 0, 2, values, false);

    data.setNrWindows(3);
    look(data, -4.0);
    COMPARE_SAMPLES(data.sample(0), bar(5.0, 0.0, 1.0));
    COMPARE_SAMPLES(data.sample(1), bar(6.0, 1.0, 2.0));
    COMPARE_SAMPLES(data.sample(2), QwtIntervalSample());
    look(data, 0.0);
    COMPARE_SAMPLES(data.sample(0), bar(6.0, 1.0, 2.0));
}

void tst_ZEMHistogramData::fewerWindowsKeepTheOldestSlots()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(2);
    const double values[] = {1.0, 2.0, 3.0, 4.0};
    data.setValues(-2.0, 0, 4, values);
    data.setNrWindows(1);
    QCOMPARE(data.sample(0).value, 1.0);
    QCOMPARE(data.sample(1).value, 2.0);
    QCOMPARE(data.sample(2).value, 0.0);

    data.setNrWindows(2);
    look(data, 0.0);
    COMPARE_SAMPLES(data.sample(0), bar(2.0, -1.0, 0.0));
    QCOMPARE(data.sample(1).value, 0.0);
}

void tst_ZEMHistogramData::hugeProductLeavesNoSlots()
{
    ZEMHistogramData data;
    data.setWindowSize(65536);
    data.setNrWindows(65537);
    COMPARE_SAMPLES(data.sample(0), QwtIntervalSample());
    QCOMPARE(data.valueLimits(), QwtInterval(0.0, 0.0));
    QCOMPARE(data.interval(), QwtInterval(-65536.0 * 65536.0, 65536.0));
}

void tst_ZEMHistogramData::barsStandInsetAndShifted()
{
    ZEMHistogramData data;
    data.setWindowSize(4);
    data.setNrWindows(1);
    data.setCenterValue(0.125);
    data.setShiftValue(0.5);
    data.setBorderFlags(QwtInterval::ExcludeBorders);
    const double values[] = {7.0, -8.0};
    data.setValues(1.0, 1, 2, values);
    COMPARE_SAMPLES(data.sample(1), bar(7.0, 1.625, 2.375, QwtInterval::ExcludeBorders));
    COMPARE_SAMPLES(data.sample(2), bar(-8.0, 2.625, 3.375, QwtInterval::ExcludeBorders));
    COMPARE_SAMPLES(data.sample(3), QwtIntervalSample());
}

void tst_ZEMHistogramData::settingsApplyToLaterSamplesOnly()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(1);
    const double value = 3.0;
    data.setWindowValues(0, 0, 1, &value, false);
    data.setCenterValue(0.25);
    data.setShiftValue(1.0);
    data.setBorderFlags(QwtInterval::IncludeBorders);
    data.setWindowValues(0, 1, 1, &value, false);
    COMPARE_SAMPLES(data.sample(0), bar(3.0, 0.0, 1.0, QwtInterval::ExcludeMaximum));
    COMPARE_SAMPLES(data.sample(1), bar(3.0, 2.25, 2.75, QwtInterval::IncludeBorders));
}

void tst_ZEMHistogramData::noValuesWriteNothing()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(1);
    data.setValues(0.0, 0, 0, nullptr);
    COMPARE_SAMPLES(data.sample(0), QwtIntervalSample());
}

void tst_ZEMHistogramData::olderWindowsHaveNegativeX()
{
    ZEMHistogramData data;
    data.setWindowSize(24);
    data.setNrWindows(3);
    const double value = 1.0;
    data.setWindowValues(0, 5, 1, &value, false);
    data.setWindowValues(2, 23, 1, &value, true);
    look(data, -48.0);
    COMPARE_SAMPLES(data.sample(5), bar(1.0, -43.0, -42.0));
    look(data, 0.0);
    COMPARE_SAMPLES(data.sample(23), bar(1.0, 23.0, 24.0));
}

void tst_ZEMHistogramData::mergedRunsTakeTheFirstSlot()
{
    ZEMHistogramData data;
    data.setWindowSize(4);
    data.setNrWindows(1);
    data.setCenterValue(0.1);
    const double values[] = {3.0, 3.0, 3.0, 5.0};
    data.mergeValues(0.0, 0, 4, values);
    COMPARE_SAMPLES(data.sample(0), bar(3.0, 0.1, 3.0 - (0.1 + 0.1) + 0.1));
    QCOMPARE(data.sample(0).interval.maxValue(), 2.9);
    COMPARE_SAMPLES(data.sample(1), QwtIntervalSample());
    COMPARE_SAMPLES(data.sample(2), QwtIntervalSample());
    QCOMPARE(data.sample(3).value, 5.0);
    QCOMPARE(data.sample(3).interval.minValue(), 3.1);
    QCOMPARE(data.sample(3).interval.maxValue(), 3.9);
}

void tst_ZEMHistogramData::equalValuesMergeIntoOneBar()
{
    ZEMHistogramData data;
    data.setWindowSize(24);
    data.setNrWindows(2);
    const std::vector<double> values(24, 2.5);
    data.setWindowValues(0, 0, 24, values.data(), true);
    look(data, -24.0);
    COMPARE_SAMPLES(data.sample(0), bar(2.5, -24.0, 0.0));
    for (size_t i = 1; i < 24; ++i) {
        COMPARE_SAMPLES(data.sample(i), QwtIntervalSample());
    }
}

void tst_ZEMHistogramData::notANumberIsARunOfItsOwn()
{
    ZEMHistogramData data;
    data.setWindowSize(4);
    data.setNrWindows(1);
    const double values[] = {1.0, notANumber, notANumber, 1.0};
    data.setWindowValues(0, 0, 4, values, true);
    for (int i = 0; i < 4; ++i) {
        COMPARE_SAMPLES(data.sample(size_t(i)), bar(values[i], i, i + 1.0));
    }
}

void tst_ZEMHistogramData::mergingEmptiesWhatWasThere()
{
    ZEMHistogramData data;
    data.setWindowSize(4);
    data.setNrWindows(1);
    data.setBorderFlags(QwtInterval::ExcludeMinimum);
    const double before[] = {1.0, 2.0, 3.0, 4.0};
    data.setWindowValues(0, 0, 4, before, false);
    const double after[] = {9.0, 9.0};
    data.setWindowValues(0, 1, 2, after, true);
    QCOMPARE(data.sample(0).value, 1.0);
    COMPARE_SAMPLES(data.sample(1), bar(9.0, 1.0, 3.0, QwtInterval::ExcludeMinimum));
    COMPARE_SAMPLES(data.sample(2), QwtIntervalSample());
    QCOMPARE(data.sample(3).value, 4.0);
}

void tst_ZEMHistogramData::mergingNoValuesStillWritesTheFirst()
{
    ZEMHistogramData data;
    data.setWindowSize(3);
    data.setNrWindows(1);
    data.setCenterValue(0.25);
    const double value = 6.0;
    data.mergeValues(1.0, 1, 0, &value);
    COMPARE_SAMPLES(data.sample(1), bar(6.0, 1.25, 1.75));
    COMPARE_SAMPLES(data.sample(2), QwtIntervalSample());

    look(data, 2.0);
    COMPARE_SAMPLES(data.sample(0), bar(6.0, 1.25, 1.75));
}

void tst_ZEMHistogramData::runSearch_data()
{
    QTest::addColumn<uint>("start");
    QTest::addColumn<uint>("count");
    QTest::addColumn<QwtInterval>("expected");

    QTest::newRow("run at the start") << 0u << 6u << QwtInterval(0, 3);
    QTest::newRow("inside a run") << 1u << 6u << QwtInterval(1, 3);
    QTest::newRow("single value") << 3u << 6u << QwtInterval(3, 4);
    QTest::newRow("to the end") << 4u << 6u << QwtInterval(4, 6);
    QTest::newRow("count ends the run") << 0u << 2u << QwtInterval(0, 2);
    QTest::newRow("nothing left") << 4u << 4u << QwtInterval(4, 5);
}

void tst_ZEMHistogramData::runSearch()
{
    QFETCH(uint, start);
    QFETCH(uint, count);
    QFETCH(QwtInterval, expected);

    const double values[] = {3.0, 3.0, 3.0, 5.0, 7.0, 7.0};
    ZEMHistogramData data;
    data.setBorderFlags(QwtInterval::ExcludeBorders);
    QCOMPARE(data.findInterval(start, count, values), expected);
}

void tst_ZEMHistogramData::invalidatedValuesKeepTheirFlags()
{
    ZEMHistogramData data;
    data.setWindowSize(3);
    data.setNrWindows(2);
    const double values[] = {-1.0, 4.0, -1.0};
    data.setWindowValues(0, 0, 3, values, false);
    data.setWindowValues(1, 0, 3, values, false);
    data.invalidateValues(1, 0, 2, -1.0);

    COMPARE_SAMPLES(data.sample(1), bar(4.0, 1.0, 2.0));
    COMPARE_SAMPLES(data.sample(2), bar(-1.0, 2.0, 3.0));
    look(data, -1.0);
    COMPARE_SAMPLES(data.sample(0), bar(-1.0, -1.0, 0.0));
    COMPARE_SAMPLES(data.sample(1), bar(0.0, 0.0, -1.0, QwtInterval::ExcludeMaximum));
}

void tst_ZEMHistogramData::invalidatingAnAbsentValueChangesNothing()
{
    ZEMHistogramData data;
    data.setWindowSize(3);
    data.setNrWindows(1);
    const double values[] = {1.0, notANumber, 3.0};
    data.setWindowValues(0, 0, 3, values, false);
    data.invalidateValues(0, 0, 3, 2.0);
    data.invalidateValues(0, 0, 3, notANumber);
    for (int i = 0; i < 3; ++i) {
        COMPARE_SAMPLES(data.sample(size_t(i)), bar(values[i], i, i + 1.0));
    }
}

void tst_ZEMHistogramData::invalidatingNoSlotsChangesNothing()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(1);
    const double values[] = {1.0, 1.0};
    data.setWindowValues(0, 0, 2, values, false);
    data.invalidateValues(0, 1, 0, 1.0);
    COMPARE_SAMPLES(data.sample(0), bar(1.0, 0.0, 1.0));
    COMPARE_SAMPLES(data.sample(1), bar(1.0, 1.0, 2.0));
}

void tst_ZEMHistogramData::writesOutsideOfTheArrayAreSkipped()
{
    ZEMHistogramData data;
    data.setWindowSize(2);
    data.setNrWindows(1);
    const double values[] = {1.0, 2.0, 3.0};
    data.setValues(1.0, 1, 3, values);
    data.mergeValues(2.0, 2, 3, values);
    data.mergeValues(2.0, 2, 0, values);
    data.setValues(0.0, 4294967295u, 3, values);
    data.invalidateValues(0, 1, 5, 7.0);
    data.invalidateValues(9, 0, 5, 1.0);
    COMPARE_SAMPLES(data.sample(0), QwtIntervalSample());
    COMPARE_SAMPLES(data.sample(1), bar(1.0, 1.0, 2.0));
    COMPARE_SAMPLES(data.sample(2), QwtIntervalSample());
}

void tst_ZEMHistogramData::valueLimits_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<uint>("emptySlots");
    QTest::addColumn<QwtInterval>("expected");

    QTest::newRow("one") << QVector<double> {4.0} << 0u << QwtInterval(4.0, 4.0);
    QTest::newRow("one empty") << QVector<double> {} << 1u << QwtInterval(0.0, 0.0);
    QTest::newRow("two") << QVector<double> {4.0, 3.0} << 0u << QwtInterval(3.0, 4.0);
    QTest::newRow("full") << QVector<double> {4.0, 9.0, 3.0} << 0u << QwtInterval(3.0, 9.0);
    QTest::newRow("empty counts as 0") << QVector<double> {4.0, 9.0} << 1u << QwtInterval(0.0, 9.0);
    QTest::newRow("negative") << QVector<double> {-4.0, -9.0} << 1u << QwtInterval(-9.0, 0.0);
    QTest::newRow("largest first") << QVector<double> {9.0, 2.0} << 0u << QwtInterval(2.0, 9.0);
    QTest::newRow("gap in the data")
        << QVector<double> {notANumber, 2.0, notANumber, 1.0} << 0u << QwtInterval(1.0, 2.0);
}

void tst_ZEMHistogramData::valueLimits()
{
    QFETCH(QVector<double>, values);
    QFETCH(uint, emptySlots);
    QFETCH(QwtInterval, expected);

    ZEMHistogramData data;
    data.setWindowSize(uint(values.size()) + emptySlots);
    data.setNrWindows(1);
    data.setValues(0.0, 0, uint(values.size()), values.constData());
    QCOMPARE(data.valueLimits(), expected);
}

void tst_ZEMHistogramData::limitsWithoutSlots()
{
    QCOMPARE(ZEMHistogramData().valueLimits(), QwtInterval(0.0, 0.0));
}

void tst_ZEMHistogramData::dataIsDeletedWithItsParent()
{
    auto *parent = new QObject;
    const QPointer<ZEMHistogramData> data = new ZEMHistogramData(parent);
    delete parent;
    QVERIFY(data.isNull());
}

QTEST_GUILESS_MAIN(tst_ZEMHistogramData)
#include "tst_zemhistogramdata.moc"

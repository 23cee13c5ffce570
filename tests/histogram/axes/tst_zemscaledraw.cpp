// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMDayScaleDraw>
#include <ZEMKWhScaleDraw>
#include <ZEMMonthKWhScaleDraw>
#include <ZEMMonthScaleDraw>
#include <ZEMNoScaleDraw>
#include <ZEMScaleDraw>
#include <ZEMWeekScaleDraw>

#include <QFont>
#include <QLocale>
#include <QTest>

#include <qwt_text.h>

#include <climits>
#include <functional>
#include <memory>

using MakeScale = std::function<QwtScaleDraw *()>;
Q_DECLARE_METATYPE(MakeScale)

namespace {

const QLocale dutch(QLocale::Dutch, QLocale::Netherlands);
const QLocale english(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);

/** Counts how often the text of a label is asked for; Qwt asks once for each that it keeps. */
template <class Scale>
class Counting : public Scale
{
public:
    using Scale::Scale;

    QwtText label(double value) const override
    {
        ++labels;
        return Scale::label(value);
    }

    /** The labels made while the width of the whole scale is looked up. */
    int labelsToMeasure()
    {
        labels = 0;
        this->maxLabelWidth(QFont());
        return labels;
    }

private:
    mutable int labels = 0;
};

QwtScaleDiv threeTicks()
{
    return QwtScaleDiv(0.0, 3.0, {}, {}, {0.5, 1.5, 2.5});
}

QString nextWeekOf(const QDate &date, int weeks, const QLocale &locale)
{
    return locale.toString(date.addDays(7 * weeks), QStringLiteral("d MMM"));
}

} // namespace

class tst_ZEMScaleDraw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void components_data();
    void components();
    void ticksAndLabels_data();
    void ticksAndLabels();
    void spacing_data();
    void spacing();
    void plainScaleKeepsLabelsOfItsBase();
    void noScaleTakesNoRoom();

    void digits();
    void newDigitsDropKeptTexts();
    void energyLabels_data();
    void energyLabels();
    void energyOfMonthHasSameLabels();

    void hours_data();
    void hours();
    void weekDays_data();
    void weekDays();
    void weekDaysRunOnAcrossZero();
    void weekDaysFollowLocale();

    void weeks_data();
    void weeks();
    void nullTimestampGivesEmptyLabels();
    void anyTimestampDropsKeptTexts();
    void timeOfDayDoesNotMatter();
    void numbersPastAnyIntAreHarmless_data();
    void numbersPastAnyIntAreHarmless();
};

void tst_ZEMScaleDraw::cleanup()
{
    QLocale::setDefault(QLocale::c());
}

void tst_ZEMScaleDraw::components_data()
{
    QTest::addColumn<MakeScale>("make");
    QTest::addColumn<bool>("backbone");
    QTest::addColumn<bool>("ticks");
    QTest::addColumn<bool>("labels");
    QTest::newRow("none") << MakeScale([] { return new ZEMNoScaleDraw; }) << false << false
                          << false;
    QTest::newRow("plain") << MakeScale([] { return new ZEMScaleDraw; }) << true << true << true;
    QTest::newRow("energy") << MakeScale([] { return new ZEMKWhScaleDraw(999.0); }) << false << true
                            << true;
    QTest::newRow("energy of month")
        << MakeScale([] { return new ZEMMonthKWhScaleDraw(999.0); }) << false << true << true;
    QTest::newRow("day") << MakeScale([] { return new ZEMDayScaleDraw; }) << false << true << true;
    QTest::newRow("week") << MakeScale([] { return new ZEMWeekScaleDraw(0.5); }) << false << true
                          << true;
    QTest::newRow("month") << MakeScale([] { return new ZEMMonthScaleDraw(0.5); }) << false << true
                           << true;
}

void tst_ZEMScaleDraw::components()
{
    QFETCH(MakeScale, make);
    const std::unique_ptr<QwtScaleDraw> scale(make());
    QTEST(scale->hasComponent(QwtAbstractScaleDraw::Backbone), "backbone");
    QTEST(scale->hasComponent(QwtAbstractScaleDraw::Ticks), "ticks");
    QTEST(scale->hasComponent(QwtAbstractScaleDraw::Labels), "labels");
}

void tst_ZEMScaleDraw::ticksAndLabels_data()
{
    QTest::addColumn<MakeScale>("make");
    QTest::addColumn<double>("major");
    QTest::addColumn<double>("medium");
    QTest::addColumn<double>("minor");
    QTest::addColumn<Qt::Alignment>("alignment");
    const QwtScaleDraw qwt;
    const double qwtMajor = qwt.tickLength(QwtScaleDiv::MajorTick);
    const double qwtMedium = qwt.tickLength(QwtScaleDiv::MediumTick);
    const double qwtMinor = qwt.tickLength(QwtScaleDiv::MinorTick);
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    const Qt::Alignment middle = Qt::AlignHCenter | Qt::AlignVCenter;
    QTest::newRow("none") << MakeScale([] { return new ZEMNoScaleDraw; }) << qwtMajor << qwtMedium
                          << qwtMinor << qwt.labelAlignment();
    QTest::newRow("plain") << MakeScale([] { return new ZEMScaleDraw; }) << qwtMajor << qwtMedium
                           << qwtMinor << qwt.labelAlignment();
    QTest::newRow("energy") << MakeScale([] { return new ZEMKWhScaleDraw(999.0); }) << 4.0 << 4.0
                            << 4.0 << left;
    QTest::newRow("energy of month")
        << MakeScale([] { return new ZEMMonthKWhScaleDraw(999.0); }) << 4.0 << 4.0 << 0.0 << left;
    QTest::newRow("day") << MakeScale([] { return new ZEMDayScaleDraw; }) << 40.0 << 18.0 << 18.0
                         << middle;
    QTest::newRow("week") << MakeScale([] { return new ZEMWeekScaleDraw(0.5); }) << 0.0 << 40.0
                          << 0.0 << middle;
    QTest::newRow("month") << MakeScale([] { return new ZEMMonthScaleDraw(0.5); }) << 0.0 << 40.0
                           << 0.0 << middle;
}

void tst_ZEMScaleDraw::ticksAndLabels()
{
    QFETCH(MakeScale, make);
    const std::unique_ptr<QwtScaleDraw> scale(make());
    QTEST(scale->tickLength(QwtScaleDiv::MajorTick), "major");
    QTEST(scale->tickLength(QwtScaleDiv::MediumTick), "medium");
    QTEST(scale->tickLength(QwtScaleDiv::MinorTick), "minor");
    QTEST(scale->labelAlignment(), "alignment");
}

void tst_ZEMScaleDraw::spacing_data()
{
    QTest::addColumn<MakeScale>("make");
    QTest::addColumn<double>("expected");
    const double qwt = QwtScaleDraw().spacing();
    QTest::newRow("none") << MakeScale([] { return new ZEMNoScaleDraw; }) << qwt;
    QTest::newRow("plain") << MakeScale([] { return new ZEMScaleDraw; }) << qwt;
    QTest::newRow("energy") << MakeScale([] { return new ZEMKWhScaleDraw(1.0); }) << 8.0;
    QTest::newRow("energy of month")
        << MakeScale([] { return new ZEMMonthKWhScaleDraw(1.0); }) << 8.0;
    QTest::newRow("day") << MakeScale([] { return new ZEMDayScaleDraw; }) << 10.0;
    QTest::newRow("week") << MakeScale([] { return new ZEMWeekScaleDraw(0.5); }) << 15.0;
    QTest::newRow("month") << MakeScale([] { return new ZEMMonthScaleDraw(0.5); }) << 15.0;
}

void tst_ZEMScaleDraw::spacing()
{
    QFETCH(MakeScale, make);
    const std::unique_ptr<QwtScaleDraw> scale(make());
    QTEST(scale->spacing(), "expected");
}

void tst_ZEMScaleDraw::plainScaleKeepsLabelsOfItsBase()
{
    ZEMScaleDraw scale;
    scale.setDigits(0);
    QCOMPARE(scale.label(2.625).text(), QwtScaleDraw().label(2.625).text());
}

void tst_ZEMScaleDraw::noScaleTakesNoRoom()
{
    QCOMPARE(ZEMNoScaleDraw().extent(QFont()), 0.0);
}

void tst_ZEMScaleDraw::digits()
{
    ZEMScaleDraw plain;
    QCOMPARE(plain.getDigits(), 1);
    plain.setDigits(3);
    QCOMPARE(plain.getDigits(), 3);
    QCOMPARE(ZEMKWhScaleDraw(999.0).getDigits(), 1);
    QCOMPARE(ZEMMonthKWhScaleDraw(7.0).getDigits(), 1);
}

void tst_ZEMScaleDraw::newDigitsDropKeptTexts()
{
    Counting<ZEMKWhScaleDraw> scale(999.0);
    scale.setScaleDiv(threeTicks());
    QCOMPARE(scale.labelsToMeasure(), 3);
    QCOMPARE(scale.labelsToMeasure(), 0);
    scale.setDigits(1);
    QCOMPARE(scale.labelsToMeasure(), 0);
    scale.setDigits(2);
    QCOMPARE(scale.labelsToMeasure(), 3);
    scale.setDigits(2);
    QCOMPARE(scale.labelsToMeasure(), 0);
}

void tst_ZEMScaleDraw::energyLabels_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<int>("digits");
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("whole") << dutch << 0 << 2.6 << "3";
    QTest::newRow("one decimal, Dutch") << dutch << 1 << 2.6 << "2,6";
    QTest::newRow("one decimal, English") << english << 1 << 2.6 << "2.6";
    QTest::newRow("one decimal, German") << german << 1 << 2.6 << "2,6";
    QTest::newRow("decimals are filled up") << english << 3 << 0.5 << "0.500";
    QTest::newRow("groups, Dutch") << dutch << 1 << 12345.67 << "12.345,7";
    QTest::newRow("groups, English") << english << 1 << 12345.67 << "12,345.7";
    QTest::newRow("no exponent") << english << 0 << 1.0e9 << "1,000,000,000";
    QTest::newRow("negative") << english << 1 << -2.25 << english.toString(-2.25, 'f', 1);
}

void tst_ZEMScaleDraw::energyLabels()
{
    QFETCH(QLocale, locale);
    QFETCH(int, digits);
    QFETCH(double, value);
    QLocale::setDefault(locale);
    ZEMKWhScaleDraw scale(999.0);
    scale.setDigits(digits);
    QTEST(scale.label(value).text(), "expected");
}

void tst_ZEMScaleDraw::energyOfMonthHasSameLabels()
{
    QLocale::setDefault(dutch);
    ZEMMonthKWhScaleDraw scale(999.0);
    QCOMPARE(scale.label(2.6).text(), QStringLiteral("2,6"));
    scale.setDigits(0);
    QCOMPARE(scale.label(2.6).text(), QStringLiteral("3"));
}

void tst_ZEMScaleDraw::hours_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("expected");
    QTest::newRow("midnight") << 0.0 << "00:00";
    QTest::newRow("morning") << 7.0 << "07:00";
    QTest::newRow("rounded down") << 6.4 << "06:00";
    QTest::newRow("rounded up") << 6.5 << "07:00";
    QTest::newRow("last hour") << 23.0 << "23:00";
    QTest::newRow("next midnight") << 24.0 << "00:00";
    QTest::newRow("rounded to midnight") << 23.6 << "00:00";
    QTest::newRow("days later") << 24.0 * 9 + 13.0 << "13:00";
    QTest::newRow("the day before") << -1.0 << "23:00";
    QTest::newRow("a day before") << -24.0 << "00:00";
    QTest::newRow("more than a day before") << -30.0 << "18:00";
}

void tst_ZEMScaleDraw::hours()
{
    QFETCH(double, value);
    QTEST(ZEMDayScaleDraw().label(value).text(), "expected");
}

void tst_ZEMScaleDraw::weekDays_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("day");
    QTest::newRow("first") << 0.5 << 1;
    QTest::newRow("second") << 1.5 << 2;
    QTest::newRow("last") << 6.5 << 7;
    QTest::newRow("first of next week") << 7.5 << 1;
    QTest::newRow("the day before") << -0.5 << 7;
    QTest::newRow("two days before") << -1.5 << 6;
    QTest::newRow("a week before") << -6.5 << 1;
    QTest::newRow("before that") << -7.5 << 7;
    QTest::newRow("two weeks before") << -13.5 << 1;
    QTest::newRow("near to the third") << 2.1 << 3;
}

void tst_ZEMScaleDraw::weekDays()
{
    QFETCH(double, value);
    QFETCH(int, day);
    QLocale::setDefault(dutch);
    QCOMPARE(ZEMWeekScaleDraw(0.5).label(value).text(), dutch.dayName(day, QLocale::ShortFormat));
    QCOMPARE(ZEMWeekScaleDraw(0.0).label(value - 0.5).text(),
             dutch.dayName(day, QLocale::ShortFormat));
}

void tst_ZEMScaleDraw::weekDaysRunOnAcrossZero()
{
    QLocale::setDefault(english);
    const QDate monday(2018, 3, 5);
    const ZEMWeekScaleDraw scale(0.5);
    for (int day = -500; day <= 500; ++day) {
        QCOMPARE(scale.label(day + 0.5).text(),
                 english.toString(monday.addDays(day), QStringLiteral("ddd")));
    }
}

void tst_ZEMScaleDraw::weekDaysFollowLocale()
{
    const ZEMWeekScaleDraw scale(0.5);
    QLocale::setDefault(english);
    QCOMPARE(scale.label(0.5).text(), QStringLiteral("Mon"));
    QLocale::setDefault(dutch);
    QCOMPARE(scale.label(0.5).text(), dutch.dayName(Qt::Monday, QLocale::ShortFormat));
    QLocale::setDefault(german);
    QCOMPARE(scale.label(0.5).text(), german.dayName(Qt::Monday, QLocale::ShortFormat));
    QVERIFY(scale.label(0.5).text() != QStringLiteral("Mon"));
}

void tst_ZEMScaleDraw::weeks_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("week");
    for (const QLocale &locale : {dutch, english, german}) {
        const QByteArray name = locale.name().toLatin1();
        QTest::newRow(name + ", start") << locale << 0.5 << 0;
        QTest::newRow(name + ", next") << locale << 1.5 << 1;
        QTest::newRow(name + ", before") << locale << -0.5 << -1;
        QTest::newRow(name + ", a year later") << locale << 52.5 << 52;
        QTest::newRow(name + ", near to the third") << locale << 2.1 << 2;
    }
}

void tst_ZEMScaleDraw::weeks()
{
    QFETCH(QLocale, locale);
    QFETCH(double, value);
    QFETCH(int, week);
    QLocale::setDefault(locale);
    const QDate start(2018, 2, 26);
    ZEMMonthScaleDraw scale(0.5);
    scale.setStartTimestamp(QDateTime(start, QTime(0, 0)));
    QCOMPARE(scale.label(value).text(), nextWeekOf(start, week, locale));
    QVERIFY(!scale.label(value).text().isEmpty());
}

void tst_ZEMScaleDraw::nullTimestampGivesEmptyLabels()
{
    ZEMMonthScaleDraw scale(0.5);
    for (const double value : {-1.5, 0.5, 1.5}) {
        QCOMPARE(scale.label(value).text(), QString());
    }
    scale.setStartTimestamp(QDateTime(QDate(2018, 3, 5), QTime(12, 0)));
    QVERIFY(!scale.label(0.5).text().isEmpty());
    scale.setStartTimestamp(QDateTime());
    QCOMPARE(scale.label(0.5).text(), QString());
}

void tst_ZEMScaleDraw::anyTimestampDropsKeptTexts()
{
    const QDateTime start(QDate(2018, 3, 5), QTime(0, 0));
    Counting<ZEMMonthScaleDraw> scale(0.5);
    scale.setScaleDiv(threeTicks());
    scale.setStartTimestamp(start);
    QCOMPARE(scale.labelsToMeasure(), 3);
    QCOMPARE(scale.labelsToMeasure(), 0);
    scale.setStartTimestamp(start);
    QCOMPARE(scale.labelsToMeasure(), 3);
    scale.setStartTimestamp(start.addDays(1));
    QCOMPARE(scale.labelsToMeasure(), 3);
}

void tst_ZEMScaleDraw::timeOfDayDoesNotMatter()
{
    // Both ends of a day, over a year with its short and its long day.
    QLocale::setDefault(english);
    const QDate start(2018, 1, 1);
    for (const QTime &time : {QTime(0, 0), QTime(2, 30), QTime(23, 59, 59)}) {
        ZEMMonthScaleDraw scale(0.5);
        scale.setStartTimestamp(QDateTime(start, time));
        for (int week = -52; week <= 52; ++week) {
            QCOMPARE(scale.label(week + 0.5).text(), nextWeekOf(start, week, english));
        }
    }
}

void tst_ZEMScaleDraw::numbersPastAnyIntAreHarmless_data()
{
    QTest::addColumn<double>("value");
    QTest::newRow("far after") << 1.0e300;
    QTest::newRow("far before") << -1.0e300;
    QTest::newRow("smallest int") << double(INT_MIN);
    QTest::newRow("infinite") << qInf();
    QTest::newRow("no number") << qQNaN();
}

void tst_ZEMScaleDraw::numbersPastAnyIntAreHarmless()
{
    QFETCH(double, value);
    QCOMPARE(ZEMDayScaleDraw().label(value).text().size(), 5);
    QVERIFY(!ZEMWeekScaleDraw(0.5).label(value).text().isEmpty());
    ZEMMonthScaleDraw month(0.5);
    month.setStartTimestamp(QDateTime(QDate(2018, 3, 5), QTime(0, 0)));
    QVERIFY(month.label(value).text().size() < 20);
}

QTEST_MAIN(tst_ZEMScaleDraw)
#include "tst_zemscaledraw.moc"

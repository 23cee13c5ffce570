// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../../dashboard/dashboardtest.h"
#include "../../widgets/widgettest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMHistogramButton>
#include <ZEMMiniDayHistogram>
#include <ZEMSmartDayHistogram>
#include <ZEMWidgetLabel>

#include <QPointer>
#include <QSignalSpy>
#include <QTest>
#include <qwt_plot_canvas.h>

using namespace DashboardTest;
using namespace WidgetTest;

namespace {

void dragAcross(const ZEMHistogram *chart)
{
    auto *canvas = chart->findChild<QwtPlotCanvas *>();
    const QPoint from = canvas->visibleRegion().boundingRect().center();
    ZemTest::press(canvas, from);
    ZemTest::moveTo(canvas, from + QPoint(20, 0));
    ZemTest::release(canvas, from + QPoint(20, 0));
}

} // namespace

class tst_ZEMHistogramButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void form();
    void pictures();
    void windowTitleIsTranslated();
    void declaresItsOwn();
    void titleReachesTheLabel();
    void chartStandsOnTheButton();
    void secondChartStandsBesideTheFirst();
    void clickIsPassedOn();
    void clickOnTheChartIsOneOnTheButton();
    void dragMovesAChartAndClicksUnlessItEndsThere_data();
    void dragMovesAChartAndClicksUnlessItEndsThere();
    void clickOnTheTitleIsNone();
};

void tst_ZEMHistogramButton::newButton()
{
    ZEMHistogramButton button;
    QCOMPARE(button.objectName(), QStringLiteral("ZEMHistogramButton"));
    QCOMPARE(button.size(), QSize(322, 175));
    QCOMPARE(policyText(button.sizePolicy()), QStringLiteral("Fixed/Fixed"));
    QCOMPARE(button.getTitle(), QStringLiteral("Title"));

    QWidget host;
    QCOMPARE((new ZEMHistogramButton(&host))->parentWidget(), &host);
}

void tst_ZEMHistogramButton::form()
{
    ZEMHistogramButton button;
    QCOMPARE(layoutLines(button.layout()),
             (QStringList {"QVBoxLayout verticalLayout 2", " ZEMWidgetLabel title",
                           " ZEMButton button"}));
    QCOMPARE(button.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(fontText(part<QWidget>(button, "title")->font()), QStringLiteral("Cabin 12"));

    auto *chartLayout = qobject_cast<QHBoxLayout *>(part<QWidget>(button, "button")->layout());
    QVERIFY(chartLayout);
    QCOMPARE(chartLayout->spacing(), 0);
    QCOMPARE(chartLayout->contentsMargins(), QMargins(10, 10, 10, 10));
}

void tst_ZEMHistogramButton::pictures()
{
    ZEMHistogramButton button;
    auto *inner = part<ZEMButton>(button, "button");
    QCOMPARE(imageOf(inner->getBackground()), picture("main/buttons/btn_rect_med.png"));
    QCOMPARE(imageOf(inner->getBackgroundOff()), picture("main/buttons/btn_rect_med_disabled.png"));
}

void tst_ZEMHistogramButton::windowTitleIsTranslated()
{
    const ContextTranslator translator;
    ZEMHistogramButton button;
    QCOMPARE(button.windowTitle(), QStringLiteral("ZEMHistogramButton/Form"));
}

void tst_ZEMHistogramButton::declaresItsOwn()
{
    const QMetaObject &metaObject = ZEMHistogramButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList {QStringLiteral("title:QString")});
    QCOMPARE(ownMethodCount(metaObject), 1);
    QVERIFY(metaObject.indexOfSignal("clicked()") >= 0);
}

void tst_ZEMHistogramButton::titleReachesTheLabel()
{
    ZEMHistogramButton button;
    QVERIFY(button.setProperty("title", QStringLiteral("gas")));
    QCOMPARE(part<ZEMWidgetLabel>(button, "title")->getTitle(), QStringLiteral("gas"));
    part<ZEMWidgetLabel>(button, "title")->setTitle(QStringLiteral("water"));
    QCOMPARE(button.getTitle(), QStringLiteral("water"));
}

void tst_ZEMHistogramButton::chartStandsOnTheButton()
{
    QPointer<ZEMMiniDayHistogram> chart = new ZEMMiniDayHistogram;
    chart->init();
    {
        ZEMHistogramButton button;
        button.setHistogram(chart);
        auto *inner = part<ZEMButton>(button, "button");
        QCOMPARE(chart->parentWidget(), inner);
        const Stage stage(&button);
        QVERIFY(stage.isReady());
        QCOMPARE(chart->geometry(), inner->rect().adjusted(10, 10, -10, -10));
        QCOMPARE(inner->layout()->itemAt(0)->alignment(), Qt::Alignment());
    }
    QVERIFY(!chart);
}

void tst_ZEMHistogramButton::secondChartStandsBesideTheFirst()
{
    ZEMHistogramButton button;
    auto *first = new ZEMMiniDayHistogram;
    auto *second = new ZEMMiniDayHistogram;
    button.setHistogram(first);
    button.setHistogram(second);
    auto *layout = qobject_cast<QHBoxLayout *>(part<QWidget>(button, "button")->layout());
    QCOMPARE(layout->count(), 2);
    QCOMPARE(layout->itemAt(0)->widget(), first);
    QCOMPARE(layout->itemAt(1)->widget(), second);
    QCOMPARE(layout->stretch(1), 0);
}

void tst_ZEMHistogramButton::clickIsPassedOn()
{
    ZEMHistogramButton button;
    QSignalSpy clicked(&button, &ZEMHistogramButton::clicked);
    part<ZEMButton>(button, "button")->click();
    QCOMPARE(clicked.count(), 1);
}

void tst_ZEMHistogramButton::clickOnTheChartIsOneOnTheButton()
{
    ZEMHistogramButton button;
    auto *chart = new ZEMMiniDayHistogram;
    chart->init();
    button.setHistogram(chart);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(&button, &ZEMHistogramButton::clicked);
    auto *canvas = chart->findChild<QwtPlotCanvas *>();
    ZemTest::press(canvas, canvas->rect().center());
    ZemTest::release(canvas, canvas->rect().center());
    QCOMPARE(clicked.count(), 1);
}

void tst_ZEMHistogramButton::dragMovesAChartAndClicksUnlessItEndsThere_data()
{
    QTest::addColumn<bool>("endsAtTheChart");
    QTest::addColumn<int>("clicks");
    QTest::newRow("touches reach the button") << false << 1;
    QTest::newRow("touches end at the chart") << true << 0;
}

void tst_ZEMHistogramButton::dragMovesAChartAndClicksUnlessItEndsThere()
{
    QFETCH(bool, endsAtTheChart);
    QFETCH(int, clicks);
    ZEMHistogramButton button;
    auto *chart = new ZEMSmartDayHistogram;
    chart->init();
    chart->setScalePeriod(24.0);
    if (endsAtTheChart) {
        chart->setAttribute(Qt::WA_NoMousePropagation);
    }
    button.setHistogram(chart);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(&button, &ZEMHistogramButton::clicked);
    QSignalSpy moved(chart, QOverload<ZEMHistogram *>::of(&ZEMHistogram::changed));
    dragAcross(chart);
    QVERIFY(moved.count() > 0);
    QCOMPARE(clicked.count(), clicks);
}

void tst_ZEMHistogramButton::clickOnTheTitleIsNone()
{
    ZEMHistogramButton button;
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(&button, &ZEMHistogramButton::clicked);
    ZemTest::press(&button, QPoint(20, 5));
    ZemTest::release(&button, QPoint(20, 5));
    QCOMPARE(clicked.count(), 0);
}

QTEST_MAIN(tst_ZEMHistogramButton)
#include "tst_zemhistogrambutton.moc"

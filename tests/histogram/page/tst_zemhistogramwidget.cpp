// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../../dashboard/messagelog.h"
#include "../../widgets/widgettest.h"
#include "chartpagefixture.h"

#include <ZEMEnergyIcon>

#include <QSignalSpy>
#include <QTest>

#include <memory>

using namespace ChartPageTest;
using namespace DashboardTest;
using namespace WidgetTest;

class tst_ZEMHistogramWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newPage();
    void form();
    void periodButtons();
    void pages();
    void palette();
    void textsAreTranslated();
    void declaresItsOwn();
    void buttonTypesAreNumbered();

    void histogramIndex_data();
    void histogramIndex();
    void traceOfANewPage();

    void showTabs();
    void hiddenPeriodIsSelectable();

    void periodClicks_data();
    void periodClicks();
    void energyClicks_data();
    void energyClicks();
    void unknownEnergyChangesTheIconOnly();
    void selectTabGoesTwoSteps();
    void selectTabStoresTheEnergyOnly();
    void selectTabOfAnUnknownPeriod();
    void selectTabOfAnUnknownEnergy();

    void hasPageDoesNothing();

private:
    std::unique_ptr<MessageLog> log; // the page traces much
};

void tst_ZEMHistogramWidget::init()
{
    log = std::make_unique<MessageLog>();
}

void tst_ZEMHistogramWidget::cleanup()
{
    log.reset();
}

void tst_ZEMHistogramWidget::newPage()
{
    Page page;
    QCOMPARE(page.objectName(), QStringLiteral("ZEMHistogramWidget"));
    QCOMPARE(page.size(), QSize(765, 400));
    QCOMPARE(title(page), QStringLiteral("TextLabel"));
    QCOMPARE(stack(page)->currentIndex(), 0);
    QCOMPARE(checkedButtons(page),
             (QStringList {QStringLiteral("btnDay"), QStringLiteral("tabElectricity")}));
    QCOMPARE(part<ZEMEnergyIcon>(page, "energyIcon")->getEnergyType(), ZEMEnergyIcon::Electricity);

    QWidget host;
    QCOMPARE((new Page(&host))->parentWidget(), &host);
}

void tst_ZEMHistogramWidget::form()
{
    Page page;
    QCOMPARE(layoutLines(page.layout()),
             QStringLiteral("QGridLayout gridLayout 12\n"
                            " 0,0,1:QVBoxLayout verticalLayout_2 %1\n"
                            " 0,0,1: spacer 20x40 Minimum/Expanding\n"
                            " 0,0,1: spacer 20x40 Minimum/Expanding\n"
                            " 0,1,1:QVBoxLayout verticalLayout 0\n"
                            " 0,1,1: QHBoxLayout horizontalLayout_2 6\n"
                            " 0,1,1:  ZEMEnergyIcon energyIcon\n"
                            " 0,1,1:  ZEMTextLabel lblTitle\n"
                            " 0,1,1:  spacer 40x20 Expanding/Minimum\n"
                            " 0,1,1:  QHBoxLayout horizontalLayout 6\n"
                            " 0,1,1:   ZEMButton btnYear\n"
                            " 0,1,1:   ZEMButton btnMonth\n"
                            " 0,1,1:   ZEMButton btnWeek\n"
                            " 0,1,1:   ZEMButton btnDay\n"
                            " 0,1,1: QStackedWidget stackedWidget\n"
                            " 0,1,1: QHBoxLayout horizontalLayout_3 0\n"
                            " 0,1,1:  spacer 40x20 Expanding/Minimum\n"
                            " 0,1,1:  ZEMEnergyTabWidget btnEnergyTab\n"
                            " 0,2,1:QVBoxLayout verticalLayout_3 %1\n"
                            " 0,2,1: spacer 20x40 Minimum/Expanding\n"
                            " 0,2,1: spacer 20x40 Minimum/Expanding")
                 .arg(part<QLayout>(page, "verticalLayout_2")->spacing())
                 .split(QLatin1Char('\n')));
    auto *grid = qobject_cast<QGridLayout *>(page.layout());
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));

    auto *icon = part<ZEMEnergyIcon>(page, "energyIcon");
    QVERIFY(icon->getUseBigIcon());
    QCOMPARE(icon->minimumSize(), QSize(25, 25));
    auto *label = part<ZEMTextLabel>(page, "lblTitle");
    QCOMPARE(fontText(label->font()), QStringLiteral("Cabin 12"));
    QVERIFY(label->getShadow());
}

void tst_ZEMHistogramWidget::periodButtons()
{
    Page page;
    const QList<QPair<const char *, const char *>> texts {
        {"btnYear", "jaar"}, {"btnMonth", "maand"}, {"btnWeek", "week"}, {"btnDay", "dag"}};
    for (const auto &text : texts) {
        auto *each = button(page, text.first);
        QCOMPARE(each->text(), QLatin1String(text.second));
        QCOMPARE(each->minimumSize(), QSize(59, 38));
        QCOMPARE(each->maximumSize(), QSize(59, 38));
        QCOMPARE(fontText(each->font()), QStringLiteral("Cabin 11"));
        QVERIFY(each->isCheckable());
        QVERIFY(each->autoExclusive());
        QCOMPARE(imageOf(each->getBackground()), picture("main/tab_selected_bg.png"));
        QCOMPARE(imageOf(each->getBackgroundOff()), picture("main/tab_bg.png"));
    }
}

void tst_ZEMHistogramWidget::pages()
{
    Page page;
    QCOMPARE(stack(page)->count(), 20);
    for (int i = 0; i < 20; ++i) {
        auto *layout = qobject_cast<QGridLayout *>(stack(page)->widget(i)->layout());
        QVERIFY(layout);
        QCOMPARE(layout->horizontalSpacing(), 0);
        QCOMPARE(layout->verticalSpacing(), 0);
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), 0);
    }
}

void tst_ZEMHistogramWidget::palette()
{
    Page page;
    const QBrush brush = page.palette().brush(QPalette::Inactive, QPalette::ButtonText);
    QCOMPARE(brush.style(), Qt::SolidPattern);
    QCOMPARE(brush.color().rgb() & 0xffffff, 0xffffffU);
    QVERIFY(qAbs(brush.color().alpha() - 128) <= 1);
    const QWidget plain;
    QCOMPARE(page.palette().color(QPalette::Active, QPalette::ButtonText),
             plain.palette().color(QPalette::Active, QPalette::ButtonText));
}

void tst_ZEMHistogramWidget::textsAreTranslated()
{
    const ContextTranslator translator;
    Page page;
    QCOMPARE(page.windowTitle(), QStringLiteral("ZEMHistogramWidget/Form"));
    QCOMPARE(title(page), QStringLiteral("ZEMHistogramWidget/TextLabel"));
    QCOMPARE(button(page, "btnDay")->text(), QStringLiteral("ZEMHistogramWidget/dag"));
    QCOMPARE(button(page, "btnYear")->text(), QStringLiteral("ZEMHistogramWidget/jaar"));
}

void tst_ZEMHistogramWidget::declaresItsOwn()
{
    const QMetaObject &metaObject = Page::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList());
    QCOMPARE(ownMethodCount(metaObject), 1 + 2 + 9);
    QVERIFY(metaObject.indexOfSignal("sigBtnClicked(ZEMHistogramWidget::ButtonType)") >= 0);
    for (const char *slot : {"setTitle(QString)", "has_page(bool,bool)"}) {
        const int index = metaObject.indexOfSlot(slot);
        QVERIFY2(index >= 0, slot);
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Public);
    }
    for (const char *slot : {"btnYear_clicked()", "btnMonth_clicked()", "btnWeek_clicked()",
                             "btnDay_clicked()", "btnPrevPeriod_clicked()",
                             "btnNextPeriod_clicked()", "btnEnergyTypeclicked(ZEMEnergyIcon::Type)",
                             "histogramChanged(ZEMHistogram*)", "pageChanged(int)"}) {
        const int index = metaObject.indexOfSlot(slot);
        QVERIFY2(index >= 0, slot);
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Private);
    }
}

void tst_ZEMHistogramWidget::buttonTypesAreNumbered()
{
    const auto types = QMetaEnum::fromType<Page::ButtonType>();
    const QStringList names {"BtnPrevPeriod", "BtnNextPeriod", "BtnDay",         "BtnWeek",
                             "BtnMonth",      "BtnYear",       "BtnElectricity", "BtnGas",
                             "BtnWater",      "BtnHeating",    "BtnSolar"};
    QCOMPARE(types.keyCount(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        QCOMPARE(types.keyToValue(qPrintable(names[i])), i + 1);
    }
}

void tst_ZEMHistogramWidget::histogramIndex_data()
{
    QTest::addColumn<int>("period");
    QTest::addColumn<int>("energy");
    QTest::addColumn<int>("p");
    QTest::addColumn<int>("e");
    QTest::addColumn<int>("index");

    for (int e = 0; e < 5; ++e) {
        for (int p = 0; p < 4; ++p) {
            QTest::addRow("period %d energy %d", p, e)
                << (1 << p) << (16 << e) << p << e << p + 4 * e;
        }
    }
    QTest::newRow("two periods and gas") << 3 << 32 << -1 << 1 << 3;
    QTest::newRow("no period") << 0 << 16 << -1 << 0 << -1;
    QTest::newRow("period beyond the table") << 16 << 16 << -1 << 0 << -1;
    QTest::newRow("two energies") << 1 << 48 << 0 << -1 << -4;
    QTest::newRow("period as energy") << 8 << 8 << 3 << -1 << -1;
    QTest::newRow("nothing") << 0 << 0 << -1 << -1 << -5;
}

void tst_ZEMHistogramWidget::histogramIndex()
{
    QFETCH(int, period);
    QFETCH(int, energy);
    QFETCH(int, p);
    QFETCH(int, e);
    QFETCH(int, index);

    Page page;
    log->take();
    QCOMPARE(page.getHistogramIndex(ZEM::ZEMTab(period), ZEM::ZEMTab(energy)), index);
    QCOMPARE(log->take(),
             QStringList {
                 QStringLiteral("getHistogramIndex: p: %1 e: %2 i: %3").arg(p).arg(e).arg(index)});
}

void tst_ZEMHistogramWidget::traceOfANewPage()
{
    Page page;
    const ZEMHistogram *none = nullptr;
    QCOMPARE(
        log->take(),
        (QStringList {"getHistogramIndex: p: 0 e: 0 i: 0", "pageChanged() 0 " + debugText(none)}));
}

void tst_ZEMHistogramWidget::showTabs()
{
    Page page;
    page.showTabs(ZEM::TabDay | ZEM::TabElectricity);
    QVERIFY(!button(page, "btnDay")->isHidden());
    for (const char *name :
         {"btnWeek", "btnMonth", "btnYear", "tabGas", "tabWater", "tabHeating", "tabSolar"}) {
        QVERIFY2(button(page, name)->isHidden(), name);
    }
    QVERIFY(!button(page, "tabElectricity")->isHidden());
    page.showTabs(ZEM::TabWeek | ZEM::TabMonth | ZEM::TabYear);
    QVERIFY(button(page, "btnDay")->isHidden());
    QVERIFY(button(page, "tabElectricity")->isHidden());
    for (const char *name : {"btnWeek", "btnMonth", "btnYear"}) {
        QVERIFY2(!button(page, name)->isHidden(), name);
    }
    QCOMPARE(stack(page)->currentIndex(), 0);
}

void tst_ZEMHistogramWidget::hiddenPeriodIsSelectable()
{
    Page page;
    page.showTabs(ZEM::TabDay | ZEM::TabElectricity);
    page.selectTab(ZEM::TabMonth, ZEM::TabElectricity);
    QVERIFY(button(page, "btnMonth")->isChecked());
    QVERIFY(button(page, "btnMonth")->isHidden());
    QCOMPARE(stack(page)->currentIndex(), 2);
}

void tst_ZEMHistogramWidget::periodClicks_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("index");
    QTest::addColumn<Page::ButtonType>("type");
    QTest::newRow("day") << QByteArray("btnDay") << 8 << Page::BtnDay;
    QTest::newRow("week") << QByteArray("btnWeek") << 9 << Page::BtnWeek;
    QTest::newRow("month") << QByteArray("btnMonth") << 10 << Page::BtnMonth;
    QTest::newRow("year") << QByteArray("btnYear") << 11 << Page::BtnYear;
}

void tst_ZEMHistogramWidget::periodClicks()
{
    QFETCH(QByteArray, name);
    QFETCH(int, index);
    QFETCH(Page::ButtonType, type);

    Page page;
    page.selectTab(ZEM::TabYear, ZEM::TabWater);
    QSignalSpy spy(&page, &Page::sigBtnClicked);
    int indexAtSignal = -1;
    connect(&page, &Page::sigBtnClicked, this,
            [&] { indexAtSignal = stack(page)->currentIndex(); });
    button(page, name)->click();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].value<Page::ButtonType>(), type);
    QCOMPARE(indexAtSignal, index); // the page has changed already
    QCOMPARE(checkedButtons(page), (QStringList {QString::fromLatin1(name), "tabWater"}));
    button(page, "tabGas")->click();
    QCOMPARE(stack(page)->currentIndex(), index - 4); // the period was stored
}

void tst_ZEMHistogramWidget::energyClicks_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<int>("index");
    QTest::addColumn<ZEMEnergyIcon::Type>("energy");
    QTest::addColumn<Page::ButtonType>("type");
    QTest::newRow("electricity") << QByteArray("tabElectricity") << 1 << ZEMEnergyIcon::Electricity
                                 << Page::BtnElectricity;
    QTest::newRow("gas") << QByteArray("tabGas") << 5 << ZEMEnergyIcon::Gas << Page::BtnGas;
    QTest::newRow("water") << QByteArray("tabWater") << 9 << ZEMEnergyIcon::Water << Page::BtnWater;
    QTest::newRow("heating") << QByteArray("tabHeating") << 13 << ZEMEnergyIcon::Heating
                             << Page::BtnHeating;
    QTest::newRow("solar") << QByteArray("tabSolar") << 17 << ZEMEnergyIcon::SolarProduction
                           << Page::BtnSolar;
}

void tst_ZEMHistogramWidget::energyClicks()
{
    QFETCH(QByteArray, name);
    QFETCH(int, index);
    QFETCH(ZEMEnergyIcon::Type, energy);
    QFETCH(Page::ButtonType, type);

    Page page;
    button(page, "btnWeek")->click();
    if (type == Page::BtnElectricity) {
        button(page, "tabGas")->click();
    }
    const int before = stack(page)->currentIndex();
    auto *icon = part<ZEMEnergyIcon>(page, "energyIcon");
    QSignalSpy spy(&page, &Page::sigBtnClicked);
    int indexAtSignal = -1;
    int energyAtSignal = -1;
    connect(&page, &Page::sigBtnClicked, this, [&] {
        indexAtSignal = stack(page)->currentIndex();
        energyAtSignal = icon->getEnergyType();
    });
    button(page, name)->click();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy[0][0].value<Page::ButtonType>(), type);
    QCOMPARE(indexAtSignal, before); // the page changes afterwards
    QCOMPARE(energyAtSignal, int(energy));
    QCOMPARE(stack(page)->currentIndex(), index);
    button(page, "btnMonth")->click();
    QCOMPARE(stack(page)->currentIndex(), index + 1); // the energy was stored
}

void tst_ZEMHistogramWidget::unknownEnergyChangesTheIconOnly()
{
    Page page;
    button(page, "tabGas")->click();
    QSignalSpy spy(&page, &Page::sigBtnClicked);
    const auto unknown = ZEMEnergyIcon::Type(6);
    QVERIFY(QMetaObject::invokeMethod(&page, "btnEnergyTypeclicked",
                                      Q_ARG(ZEMEnergyIcon::Type, unknown)));
    QCOMPARE(part<ZEMEnergyIcon>(page, "energyIcon")->getEnergyType(), unknown);
    QCOMPARE(spy.count(), 0);
    QCOMPARE(stack(page)->currentIndex(), 4);
    button(page, "btnWeek")->click();
    QCOMPARE(stack(page)->currentIndex(), 5);
}

void tst_ZEMHistogramWidget::selectTabGoesTwoSteps()
{
    Page page;
    QStringList events;
    connect(stack(page), &QStackedWidget::currentChanged, this,
            [&](int index) { events << QStringLiteral("page %1").arg(index); });
    connect(&page, &Page::sigBtnClicked, this, [&](Page::ButtonType type) {
        events << QStringLiteral("button %1 at page %2, icon %3")
                      .arg(type)
                      .arg(stack(page)->currentIndex())
                      .arg(part<ZEMEnergyIcon>(page, "energyIcon")->getEnergyType());
    });
    page.selectTab(ZEM::TabWeek, ZEM::TabGas);
    QCOMPARE(events, (QStringList {"button 8 at page 0, icon 1", "page 4", "page 5"}));
    QCOMPARE(checkedButtons(page), (QStringList {"btnWeek", "tabGas"}));
}

void tst_ZEMHistogramWidget::selectTabStoresTheEnergyOnly()
{
    Page page;
    page.selectTab(ZEM::TabWeek, ZEM::TabGas);
    QCOMPARE(stack(page)->currentIndex(), 5);
    button(page, "tabSolar")->click();
    QCOMPARE(stack(page)->currentIndex(), 16); // of the day
    page.selectTab(ZEM::TabWeek, ZEM::TabGas);
    button(page, "btnMonth")->click();
    QCOMPARE(stack(page)->currentIndex(), 6); // of gas
}

void tst_ZEMHistogramWidget::selectTabOfAnUnknownPeriod()
{
    Page page;
    page.selectTab(ZEM::ZEMTab(3), ZEM::TabElectricity);
    QCOMPARE(checkedButtons(page), (QStringList {"btnDay", "tabElectricity"}));
    QCOMPARE(stack(page)->currentIndex(), 0);
    page.selectTab(ZEM::ZEMTab(3), ZEM::TabGas);
    QCOMPARE(checkedButtons(page), (QStringList {"btnDay", "tabGas"}));
    QCOMPARE(stack(page)->currentIndex(), 3);
}

void tst_ZEMHistogramWidget::selectTabOfAnUnknownEnergy()
{
    Page page;
    QSignalSpy spy(&page, &Page::sigBtnClicked);
    page.selectTab(ZEM::TabWeek, ZEM::ZEMTab(0x30));
    QCOMPARE(spy.count(), 0);
    QCOMPARE(stack(page)->currentIndex(), 0);
    QCOMPARE(checkedButtons(page), (QStringList {"btnWeek", "tabElectricity"}));
}

void tst_ZEMHistogramWidget::hasPageDoesNothing()
{
    Page page;
    log->take();
    page.has_page(true, true);
    page.has_page(false, false);
    QCOMPARE(log->take(), QStringList());
    QCOMPARE(checkedButtons(page), (QStringList {"btnDay", "tabElectricity"}));
}

QTEST_MAIN(tst_ZEMHistogramWidget)
#include "tst_zemhistogramwidget.moc"

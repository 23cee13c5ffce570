// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "dashboardtest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMHistogramData>
#include <ZEMHistogramSeries>
#include <ZEMMiniDayHistogram>
#include <ZEMTotalsTodayWidget>
#include <ZEMWidgetLabel>

#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>

using namespace DashboardTest;
using namespace WidgetTest;

class tst_ZEMTotalsTodayWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newTile();
    void form();
    void margins();
    void buttons();
    void containers();
    void fonts();
    void textsAreTranslated();
    void settersReplaceTheTranslation();
    void captionsHaveTheButtonColorInTheirPalette();
    void captionsArePaintedInTheWindowTextColor();
    void declaresItsOwn();
    void propertiesReachTheForm();
    void badgesArePaintedAtOnce();
    void chartsStandInTheirContainers();
    void chartsAreReadyAndOwned();
    void chartsDoNotShareAScale();
    void clickOnAnyPart_data();
    void clickOnAnyPart();
    void partsDoNotOverlap();
};

void tst_ZEMTotalsTodayWidget::newTile()
{
    ZEMTotalsTodayWidget tile;
    QCOMPARE(tile.objectName(), QStringLiteral("ZEMTotalsTodayWidget"));
    QCOMPARE(tile.size(), QSize(152, 175));
    QCOMPARE(policyText(tile.sizePolicy()), QStringLiteral("Fixed/Fixed"));
    QCOMPARE(tile.getTitle(), QStringLiteral("totaal vandaag"));
    QCOMPARE(tile.getTopTitle(), QStringLiteral("verbruik"));
    QCOMPARE(tile.getBottomTitle(), QStringLiteral("productie"));
    QCOMPARE(tile.getTopEnergyType(), ZEMEnergyIcon::Electricity);
    QCOMPARE(tile.getBottomEnergyType(), ZEMEnergyIcon::Electricity);

    QWidget host;
    QCOMPARE((new ZEMTotalsTodayWidget(&host))->parentWidget(), &host);
}

void tst_ZEMTotalsTodayWidget::form()
{
    ZEMTotalsTodayWidget tile;
    QCOMPARE(layoutLines(tile.layout()),
             (QStringList {"QVBoxLayout verticalLayout_3 2", " ZEMWidgetLabel lblTitle",
                           " ZEMButton btnTop", " ZEMButton btnBottom"}));
    const int spacing = part<QLayout>(tile, "horizontalLayout")->spacing();
    QCOMPARE(
        layoutLines(part<QWidget>(tile, "btnTop")->layout()),
        (QStringList {"QVBoxLayout verticalLayout_2 0",
                      QStringLiteral(" QHBoxLayout horizontalLayout_3 %1").arg(spacing),
                      "  QLabel lblHistogramTop", "  spacer 40x20 Expanding/Minimum",
                      "  ZEMEnergyIcon iconHistogramTop", " QWidget graphContainerConsumption"}));
    QCOMPARE(
        layoutLines(part<QWidget>(tile, "btnBottom")->layout()),
        (QStringList {"QVBoxLayout verticalLayout 0",
                      QStringLiteral(" QHBoxLayout horizontalLayout %1").arg(spacing),
                      "  QLabel lblHistogramBottom", "  spacer 40x20 Expanding/Minimum",
                      "  ZEMEnergyIcon iconHistogramBottom", " QWidget graphContainerProduction"}));
}

void tst_ZEMTotalsTodayWidget::margins()
{
    ZEMTotalsTodayWidget tile;
    QCOMPARE(tile.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    for (const char *button : {"btnTop", "btnBottom"}) {
        QCOMPARE(part<QWidget>(tile, button)->layout()->contentsMargins(), QMargins(8, 4, 8, 4));
    }
    for (const char *row : {"horizontalLayout", "horizontalLayout_3"}) {
        QCOMPARE(part<QLayout>(tile, row)->contentsMargins(), QMargins(0, 0, 0, 0));
    }
}

void tst_ZEMTotalsTodayWidget::buttons()
{
    ZEMTotalsTodayWidget tile;
    for (const char *name : {"btnTop", "btnBottom"}) {
        auto *button = part<ZEMButton>(tile, name);
        QCOMPARE(button->minimumSize(), QSize(152, 75));
        QCOMPARE(button->maximumSize(), QSize(152, 75));
        QCOMPARE(imageOf(button->getBackground()), picture("main/buttons/btn_rect_small.png"));
        QVERIFY(!button->isCheckable());
    }
    for (const char *name : {"iconHistogramTop", "iconHistogramBottom"}) {
        QVERIFY(!part<ZEMEnergyIcon>(tile, name)->getUseBigIcon());
    }
}

void tst_ZEMTotalsTodayWidget::containers()
{
    ZEMTotalsTodayWidget tile;
    auto *consumption = part<QWidget>(tile, "graphContainerConsumption");
    auto *production = part<QWidget>(tile, "graphContainerProduction");
    QCOMPARE(consumption->minimumSize(), QSize(0, 30));
    QCOMPARE(production->minimumSize(), QSize(136, 30));
    for (const QWidget *container : {consumption, production}) {
        QCOMPARE(policyText(container->sizePolicy()), QStringLiteral("Preferred/Expanding"));
        QCOMPARE(container->metaObject(), &QWidget::staticMetaObject);
    }
}

void tst_ZEMTotalsTodayWidget::fonts()
{
    ZEMTotalsTodayWidget tile;
    QCOMPARE(fontText(part<QWidget>(tile, "lblTitle")->font()), QStringLiteral("Cabin 12"));
    for (const char *caption : {"lblHistogramTop", "lblHistogramBottom"}) {
        QCOMPARE(fontText(part<QWidget>(tile, caption)->font()), QStringLiteral("Cabin 11"));
    }
}

void tst_ZEMTotalsTodayWidget::textsAreTranslated()
{
    const ContextTranslator translator;
    ZEMTotalsTodayWidget tile;
    QCOMPARE(tile.windowTitle(), QStringLiteral("ZEMTotalsTodayWidget/Form"));
    QCOMPARE(tile.getTitle(), QStringLiteral("ZEMTotalsTodayWidget/totaal vandaag"));
    QCOMPARE(tile.getTopTitle(), QStringLiteral("ZEMTotalsTodayWidget/verbruik"));
    QCOMPARE(tile.getBottomTitle(), QStringLiteral("ZEMTotalsTodayWidget/productie"));
}

void tst_ZEMTotalsTodayWidget::settersReplaceTheTranslation()
{
    ZEMTotalsTodayWidget tile;
    tile.setTitle(QStringLiteral("heute"));
    tile.setTopTitle(QStringLiteral("verbraucht"));
    tile.setBottomTitle(QStringLiteral("erzeugt"));
    const ContextTranslator translator;
    QCoreApplication::processEvents();
    QCOMPARE(tile.getTitle(), QStringLiteral("heute"));
    QCOMPARE(tile.getTopTitle(), QStringLiteral("verbraucht"));
    QCOMPARE(tile.getBottomTitle(), QStringLiteral("erzeugt"));
}

void tst_ZEMTotalsTodayWidget::captionsHaveTheButtonColorInTheirPalette()
{
    ZEMTotalsTodayWidget tile;
    for (const char *name : {"lblHistogramTop", "lblHistogramBottom"}) {
        const QPalette palette = part<QLabel>(tile, name)->palette();
        for (int group = 0; group < QPalette::NColorGroups; ++group) {
            const auto colorGroup = QPalette::ColorGroup(group);
            QCOMPARE(palette.brush(colorGroup, QPalette::ButtonText), QBrush(QColor(Qt::white)));
            QCOMPARE(palette.color(colorGroup, QPalette::WindowText),
                     tile.palette().color(colorGroup, QPalette::WindowText));
        }
    }
}

void tst_ZEMTotalsTodayWidget::captionsArePaintedInTheWindowTextColor()
{
    ZEMTotalsTodayWidget tile;
    QPalette palette = tile.palette();
    palette.setColor(QPalette::WindowText, Qt::red);
    palette.setColor(QPalette::ButtonText, Qt::green);
    tile.setPalette(palette);
    const QImage image = ZemTest::render(&tile);
    for (const char *name : {"lblHistogramTop", "lblHistogramBottom"}) {
        const auto *caption = part<QLabel>(tile, name);
        const QImage text = image.copy(QRect(caption->mapTo(&tile, QPoint(0, 0)), caption->size()));
        int reddest = -255; // how far the red of a pixel is above its green and blue
        for (int y = 0; y < text.height(); ++y) {
            for (int x = 0; x < text.width(); ++x) {
                const QRgb pixel = text.pixel(x, y);
                reddest = qMax(reddest, qRed(pixel) - qMax(qGreen(pixel), qBlue(pixel)));
            }
        }
        QVERIFY2(reddest > 128, name);
    }
}

void tst_ZEMTotalsTodayWidget::declaresItsOwn()
{
    const QMetaObject &metaObject = ZEMTotalsTodayWidget::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(
        ownProperties(metaObject),
        (QStringList {"title:QString", "titleTopHistogram:QString",
                      "energyTypeTopHistogram:ZEMEnergyIcon::Type", "titleBottomHistogram:QString",
                      "energyTypeBottomHistogram:ZEMEnergyIcon::Type"}));
    QCOMPARE(ownMethodCount(metaObject), 2);
    QVERIFY(metaObject.indexOfSignal("btn_top_histogram_clicked()") >= 0);
    QVERIFY(metaObject.indexOfSignal("btn_bottom_histogram_clicked()") >= 0);
}

void tst_ZEMTotalsTodayWidget::propertiesReachTheForm()
{
    ZEMTotalsTodayWidget tile;
    QVERIFY(tile.setProperty("title", QStringLiteral("a")));
    QVERIFY(tile.setProperty("titleTopHistogram", QStringLiteral("b")));
    QVERIFY(tile.setProperty("titleBottomHistogram", QStringLiteral("c")));
    QVERIFY(tile.setProperty("energyTypeTopHistogram", QVariant::fromValue(ZEMEnergyIcon::Gas)));
    QVERIFY(
        tile.setProperty("energyTypeBottomHistogram", QVariant::fromValue(ZEMEnergyIcon::Water)));
    QCOMPARE(part<ZEMWidgetLabel>(tile, "lblTitle")->getTitle(), QStringLiteral("a"));
    QCOMPARE(part<QLabel>(tile, "lblHistogramTop")->text(), QStringLiteral("b"));
    QCOMPARE(part<QLabel>(tile, "lblHistogramBottom")->text(), QStringLiteral("c"));
    QCOMPARE(part<ZEMEnergyIcon>(tile, "iconHistogramTop")->getEnergyType(), ZEMEnergyIcon::Gas);
    QCOMPARE(part<ZEMEnergyIcon>(tile, "iconHistogramBottom")->getEnergyType(),
             ZEMEnergyIcon::Water);
    QCOMPARE(tile.getTopEnergyType(), ZEMEnergyIcon::Gas);
    QCOMPARE(tile.getBottomEnergyType(), ZEMEnergyIcon::Water);
}

void tst_ZEMTotalsTodayWidget::badgesArePaintedAtOnce()
{
    ZEMTotalsTodayWidget tile;
    const Stage stage(&tile);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(part<QWidget>(tile, "iconHistogramBottom"),
                       [&] { tile.setBottomEnergyType(ZEMEnergyIcon::SolarProduction); }),
             Painted::AtOnce);
    QCOMPARE(paintedBy(part<QWidget>(tile, "iconHistogramTop"),
                       [&] { tile.setTopEnergyType(ZEMEnergyIcon::Gas); }),
             Painted::AtOnce);
}

void tst_ZEMTotalsTodayWidget::chartsStandInTheirContainers()
{
    ZEMTotalsTodayWidget tile;
    const QList<QPair<const char *, ZEMMiniDayHistogram *>> charts {
        {"graphContainerConsumption", tile.getTopHistogram()},
        {"graphContainerProduction", tile.getBottomHistogram()}};
    for (const auto &chart : charts) {
        QLayout *layout = part<QWidget>(tile, chart.first)->layout();
        QVERIFY(qobject_cast<QVBoxLayout *>(layout));
        QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
        QCOMPARE(layout->count(), 1);
        QCOMPARE(layout->itemAt(0)->widget(), chart.second);
        QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());
    }
}

void tst_ZEMTotalsTodayWidget::chartsAreReadyAndOwned()
{
    int destroyed = 0;
    {
        ZEMTotalsTodayWidget tile;
        for (ZEMMiniDayHistogram *chart : {tile.getTopHistogram(), tile.getBottomHistogram()}) {
            connect(chart, &QObject::destroyed, this, [&] { ++destroyed; });
            QCOMPARE(chart->findChild<QwtPlot *>()->axisInterval(QwtPlot::xBottom),
                     QwtInterval(0.0, 24.0));
            QVERIFY(chart->layout());
            bool previous = true;
            bool next = true;
            chart->has_page(&previous, &next); // asks the mover, which init() makes
            QVERIFY(!previous && !next);
        }
    }
    QCOMPARE(destroyed, 2);
}

void tst_ZEMTotalsTodayWidget::chartsDoNotShareAScale()
{
    ZEMTotalsTodayWidget tile;
    tile.getTopHistogram()->setValueLimits(QwtInterval(0.0, 50.0));
    tile.getTopHistogram()->replot();
    tile.getBottomHistogram()->replot();
    QCOMPARE(tile.getTopHistogram()->findChild<QwtPlot *>()->axisInterval(QwtPlot::yLeft),
             QwtInterval(0.0, 50.0));
    QCOMPARE(tile.getBottomHistogram()->findChild<QwtPlot *>()->axisInterval(QwtPlot::yLeft),
             QwtInterval(0.0, 10.0));
}

void tst_ZEMTotalsTodayWidget::clickOnAnyPart_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<bool>("canvas");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("bottom");
    QTest::newRow("upper button") << QByteArray("btnTop") << false << 1 << 0;
    QTest::newRow("upper caption") << QByteArray("lblHistogramTop") << false << 1 << 0;
    QTest::newRow("upper badge") << QByteArray("iconHistogramTop") << false << 1 << 0;
    QTest::newRow("upper chart") << QByteArray("graphContainerConsumption") << true << 1 << 0;
    QTest::newRow("lower button") << QByteArray("btnBottom") << false << 0 << 1;
    QTest::newRow("lower caption") << QByteArray("lblHistogramBottom") << false << 0 << 1;
    QTest::newRow("lower badge") << QByteArray("iconHistogramBottom") << false << 0 << 1;
    QTest::newRow("lower chart") << QByteArray("graphContainerProduction") << true << 0 << 1;
    QTest::newRow("title") << QByteArray("lblTitle") << false << 0 << 0;
}

void tst_ZEMTotalsTodayWidget::clickOnAnyPart()
{
    QFETCH(QByteArray, name);
    QFETCH(bool, canvas);
    QFETCH(int, top);
    QFETCH(int, bottom);

    ZEMTotalsTodayWidget tile;
    const Stage stage(&tile);
    QVERIFY(stage.isReady());
    QSignalSpy topSpy(&tile, &ZEMTotalsTodayWidget::btn_top_histogram_clicked);
    QSignalSpy bottomSpy(&tile, &ZEMTotalsTodayWidget::btn_bottom_histogram_clicked);
    auto *touched = part<QWidget>(tile, name);
    if (canvas) {
        touched = touched->findChild<QwtPlotCanvas *>();
    }
    const QPoint position = name.startsWith("btn") ? QPoint(2, 2) : touched->rect().center();
    ZemTest::press(touched, position);
    ZemTest::release(touched, position);
    QCOMPARE(topSpy.count(), top);
    QCOMPARE(bottomSpy.count(), bottom);
}

void tst_ZEMTotalsTodayWidget::partsDoNotOverlap()
{
    ZEMTotalsTodayWidget tile;
    const Stage stage(&tile);
    QVERIFY(stage.isReady());
    for (const char *name : {"btnTop", "btnBottom"}) {
        auto *button = part<QWidget>(tile, name);
        QVERIFY(tile.rect().contains(button->geometry()));
        const auto labels = button->findChildren<QLabel *>();
        QCOMPARE(labels.size(), 1);
        auto *chart = button->findChild<ZEMHistogram *>();
        const QRect chartRect(chart->mapTo(button, QPoint()), chart->size());
        QVERIFY(!chartRect.intersects(labels[0]->geometry()));
        QVERIFY(!chartRect.intersects(button->findChild<ZEMEnergyIcon *>()->geometry()));
        QVERIFY(button->rect().contains(chartRect));
        QVERIFY(labels[0]->width() >= labels[0]->sizeHint().width());
        QVERIFY(chart->height() >= 30);
    }
}

QTEST_MAIN(tst_ZEMTotalsTodayWidget)
#include "tst_zemtotalstodaywidget.moc"

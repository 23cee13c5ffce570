// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displayscale.h"
#include "fullhouse.h"
#include "pagelook.h"
#include "playedsource.h"
#include "screenfaults.h"
#include "screenshots.h"

#include "zemtest.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QTest>
#include <QTextBrowser>
#include <ZEMButton>
#include <ZEMDialogPopup>
#include <ZEMDialogShowText>
#include <ZEMLineEditDialog>
#include <ZEMNumericKeypad>
#include <ZEMVirtualKey>
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <qwt_plot.h>
#include <qwt_text.h>

namespace {

/** The screen to be filled, of the environment: "1024x600". */
QSize screenSize()
{
    return DisplayScale::parseSize(qEnvironmentVariable("DISPLAY_SIZE", QStringLiteral("640x480")))
        .value_or(QSize());
}

/** Where @p widget stands on @p page. */
QRect placeOn(const QWidget *page, const QWidget *widget)
{
    return {widget->mapTo(page, QPoint(0, 0)), widget->size()};
}

bool isUpright()
{
    return screenSize().width() < screenSize().height();
}

} // namespace

/**
 * Everything that the display shows, looked at on a screen of one size. There is a run for each
 * size and for each density that a panel may tell of.
 */
class tst_DisplaySizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictureFillsTheScreen();
    void nothingStandsOut();
    void nothingOverlaps();
    void noTextIsCut();
    void noLabelOfAScaleIsCut();
    void targetsAreLargeEnough();
    void textsCanBeRead();
    void nothingShinesThrough();
    void idleButtonsLookIdle();
    void iconsOfTheHeaderAreOfOneSize();
    void unitOfPowerStandsBesideTheCurves();
    void tilesStandInLine();
    void emptyDisplayIsOfToday();
    void keysStandTogether();
    void answersStandApart();
    void textsKeepTheMarginOfThePage();

private:
    void look(const EnergySource &source, const QString &house);

    QSize pictureSize;
    QStringList outside;
    QStringList overlaps;
    QStringList cut;
    QStringList cutOff;
    QStringList small;
    QStringList faint;
    QStringList seeThrough;
    QStringList idle;
};

void tst_DisplaySizes::look(const EnergySource &source, const QString &house)
{
    PlayedDisplay display(source);
    display.settings.setHouseName(QStringLiteral("Landgoed Weltevreden aan de Nieuwe Gracht 12"));
    display.window.setFixedSize(DisplayScale::pageSizeOn(screenSize()));
    QVERIFY(display.show());
    display.window.addMessage(QStringLiteral("a message that is longer than a line of the list"));
    visitScreens(&display.window, [&](const QString &name) {
        pictureSize = display.window.grab().size();
        const auto add = [&](QStringList *all, const QStringList &faults) {
            for (const QString &fault : faults) {
                *all << QStringLiteral("%1, %2: %3").arg(house, name, fault);
            }
        };
        add(&outside, ScreenFaults::outside(&display.window));
        add(&overlaps, ScreenFaults::overlaps(&display.window));
        add(&cut, ScreenFaults::cutTexts(&display.window));
        add(&cutOff, ScreenFaults::cutLabels(&display.window));
        add(&small, ScreenFaults::smallTargets(&display.window));
        add(&idle, ScreenFaults::touchableLooks(&display.window));
        // Of a period before, the bars alone are others.
        if (name.endsWith(QStringLiteral("-before"))) {
            return;
        }
        add(&seeThrough, ScreenFaults::seeThrough(&display.window));
        add(&faint, ScreenFaults::faintTexts(&display.window));
    });
}

void tst_DisplaySizes::initTestCase()
{
    QVERIFY2(screenSize().isValid(), "DISPLAY_SIZE");
    const FullHouse full;
    look(full, QStringLiteral("full"));

    const PlayedSource empty;
    look(empty, QStringLiteral("empty"));
}

static void expectNone(const QStringList &faults)
{
    for (const QString &fault : faults) {
        std::puts(qPrintable(fault));
    }
    QCOMPARE(faults.size(), 0);
}

void tst_DisplaySizes::pictureFillsTheScreen()
{
    QCOMPARE(pictureSize, screenSize());
}

void tst_DisplaySizes::nothingStandsOut()
{
    expectNone(outside);
}

void tst_DisplaySizes::nothingOverlaps()
{
    expectNone(overlaps);
}

void tst_DisplaySizes::noTextIsCut()
{
    expectNone(cut);
}

void tst_DisplaySizes::noLabelOfAScaleIsCut()
{
    expectNone(cutOff);
}

void tst_DisplaySizes::targetsAreLargeEnough()
{
    expectNone(small);
}

void tst_DisplaySizes::textsCanBeRead()
{
    expectNone(faint);
}

void tst_DisplaySizes::nothingShinesThrough()
{
    expectNone(seeThrough);
}

void tst_DisplaySizes::idleButtonsLookIdle()
{
    expectNone(idle);
}

void tst_DisplaySizes::iconsOfTheHeaderAreOfOneSize()
{
    const PlayedSource source;
    PlayedDisplay display(source);
    display.window.openPage(QStringLiteral("goals"));
    QVERIFY(display.show());
    const auto inkOf = [&](const char *name) {
        auto *button = display.onPage<ZEMButton>(name);
        QPixmap picture(button->size() * button->devicePixelRatioF());
        picture.setDevicePixelRatio(button->devicePixelRatioF());
        picture.fill(Qt::black);
        button->render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
        return QSizeF(ZemTest::inkRect(picture.toImage()).size()) / button->devicePixelRatioF();
    };
    // Lines of 2 in a square of 26, shown as one of 32.
    constexpr double scale = 32.0 / 26.0;
    constexpr double edge = 2.0; // of what is drawn smoothly
    const QSizeF menu = inkOf("menu");
    QVERIFY2(std::fabs(menu.width() - 18.0 * scale) <= edge,
             qPrintable(QString::number(menu.width())));
    const QSizeF back = inkOf("back");
    QVERIFY2(std::fabs(back.height() - 16.0 * scale) <= edge,
             qPrintable(QString::number(back.height())));
}

void tst_DisplaySizes::unitOfPowerStandsBesideTheCurves()
{
    PlayedSource source;
    source.count(Readings::Quantity::GridImport, 3, 2.0);
    PlayedDisplay display(source);
    display.window.openPage(QStringLiteral("analysis"));
    QVERIFY(display.show());
    auto *plot = display.window.currentWidget()->findChild<QwtPlot *>();
    QCOMPARE(plot->axisTitle(QwtPlot::yLeft).text(), QStringLiteral("kW"));
    QVERIFY(plot->itemList(QwtPlotItem::Rtti_PlotTextLabel).isEmpty());
}

void tst_DisplaySizes::tilesStandInLine()
{
    PlayedSource source;
    source.count(Readings::Quantity::Gas, 3);
    PlayedDisplay display(source);
    display.window.setFixedSize(DisplayScale::pageSizeOn(screenSize()));
    QVERIFY(display.show());
    const QWidget *page = display.window.currentWidget();
    const auto placeOf = [&](const char *name) { return placeOn(page, display.onPage(name)); };
    const QRect status = placeOf("ZEMCurrentStatusWidget");
    const QRect totals = placeOf("ZEMTotalsTodayWidget");
    const QRect goals = placeOf("goals");
    if (isUpright()) {
        QCOMPARE(totals.left(), status.left());
        QCOMPARE(goals.right(), status.right());
        QCOMPARE(status.left(), page->width() - 1 - status.right());
    } else {
        QCOMPARE(totals.top(), status.top());
        QCOMPARE(goals.bottom(), placeOf("ZEMHistogramButton").bottom());
    }
}

void tst_DisplaySizes::emptyDisplayIsOfToday()
{
    const PlayedSource source;
    PlayedDisplay display(source);
    QVERIFY(display.show());
    QStringList texts;
    visitScreens(&display.window,
                 [&](const QString &) { texts << ScreenFaults::textsOn(&display.window); });
    QVERIFY(texts.contains(QStringLiteral("totaal vandaag")));
    QVERIFY(texts.contains(QStringLiteral("budget van het net, vandaag")));
    QVERIFY(texts.contains(QStringLiteral("wo 9 maart 2016")));
    expectNone(texts.filter(QStringLiteral("1970")) + texts.filter(QStringLiteral("1969")));
}

/** Shows the page of settings, as large as the screen. */
static bool showSettings(PlayedDisplay *display)
{
    display->window.setFixedSize(DisplayScale::pageSizeOn(screenSize()));
    display->window.openPage(QStringLiteral("settings"));
    return display->show();
}

/** However high the screen is. */
void tst_DisplaySizes::keysStandTogether()
{
    constexpr int mostBetween = 20; // pixels from one row to the next
    const PlayedSource source;
    PlayedDisplay display(source);
    QVERIFY(showSettings(&display));
    const auto farthest = [&](const QWidget *dialog) {
        QList<int> tops;
        int height = 0;
        for (const ZEMVirtualKey *key : dialog->findChildren<ZEMVirtualKey *>()) {
            if (key->isVisible()) {
                tops << placeOn(dialog, key).top();
                height = key->height();
            }
        }
        std::sort(tops.begin(), tops.end());
        int most = 0;
        for (int i = 1; i < tops.size(); ++i) {
            most = std::max(most, tops.at(i) - tops.at(i - 1) - height);
        }
        return most;
    };
    display.onPage<ZEMButton>("houseName")->click();
    auto *line = display.inputDialog<ZEMLineEditDialog>();
    QVERIFY(line);
    QVERIFY2(farthest(line) <= mostBetween, qPrintable(QString::number(farthest(line))));
    PlayedDisplay::tap(line->findChild<ZEMButton *>(QStringLiteral("btnCancel")));

    display.onPage<ZEMButton>("price")->click();
    auto *number = display.inputDialog<ZEMNumericKeypad>();
    QVERIFY(number);
    QVERIFY2(farthest(number) <= mostBetween, qPrintable(QString::number(farthest(number))));
}

void tst_DisplaySizes::answersStandApart()
{
    constexpr int finger = 40; // pixels
    const PlayedSource source;
    PlayedDisplay display(source);
    QVERIFY(showSettings(&display));
    int gap = -1;
    display.whenOpen<ZEMDialogPopup>([&](ZEMDialogPopup *question) {
        const auto placeOf = [question](const char *name) {
            return placeOn(question, question->findChild<ZEMButton *>(QLatin1String(name)));
        };
        gap = placeOf("btnAccepted").left() - placeOf("btnRejected").right() - 1;
        question->reset();
    });
    display.onPage<ZEMButton>("clear")->click();
    QVERIFY2(gap >= finger, qPrintable(QString::number(gap)));
}

void tst_DisplaySizes::textsKeepTheMarginOfThePage()
{
    constexpr int margin = 16; // pixels
    const PlayedSource source;
    PlayedDisplay display(source);
    QVERIFY(showSettings(&display));
    int left = -1;
    display.whenOpen<ZEMDialogShowText>([&](ZEMDialogShowText *explanation) {
        const auto *text = explanation->findChild<QTextBrowser *>();
        left = placeOn(explanation, text->viewport()).left();
        explanation->reset();
    });
    display.onPage<ZEMButton>("privacy")->click();
    QVERIFY2(left >= margin, qPrintable(QString::number(left)));
}

int main(int argc, char *argv[])
{
    DisplayScale::prepare(screenSize());
    const QApplication application(argc, argv);
    PageLook::setApplicationLook();
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    tst_DisplaySizes test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_displaysizes.moc"

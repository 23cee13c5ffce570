// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// The simulated house at noon of a day in spring, always the same one: the pictures of the display
// in the README, written to the folder that the command line names.

#include "chartspage.h"
#include "displaysettings.h"
#include "displaywindow.h"
#include "housesource.h"
#include "language.h"
#include "pagelook.h"
#include "stillness.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTimeZone>
#include <cstdlib>

namespace {

constexpr QSize screen(640, 480);

qint64 springNoon()
{
    return QDateTime(QDate(2026, 4, 16), QTime(10, 20), QTimeZone::utc()).toMSecsSinceEpoch();
}

bool photograph(DisplayWindow *display, const QString &file)
{
    // A new headline has asked for room, which it gets in the event loop.
    QCoreApplication::processEvents();
    holdStill(display);
    return display->grab().save(file);
}

} // namespace

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    const QTemporaryDir home;
    Language::speak(QStringLiteral("nl"));
    PageLook::setApplicationLook();
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));

    HouseSource house(HouseClock(QDateTime::currentMSecsSinceEpoch(), 1.0, springNoon()));
    house.prepare();
    DisplaySettings settings(home.filePath(QStringLiteral("display.ini")));
    DisplayWindow display(house, &settings, QStringLiteral(KEYBOARD_DIR));
    display.setFixedSize(screen);
    display.show();

    const QDir folder(application.arguments().value(1));
    bool succeeded = photograph(&display, folder.filePath(QStringLiteral("overview.png")));
    ChartsPage *charts = display.chartsPage();
    display.setCurrentWidget(charts);
    charts->showChart(ZEM::TabElectricity, Period::Week);
    charts->showPreviousPeriod();
    succeeded = photograph(&display, folder.filePath(QStringLiteral("charts.png"))) && succeeded;
    return succeeded ? EXIT_SUCCESS : EXIT_FAILURE;
}

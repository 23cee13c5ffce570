// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "backlight.h"
#include "busynotice.h"
#include "displayscale.h"
#include "displaysettings.h"
#include "displaywindow.h"
#include "energy.h"
#include "historytransfer.h"
#include "housesource.h"
#include "keyboardfiles.h"
#include "language.h"
#include "metersource.h"
#include "missingfonts.h"
#include "monthstransfer.h"
#include "mqttmeter.h"
#include "options.h"
#include "p1time.h"
#include "pagelook.h"
#include "pricefile.h"
#include "readingsfile.h"
#include "readingssource.h"
#include "screenshots.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QEventLoop>
#include <QLocale>
#include <QLoggingCategory>
#include <QScreen>
#include <QTextStream>
#include <QTimer>
#include <memory>
#include <optional>
#include <utility>
#include <zemkit_version.h>

namespace {

constexpr int exitFailure = 1;
constexpr int exitNothingToShow = 2; // or to keep, or to write
constexpr int patience = 5000; // milliseconds that screenshots wait for a meter
constexpr int arrowsUnderWay = 700; // milliseconds

void printError(const QString &line)
{
    QTextStream(stderr) << line << '\n';
}

void printErrors(const QStringList &lines)
{
    for (const QString &line : lines) {
        printError(line);
    }
}

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("zemkit-display"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEMKIT_VERSION_STR));
}

Options optionsOf(int argc, char *argv[])
{
    // Help, version and refusals need no display.
    const QCoreApplication application(argc, argv);
    nameApplication();
    return readOptions(application.arguments(), DisplayWindow::pageNames());
}

/** Whether the display takes the whole screen, whatever size that has. */
bool takesScreen(const Options &options)
{
    return !options.size && DisplayScale::isWholeScreen(qEnvironmentVariable("QT_QPA_PLATFORM"));
}

/** How many pixels the display is to fill. */
QSize screenOf(const Options &options, int argc, char *argv[])
{
    if (takesScreen(options)) {
        // By how much everything is larger has to be known before there is an application.
        const QGuiApplication look(argc, argv);
        const QScreen *whole = QGuiApplication::primaryScreen();
        return whole ? whole->size() * whole->devicePixelRatio() : PageLook::pageSize;
    }
    return options.size.value_or(PageLook::pageSize);
}

void setLook()
{
    PageLook::setApplicationLook();
    // The chart page of the library traces every press.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

std::unique_ptr<MeterSource> meterSource(const Options &options)
{
    P1Settings settings;
    // Pictures are of what a file says in the end.
    settings.speed = options.screenshots.isEmpty() ? options.speed : 0.0;
    std::unique_ptr<LiveMeter> meter;
    if (options.mqtt) {
        meter = std::make_unique<MqttMeter>(*options.mqtt);
    } else {
        meter = std::make_unique<P1Source>(options.meter, settings);
    }
    auto source = std::make_unique<MeterSource>(std::move(meter), options.history);
    QObject::connect(source.get(), &MeterSource::problem, source.get(), &printError);
    source->prepare();
    return source;
}

/** Reads the files and prints what is wrong with them. Empty if there is nothing to show. */
std::optional<Readings::Household> readHousehold(const QStringList &files)
{
    Readings::Household household = Readings::loadReadings(files);
    printErrors(household.problems);
    if (energiesOf(household).empty()) {
        const bool isUsable = household.firstInstant().has_value();
        printError(isUsable ? QStringLiteral("zemkit-display: nothing to show, as the readings are "
                                             "of what has no charts, or nothing was counted; "
                                             "docs/readings.md tells more")
                            : QStringLiteral("zemkit-display: nothing to show, as no reading of "
                                             "the files could be used"));
        return std::nullopt;
    }
    return household;
}

/** The source that the command line asks for, ready to be shown. Null if there is nothing to show.
 */
std::unique_ptr<EnergySource> makeSource(const Options &options, const QSize &pageSize)
{
    std::optional<Readings::Household> household;
    if (!options.readings.isEmpty()) {
        doWithNotice(
            QCoreApplication::translate("main", "Standen lezen …"),
            [&] { household = readHousehold(options.readings); }, pageSize);
        if (!household) {
            return nullptr;
        }
    }
    if (options.mqtt || !options.meter.isEmpty()) {
        auto source = meterSource(options);
        if (household) {
            source->addOlder(std::move(*household));
        }
        return source;
    }
    if (household) {
        return std::make_unique<ReadingsSource>(std::move(*household));
    }
    auto house = std::make_unique<HouseSource>(
        HouseClock(QDateTime::currentMSecsSinceEpoch(), options.speed));
    doWithNotice(
        QCoreApplication::translate("main", "Het huis komt tot leven …"), [&] { house->prepare(); },
        pageSize);
    return house;
}

/** Beside the program where it is installed, else those of the sources. */
QString keyboardDirectory()
{
    const QDir installed(QCoreApplication::applicationDirPath()
                         + QStringLiteral("/../share/zemkit/keyboards"));
    return installed.exists() ? installed.absolutePath() : QStringLiteral(KEYBOARD_DIR);
}

/** Gives the arrows time to set off, and a meter to tell all it has. */
void waitForPictures(const EnergySource *source)
{
    QEventLoop loop;
    const auto *meter = qobject_cast<const MeterSource *>(source);
    if (meter) {
        QObject::connect(meter, &MeterSource::ended, &loop, &QEventLoop::quit);
    }
    QTimer::singleShot(meter ? patience : arrowsUnderWay, &loop, &QEventLoop::quit);
    loop.exec();
}

bool isTransfer(const Options &options)
{
    return !options.imports.isEmpty() || !options.exportTo.isEmpty()
        || !options.exportMonthsTo.isEmpty();
}

Transfer transfer(const Options &options)
{
    if (!options.imports.isEmpty()) {
        return importReadings(options.imports, options.history, p1TimeZone());
    }
    return options.exportTo.isEmpty()
        ? exportMonths(options, p1TimeZone())
        : exportReadings(options.exportTo, options.history, p1TimeZone());
}

/** Fills the history or writes a file, which needs no display. */
int transfer(const Options &options, int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    nameApplication();
    const Transfer done = transfer(options);
    printErrors(done.problems);
    const QString line = QStringLiteral("zemkit-display: %1").arg(done.text);
    if (!done.succeeded) {
        printError(line);
        return exitNothingToShow;
    }
    QTextStream(stdout) << line << '\n';
    return 0;
}

/** Shows the display until it is closed, or until its pictures are written. */
int show(const Options &options, EnergySource *source, const QSize &pageSize)
{
    DisplaySettings settings;
    if (KeyboardFiles::languagesIn(keyboardDirectory()).contains(options.language)) {
        settings.setUsualKeyboard(options.language);
    }
    DisplayWindow display(*source, &settings, keyboardDirectory());
    if (options.costs) {
        // The command line was told of the files in its own language.
        Costs::CostRules rules = *options.costs;
        rules.problems = Costs::loadPrices(rules.priceFiles).problems;
        printErrors(rules.problems);
        display.setCostRules(std::move(rules));
    }
    Backlight backlight;
    const auto light = [&](bool isDark) {
        const QString problem = backlight.setLit(!isDark);
        if (!problem.isEmpty()) {
            printError(problem);
            display.addMessage(problem);
        }
    };
    for (const QString &line : missingFonts()) {
        display.addMessage(line);
    }
    // Whoever ended the display last may have left it dark.
    light(false);
    QObject::connect(&display, &DisplayWindow::standbyChanged, &display, light);
    display.openPage(options.page);
    if (takesScreen(options)) {
        display.showFullScreen();
    } else {
        display.setFixedSize(pageSize);
        display.show();
    }
    source->start();

    if (options.screenshots.isEmpty()) {
        return QApplication::exec();
    }
    waitForPictures(source);
    const QString problem = writeScreenshots(options.screenshots, &display);
    if (!problem.isEmpty()) {
        printError(QStringLiteral("zemkit-display: %1").arg(problem));
        return exitFailure;
    }
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const Options options = optionsOf(argc, argv);
    if (options.action == Options::Action::PrintAndEnd) {
        QTextStream(stdout) << options.text;
        return 0;
    }
    if (options.action == Options::Action::Refuse) {
        QTextStream(stderr) << options.text;
        return exitFailure;
    }
    if (isTransfer(options)) {
        return transfer(options, argc, argv);
    }

    if (!options.screenshots.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QSize screen = screenOf(options, argc, argv);
    DisplayScale::prepare(screen);
    const QSize pageSize = DisplayScale::pageSizeOn(screen);
    const QApplication application(argc, argv);
    if (!QGuiApplication::primaryScreen()) {
        printError(QStringLiteral("zemkit-display: there is no screen for the platform %1")
                       .arg(QGuiApplication::platformName()));
        return exitFailure;
    }
    nameApplication();
    Language::speak(options.language);
    setLook();

    for (const QString &line : missingFonts()) {
        printError(QStringLiteral("zemkit-display: %1").arg(line));
    }
    const QStringList problems = KeyboardFiles::problemsIn(keyboardDirectory());
    if (!problems.isEmpty()) {
        printErrors(problems);
        return exitFailure;
    }
    const std::unique_ptr<EnergySource> source = makeSource(options, pageSize);
    if (!source) {
        return exitNothingToShow;
    }
    return show(options, source.get(), pageSize);
}

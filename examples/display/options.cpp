// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include "historykeeper.h"
#include "houseclock.h"
#include "mqttoptions.h"
#include "p1source.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <utility>

namespace {

Options refusal(const QString &reason)
{
    Options options;
    options.action = Options::Action::Refuse;
    options.text = QStringLiteral("%1: %2\nTry '%1 --help'.\n")
                       .arg(QCoreApplication::applicationName(), reason);
    return options;
}

Options answer(const QString &text)
{
    Options options;
    options.action = Options::Action::PrintAndEnd;
    options.text = text;
    return options;
}

/** Whether a source with "tcp://" before it is anything but a host and a port. */
bool lacksPort(const QString &meter)
{
    const QString scheme = QStringLiteral("tcp://");
    return meter.startsWith(scheme) && parseP1Address(meter).kind != P1Address::Kind::Network;
}

/** Two options that exclude each other; empty if there are none. */
QString clashIn(const QCommandLineParser &parser)
{
    constexpr std::pair<const char *, const char *> clashes[] = {{"data", "no-history"},
                                                                 {"import", "no-history"},
                                                                 {"export", "no-history"},
                                                                 {"import", "export"},
                                                                 {"import", "readings"},
                                                                 {"export", "readings"},
                                                                 {"import", "p1"},
                                                                 {"export", "p1"},
                                                                 {"import", "screenshots"},
                                                                 {"export", "screenshots"},
                                                                 {"speed", "import"},
                                                                 {"speed", "export"},
                                                                 {"mqtt", "p1"},
                                                                 {"import", "mqtt"},
                                                                 {"export", "mqtt"}};
    for (const auto &[one, other] : clashes) {
        if (parser.isSet(QLatin1String(one)) && parser.isSet(QLatin1String(other))) {
            return QStringLiteral("--%1 and --%2 do not go together")
                .arg(QLatin1String(one), QLatin1String(other));
        }
    }
    return {};
}

} // namespace

Options readOptions(const QStringList &arguments, const QStringList &pages)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows the energy of a household on a screen of 640 by 480 pixels: a "
                       "simulated one, or a real one with --readings, --p1 or --mqtt."));
    // The parser's own one comes with --help-all, which has no more to say.
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Displays help on commandline options."));
    parser.addOption(help);
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption readings(
        QStringLiteral("readings"),
        QStringLiteral(
            "Show the readings of these CSV files, which are those of one household; with "
            "--p1 they are what was counted before the meter was followed."),
        QStringLiteral("FILE..."));
    const QCommandLineOption meter(
        QStringLiteral("p1"),
        QStringLiteral("Follow the P1 telegrams of a smart meter: a file, - for standard input, a "
                       "serial port as /dev/ttyUSB0, or [tcp://]host:port."),
        QStringLiteral("SOURCE"));
    const QCommandLineOption importFiles(
        QStringLiteral("import"),
        QStringLiteral("Keep the readings of these CSV files in the history, and end."),
        QStringLiteral("FILE..."));
    const QCommandLineOption exportFile(
        QStringLiteral("export"),
        QStringLiteral("Write the history to this file as CSV, by the hour, and end."),
        QStringLiteral("FILE"));
    const QCommandLineOption data(
        QStringLiteral("data"),
        QStringLiteral("Keep the history of the meter in this directory, instead of %1.")
            .arg(HistoryKeeper::defaultDirectory()),
        QStringLiteral("DIR"));
    const QCommandLineOption noHistory(QStringLiteral("no-history"),
                                       QStringLiteral("Keep no history of the meter."));
    const QCommandLineOption speed(
        QStringLiteral("speed"),
        QStringLiteral("Let the simulated house, or a file of telegrams, run N times as fast."),
        QStringLiteral("N"), QStringLiteral("1"));
    const QCommandLineOption page(
        QStringLiteral("page"),
        QStringLiteral("Open this page: %1.").arg(pages.join(QStringLiteral(", "))),
        QStringLiteral("NAME"), pages.value(0));
    const QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        QStringLiteral("Write each page and each chart as a PNG to this directory, and end."),
        QStringLiteral("DIR"));
    const MqttOptions mqtt;
    parser.addOptions({readings, meter});
    parser.addOptions(mqtt.all());
    parser.addOptions({importFiles, exportFile, data, noHistory, speed, page, screenshots});
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("More files of --readings or --import."),
                                 QStringLiteral("[FILE...]"));

    if (!parser.parse(arguments)) {
        return refusal(parser.errorText());
    }
    if (parser.isSet(help)) {
        return answer(parser.helpText());
    }
    if (const QByteArray mapping = mqtt.mappingToPrint(parser); !mapping.isEmpty()) {
        return answer(QString::fromUtf8(mapping));
    }
    if (parser.isSet(version)) {
        return answer(QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                                    QCoreApplication::applicationVersion()));
    }
    if (!parser.positionalArguments().isEmpty() && !parser.isSet(readings)
        && !parser.isSet(importFiles)) {
        return refusal(QStringLiteral("unexpected argument '%1'")
                           .arg(parser.positionalArguments().constFirst()));
    }
    if (!pages.contains(parser.value(page))) {
        return refusal(QStringLiteral("no page '%1'; there is %2")
                           .arg(parser.value(page), pages.join(QStringLiteral(", "))));
    }

    const QString clash = clashIn(parser);
    if (!clash.isEmpty()) {
        return refusal(clash);
    }
    if (parser.isSet(exportFile) && parser.value(exportFile).isEmpty()) {
        return refusal(QStringLiteral("--export wants a file"));
    }
    if (parser.isSet(data) && parser.value(data).isEmpty()) {
        return refusal(QStringLiteral("--data wants a directory"));
    }
    if (parser.isSet(meter) && parser.value(meter).isEmpty()) {
        return refusal(QStringLiteral("--p1 wants a file, a serial port, host:port or -"));
    }
    if (parser.isSet(screenshots) && parser.value(screenshots).isEmpty()) {
        return refusal(QStringLiteral("--screenshots wants a directory"));
    }
    if (parser.isSet(speed) && parser.isSet(readings) && !parser.isSet(meter)) {
        return refusal(QStringLiteral("--speed and --readings do not go together: files of "
                                      "readings stand still"));
    }
    if (lacksPort(parser.value(meter))) {
        return refusal(
            QStringLiteral("--p1 wants a port behind the host: %1:8088").arg(parser.value(meter)));
    }
    QString problem;
    const std::optional<MqttSettings> broker = mqtt.read(parser, &problem);
    if (!problem.isEmpty()) {
        return refusal(problem);
    }
    const std::optional<double> factor = parseSpeed(parser.value(speed));
    if (!factor) {
        return refusal(QStringLiteral("--speed wants a number from %1 to %2, not '%3'")
                           .arg(HouseClock::slowest)
                           .arg(HouseClock::fastest)
                           .arg(parser.value(speed)));
    }

    // Pictures are a look at a meter, not a part of the household's life, unless it is asked for.
    const bool keeps =
        parser.isSet(data) || (!parser.isSet(noHistory) && !parser.isSet(screenshots));
    const QString historyDirectory = !keeps ? QString()
        : parser.isSet(data)                ? parser.value(data)
                                            : HistoryKeeper::defaultDirectory();

    Options options;
    options.meter = parser.value(meter);
    options.mqtt = broker;
    options.history = historyDirectory;
    options.speed = *factor;
    (parser.isSet(importFiles) ? options.imports : options.readings) =
        parser.values(importFiles) + parser.values(readings) + parser.positionalArguments();
    options.exportTo = parser.value(exportFile);
    options.page = parser.value(page);
    options.screenshots = parser.value(screenshots);
    return options;
}

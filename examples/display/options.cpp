// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include "costoptions.h"
#include "displayscale.h"
#include "historykeeper.h"
#include "houseclock.h"
#include "language.h"
#include "mqttoptions.h"
#include "p1source.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <optional>
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
                                                                 {"export", "mqtt"},
                                                                 {"export-months", "no-history"},
                                                                 {"export-months", "import"},
                                                                 {"export-months", "export"},
                                                                 {"export-months", "p1"},
                                                                 {"export-months", "mqtt"},
                                                                 {"export-months", "screenshots"},
                                                                 {"export-months", "speed"}};
    for (const auto &[one, other] : clashes) {
        if (parser.isSet(QLatin1String(one)) && parser.isSet(QLatin1String(other))) {
            return QStringLiteral("--%1 and --%2 do not go together")
                .arg(QLatin1String(one), QLatin1String(other));
        }
    }
    return {};
}

/** The words of the command line, what help says of them, and what may be wrong with them. */
class CommandLine
{
public:
    explicit CommandLine(const QStringList &pages);

    /** Empty if there is nothing to answer, and the options are to be looked at. */
    std::optional<Options> answerTo(const QStringList &arguments);
    /** Why the options make no sense; empty if they do. */
    QString problem(const QStringList &pages) const;
    Options options() const;

    std::optional<MqttSettings> publisher(QString *problem) const
    {
        return mqtt.read(parser, problem);
    }
    std::optional<Costs::CostRules> costs(QString *problem) const
    {
        return costOptions.read(parser, problem);
    }

private:
    QString missingValue() const;
    QString historyDirectory() const;

    // The parser's own one comes with --help-all, which has no more to say.
    const QCommandLineOption help {{QStringLiteral("h"), QStringLiteral("help")},
                                   QStringLiteral("Displays help on commandline options.")};
    const QCommandLineOption version {{QStringLiteral("v"), QStringLiteral("version")},
                                      QStringLiteral("Displays version information.")};
    const QCommandLineOption readings {
        QStringLiteral("readings"),
        QStringLiteral("Show the readings of these CSV files, which are those of one household; "
                       "with --p1 or --mqtt they are what was counted before the meter was "
                       "followed."),
        QStringLiteral("FILE...")};
    const QCommandLineOption meter {
        QStringLiteral("p1"),
        QStringLiteral("Follow the P1 telegrams of a smart meter: a file, - for standard input, a "
                       "serial port as /dev/ttyUSB0, or [tcp://]host:port."),
        QStringLiteral("SOURCE")};
    const MqttOptions mqtt;
    const CostOptions costOptions;
    const QCommandLineOption importFiles {
        QStringLiteral("import"),
        QStringLiteral("Keep the readings of these CSV files in the history, and end."),
        QStringLiteral("FILE...")};
    const QCommandLineOption exportFile {
        QStringLiteral("export"),
        QStringLiteral("Write the history to this file as CSV, by the hour, and end."),
        QStringLiteral("FILE")};
    const QCommandLineOption exportMonths {
        QStringLiteral("export-months"),
        QStringLiteral("Write the table of months to this file as CSV, of --readings or else of "
                       "the history, with what they cost by --contract, and end."),
        QStringLiteral("FILE")};
    const QCommandLineOption data {
        QStringLiteral("data"),
        QStringLiteral("Keep the history of the meter in this directory, instead of %1.")
            .arg(HistoryKeeper::defaultDirectory()),
        QStringLiteral("DIR")};
    const QCommandLineOption noHistory {QStringLiteral("no-history"),
                                        QStringLiteral("Keep no history of the meter.")};
    const QCommandLineOption speed {
        QStringLiteral("speed"),
        QStringLiteral("Let the simulated house, or a file of telegrams, run N times as fast."),
        QStringLiteral("N"), QStringLiteral("1")};
    const QCommandLineOption size {
        QStringLiteral("size"),
        QStringLiteral("Be as large as this, in pixels, as 1024x600; at least 640x480, or 480x800. "
                       "If left out: 640x480, or the whole screen where there is no window "
                       "manager."),
        QStringLiteral("WxH")};
    const QCommandLineOption page;
    const QCommandLineOption language {
        QStringLiteral("language"),
        QStringLiteral("Speak %1: pages, messages, dates and numbers; Dutch unless given. The "
                       "on-screen keyboard is of that language too, until another one is chosen.")
            .arg(Language::all().join(QStringLiteral(", "))),
        QStringLiteral("LANGUAGE"), QStringLiteral("nl")};
    const QCommandLineOption screenshots {
        QStringLiteral("screenshots"),
        QStringLiteral("Write each page and each chart as a PNG to this directory, and end."),
        QStringLiteral("DIR")};
    QCommandLineParser parser;
};

CommandLine::CommandLine(const QStringList &pages)
    : page(QStringLiteral("page"),
           QStringLiteral("Open this page: %1.").arg(pages.join(QStringLiteral(", "))),
           QStringLiteral("NAME"), pages.value(0))
{
    parser.setApplicationDescription(
        QStringLiteral("Shows the energy of a household: a simulated one, or a real one with "
                       "--readings, --p1 or --mqtt."));
    parser.addOptions({help, version, readings, meter});
    parser.addOptions(mqtt.all());
    parser.addOptions(costOptions.all());
    parser.addOptions({importFiles, exportFile, exportMonths, data, noHistory, speed, size, page,
                       language, screenshots});
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("More files of --readings or --import."),
                                 QStringLiteral("[FILE...]"));
}

std::optional<Options> CommandLine::answerTo(const QStringList &arguments)
{
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
    return {};
}

QString CommandLine::missingValue() const
{
    const std::pair<const QCommandLineOption &, QString> wants[] = {
        {exportFile, QStringLiteral("--export wants a file")},
        {exportMonths, QStringLiteral("--export-months wants a file")},
        {data, QStringLiteral("--data wants a directory")},
        {meter, QStringLiteral("--p1 wants a file, a serial port, host:port or -")},
        {screenshots, QStringLiteral("--screenshots wants a directory")}};
    for (const auto &[option, wanted] : wants) {
        if (parser.isSet(option) && parser.value(option).isEmpty()) {
            return wanted;
        }
    }
    return {};
}

QString CommandLine::problem(const QStringList &pages) const
{
    if (!parser.positionalArguments().isEmpty() && !parser.isSet(readings)
        && !parser.isSet(importFiles)) {
        return QStringLiteral("unexpected argument '%1'")
            .arg(parser.positionalArguments().constFirst());
    }
    if (!pages.contains(parser.value(page))) {
        return QStringLiteral("no page '%1'; there is %2")
            .arg(parser.value(page), pages.join(QStringLiteral(", ")));
    }
    if (!Language::all().contains(parser.value(language))) {
        return QStringLiteral("no language '%1'; there is %2")
            .arg(parser.value(language), Language::all().join(QStringLiteral(", ")));
    }
    for (const QString &wrong : {clashIn(parser), missingValue()}) {
        if (!wrong.isEmpty()) {
            return wrong;
        }
    }
    if (parser.isSet(speed) && parser.isSet(readings) && !parser.isSet(meter)) {
        return QStringLiteral("--speed and --readings do not go together: files of readings stand "
                              "still");
    }
    if (lacksPort(parser.value(meter))) {
        return QStringLiteral("--p1 wants a port behind the host: %1:8088")
            .arg(parser.value(meter));
    }
    if (!parseSpeed(parser.value(speed))) {
        return QStringLiteral("--speed wants a number from %1 to %2, not '%3'")
            .arg(HouseClock::slowest)
            .arg(HouseClock::fastest)
            .arg(parser.value(speed));
    }
    if (parser.isSet(size) && !DisplayScale::parseSize(parser.value(size))) {
        return QStringLiteral("--size wants WIDTHxHEIGHT, at least 640x480 or 480x800, not '%1'")
            .arg(parser.value(size));
    }
    return {};
}

QString CommandLine::historyDirectory() const
{
    if (parser.isSet(data)) {
        return parser.value(data);
    }
    // Pictures are a look at a meter, not a part of the household's life, unless it is asked for.
    const bool keeps = !parser.isSet(noHistory) && !parser.isSet(screenshots);
    return keeps ? HistoryKeeper::defaultDirectory() : QString();
}

Options CommandLine::options() const
{
    Options options;
    options.meter = parser.value(meter);
    options.history = historyDirectory();
    options.speed = *parseSpeed(parser.value(speed));
    (parser.isSet(importFiles) ? options.imports : options.readings) =
        parser.values(importFiles) + parser.values(readings) + parser.positionalArguments();
    options.exportTo = parser.value(exportFile);
    options.exportMonthsTo = parser.value(exportMonths);
    options.size = DisplayScale::parseSize(parser.value(size));
    options.page = parser.value(page);
    options.language = parser.value(language);
    options.screenshots = parser.value(screenshots);
    return options;
}

} // namespace

Options readOptions(const QStringList &arguments, const QStringList &pages)
{
    CommandLine line(pages);
    if (const std::optional<Options> answer = line.answerTo(arguments)) {
        return *answer;
    }
    QString problem = line.problem(pages);
    if (!problem.isEmpty()) {
        return refusal(problem);
    }
    Options options = line.options();
    options.mqtt = line.publisher(&problem);
    if (problem.isEmpty()) {
        options.costs = line.costs(&problem);
    }
    return problem.isEmpty() ? options : refusal(problem);
}

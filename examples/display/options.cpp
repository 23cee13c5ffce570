// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>

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

} // namespace

Options readOptions(const QStringList &arguments, const QStringList &pages)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows the energy of a household on a screen of 640 by 480 pixels."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption readings(
        QStringLiteral("readings"),
        QStringLiteral("Show the readings of these CSV files, which are those of one household."),
        QStringLiteral("FILE..."));
    const QCommandLineOption page(
        QStringLiteral("page"),
        QStringLiteral("Open this page: %1.").arg(pages.join(QStringLiteral(", "))),
        QStringLiteral("NAME"), pages.value(0));
    const QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        QStringLiteral("Write each page and each chart as a PNG to this directory, and end."),
        QStringLiteral("DIR"));
    parser.addOptions({readings, page, screenshots});
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QStringLiteral("More files of --readings."),
                                 QStringLiteral("[FILE...]"));

    if (!parser.parse(arguments)) {
        return refusal(parser.errorText());
    }
    if (parser.isSet(help)) {
        return answer(parser.helpText());
    }
    if (parser.isSet(version)) {
        return answer(QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(),
                                                    QCoreApplication::applicationVersion()));
    }
    if (!parser.positionalArguments().isEmpty() && !parser.isSet(readings)) {
        return refusal(QStringLiteral("unexpected argument '%1'")
                           .arg(parser.positionalArguments().constFirst()));
    }
    if (!pages.contains(parser.value(page))) {
        return refusal(QStringLiteral("no page '%1'; there is %2")
                           .arg(parser.value(page), pages.join(QStringLiteral(", "))));
    }

    Options options;
    options.readings = parser.values(readings) + parser.positionalArguments();
    options.page = parser.value(page);
    options.screenshots = parser.value(screenshots);
    return options;
}

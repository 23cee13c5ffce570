// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include "pagetable.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>

namespace {

constexpr int exitFailure = 1;
constexpr int exitNothingToShow = 2;

Options refusal(const QString &reason, int status = exitFailure)
{
    Options options;
    options.action = Options::Action::Refuse;
    options.status = status;
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

/** Dutch, which needs no catalogue, and those of the library. */
QStringList languages()
{
    QStringList all {QStringLiteral("nl")};
    const QStringList catalogues = QDir(QStringLiteral(":/zemkit/translations")).entryList();
    for (const QString &catalogue : catalogues) {
        all << catalogue.section(QLatin1Char('_'), 1).section(QLatin1Char('.'), 0, 0);
    }
    all.sort();
    return all;
}

QString listOfClasses()
{
    constexpr int nameWidth = 32;
    QString list;
    for (const QString &name : allClasses()) {
        list += QStringLiteral("%1%2\n").arg(name, -nameWidth).arg(pageOf(name)->summary);
    }
    return list;
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows each class of zemkit alive, with its properties to play with and the source of the "
        "sample, on a screen of 640 by 480 pixels.\n\n"
        "Exit status: 0 if all went well, 1 for bad arguments or pictures that cannot be written, "
        "2 for a page that there is not."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption page(QStringLiteral("page"),
                                  QStringLiteral("Open the page of this class."),
                                  QStringLiteral("CLASS"));
    const QCommandLineOption list(QStringLiteral("list"),
                                  QStringLiteral("List all classes, and end."));
    const QCommandLineOption screenshots(
        QStringLiteral("screenshots"),
        QStringLiteral("Write the sample of each class as a PNG to this directory, and end."),
        QStringLiteral("DIR"));
    const QCommandLineOption language(
        QStringLiteral("language"),
        QStringLiteral("Let the library speak %1; Dutch unless given.")
            .arg(languages().join(QStringLiteral(", "))),
        QStringLiteral("LANGUAGE"), QStringLiteral("nl"));
    parser.addOptions({page, list, language, screenshots});

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
    if (parser.isSet(list)) {
        return answer(listOfClasses());
    }
    if (!parser.positionalArguments().isEmpty()) {
        return refusal(QStringLiteral("unexpected argument '%1'")
                           .arg(parser.positionalArguments().constFirst()));
    }
    if (parser.isSet(screenshots) && parser.value(screenshots).isEmpty()) {
        return refusal(QStringLiteral("--screenshots wants a directory"));
    }
    if (parser.isSet(page) && !pageOf(parser.value(page))) {
        return refusal(QStringLiteral("no class '%1'; did you mean %2?")
                           .arg(parser.value(page), nearestClass(parser.value(page))),
                       exitNothingToShow);
    }

    if (!languages().contains(parser.value(language))) {
        return refusal(QStringLiteral("no language '%1'; there is %2")
                           .arg(parser.value(language), languages().join(QStringLiteral(", "))));
    }

    Options options;
    options.page = parser.value(page);
    options.language = parser.value(language);
    options.screenshots = parser.value(screenshots);
    return options;
}

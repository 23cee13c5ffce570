// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "options.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QRegularExpression>

namespace {

constexpr int smallestSide = 100; // pixels
constexpr int largestSide = 8192; // pixels

const auto sizeName = QStringLiteral("size");
const auto pngName = QStringLiteral("png");

Options refusal(const QString &reason)
{
    Options options;
    options.action = Options::Action::Refuse;
    // One line, which a log keeps together.
    options.text =
        QStringLiteral("%1: %2; see --help\n").arg(QCoreApplication::applicationName(), reason);
    return options;
}

Options answer(const QString &text)
{
    Options options;
    options.action = Options::Action::PrintAndEnd;
    options.text = text;
    return options;
}

/** The size in @p text, as "640x480"; empty if there is none, or one that is out of range. */
QSize parseSize(const QString &text)
{
    static const QRegularExpression pattern(QStringLiteral("\\A([0-9]{1,5})x([0-9]{1,5})\\z"));
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    const auto inRange = [](int side) { return side >= smallestSide && side <= largestSide; };
    return inRange(size.width()) && inRange(size.height()) ? size : QSize();
}

/** What a command line without mistakes of spelling asks for. */
Options options(const QCommandLineParser &parser)
{
    if (parser.positionalArguments().isEmpty()) {
        return refusal(QStringLiteral("no keyboard file given"));
    }
    if (parser.isSet(pngName) && parser.value(pngName).isEmpty()) {
        return refusal(QStringLiteral("--png wants a directory"));
    }

    Options result;
    result.files = parser.positionalArguments();
    result.pngDirectory = parser.value(pngName);
    result.size = parseSize(parser.value(sizeName));
    if (result.size.isEmpty()) {
        return refusal(
            QStringLiteral("--size wants two numbers from %1 to %2, as 640x480, not '%3'")
                .arg(smallestSide)
                .arg(largestSide)
                .arg(parser.value(sizeName)));
    }
    return result;
}

} // namespace

Options readOptions(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "Shows keyboard files as they will look in their dialog, and tells what is wrong with "
        "them, as FILE:LINE: TEXT on standard output.\n\n"
        "Without --png, the pictures are shown in a window, if there is a display.\n\n"
        "Exit status: 0 if nothing is wrong, 1 if something is, 2 for bad arguments or files that "
        "cannot be read or written."));
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    const QCommandLineOption size(
        sizeName,
        QStringLiteral("The size of the page that the keyboard is on, in pixels; 640x480 if left "
                       "out."),
        QStringLiteral("WxH"), QStringLiteral("640x480"));
    const QCommandLineOption png(
        pngName,
        QStringLiteral("Write the pictures to this directory, one for each page and caps state, "
                       "and two of the popups."),
        QStringLiteral("DIR"));
    parser.addOptions({size, png});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Keyboard files."),
                                 QStringLiteral("FILE..."));

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
    return options(parser);
}

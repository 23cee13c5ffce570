// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardcheck.h"
#include "options.h"
#include "pictures.h"
#include "previewwindow.h"

#include <QApplication>
#include <QLoggingCategory>
#include <QStyleFactory>
#include <ZEMStyle>
#include <cstdio>
#include <zemkit_version.h>

namespace {

constexpr int exitFindings = 1;
constexpr int exitFailure = 2;

void print(std::FILE *stream, const QString &text)
{
    std::fputs(text.toUtf8().constData(), stream);
    std::fflush(stream);
}

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("zemkit-keyboard-preview"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEMKIT_VERSION_STR));
}

Options optionsOf(int argc, char *argv[])
{
    // Help, version and refusals need no display.
    const QCoreApplication application(argc, argv);
    nameApplication();
    return readOptions(application.arguments());
}

/** Whether windows can be seen; to be asked before there is an application. */
bool hasDisplay()
{
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    if (!platform.isEmpty()) {
        return !platform.startsWith("offscreen") && !platform.startsWith("minimal");
    }
    return !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

void setLook()
{
    QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    ZEMStyle::setApplicationFonts();
    // A blinking cursor would make a picture differ from the next.
    QApplication::setCursorFlashTime(0);
    // All that keyboards trace is told in better words.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

struct Outcome
{
    int status = 0;
    QVector<Picture> pictures;
};

Outcome preview(const Options &options, bool draw)
{
    Outcome outcome;
    const QStringList names = pictureNames(options.files);
    for (int i = 0; i < options.files.size(); ++i) {
        const QString &file = options.files.at(i);
        const KeyboardReport report = checkKeyboard(file, options.size);
        if (!report.problem.isEmpty()) {
            print(stderr, report.problem + QLatin1Char('\n'));
            outcome.status = exitFailure;
            continue;
        }
        for (const Finding &finding : report.findings) {
            print(stdout,
                  QStringLiteral("%1:%2: %3\n").arg(file).arg(finding.line).arg(finding.text));
            outcome.status = qMax(outcome.status, exitFindings);
        }
        if (draw) {
            outcome.pictures += drawPictures(file, names.at(i), options.size);
        }
    }
    return outcome;
}

} // namespace

int main(int argc, char *argv[])
{
    const Options options = optionsOf(argc, argv);
    if (options.action == Options::Action::PrintAndEnd) {
        print(stdout, options.text);
        return 0;
    }
    if (options.action == Options::Action::Refuse) {
        print(stderr, options.text);
        return exitFailure;
    }

    const bool toWindow = options.pngDirectory.isEmpty() && hasDisplay();
    if (!toWindow && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    nameApplication();
    setLook();

    const Outcome outcome = preview(options, toWindow || !options.pngDirectory.isEmpty());
    if (!options.pngDirectory.isEmpty()) {
        const QString problem = writePictures(outcome.pictures, options.pngDirectory);
        if (!problem.isEmpty()) {
            print(stderr, QStringLiteral("zemkit-keyboard-preview: %1\n").arg(problem));
            return exitFailure;
        }
    }
    if (toWindow && !outcome.pictures.isEmpty()) {
        PreviewWindow window(outcome.pictures);
        window.show();
        QApplication::exec();
    }
    return outcome.status;
}

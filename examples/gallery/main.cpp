// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "gallerywindow.h"
#include "options.h"
#include "pictures.h"

#include <QApplication>
#include <QDir>
#include <QLocale>
#include <QLoggingCategory>
#include <QStyleFactory>
#include <QTextStream>
#include <QTranslator>
#include <ZEMStyle>
#include <zemkit_version.h>

namespace {

constexpr int exitFailure = 1;

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("zemkit-gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEMKIT_VERSION_STR));
}

Options optionsOf(int argc, char *argv[])
{
    // Help, version, list and refusals need no display.
    const QCoreApplication application(argc, argv);
    nameApplication();
    return readOptions(application.arguments());
}

void setLook()
{
    QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    ZEMStyle::setApplicationFonts();
    // A blinking cursor would make a picture differ from the next.
    QApplication::setCursorFlashTime(0);
    // The chart page and the keyboards of the library trace what they do.
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

/** Texts of the library, and the dates and numbers in them. */
void speak(const QString &language)
{
    QLocale::setDefault(QLocale(language));
    auto *translator = new QTranslator(QCoreApplication::instance());
    // Dutch is what the texts are without one.
    if (translator->load(QLocale(), QStringLiteral("zemkit"), QStringLiteral("_"),
                         QStringLiteral(":/zemkit/translations"))) {
        QCoreApplication::installTranslator(translator);
    }
}

/** Beside the program where it is installed, else those of the sources. */
QString keyboardDirectory()
{
    const QDir installed(QCoreApplication::applicationDirPath()
                         + QStringLiteral("/../share/zemkit/keyboards"));
    return installed.exists() ? installed.absolutePath() : QStringLiteral(KEYBOARD_DIR);
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
        return options.status;
    }

    if (!options.screenshots.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    nameApplication();
    setLook();
    speak(options.language);

    if (!options.screenshots.isEmpty()) {
        const QString problem = writePictures(options.screenshots, keyboardDirectory());
        if (!problem.isEmpty()) {
            QTextStream(stderr) << "zemkit-gallery: " << problem << '\n';
            return exitFailure;
        }
        return 0;
    }
    GalleryWindow window(keyboardDirectory());
    window.openClass(options.page);
    window.show();
    return QApplication::exec();
}

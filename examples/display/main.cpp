// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "charts/chartspage.h"
#include "options.h"
#include "readingsfile.h"
#include "screenshots.h"

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QStyleFactory>
#include <QTextStream>
#include <ZEMStyle>

#include <memory>

namespace {

constexpr int exitFailure = 1;
constexpr int exitNothingToShow = 2;

void printError(const QString &line)
{
    QTextStream(stderr) << line << '\n';
}

void nameApplication()
{
    QCoreApplication::setApplicationName(QStringLiteral("zemkit-display"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ZEMKIT_VERSION));
}

Options optionsOf(int argc, char *argv[])
{
    // Help, version and refusals need no display.
    const QCoreApplication application(argc, argv);
    nameApplication();
    return readOptions(application.arguments(), {QStringLiteral("charts")});
}

void setLook()
{
    QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    QFont::insertSubstitution(QStringLiteral("Quicksand Book"), QStringLiteral("Quicksand"));
    QApplication::setFont(QFont(QStringLiteral("Cabin"), 11));
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

    const Readings::Household household = Readings::loadReadings(options.readings);
    for (const QString &problem : household.problems) {
        printError(problem);
    }
    if (energiesOf(household).empty()) {
        printError(options.readings.isEmpty()
                       ? QStringLiteral("zemkit-display: nothing to show; give --readings FILE...")
                       : QStringLiteral("zemkit-display: nothing to show, as no reading of the "
                                        "files could be used"));
        return exitNothingToShow;
    }

    if (!options.screenshots.isEmpty() && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    nameApplication();
    const QApplication application(argc, argv);
    // The texts are Dutch, and so are the dates and numbers in them.
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    setLook();

    const auto charts = std::make_unique<ChartsPage>(household);
    charts->setWindowTitle(QStringLiteral("zemkit-display"));
    charts->setFixedSize(640, 480);

    charts->show();
    if (!options.screenshots.isEmpty()) {
        const QString problem = writeScreenshots(options.screenshots, charts.get());
        if (!problem.isEmpty()) {
            printError(QStringLiteral("zemkit-display: %1").arg(problem));
            return exitFailure;
        }
        return 0;
    }
    return QApplication::exec();
}

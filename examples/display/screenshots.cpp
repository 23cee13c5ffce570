// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "screenshots.h"

#include "chartspage.h"
#include "displaywindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QPixmap>

namespace {

/** Grabs pictures into a directory until one cannot be written. */
class PictureWriter
{
public:
    PictureWriter(const QString &directory, DisplayWindow *shownDisplay)
        : dir(directory), display(shownDisplay)
    {
        if (!dir.mkpath(QStringLiteral("."))) {
            problem = QStringLiteral("cannot make the directory %1").arg(directory);
        }
    }

    void write(const QString &name)
    {
        // A new headline has asked for room, which it gets in the event loop.
        QCoreApplication::processEvents();
        const QString path = dir.filePath(name + QStringLiteral(".png"));
        if (problem.isEmpty() && !display->grab().save(path)) {
            problem = QStringLiteral("cannot write %1").arg(path);
        }
    }

    QString firstProblem() const { return problem; }

private:
    const QDir dir;
    DisplayWindow *const display;
    QString problem;
};

} // namespace

QString writeScreenshots(const QString &directory, DisplayWindow *display)
{
    PictureWriter writer(directory, display);
    for (const QString &name : DisplayWindow::pageNames()) {
        display->openPage(name);
        writer.write(name);
    }

    ChartsPage *charts = display->chartsPage();
    display->setCurrentWidget(charts);
    for (const Energy &energy : charts->allEnergies()) {
        for (const Period period : allPeriods) {
            const QString name =
                QStringLiteral("charts-%1-%2").arg(energy.key, QLatin1String(infoOf(period).key));
            charts->showChart(energy.tab, period);
            writer.write(name);
            // The newest period tends to be unfinished.
            charts->showPreviousPeriod();
            writer.write(name + QStringLiteral("-before"));
        }
    }
    return writer.firstProblem();
}

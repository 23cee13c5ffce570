// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "screenshots.h"

#include "chartspage.h"
#include "displaywindow.h"

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QPixmap>
#include <QTimer>
#include <ZEMButton>
#include <ZEMDialogPopup>
#include <ZEMDialogShowText>
#include <ZEMLineEditButton>
#include <functional>

namespace {

constexpr int timeToShow = 150; // milliseconds that a dialog needs to stand

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

    /** Grabs what @p open lays over the page, and closes it again. */
    void writeOverlay(const QString &name, const std::function<void()> &open)
    {
        QEventLoop loop;
        bool isWritten = false;
        QTimer::singleShot(timeToShow, &loop, [&] {
            write(name);
            closeOverlays();
            isWritten = true;
            loop.quit();
        });
        // Questions come back when they are closed, everything else at once.
        open();
        if (!isWritten) {
            loop.exec();
        }
    }

    QString firstProblem() const { return problem; }

private:
    void closeOverlays()
    {
        const auto children =
            display->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
        for (QWidget *child : children) {
            if (auto *popup = qobject_cast<ZEMDialogPopup *>(child)) {
                popup->reset();
            } else if (auto *text = qobject_cast<ZEMDialogShowText *>(child)) {
                text->reset();
            } else if (display->indexOf(child) < 0) {
                child->hide();
            }
        }
    }

    const QDir dir;
    DisplayWindow *const display;
    QString problem;
};

void writeCharts(PictureWriter &writer, DisplayWindow *display)
{
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
}

/** The page of months once more, with what they cost. */
void writeCosts(PictureWriter &writer, DisplayWindow *display)
{
    display->openPage(QStringLiteral("months"));
    auto *change = display->currentWidget()->findChild<ZEMButton *>(QStringLiteral("change"));
    if (change && change->isVisible()) {
        change->click();
        writer.write(QStringLiteral("months-costs"));
        change->click();
    }
}

/** What the header opens, and what each field of a page asks. */
void writeOverlays(PictureWriter &writer, DisplayWindow *display)
{
    display->openPage(DisplayWindow::pageNames().constFirst());
    writer.writeOverlay(QStringLiteral("menu"), [display] { display->openMenu(); });
    writer.writeOverlay(QStringLiteral("pages"), [display] { display->openPageGrid(); });
    writer.writeOverlay(QStringLiteral("messages"), [display] { display->openMessages(); });
    for (const QString &page : DisplayWindow::pageNames()) {
        display->openPage(page);
        const auto fields = display->currentWidget()->findChildren<ZEMLineEditButton *>();
        for (ZEMLineEditButton *field : fields) {
            writer.writeOverlay(QStringLiteral("%1-%2").arg(page, field->objectName()),
                                [field] { field->click(); });
        }
    }
}

} // namespace

QString writeScreenshots(const QString &directory, DisplayWindow *display)
{
    PictureWriter writer(directory, display);
    for (const QString &name : DisplayWindow::pageNames()) {
        display->openPage(name);
        writer.write(name);
    }
    writeCosts(writer, display);
    writeCharts(writer, display);
    writeOverlays(writer, display);
    return writer.firstProblem();
}

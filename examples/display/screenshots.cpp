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

namespace {

constexpr int timeToShow = 150; // milliseconds that a dialog needs to stand

/** Shows one thing after the other and lets somebody look at each. */
class Tour
{
public:
    Tour(DisplayWindow *shownDisplay, const ScreenVisitor &theVisitor)
        : display(shownDisplay), visitor(theVisitor)
    {
    }

    void showPages() const
    {
        for (const QString &name : DisplayWindow::pageNames()) {
            display->openPage(name);
            visit(name);
        }
    }

    void showCharts() const
    {
        ChartsPage *charts = display->chartsPage();
        display->setCurrentWidget(charts);
        for (const Energy &energy : charts->allEnergies()) {
            for (const Period period : allPeriods) {
                const QString name = QStringLiteral("charts-%1-%2")
                                         .arg(energy.key, QLatin1String(infoOf(period).key));
                charts->showChart(energy.tab, period);
                visit(name);
                // The newest period tends to be unfinished.
                charts->showPreviousPeriod();
                visit(name + QStringLiteral("-before"));
            }
        }
    }

    /** The page of months once more, with what they cost. */
    void showCosts() const
    {
        display->openPage(QStringLiteral("months"));
        auto *change = display->currentWidget()->findChild<ZEMButton *>(QStringLiteral("change"));
        if (change && change->isVisible()) {
            change->click();
            visit(QStringLiteral("months-costs"));
            change->click();
        }
    }

    /** What the header opens, and what each field of a page asks. */
    void showOverlays() const
    {
        display->openPage(DisplayWindow::pageNames().constFirst());
        showOverlay(QStringLiteral("menu"), [this] { display->openMenu(); });
        showOverlay(QStringLiteral("pages"), [this] { display->openPageGrid(); });
        showOverlay(QStringLiteral("messages"), [this] { display->openMessages(); });
        for (const QString &page : DisplayWindow::pageNames()) {
            display->openPage(page);
            const auto fields = display->currentWidget()->findChildren<ZEMLineEditButton *>();
            for (ZEMLineEditButton *field : fields) {
                showOverlay(QStringLiteral("%1-%2").arg(page, field->objectName()),
                            [field] { field->click(); });
            }
        }
    }

private:
    void visit(const QString &name) const
    {
        // A new headline has asked for room, which it gets in the event loop.
        QCoreApplication::processEvents();
        visitor(name);
    }

    /** Shows what @p open lays over the page, and closes it again. */
    void showOverlay(const QString &name, const std::function<void()> &open) const
    {
        QEventLoop loop;
        bool wasShown = false;
        QTimer::singleShot(timeToShow, &loop, [&] {
            visit(name);
            closeOverlays();
            wasShown = true;
            loop.quit();
        });
        // Questions come back when they are closed, everything else at once.
        open();
        if (!wasShown) {
            loop.exec();
        }
    }

    void closeOverlays() const
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

    DisplayWindow *const display;
    const ScreenVisitor &visitor;
};

} // namespace

void visitScreens(DisplayWindow *display, const ScreenVisitor &visitor)
{
    const Tour tour(display, visitor);
    tour.showPages();
    tour.showCosts();
    tour.showCharts();
    tour.showOverlays();
}

QString writeScreenshots(const QString &directory, DisplayWindow *display)
{
    const QDir dir(directory);
    if (!dir.mkpath(QStringLiteral("."))) {
        return QStringLiteral("cannot make the directory %1").arg(directory);
    }
    QString problem;
    visitScreens(display, [&](const QString &name) {
        const QString path = dir.filePath(name + QStringLiteral(".png"));
        if (problem.isEmpty() && !display->grab().save(path)) {
            problem = QStringLiteral("cannot write %1").arg(path);
        }
    });
    return problem;
}

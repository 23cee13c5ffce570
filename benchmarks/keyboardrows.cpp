// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardrows.h"

#include "benchmark.h"
#include "keyboardpage.h"

#include <QCoreApplication>
#include <QElapsedTimer>

using BenchTable::Round;
using BenchTable::Row;
using Keyboards::Page;
using Keyboards::Popups;

namespace {

using Maker = std::shared_ptr<Page> (*)(Popups);

constexpr int rounds = 51;
constexpr int keyCount = Keyboards::rows * Keyboards::columns;
constexpr auto ownName = "zemkit";
constexpr auto floorName = "bare buttons";
constexpr auto styleSheetName = "style sheets";

std::shared_ptr<Page> shownPage(Maker make, Popups popups)
{
    const std::shared_ptr<Page> page = make(popups);
    page->window()->show();
    Benchmark::settle();
    return page;
}

/** Touches all keys, each from the press of the mouse to the picture behind its release. */
double touchRound(Page *page)
{
    QElapsedTimer timer;
    timer.start();
    for (int key = 0; key < keyCount; ++key) {
        const QPointF centre =
            Keyboards::keyCentre(key / Keyboards::columns, key % Keyboards::columns);
        Benchmark::sendMouse(page->window(), QEvent::MouseButtonPress, centre);
        Benchmark::settle();
        Benchmark::sendMouse(page->window(), QEvent::MouseButtonRelease, centre);
        Benchmark::settle();
    }
    return double(timer.nsecsElapsed()) / keyCount;
}

constexpr int openingsInRound = 10;

/** Shows the keyboard that is hidden, until it is painted. */
double openRound(Page *page)
{
    qint64 elapsed = 0;
    for (int i = 0; i < openingsInRound; ++i) {
        page->board()->hide();
        Benchmark::settle();
        QElapsedTimer timer;
        timer.start();
        page->board()->show();
        Benchmark::settle();
        elapsed += timer.nsecsElapsed();
    }
    return double(elapsed) / openingsInRound;
}

BenchTable::Contender contender(const char *name, Maker make, Popups popups,
                                double (*round)(Page *))
{
    return {QString::fromLatin1(name), [make, popups, round]() -> Round {
                const auto page = shownPage(make, popups);
                return [page, round] { return round(page.get()); };
            }};
}

Row touchRow(const QString &key, const QString &work, Popups popups)
{
    const QString floor = QString::fromLatin1(floorName);
    const QString styleSheet = QString::fromLatin1(styleSheetName);
    return {key,
            work,
            keyCount,
            rounds,
            {contender(ownName, Keyboards::libraryPage, popups, touchRound),
             contender(floorName, Keyboards::barePage, popups, touchRound),
             contender(styleSheetName, Keyboards::styleSheetPage, popups, touchRound)},
            {{floor, 1.2, 1.2}, {styleSheet, 0.3, 0.3}}};
}

Row openRow()
{
    const QString floor = QString::fromLatin1(floorName);
    return {QStringLiteral("keyboard"),
            QStringLiteral("Opening a keyboard of 45 keys again, painted"),
            openingsInRound,
            rounds,
            {contender(ownName, Keyboards::libraryPage, Popups::Shown, openRound),
             contender(floorName, Keyboards::barePage, Popups::Shown, openRound)},
            {{floor, 1.5, 1.5}}};
}

} // namespace

std::vector<Row> keyboardRows()
{
    return {touchRow(QStringLiteral("key"), QStringLiteral("Press and release of a key, painted"),
                     Popups::None),
            touchRow(QStringLiteral("preview"),
                     QStringLiteral("Press and release of a key with its preview, painted"),
                     Popups::Shown),
            openRow()};
}

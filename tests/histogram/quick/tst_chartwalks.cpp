// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "chartwalk.h"
#include "quickpathsfixture.h"

#include <QTest>

#include <algorithm>
#include <optional>

using namespace ChartWalk;
using QuickPathsTest::setOpen;

namespace {

constexpr std::uint32_t rows = 20;
constexpr std::uint32_t walksPerRow = 10;
constexpr std::size_t stepsPerWalk = 50;

struct Finding
{
    std::size_t step;
    QString what;
    Sight plain;
    Sight quick;
};

std::optional<Finding> compare(const Walk &walk)
{
    setOpen(false);
    const std::vector<Sight> plain = take(walk);
    setOpen(true);
    const std::vector<Sight> quick = take(walk);
    for (std::size_t i = 0; i < walk.steps.size(); ++i) {
        const QString what = difference(plain[i], quick[i]);
        if (!what.isEmpty()) {
            return Finding {i, what, plain[i], quick[i]};
        }
    }
    return std::nullopt;
}

/** A walk without the steps that a difference does not need. */
Walk shortened(Walk walk, std::size_t lastStep)
{
    walk.steps.resize(lastStep + 1);
    for (std::size_t i = walk.steps.size(); i-- > 0;) {
        Walk shorter = walk;
        shorter.steps.erase(shorter.steps.begin() + std::ptrdiff_t(i));
        if (compare(shorter)) {
            walk = shorter;
        }
    }
    return walk;
}

void savePictures(const Finding &finding)
{
    const QString folder = qEnvironmentVariable("ZEM_TEST_PICTURES");
    if (!folder.isEmpty()) {
        finding.plain.fresh.save(folder + QStringLiteral("/plain.png"));
        finding.quick.fresh.save(folder + QStringLiteral("/quick.png"));
        finding.plain.screen.save(folder + QStringLiteral("/plainscreen.png"));
        finding.quick.screen.save(folder + QStringLiteral("/quickscreen.png"));
        finding.plain.scaled.save(folder + QStringLiteral("/plainscaled.png"));
        finding.quick.scaled.save(folder + QStringLiteral("/quickscaled.png"));
    }
}

/** Fails with what a reader needs to take the walk again. */
void check(std::uint32_t seed)
{
    const Walk walk = newWalk(seed, stepsPerWalk);
    const auto first = compare(walk);
    if (!first) {
        return;
    }
    const Walk shorter = shortened(walk, first->step);
    const auto last = compare(shorter);
    savePictures(last ? *last : *first);
    QFAIL(qPrintable(QStringLiteral("ZEM_WALK_SEED=%1, step %2 differs in %3; in short: %4, in %5")
                         .arg(seed)
                         .arg(first->step)
                         .arg(first->what, toString(shorter), last ? last->what : QString())));
}

} // namespace

/**
 * A chart shows the same with the quick paths and without, whatever a host does with it.
 * ZEM_WALK_SEED=<number> takes one walk alone, ZEM_TEST_SHARE=1/4 every fourth row from the second
 * on, ZEM_TEST_PICTURES=<folder> keeps what differs.
 */
class tst_ChartWalks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setOpen(true); }
    void quickPathsShowTheSame_data();
    void quickPathsShowTheSame();
};

void tst_ChartWalks::quickPathsShowTheSame_data()
{
    QTest::addColumn<uint>("firstSeed");
    QTest::addColumn<uint>("seedCount");
    bool isOne = false;
    const uint seed = qEnvironmentVariable("ZEM_WALK_SEED").toUInt(&isOne);
    if (isOne) {
        QTest::addRow("walk %u", seed) << seed << 1U;
        return;
    }
    const QString share = qEnvironmentVariable("ZEM_TEST_SHARE", QStringLiteral("0/1"));
    const uint shares = std::max(share.section(QLatin1Char('/'), 1).toUInt(), 1U);
    for (std::uint32_t row = share.section(QLatin1Char('/'), 0, 0).toUInt(); row < rows;
         row += shares) {
        QTest::addRow("walks %u to %u", row * walksPerRow, (row + 1) * walksPerRow - 1)
            << row * walksPerRow << walksPerRow;
    }
}

void tst_ChartWalks::quickPathsShowTheSame()
{
    QFETCH(uint, firstSeed);
    QFETCH(uint, seedCount);
    for (uint seed = firstSeed; seed < firstSeed + seedCount; ++seed) {
        check(seed);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

QTEST_MAIN(tst_ChartWalks)
#include "tst_chartwalks.moc"

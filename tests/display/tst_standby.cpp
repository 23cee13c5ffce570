// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "backlight.h"
#include "playedsource.h"
#include "standbykeeper.h"
#include "standbyrule.h"

#include <QMouseEvent>
#include <QSignalSpy>
#include <QTest>
#include <ZEMCurrentStatusWidget>
#include <ZEMDialogPopup>
#include <ZEMLineEditDialog>
#include <ZEMMenuOverlay>

Q_DECLARE_METATYPE(Rest)

/** A display that nobody touches. */
class tst_Standby : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ruleTellsWhatToDo_data();
    void ruleTellsWhatToDo();
    void keeperTellsOfMinutesWithoutATouch();
    void touchPutsItOff();
    void darkDisplayDoesNotLook();
    void nothingStaysOpen_data();
    void nothingStaysOpen();
    void touchThatWakesDoesNothingElse();
    void backlightFollowsTheDarkPage();
    void backlightThatCannotBeSwitchedIsNamed();
    void machineWithoutABacklightIsLeftAlone();

private:
    PlayedSource source;
};

void tst_Standby::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
}

void tst_Standby::ruleTellsWhatToDo_data()
{
    QTest::addColumn<int>("idle");
    QTest::addColumn<int>("after");
    QTest::addColumn<QTime>("from");
    QTest::addColumn<QTime>("to");
    QTest::addColumn<QTime>("now");
    QTest::addColumn<Rest>("rest");

    const QTime never(0, 0);
    const QTime noon(12, 0);
    const QTime late(23, 0);
    const QTime early(7, 0);
    QTest::newRow("just touched") << 0 << 5 << never << never << noon << Rest::Nothing;
    QTest::newRow("a minute ago") << 1 << 5 << never << never << noon << Rest::Nothing;
    QTest::newRow("two minutes") << 2 << 5 << never << never << noon << Rest::StartPage;
    QTest::newRow("the time of standby") << 5 << 5 << never << never << noon << Rest::Standby;
    QTest::newRow("standby before the start page")
        << 1 << 1 << never << never << noon << Rest::Standby;
    QTest::newRow("never") << 9999 << 0 << never << never << noon << Rest::StartPage;
    QTest::newRow("touched at night") << 0 << 0 << late << early << QTime(3, 0) << Rest::Nothing;
    QTest::newRow("at night") << 1 << 0 << late << early << QTime(3, 0) << Rest::Standby;
    QTest::newRow("as night begins") << 1 << 0 << late << early << late << Rest::Standby;
    QTest::newRow("before it") << 1 << 0 << late << early << QTime(22, 59, 59) << Rest::Nothing;
    QTest::newRow("as it ends") << 1 << 0 << late << early << early << Rest::Nothing;
    QTest::newRow("before midnight")
        << 1 << 0 << late << early << QTime(23, 59, 59) << Rest::Standby;
    QTest::newRow("midnight") << 1 << 0 << late << early << never << Rest::Standby;
    QTest::newRow("night after midnight")
        << 1 << 0 << QTime(1, 0) << early << QTime(0, 30) << Rest::Nothing;
    QTest::newRow("in it") << 1 << 0 << QTime(1, 0) << early << QTime(1, 30) << Rest::Standby;
    QTest::newRow("no night") << 1 << 0 << early << early << early << Rest::Nothing;
}

void tst_Standby::ruleTellsWhatToDo()
{
    QFETCH(int, idle);
    QFETCH(int, after);
    QFETCH(QTime, from);
    QFETCH(QTime, to);
    QFETCH(QTime, now);
    QFETCH(Rest, rest);
    QCOMPARE(restAfter(idle, StandbyRule {after, from, to}, now), rest);
}

void tst_Standby::keeperTellsOfMinutesWithoutATouch()
{
    QTemporaryDir directory;
    DisplaySettings settings(directory.filePath(QStringLiteral("display.ini")));
    settings.setStandby({4, QTime(0, 0), QTime(0, 0)});
    constexpr int minute = 50; // ms
    StandbyKeeper keeper(source, settings, nullptr, minute);
    QStringList told;
    connect(&keeper, &StandbyKeeper::startPageWanted, this, [&] { told << "start page"; });
    connect(&keeper, &StandbyKeeper::standbyWanted, this, [&] { told << "standby"; });
    ZEM_TRY_VERIFY(told.contains("standby"));
    QVERIFY(!told.mid(told.indexOf("standby")).contains("start page"));
}

void tst_Standby::touchPutsItOff()
{
    QTemporaryDir directory;
    DisplaySettings settings(directory.filePath(QStringLiteral("display.ini")));
    settings.setStandby({1, QTime(0, 0), QTime(0, 0)});
    constexpr int minute = 300; // ms
    StandbyKeeper keeper(source, settings, nullptr, minute);
    QElapsedTimer sinceTouch;
    sinceTouch.start();
    QObject touched;
    bool isEarly = false;
    connect(&keeper, &StandbyKeeper::standbyWanted, this,
            [&] { isEarly = isEarly || sinceTouch.elapsed() < minute; });
    for (int i = 0; i < 20; ++i) {
        QMouseEvent touch(QEvent::MouseMove, QPointF(), QPointF(), QPointF(), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        sinceTouch.restart();
        QCoreApplication::sendEvent(&touched, &touch);
        QTest::qWait(minute / 10);
    }
    QVERIFY(!isEarly);
    QSignalSpy dark(&keeper, &StandbyKeeper::standbyWanted);
    ZEM_TRY_VERIFY(!dark.isEmpty());
}

void tst_Standby::darkDisplayDoesNotLook()
{
    PlayedDisplay display(source);
    QVERIFY(display.show());
    display.settings.setStandby({1, QTime(0, 0), QTime(0, 0)});
    QSignalSpy changes(&display.window, &DisplayWindow::standbyChanged);
    display.window.openStandby();
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.takeFirst().constFirst().toBool(), true);
    QVERIFY(!display.window.standbyKeeper()->isLooking());
    PlayedDisplay::tap(display.window.currentWidget());
    QCOMPARE(changes.count(), 1);
    QCOMPARE(changes.constFirst().constFirst().toBool(), false);
    QVERIFY(display.window.standbyKeeper()->isLooking());
}

void tst_Standby::nothingStaysOpen_data()
{
    QTest::addColumn<bool>("isStandby");
    QTest::newRow("start page") << false;
    QTest::newRow("standby") << true;
}

void tst_Standby::nothingStaysOpen()
{
    QFETCH(bool, isStandby);
    PlayedDisplay display(source);
    QVERIFY(display.show());
    const auto rest = [&] {
        StandbyKeeper *keeper = display.window.standbyKeeper();
        if (isStandby) {
            Q_EMIT keeper->standbyWanted();
        } else {
            Q_EMIT keeper->startPageWanted();
        }
    };
    const auto isAtRest = [&] { return display.page() == (isStandby ? "standby" : "overview"); };

    display.window.openPage(QStringLiteral("settings"));
    PlayedDisplay::tap(display.onPage("houseName"));
    QVERIFY(display.overlay<ZEMLineEditDialog>());
    rest();
    QVERIFY(!display.overlay<ZEMLineEditDialog>());
    QVERIFY(isAtRest());

    display.window.openPage(QStringLiteral("settings"));
    display.window.openMenu();
    rest();
    QVERIFY(!display.overlay<ZEMMenuOverlay>());
    QVERIFY(isAtRest());

    // One that waits for its answer gets none.
    display.window.openPage(QStringLiteral("settings"));
    display.settings.setHouseName(QStringLiteral("Weltevree"));
    display.whenOpen<ZEMDialogPopup>([&](ZEMDialogPopup * /*question*/) { rest(); });
    PlayedDisplay::tap(display.onPage("clear"));
    QVERIFY(!display.overlay<ZEMDialogPopup>());
    QVERIFY(isAtRest());
    QCOMPARE(display.settings.houseName(), QStringLiteral("Weltevree"));
}

void tst_Standby::touchThatWakesDoesNothingElse()
{
    PlayedDisplay display(source);
    QVERIFY(display.show());
    auto *tile = display.onPage<ZEMCurrentStatusWidget>("ZEMCurrentStatusWidget");
    const QPoint onTile = tile->mapTo(&display.window, tile->rect().center());
    QSignalSpy clicks(tile, &ZEMCurrentStatusWidget::clicked);
    display.window.openStandby();
    ZemTest::press(display.window.currentWidget(), onTile);
    ZemTest::release(display.window.currentWidget(), onTile);
    QCOMPARE(display.page(), QStringLiteral("overview"));
    QVERIFY(clicks.isEmpty());
    ZemTest::press(tile, tile->rect().center());
    ZemTest::release(tile, tile->rect().center());
    QCOMPARE(clicks.count(), 1);
}

static QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_Standby::backlightFollowsTheDarkPage()
{
    QTemporaryDir directory;
    QVERIFY(QDir(directory.path()).mkpath(QStringLiteral("panel")));
    const QString file = directory.filePath(QStringLiteral("panel/bl_power"));
    QVERIFY(QFile(file).open(QIODevice::WriteOnly));
    Backlight light(directory.path());
    QVERIFY(light.isThere());
    QCOMPARE(light.setLit(false), QString());
    QCOMPARE(contentsOf(file).trimmed(), QByteArray("4"));
    QCOMPARE(light.setLit(true), QString());
    QCOMPARE(contentsOf(file).trimmed(), QByteArray("0"));
}

void tst_Standby::backlightThatCannotBeSwitchedIsNamed()
{
    QTemporaryDir directory;
    // Not even root writes to a directory.
    QVERIFY(QDir(directory.path()).mkpath(QStringLiteral("panel/bl_power")));
    Backlight light(directory.path());
    const QString problem = light.setLit(false);
    QVERIFY2(problem.startsWith(directory.filePath(QStringLiteral("panel/bl_power"))),
             qPrintable(problem));
}

void tst_Standby::machineWithoutABacklightIsLeftAlone()
{
    QTemporaryDir directory;
    Backlight none(directory.filePath(QStringLiteral("missing")));
    QVERIFY(!none.isThere());
    QCOMPARE(none.setLit(false), QString());
}

QTEST_MAIN(tst_Standby)
#include "tst_standby.moc"

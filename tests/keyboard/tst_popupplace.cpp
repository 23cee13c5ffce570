// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "popupplace_p.h"

#include <QRandomGenerator>
#include <QTest>

using Intf = ZEMVirtualKeyboardFactoryIntf;

Q_DECLARE_METATYPE(Intf::KeyboardPopupStyle)

class tst_PopupPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void preview_data();
    void preview();
    void alternatives_data();
    void alternatives();
    void anyPlace();
};

namespace {

const QRect keyboard(30, 100, 400, 200);
constexpr QSize popup(40, 40);

} // namespace

void tst_PopupPlace::preview_data()
{
    QTest::addColumn<QRect>("key");
    QTest::addColumn<Intf::KeyboardPopupStyle>("style");
    QTest::addColumn<QPoint>("place");

    const QRect low(60, 120, 50, 50);
    QTest::newRow("above") << low << Intf::PopupAbove << QPoint(30 + 60 + 5, 100 + 120 - 45);
    QTest::newRow("flip, room above") << low << Intf::PopupFlip << QPoint(95, 175);

    const QRect top(0, 0, 50, 50);
    QTest::newRow("top row, above") << top << Intf::PopupAbove << QPoint(35, 55);
    QTest::newRow("top row, flip") << top << Intf::PopupFlip << QPoint(35, 155);

    QTest::newRow("just room") << QRect(0, 45, 50, 50) << Intf::PopupFlip << QPoint(35, 100);
    QTest::newRow("no room by a pixel")
        << QRect(0, 44, 50, 50) << Intf::PopupFlip << QPoint(35, 100 + 44 + 50 + 5);
    QTest::newRow("no room by a pixel, above")
        << QRect(0, 44, 50, 50) << Intf::PopupAbove << QPoint(35, 99);

    QTest::newRow("odd width") << QRect(0, 90, 55, 50) << Intf::PopupAbove << QPoint(37, 145);
    // Half of -5 is -2: towards zero, not downwards.
    QTest::newRow("narrow key") << QRect(10, 90, 35, 50) << Intf::PopupAbove << QPoint(38, 145);
    QTest::newRow("right edge is free")
        << QRect(390, 90, 10, 50) << Intf::PopupFlip << QPoint(30 + 390 - 15, 145);
}

void tst_PopupPlace::preview()
{
    QFETCH(QRect, key);
    QFETCH(Intf::KeyboardPopupStyle, style);
    QTEST(PopupPlace::preview(keyboard, key, popup, style), "place");
}

void tst_PopupPlace::alternatives_data()
{
    QTest::addColumn<QRect>("key");
    QTest::addColumn<QSize>("panel");
    QTest::addColumn<Intf::KeyboardPopupStyle>("style");
    QTest::addColumn<QPoint>("place");

    const QSize panel(100, 50);
    QTest::newRow("left edges meet")
        << QRect(60, 120, 50, 50) << panel << Intf::PopupAbove << QPoint(90, 165);
    QTest::newRow("left edge of the keyboard")
        << QRect(0, 120, 50, 50) << panel << Intf::PopupAbove << QPoint(30, 165);
    QTest::newRow("just short of the right edge")
        << QRect(299, 120, 50, 50) << panel << Intf::PopupAbove << QPoint(329, 165);
    QTest::newRow("at the right edge")
        << QRect(300, 120, 50, 50) << panel << Intf::PopupAbove << QPoint(330, 165);
    QTest::newRow("beyond the right edge")
        << QRect(350, 120, 50, 50) << panel << Intf::PopupAbove << QPoint(330, 165);
    QTest::newRow("wider than the keyboard")
        << QRect(60, 120, 50, 50) << QSize(419, 50) << Intf::PopupAbove << QPoint(11, 165);
    QTest::newRow("top row, above")
        << QRect(0, 0, 50, 50) << panel << Intf::PopupAbove << QPoint(30, 45);
    QTest::newRow("top row, flip")
        << QRect(0, 0, 50, 50) << panel << Intf::PopupFlip << QPoint(30, 155);
    QTest::newRow("just room") << QRect(0, 55, 50, 50) << panel << Intf::PopupFlip
                               << QPoint(30, 100);
    QTest::newRow("no room by a pixel")
        << QRect(0, 54, 50, 50) << panel << Intf::PopupFlip << QPoint(30, 209);
    QTest::newRow("top right corner, flip")
        << QRect(350, 0, 50, 50) << panel << Intf::PopupFlip << QPoint(330, 155);
}

void tst_PopupPlace::alternatives()
{
    QFETCH(QRect, key);
    QFETCH(QSize, panel);
    QFETCH(Intf::KeyboardPopupStyle, style);
    QTEST(PopupPlace::alternatives(keyboard, key, panel, style), "place");
}

void tst_PopupPlace::anyPlace()
{
    QRandomGenerator random(45);
    for (int i = 0; i < 20000; ++i) {
        const QRect board(random.bounded(-100, 100), random.bounded(-100, 100),
                          random.bounded(1, 700), random.bounded(1, 300));
        const QRect key(random.bounded(0, 600), random.bounded(0, 250), random.bounded(1, 200),
                        random.bounded(1, 80));
        const QSize size(random.bounded(1, 500), random.bounded(1, 80));
        const bool flips = random.bounded(2) == 1;
        const auto style = flips ? Intf::PopupFlip : Intf::PopupAbove;

        int y = board.y() + key.y() - size.height() - 5;
        if (flips && y < board.y()) {
            y = board.y() + key.y() + key.height() + 5;
        }
        const int centred = board.x() + key.x() + (key.width() - size.width()) / 2;
        QCOMPARE(PopupPlace::preview(board, key, size, style), QPoint(centred, y));

        int x = key.x() + board.x();
        if (!(size.width() + x < board.x() + board.width())) {
            x = board.x() + board.width() - size.width();
        }
        QCOMPARE(PopupPlace::alternatives(board, key, size, style), QPoint(x, y));
    }
}

QTEST_APPLESS_MAIN(tst_PopupPlace)
#include "tst_popupplace.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "displayscale.h"

#include <QTest>

class tst_DisplayScale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sizesAreRead_data();
    void sizesAreRead();
    void pagesFillTheScreen_data();
    void pagesFillTheScreen();
    void platformsWithoutAWindowManager_data();
    void platformsWithoutAWindowManager();
    void densityOfThePanelDoesNotCount();
};

void tst_DisplayScale::sizesAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QSize>("size");
    QTest::newRow("least") << "640x480" << QSize(640, 480);
    QTest::newRow("large") << "1280x800" << QSize(1280, 800);
    QTest::newRow("upright") << "480x800" << QSize(480, 800);
    QTest::newRow("square") << "640x640" << QSize(640, 640);
    QTest::newRow("too narrow") << "639x480" << QSize();
    QTest::newRow("too low") << "800x479" << QSize();
    QTest::newRow("upright and too low") << "480x799" << QSize();
    QTest::newRow("too large") << "10001x800" << QSize();
    QTest::newRow("empty") << "" << QSize();
    QTest::newRow("one number") << "640" << QSize();
    QTest::newRow("blank") << "640 x 480" << QSize();
    QTest::newRow("negative") << "-640x-480" << QSize();
    QTest::newRow("too many digits") << "0000640x480" << QSize();
}

void tst_DisplayScale::sizesAreRead()
{
    QFETCH(QString, text);
    QFETCH(QSize, size);
    QCOMPARE(DisplayScale::parseSize(text).value_or(QSize()), size);
}

void tst_DisplayScale::pagesFillTheScreen_data()
{
    QTest::addColumn<QSize>("screen");
    QTest::addColumn<QSize>("page");
    QTest::addColumn<double>("scale");
    QTest::newRow("least") << QSize(640, 480) << QSize(640, 480) << 1.0;
    QTest::newRow("wider") << QSize(800, 480) << QSize(800, 480) << 1.0;
    QTest::newRow("wider and larger") << QSize(1024, 600) << QSize(819, 480) << 1.25;
    QTest::newRow("twice") << QSize(1280, 960) << QSize(640, 480) << 2.0;
    QTest::newRow("upright") << QSize(480, 800) << QSize(480, 800) << 1.0;
    QTest::newRow("upright and larger") << QSize(600, 1024) << QSize(480, 819) << 1.25;
    // Rather small than cut.
    QTest::newRow("too small") << QSize(320, 240) << QSize(640, 480) << 0.5;
}

void tst_DisplayScale::pagesFillTheScreen()
{
    QFETCH(QSize, screen);
    QFETCH(QSize, page);
    QFETCH(double, scale);
    QCOMPARE(DisplayScale::scaleFor(screen), scale);
    QCOMPARE(DisplayScale::pageSizeOn(screen), page);
}

void tst_DisplayScale::platformsWithoutAWindowManager_data()
{
    QTest::addColumn<QString>("platform");
    QTest::addColumn<bool>("isWhole");
    QTest::newRow("frame buffer") << "linuxfb:fb=/dev/fb1" << true;
    QTest::newRow("OpenGL") << "eglfs" << true;
    QTest::newRow("VNC") << "vnc:size=640x480" << true;
    QTest::newRow("X") << "xcb" << false;
    QTest::newRow("Wayland") << "wayland" << false;
    QTest::newRow("pictures") << "offscreen" << false;
    QTest::newRow("none") << "" << false;
}

void tst_DisplayScale::platformsWithoutAWindowManager()
{
    QFETCH(QString, platform);
    QFETCH(bool, isWhole);
    QCOMPARE(DisplayScale::isWholeScreen(platform), isWhole);
}

void tst_DisplayScale::densityOfThePanelDoesNotCount()
{
    const QByteArray density = qgetenv("QT_FONT_DPI");
    qputenv("QT_FONT_DPI", "144");
    DisplayScale::prepare(QSize(1024, 600));
    const QByteArray prepared = qgetenv("QT_FONT_DPI");
    const QByteArray scale = qgetenv("QT_SCALE_FACTOR");
    qputenv("QT_FONT_DPI", density);
    qunsetenv("QT_SCALE_FACTOR");
    QCOMPARE(prepared, QByteArray("96"));
    QCOMPARE(scale, QByteArray("1.25"));
}

QTEST_APPLESS_MAIN(tst_DisplayScale)
#include "tst_displayscale.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "paintcounter.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMThrobber>

#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <functional>

using namespace WidgetTest;
using ZemTest::render;

namespace {

constexpr int frameInterval = 100; // ms

/** The frame of the default strip that is shown, -1 for none of them. */
int shownFrame(const ZEMThrobber &throbber)
{
    static const QImage strip = QPixmap(QStringLiteral(":/zem/graphics/icons/throbber.png"))
                                    .toImage()
                                    .convertToFormat(QImage::Format_ARGB32);
    const QImage shown = throbber.pixmap().toImage().convertToFormat(QImage::Format_ARGB32);
    for (int i = 0; i < 12; ++i) {
        if (shown == strip.copy(i * 32, 0, 32, 32)) {
            return i;
        }
    }
    return -1;
}

bool isEmpty(const ZEMThrobber &throbber)
{
    return throbber.pixmap().isNull();
}

/** Does what the timer does at its end, without waiting for it. */
void tick(ZEMThrobber *throbber)
{
    QVERIFY(QMetaObject::invokeMethod(throbber, "slotChangeImage"));
}

/** Waits for the timer, and returns after one timeout, so that no frame is missed. */
void waitForNextFrame(const ZEMThrobber &throbber)
{
    const qint64 shown = throbber.pixmap().cacheKey();
    QDeadlineTimer deadline(120000); // ms, for a machine that hangs
    while (throbber.pixmap().cacheKey() == shown && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
}

/** The colour of the whole of the frame shown; invalid if it is not of one colour. */
QColor shownColor(const ZEMThrobber &throbber)
{
    const QImage image = throbber.pixmap().toImage();
    const QColor color = image.pixelColor(0, 0);
    return ZemTest::inkRect(image, color).isNull() ? color : QColor();
}

const QList<QColor> stripColors = {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue),
                                   QColor(Qt::yellow)};

} // namespace

class tst_ZEMThrobber : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void newThrobber();
    void declaresItsSlotOnly();
    void framesFollowEachOther();
    void runsFromConstructionOn();
    void runsAtTenFramesASecond();
    void pauseMovesOnByOneFrame();
    void stopEmptiesTheLabel();
    void startMovesOnByOneFrame();
    void startAgainAddsNoFrames();
    void otherStripStartsFromItsFirstFrame();
    void otherStripRunsAgain();
    void restOfTheStripIsNotShown();
    void repeatedStripsAddNoConnections();
    void badStrips_data();
    void badStrips();
    void framesArePaintedInTheMiddle();
    void everyChangeIsPainted();
    void hasNoPicturesWithAShadow();

private:
    QTemporaryDir folder;
    QString stripPath; // four frames of 5 by 7 and 3 columns of white
};

void tst_ZEMThrobber::initTestCase()
{
    QVERIFY(folder.isValid());
    QImage strip(23, 7, QImage::Format_RGB32);
    strip.fill(Qt::white);
    QPainter painter(&strip);
    for (int i = 0; i < stripColors.size(); ++i) {
        painter.fillRect(i * 5, 0, 5, 7, stripColors.at(i));
    }
    painter.end();
    stripPath = folder.filePath(QStringLiteral("strip.png"));
    QVERIFY(strip.save(stripPath));
}

void tst_ZEMThrobber::newThrobber()
{
    ZEMThrobber throbber;
    QCOMPARE(throbber.objectName(), QStringLiteral("ZEMThrobber"));
    QCOMPARE(throbber.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(throbber.alignment(), Qt::Alignment(Qt::AlignCenter));
    QVERIFY(!throbber.getShadow());
    QCOMPARE(shownFrame(throbber), 0);
    QCOMPARE(throbber.sizeHint(), QSize(33, 33)); // a frame and the room for a shadow

    QWidget host;
    QCOMPARE((new ZEMThrobber(&host))->parentWidget(), &host);
    ContextTranslator translator;
    QCOMPARE(ZEMThrobber().windowTitle(), QStringLiteral("ZEMTextLabel/Form"));
}

void tst_ZEMThrobber::declaresItsSlotOnly()
{
    const QMetaObject &metaObject = ZEMThrobber::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMTextLabel::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList());
    QCOMPARE(ownMethodCount(metaObject), 1);
    const int slot = metaObject.indexOfSlot("slotChangeImage()");
    QVERIFY(slot >= metaObject.methodOffset());
    QCOMPARE(metaObject.method(slot).access(), QMetaMethod::Private);
}

void tst_ZEMThrobber::framesFollowEachOther()
{
    ZEMThrobber throbber;
    throbber.pause(); // no timer from here on
    for (int i = 0; i < 30; ++i) {
        QCOMPARE(shownFrame(throbber), (1 + i) % 12);
        tick(&throbber);
    }
}

void tst_ZEMThrobber::runsFromConstructionOn()
{
    const ZEMThrobber throbber; // not even shown
    for (int frame = 0; frame < 5; ++frame) {
        QCOMPARE(shownFrame(throbber), frame);
        waitForNextFrame(throbber);
    }
}

void tst_ZEMThrobber::runsAtTenFramesASecond()
{
    ZEMThrobber throbber;
    throbber.setImage(stripPath, 4);
    int frames = 0;
    QColor last = shownColor(throbber);
    QElapsedTimer clock;
    clock.start();
    while (frames < 10) {
        QTest::qWait(5);
        const QColor color = shownColor(throbber);
        frames += color == last ? 0 : 1;
        last = color;
    }
    // A busy machine may make them come late, but not early.
    QVERIFY2(clock.elapsed() >= 9 * frameInterval, qPrintable(QString::number(clock.elapsed())));
}

void tst_ZEMThrobber::pauseMovesOnByOneFrame()
{
    ZEMThrobber throbber;
    QCOMPARE(shownFrame(throbber), 0);
    throbber.pause();
    QCOMPARE(shownFrame(throbber), 1);
    QTest::qWait(3 * frameInterval);
    QCOMPARE(shownFrame(throbber), 1);
    throbber.pause();
    QCOMPARE(shownFrame(throbber), 2);
}

void tst_ZEMThrobber::stopEmptiesTheLabel()
{
    ZEMThrobber throbber;
    throbber.resize(40, 40);
    QVERIFY(!ZemTest::inkRect(render(&throbber)).isNull());
    throbber.stop();
    QVERIFY(isEmpty(throbber));
    QVERIFY(ZemTest::inkRect(render(&throbber)).isNull());
    QTest::qWait(3 * frameInterval);
    QVERIFY(isEmpty(throbber));

    throbber.start();
    QCOMPARE(shownFrame(throbber), 1); // the frame after the one shown before
    waitForNextFrame(throbber);
    QCOMPARE(shownFrame(throbber), 2);
}

void tst_ZEMThrobber::startMovesOnByOneFrame()
{
    ZEMThrobber throbber;
    throbber.pause();
    QCOMPARE(shownFrame(throbber), 1);
    throbber.start();
    QCOMPARE(shownFrame(throbber), 2);
    waitForNextFrame(throbber);
    QCOMPARE(shownFrame(throbber), 3);
}

void tst_ZEMThrobber::startAgainAddsNoFrames()
{
    ZEMThrobber throbber;
    throbber.start();
    throbber.start();
    QCOMPARE(shownFrame(throbber), 2);
    throbber.stop();
    QTest::qWait(2 * frameInterval);
    QVERIFY(isEmpty(throbber));
}

void tst_ZEMThrobber::otherStripStartsFromItsFirstFrame()
{
    ZEMThrobber throbber;
    throbber.pause();
    throbber.setImage(stripPath, 4);
    QCOMPARE(throbber.pixmap().size(), QSize(5, 7));
    throbber.pause(); // which shows the second
    for (int i = 1; i < 9; ++i) {
        QCOMPARE(shownColor(throbber), stripColors.at(i % 4));
        tick(&throbber);
    }
}

void tst_ZEMThrobber::otherStripRunsAgain()
{
    ZEMThrobber throbber;
    throbber.stop();
    throbber.setImage(stripPath, 4);
    QCOMPARE(shownColor(throbber), stripColors.at(0));
    waitForNextFrame(throbber);
    QCOMPARE(shownColor(throbber), stripColors.at(1));
}

void tst_ZEMThrobber::restOfTheStripIsNotShown()
{
    ZEMThrobber throbber;
    throbber.setImage(stripPath, 4); // 23 / 4 is 5, the last 3 columns are left over
    throbber.pause();
    for (int i = 0; i < 4; ++i) {
        QVERIFY(shownColor(throbber) != QColor(Qt::white));
        QCOMPARE(throbber.pixmap().width(), 5);
        tick(&throbber);
    }
    throbber.setImage(stripPath, 1);
    QCOMPARE(throbber.pixmap().size(), QSize(23, 7));
}

void tst_ZEMThrobber::repeatedStripsAddNoConnections()
{
    ZEMThrobber throbber;
    for (int i = 0; i < 5; ++i) {
        throbber.setImage(stripPath, 4);
    }
    QCOMPARE(shownColor(throbber), stripColors.at(0));
    waitForNextFrame(throbber);
    QCOMPARE(shownColor(throbber), stripColors.at(1));
}

void tst_ZEMThrobber::badStrips_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("frames");
    QTest::newRow("no file") << QStringLiteral(":/no/such/strip.png") << 4;
    QTest::newRow("no frames") << stripPath << 0;
    QTest::newRow("negative") << stripPath << -3;
    QTest::newRow("more than columns") << stripPath << 24;
}

void tst_ZEMThrobber::badStrips()
{
    QFETCH(QString, path);
    QFETCH(int, frames);
    ZEMThrobber throbber;
    throbber.setImage(path, frames);
    QVERIFY(isEmpty(throbber));
    for (int i = 0; i < 3; ++i) {
        tick(&throbber);
        QVERIFY(isEmpty(throbber));
    }
    throbber.setImage(stripPath, 4);
    QCOMPARE(shownColor(throbber), stripColors.at(0));
}

void tst_ZEMThrobber::framesArePaintedInTheMiddle()
{
    ZEMThrobber throbber;
    throbber.setImage(stripPath, 4);
    throbber.resize(25, 17);
    const QImage image = render(&throbber);
    QCOMPARE(ZemTest::inkRect(image), QRect(10, 5, 5, 7));
    QCOMPARE(image.pixelColor(12, 8), stripColors.at(0));
}

void tst_ZEMThrobber::everyChangeIsPainted()
{
    ZEMThrobber throbber;
    throbber.show();
    QVERIFY(QTest::qWaitForWindowExposed(&throbber, ZemTest::hangs));
    throbber.pause();
    QCoreApplication::processEvents();
    const auto change = [&](const std::function<void()> &action) {
        const ZemTest::PaintCounter paints(&throbber);
        action();
        QTRY_VERIFY(paints.count > 0);
    };
    change([&] { tick(&throbber); });
    change([&] { throbber.setImage(stripPath, 4); });
    throbber.pause();
    QCoreApplication::processEvents();
    change([&] { throbber.stop(); });
    change([&] { throbber.start(); });
}

void tst_ZEMThrobber::hasNoPicturesWithAShadow()
{
    ZEMThrobber throbber;
    throbber.resize(40, 40);
    throbber.setShadow(true);
    QVERIFY(ZemTest::inkRect(render(&throbber)).isNull());
}

QTEST_MAIN(tst_ZEMThrobber)
#include "tst_zemthrobber.moc"

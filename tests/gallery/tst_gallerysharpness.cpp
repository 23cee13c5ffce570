// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "classpage.h"
#include "gallerytest.h"
#include "sharpness.h"
#include "stage.h"

#include <qwt_plot_canvas.h>

using namespace GalleryTest;

/** The sample of every page of the gallery, and so each class that paints, on sharp screens. */
class tst_GallerySharpness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void showsTheSame_data() { addPages(); }
    void showsTheSame();
    void isSharp_data() { addPages(); }
    void isSharp();
    void goesToOtherScreensAndBack_data() { addPages(); }
    void goesToOtherScreensAndBack();
    void grabHasTheRatioOfTheScreen();
};

namespace {

/** A page of the gallery that is on the screen. */
class Shown
{
public:
    explicit Shown(const QString &name) : window(QStringLiteral(KEYBOARD_DIR))
    {
        window.openClass(name);
        window.show();
        QCoreApplication::processEvents();
        sample = shown<ClassPage>(window)->stage().sample();
        // Qwt keeps a picture of the canvas, for the screen that the window is on.
        for (QwtPlotCanvas *canvas : sample->findChildren<QwtPlotCanvas *>()) {
            canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
        }
    }

    QImage at(qreal ratio) const { return Sharpness::rendered(sample, ratio); }

private:
    GalleryWindow window;
    QWidget *sample = nullptr;
};

/** Whether the page makes pictures, which it does for the sharpest screen that there is. */
bool hasOwnPictures(const QString &name)
{
    return name == QLatin1String("ZEMCurrentStatusDetails")
        || name == QLatin1String("ZEMCurrentStatusDetailsItem");
}

QString inWords(const QVector<QRect> &tiles)
{
    QString text = QStringLiteral("%1 tiles:").arg(tiles.size());
    for (const QRect &tile : tiles) {
        text += QStringLiteral(" %1,%2").arg(tile.x()).arg(tile.y());
    }
    return text;
}

} // namespace

void tst_GallerySharpness::initTestCase()
{
    setLook();
    const QByteArray factor = qgetenv("QT_SCALE_FACTOR");
    QCOMPARE(qApp->devicePixelRatio(), factor.isEmpty() ? 1.0 : factor.toDouble());
}

void tst_GallerySharpness::showsTheSame()
{
    QFETCH(QString, name);
    const Shown page(name);
    const QImage plain = page.at(1.0);
    constexpr double seen = 12.0; // shades, in the mean of a tile
    constexpr int shift = QT_VERSION_MAJOR == 5 ? 3 : 4; // Qt 6 draws letters with less contrast
    const QImage shifted = plain.copy(plain.rect().translated(shift, 0));
    QVERIFY(Sharpness::displacement(plain, shifted) > seen);
    for (const qreal ratio : {1.25, 1.5, 2.0}) {
        const QImage sharp = page.at(ratio);
        QCOMPARE(sharp.size(), plain.size() * ratio);
        const double off = Sharpness::displacement(plain, Sharpness::resized(sharp, plain.size()));
        QVERIFY2(off < seen, qPrintable(QStringLiteral("%1 at %2").arg(off).arg(ratio)));
    }
}

void tst_GallerySharpness::isSharp()
{
    QFETCH(QString, name);
    const Shown page(name);
    const QImage plain = page.at(1.0);
    const QVector<QRect> blurred = Sharpness::blurredTiles(plain, page.at(2.0));
    if (hasOwnPictures(name) && qApp->devicePixelRatio() == 1.0) {
        QVERIFY2(!blurred.isEmpty(), "a page that need not be left out");
        return;
    }
    QVERIFY2(blurred.isEmpty(), qPrintable(inWords(blurred)));
    const QVector<QRect> detailed = Sharpness::detailedTiles(plain);
    QVERIFY(!detailed.isEmpty());
    QCOMPARE(Sharpness::blurredTiles(plain, Sharpness::resized(plain, 2 * plain.size())), detailed);
}

void tst_GallerySharpness::goesToOtherScreensAndBack()
{
    QFETCH(QString, name);
    const Shown page(name);
    const QImage plain = page.at(1.0);
    const QImage sharp = page.at(2.0);
    QVERIFY(page.at(1.0) == plain);
    const QImage between = page.at(1.5);
    QVERIFY(page.at(2.0) == sharp);
    QVERIFY(page.at(1.5) == between);
    QVERIFY(page.at(1.0) == plain);
}

void tst_GallerySharpness::grabHasTheRatioOfTheScreen()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.show();
    QCOMPARE(window.grab().devicePixelRatio(), qApp->devicePixelRatio());
    QCOMPARE(window.grab().size(), window.size() * qApp->devicePixelRatio());
}

QTEST_MAIN(tst_GallerySharpness)
#include "tst_gallerysharpness.moc"

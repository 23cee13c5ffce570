// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "classpage.h"
#include "gallerytest.h"
#include "look.h"
#include "stage.h"

#include <ZEMVirtualKeyboard>
#include <qwt_plot_canvas.h>
#include <vector>

using namespace GalleryTest;

/** The samples of the gallery in a layout from right to left: keys and curves stay as they are. */
class tst_GalleryDirection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLook(); }
    void cleanup() { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    void keysAndCurvesStay_data() { addPages(); }
    void keysAndCurvesStay();
    void keysAndCurvesOfManyPagesAreSeen();
};

namespace {

struct Picture
{
    QString className;
    QImage image;
};

std::vector<Picture> picturesOn(const QString &name, Qt::LayoutDirection direction)
{
    QGuiApplication::setLayoutDirection(direction);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(name);
    window.show();
    QCoreApplication::processEvents();
    QWidget *sample = shown<ClassPage>(window)->stage().sample();
    std::vector<Picture> pictures;
    for (QWidget *part : sample->findChildren<QWidget *>()) {
        const bool isKept =
            qobject_cast<ZEMVirtualKeyboard *>(part) || qobject_cast<QwtPlotCanvas *>(part);
        if (isKept && part->isVisible()) {
            pictures.push_back(
                {QString::fromLatin1(part->metaObject()->className()), part->grab().toImage()});
        }
    }
    return pictures;
}

} // namespace

void tst_GalleryDirection::keysAndCurvesStay()
{
    QFETCH(QString, name);
    const std::vector<Picture> usual = picturesOn(name, Qt::LeftToRight);
    const std::vector<Picture> reversed = picturesOn(name, Qt::RightToLeft);
    QCOMPARE(reversed.size(), usual.size());
    for (std::size_t i = 0; i < usual.size(); ++i) {
        QCOMPARE(reversed[i].className, usual[i].className);
        QVERIFY2(reversed[i].image == usual[i].image, qPrintable(usual[i].className));
    }
}

void tst_GalleryDirection::keysAndCurvesOfManyPagesAreSeen()
{
    for (const char *name : {"ZEMNumericKeypad", "ZEMLineEditDialog", "ZEMLineEditSearchDialog",
                             "ZEMPasswordDialog", "ZEMMultiLineDialog", "ZEMPlot", "ZEMPlotZoomer",
                             "ZEMQwtPlotTracker", "ZEMQwtPlotPointPicker", "ZEMHistogramWidget"}) {
        QVERIFY2(!picturesOn(QLatin1String(name), Qt::RightToLeft).empty(), name);
    }
}

QTEST_MAIN(tst_GalleryDirection)
#include "tst_gallerydirection.moc"

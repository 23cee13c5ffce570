// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "playedsource.h"
#include "sharpness.h"

#include <qwt_plot_canvas.h>

/** The pages of the display on a sharp screen, with the pictures that they draw themselves. */
class tst_DisplaySharpness : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isSharp_data();
    void isSharp();
};

void tst_DisplaySharpness::isSharp_data()
{
    QTest::addColumn<QString>("page");
    for (const QString &name : DisplayWindow::pageNames()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void tst_DisplaySharpness::isSharp()
{
    QFETCH(QString, page);
    PlayedSource source;
    source.count(Readings::Quantity::GridImport, 2);
    source.report = PowerReport();
    PlayedDisplay display(source);
    display.window.openPage(page);
    QVERIFY(display.show());
    // Qwt keeps a picture of the canvas, for the screen that the window is on.
    for (QwtPlotCanvas *canvas : display.window.findChildren<QwtPlotCanvas *>()) {
        canvas->setPaintAttribute(QwtPlotCanvas::BackingStore, false);
    }
    QWidget *shown = display.window.currentWidget();
    const QVector<QRect> blurred =
        Sharpness::blurredTiles(Sharpness::rendered(shown, 1.0), Sharpness::rendered(shown, 2.0));
    // The icons are drawn for the screen that there is.
    QCOMPARE(blurred.isEmpty(), qApp->devicePixelRatio() == 2.0);
}

QTEST_MAIN(tst_DisplaySharpness)
#include "tst_displaysharpness.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "classpage.h"
#include "gallerytest.h"
#include "look.h"
#include "stage.h"

#include <QFile>
#include <QLayout>
#include <QPointer>
#include <QTimer>
#include <ZEMDialogPopup>
#include <ZEMTextLabel>

using namespace GalleryTest;

/** Every page of the gallery, opened. */
class tst_GalleryPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLook(); }
    void sampleIsSeen_data() { addPages(); }
    void sampleIsSeen();
    void sampleHasRoom_data() { addPages(); }
    void sampleHasRoom();
    void sourceIsThatOfThePage_data() { addPages(); }
    void sourceIsThatOfThePage();
    void wholeScreenComesAndGoes_data() { addPages(); }
    void wholeScreenComesAndGoes();
    void pageMayBeLeftAtOnce_data() { addPages(); }
    void pageMayBeLeftAtOnce();
    void pageMayBeLeftWhileADialogWaits();
};

static int colorsOf(const QImage &image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            colors.insert(image.pixel(x, y));
        }
    }
    return colors.size();
}

void tst_GalleryPages::sampleIsSeen()
{
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(name);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, ZemTest::hangs));
    const auto *page = shown<ClassPage>(window);
    QVERIFY(page);
    QVERIFY(page->stage().sample()->isVisible());
    QVERIFY(colorsOf(page->stage().sample()->grab().toImage()) > 2);
}

void tst_GalleryPages::sampleHasRoom()
{
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(name);
    window.show();
    QCoreApplication::processEvents();
    const Stage &stage = shown<ClassPage>(window)->stage();
    const QSize room = stage.coversScreen() ? Look::screen : QSize(Stage::width, Stage::height);
    const QWidget *sample = stage.sample();
    QVERIFY2(sample->width() <= room.width() && sample->height() <= room.height(),
             qPrintable(QStringLiteral("%1 x %2").arg(sample->width()).arg(sample->height())));
    if (!stage.coversScreen()) {
        QVERIFY(stage.pictureSize().width() <= room.width());
    }
    if (sample->layout()) {
        const QSize least = sample->layout()->minimumSize();
        QVERIFY2(least.width() <= room.width() && least.height() <= room.height(),
                 qPrintable(QStringLiteral("%1 x %2").arg(least.width()).arg(least.height())));
    }
}

static QString withoutBlanks(QString text)
{
    return text.remove(QLatin1Char(' ')).remove(QLatin1Char('\n'));
}

void tst_GalleryPages::sourceIsThatOfThePage()
{
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(name);
    window.show();
    QCoreApplication::processEvents();
    tap(button(&window, "btnSource"));
    auto *label = window.findChild<ZEMTextLabel *>(QStringLiteral("source"));
    QVERIFY(label && label->isVisible());
    const QFontMetrics metrics(label->font());
    QCOMPARE(metrics.horizontalAdvance(QLatin1Char('i')),
             metrics.horizontalAdvance(QLatin1Char('m')));
    QString text = label->text();
    while (ZEMButton *next = button(label->parentWidget(), "btnNext")) {
        QVERIFY(label->sizeHint().height() <= label->height());
        QVERIFY(label->sizeHint().width() <= Look::screen.width());
        tap(next);
        text += label->text();
    }
    QFile file(QStringLiteral(PAGES_DIR "/%1.cpp").arg(pageOf(name)->file));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QString source = QString::fromUtf8(file.readAll());
    source.remove(0, source.indexOf(QStringLiteral("#include")));
    QCOMPARE(withoutBlanks(text), withoutBlanks(source));
    for (const QString &shown : pageOf(name)->classes) {
        QVERIFY2(source.contains(shown), qPrintable(shown));
    }

    tap(button(&window, "btnBack"));
    QVERIFY(button(&window, "btnSource"));
}

void tst_GalleryPages::wholeScreenComesAndGoes()
{
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(name);
    window.show();
    QCoreApplication::processEvents();
    const auto *page = shown<ClassPage>(window);
    ZEMButton *thumbnail = button(&window, "thumbnail");
    QCOMPARE(thumbnail != nullptr, page->stage().coversScreen());
    if (thumbnail) {
        tap(thumbnail);
        QVERIFY(!button(&window, "btnSource"));
        const QWidget *sample = page->stage().sample();
        QCOMPARE(sample->size(), Look::screen);
        ZEMButton *wayBack = button(&window, "btnWayBack");
        QVERIFY(wayBack);
        // What lies beneath it is not to be touched.
        wayBack->hide();
        const auto *covered =
            qobject_cast<QAbstractButton *>(window.childAt(wayBack->geometry().center()));
        wayBack->show();
        QVERIFY(!covered);
        tap(wayBack);
        QVERIFY(button(&window, "btnSource"));
    }
}

void tst_GalleryPages::pageMayBeLeftAtOnce()
{
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.show();
    window.openClass(name);
    window.openClass(name);
    window.openIndex();
    QCoreApplication::processEvents();
    QVERIFY(!shown<ClassPage>(window));
}

void tst_GalleryPages::pageMayBeLeftWhileADialogWaits()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(QStringLiteral("ZEMDialogPopup"));
    window.show();
    QCoreApplication::processEvents();
    tap(button(&window, "thumbnail"));
    QPointer<ZEMDialogPopup> dialog = window.findChild<ZEMDialogPopup *>();
    dialog->hide();
    bool waits = false;
    QTimer::singleShot(0, dialog, [&] {
        waits = dialog->isVisible();
        tap(button(&window, "btnWayBack"));
        button(&window, "btnBack")->click(); // what a tap awaits besides would keep the page alive
    });
    for (ZEMButton *each : dialog->parentWidget()->findChildren<ZEMButton *>()) {
        if (each->text() == QLatin1String("exec()")) {
            tap(each); // comes back when the question is answered or gone
            break;
        }
    }
    QVERIFY(waits);
    ZEM_TRY_VERIFY(!dialog);
    QVERIFY(!shown<ClassPage>(window));
}

QTEST_MAIN(tst_GalleryPages)
#include "tst_gallerypages.moc"

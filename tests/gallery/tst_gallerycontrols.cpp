// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "classpage.h"
#include "gallerytest.h"
#include "look.h"
#include "propertypanel.h"
#include "propertyrow.h"
#include "stage.h"

#include <ZEMLineEditDialog>

using namespace GalleryTest;

/** All that can be played with on the pages of the gallery. */
class tst_GalleryControls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLook(); }
    void everyControlWorks_data() { addPages(); }
    void everyControlWorks();
    void everyTargetIsLargeEnough_data() { addPages(); }
    void everyTargetIsLargeEnough();
    void propertyFollowsItsControl();
    void controlFollowsItsProperty();
    void textIsTypedInADialog();
    void rangeOfANumberIsKept();

private:
    static void useAll(GalleryWindow *window, PropertyPanel *panel);
};

/** Three touches on each control of the page of the panel that is in view. */
void tst_GalleryControls::useAll(GalleryWindow *window, PropertyPanel *panel)
{
    constexpr int touches = 3;
    for (ZEMButton *control : panel->findChildren<ZEMButton *>()) {
        if (control->objectName().startsWith(QLatin1String("btn")) || !isInReach(control)) {
            continue;
        }
        for (int i = 0; i < touches; ++i) {
            tap(control);
            if (auto *dialog = shown<ZEMLineEditDialog>(*window)) {
                dialog->setText(QStringLiteral("tekst %1").arg(i));
                Q_EMIT dialog->sigSelect();
                dialog->hide();
                dialog->deleteLater();
                QCoreApplication::processEvents();
            }
        }
    }
}

void tst_GalleryControls::everyControlWorks()
{
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(name);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, ZemTest::hangs));
    auto *panel = window.findChild<PropertyPanel *>();
    QVERIFY(panel);
    useAll(&window, panel);
    while (ZEMButton *next = button(panel, "btnNext")) {
        tap(next);
        useAll(&window, panel);
    }
    QCOMPARE(panel->currentPage(), panel->pageCount() - 1);
    QVERIFY(button(&window, "btnBack"));
    QVERIFY(shown<ClassPage>(window)->stage().sample());
}

void tst_GalleryControls::everyTargetIsLargeEnough()
{
    constexpr int least = 40; // pixels
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(name);
    window.show();
    QCoreApplication::processEvents();
    auto *page = shown<ClassPage>(window);
    int count = 0;
    for (const ZEMButton *target : page->findChildren<ZEMButton *>()) {
        if (!target->isVisible() || page->stage().sample()->isAncestorOf(target)) {
            continue;
        }
        ++count;
        const QRect place(target->mapTo(page, QPoint()), target->size());
        QVERIFY2(place.width() >= least && place.height() >= least,
                 qPrintable(target->objectName()));
        QVERIFY2(QRect(QPoint(), Look::screen).contains(place), qPrintable(target->objectName()));
    }
    for (const ZEMButton *control :
         page->findChild<PropertyPanel *>()->findChildren<ZEMButton *>()) {
        const QFontMetrics metrics(control->font());
        QVERIFY2(metrics.horizontalAdvance(control->text()) <= control->width(),
                 qPrintable(control->text()));
    }
    QVERIFY(count >= 4); // those of the header
}

static PropertyRow *rowOf(const QWidget &window, const char *property)
{
    return window.findChild<PropertyRow *>(QLatin1String(property));
}

void tst_GalleryControls::propertyFollowsItsControl()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(QStringLiteral("ZEMThreeStars"));
    window.show();
    QCoreApplication::processEvents();
    QObject *stars = shown<ClassPage>(window)->stage().objects().constFirst();
    PropertyRow *row = rowOf(window, "stars");
    QCOMPARE(stars->property("stars").toInt(), 2);
    tap(button(row, "more"));
    QCOMPARE(stars->property("stars").toInt(), 3);
    tap(button(row, "more")); // there is no fourth
    QCOMPARE(stars->property("stars").toInt(), 3);
    tap(button(row, "less"));
    QCOMPARE(stars->property("stars").toInt(), 2);
    tap(button(rowOf(window, "smallVersion"), "value"));
    QVERIFY(stars->property("smallVersion").toBool());
}

void tst_GalleryControls::controlFollowsItsProperty()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(QStringLiteral("ZEMThreeStars"));
    window.show();
    QCoreApplication::processEvents();
    QObject *stars = shown<ClassPage>(window)->stage().objects().constFirst();
    const auto *toggle = rowOf(window, "smallVersion")->findChild<ZEMButton *>();
    QVERIFY(!toggle->isChecked());
    stars->setProperty("smallVersion", true);
    ZEM_TRY_VERIFY(toggle->isChecked());
}

void tst_GalleryControls::textIsTypedInADialog()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(QStringLiteral("ZEMWidgetLabel"));
    window.show();
    QCoreApplication::processEvents();
    QObject *strip = shown<ClassPage>(window)->stage().objects().constFirst();
    for (const bool confirms : {false, true}) {
        tap(button(rowOf(window, "title"), "value"));
        QPointer<ZEMLineEditDialog> dialog = shown<ZEMLineEditDialog>(window);
        QVERIFY(dialog);
        QCOMPARE(dialog->text(), QStringLiteral("totaal vandaag"));
        dialog->setText(QStringLiteral("gisteren"));
        tap(button(dialog, confirms ? "btnOK" : "btnCancel"));
        ZEM_TRY_VERIFY(!dialog);
        QCOMPARE(strip->property("title").toString(),
                 confirms ? QStringLiteral("gisteren") : QStringLiteral("totaal vandaag"));
    }
}

void tst_GalleryControls::rangeOfANumberIsKept()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(QStringLiteral("ZEMPageHeader"));
    window.show();
    QCoreApplication::processEvents();
    QObject *header = shown<ClassPage>(window)->stage().objects().constFirst();
    auto *panel = window.findChild<PropertyPanel *>();
    while (!button(rowOf(window, "buttons"), "more")) {
        tap(button(panel, "btnNext"));
    }
    // A header warns of a sixth button.
    for (int i = 0; i < 6; ++i) {
        tap(button(rowOf(window, "buttons"), "more"));
    }
    QCOMPARE(header->property("buttons").toInt(), 5);
}

QTEST_MAIN(tst_GalleryControls)
#include "tst_gallerycontrols.moc"

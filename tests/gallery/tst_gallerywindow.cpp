// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "classpage.h"
#include "gallerytest.h"
#include "indexpage.h"
#include "look.h"

#include <QListView>
#include <ZEMPageHeader>

using namespace GalleryTest;

/** The way through the gallery, by touch alone. */
class tst_GalleryWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setLook(); }
    void everyClassIsReachedByTouch_data();
    void everyClassIsReachedByTouch();
    void neighboursGoRound();
    void indexHasTargetsForFingers();
    void unknownClassIsIgnored();
};

void tst_GalleryWindow::everyClassIsReachedByTouch_data()
{
    QTest::addColumn<QString>("subsystem");
    QTest::addColumn<QString>("name");
    for (const Subsystem subsystem : allSubsystems()) {
        for (const QString &name : classesOf(subsystem)) {
            QTest::newRow(qPrintable(name)) << nameOf(subsystem) << name;
        }
    }
}

/** The row of @p name if it is seen as a whole; invalid if not. */
static QRect rowOf(const QListView *list, const QString &name)
{
    const QModelIndexList found = list->model()->match(list->model()->index(0, 0), Qt::DisplayRole,
                                                       name, 1, Qt::MatchExactly);
    const QRect row = found.isEmpty() ? QRect() : list->visualRect(found.constFirst());
    return list->viewport()->rect().contains(row) ? row : QRect();
}

void tst_GalleryWindow::everyClassIsReachedByTouch()
{
    QFETCH(QString, subsystem);
    QFETCH(QString, name);
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window, ZemTest::hangs));
    auto *index = window.findChild<IndexPage *>();
    auto *list = index->findChild<QListView *>();
    tap(button(index, qPrintable(subsystem)));
    while (rowOf(list, name).isNull()) {
        ZEMButton *next = button(index, "btnNext");
        QVERIFY2(next, "the pages of the list are at an end");
        tap(next);
    }
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, rowOf(list, name).center());
    QVERIFY(shown<ClassPage>(window));
    QCOMPARE(shown<ClassPage>(window)->findChild<ZEMPageHeader *>()->getTitle(),
             pageOf(name)->classes.constFirst());

    tap(button(&window, "btnBack"));
    QVERIFY(!shown<ClassPage>(window));
    QVERIFY(button(index, qPrintable(subsystem)));
}

void tst_GalleryWindow::neighboursGoRound()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.openClass(allPages().constFirst().classes.constFirst());
    window.show();
    QCoreApplication::processEvents();
    const auto title = [&window] {
        return shown<ClassPage>(window)->findChild<ZEMPageHeader *>()->getTitle();
    };
    tap(button(&window, "btnPreviousClass"));
    QCOMPARE(title(), allPages().constLast().classes.constFirst());
    tap(button(&window, "btnNextClass"));
    QCOMPARE(title(), allPages().constFirst().classes.constFirst());
    tap(button(&window, "btnNextClass"));
    QCOMPARE(title(), allPages().at(1).classes.constFirst());
}

void tst_GalleryWindow::indexHasTargetsForFingers()
{
    constexpr int least = 40; // pixels
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.show();
    QCoreApplication::processEvents();
    QCOMPARE(window.size(), QSize(640, 480));
    const auto *index = window.findChild<IndexPage *>();
    for (const ZEMButton *target : index->findChildren<ZEMButton *>()) {
        const QRect place(target->mapTo(index, QPoint()), target->size());
        QVERIFY2(place.width() >= least && place.height() >= least,
                 qPrintable(target->objectName()));
        QVERIFY2(window.rect().contains(place), qPrintable(target->objectName()));
    }
    const auto *list = index->findChild<QListView *>();
    QVERIFY(list->visualRect(list->model()->index(0, 0)).height() >= least);
    QVERIFY(window.rect().contains(QRect(list->mapTo(&window, QPoint()), list->size())));
}

void tst_GalleryWindow::unknownClassIsIgnored()
{
    GalleryWindow window(QStringLiteral(KEYBOARD_DIR));
    window.show();
    window.openClass(QStringLiteral("ZEMSofa"));
    QVERIFY(!shown<ClassPage>(window));
}

QTEST_MAIN(tst_GalleryWindow)
#include "tst_gallerywindow.moc"

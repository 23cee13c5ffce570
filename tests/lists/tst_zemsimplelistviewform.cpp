// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listpagefixture.h"

#include <ZEMPageBackground>
#include <ZEMTextLabel>

#include <QAbstractButton>
#include <QGridLayout>
#include <QListView>
#include <QTest>
#include <QVBoxLayout>

using namespace ListTest;

/** The parts that only a ZEMSimpleListView has, as they are on a new one. */
class tst_ZEMSimpleListViewForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formOfThePage();
    void formOfThePanel();
    void formOfTheTitle();
    void formOfTheList();
};

void tst_ZEMSimpleListViewForm::formOfThePage()
{
    ZEMSimpleListView page;
    auto *grid = qobject_cast<QGridLayout *>(page.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(grid->count(), 5);
    QCOMPARE(grid->rowCount(), 3);
    QCOMPARE(grid->columnCount(), 3);
    const QPoint vertical[] = {{1, 0}, {1, 2}}; // column, row
    const QPoint horizontal[] = {{0, 1}, {2, 1}};
    for (int i = 0; i < 2; ++i) {
        QSpacerItem *above = grid->itemAtPosition(vertical[i].y(), vertical[i].x())->spacerItem();
        QCOMPARE(above->sizeHint(), QSize(0, 0));
        QCOMPARE(above->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding));
        QSpacerItem *beside =
            grid->itemAtPosition(horizontal[i].y(), horizontal[i].x())->spacerItem();
        QCOMPARE(beside->sizeHint(), QSize(0, 0));
        QCOMPARE(beside->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    }
    QCOMPARE(grid->itemAtPosition(1, 1)->widget(),
             part<ZEMPageBackground>(page, "zemPageBackground"));
    QVERIFY(page.findChildren<QAbstractButton *>().isEmpty());
}

void tst_ZEMSimpleListViewForm::formOfThePanel()
{
    ZEMSimpleListView page;
    auto *panel = part<ZEMPageBackground>(page, "zemPageBackground");
    QCOMPARE(panel->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    auto *grid = qobject_cast<QGridLayout *>(panel->layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(20, 20, 20, 20));
    QCOMPARE(grid->count(), 1);
    auto *column = part<QVBoxLayout>(page, "verticalLayout");
    QCOMPARE(column->sizeConstraint(), QLayout::SetDefaultConstraint);
}

void tst_ZEMSimpleListViewForm::formOfTheTitle()
{
    ZEMSimpleListView page;
    QCOMPARE(part<ZEMTextLabel>(page, "lblTitle")->sizePolicy(),
             QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
}

void tst_ZEMSimpleListViewForm::formOfTheList()
{
    ZEMSimpleListView page;
    auto *list = part<QListView>(page, "listView");
    QCOMPARE(list->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    QCOMPARE(list->minimumSize(), QSize(350, 0));
    QCOMPARE(list->iconSize(), QSize(60, 60));
    QCOMPARE(list->flow(), QListView::LeftToRight);
    QCOMPARE(list->gridSize(), QSize(175, 100));
    QCOMPARE(list->viewMode(), QListView::IconMode);
}

QTEST_MAIN(tst_ZEMSimpleListViewForm)
#include "tst_zemsimplelistviewform.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "zemtest.h"

#include <ZEMPageBackground>
#include <ZEMSimpleListView>
#include <ZEMTextLabel>

#include <QAbstractButton>
#include <QGridLayout>
#include <QListView>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;

/** The parts of a ZEMSimpleListView as they are on a new one. */
class tst_ZEMSimpleListViewForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formOfThePage();
    void formOfThePanel();
    void formOfTheTitle();
    void formOfTheList();
    void textsAreTranslated();
    void listHasNoGround();
};

namespace {

template <typename T>
T *part(const QObject &page, const char *name)
{
    return page.findChild<T *>(QLatin1String(name));
}

} // namespace

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
    QCOMPARE(panel->minimumSize(), QSize(0, 0));
    QCOMPARE(panel->getBackgroundColor(), QColor(0, 0, 0, 200));
    auto *grid = qobject_cast<QGridLayout *>(panel->layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->contentsMargins(), QMargins(20, 20, 20, 20));
    QCOMPARE(grid->horizontalSpacing(), 40);
    QCOMPARE(grid->count(), 1);
    auto *column = part<QVBoxLayout>(page, "verticalLayout");
    QCOMPARE(grid->itemAtPosition(0, 0)->layout(), column);
    QCOMPARE(column->spacing(), 12);
    QCOMPARE(column->sizeConstraint(), QLayout::SetDefaultConstraint);
    QCOMPARE(column->count(), 2);
    QCOMPARE(column->itemAt(0)->widget(), part<ZEMTextLabel>(page, "lblTitle"));
    QCOMPARE(column->itemAt(1)->widget(), part<QListView>(page, "listView"));
}

void tst_ZEMSimpleListViewForm::formOfTheTitle()
{
    ZEMSimpleListView page;
    auto *label = part<ZEMTextLabel>(page, "lblTitle");
    QCOMPARE(label->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    QCOMPARE(label->text(), QStringLiteral("Text label"));
    QCOMPARE(label->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(label->font().pointSize(), 18);
    QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignCenter));
    QVERIFY(!label->getShadow());
}

void tst_ZEMSimpleListViewForm::formOfTheList()
{
    ZEMSimpleListView page;
    auto *list = part<QListView>(page, "listView");
    QCOMPARE(list->metaObject(), &QListView::staticMetaObject);
    QCOMPARE(list->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    QCOMPARE(list->minimumSize(), QSize(350, 0));
    QCOMPARE(list->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(list->font().pointSize(), 16);
    QCOMPARE(list->frameShape(), QFrame::NoFrame);
    QCOMPARE(list->frameShadow(), QFrame::Plain);
    QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QVERIFY(!list->hasAutoScroll());
    QCOMPARE(list->editTriggers(),
             QAbstractItemView::EditTriggers(QAbstractItemView::NoEditTriggers));
    QVERIFY(!list->showDropIndicator());
    QCOMPARE(list->iconSize(), QSize(60, 60));
    QCOMPARE(list->flow(), QListView::LeftToRight);
    QCOMPARE(list->gridSize(), QSize(175, 100));
    QCOMPARE(list->viewMode(), QListView::IconMode);
    QVERIFY(!list->uniformItemSizes());
}

void tst_ZEMSimpleListViewForm::textsAreTranslated()
{
    const ContextTranslator translator;
    ZEMSimpleListView page;
    QCOMPARE(page.windowTitle(), QStringLiteral("ZEMSimpleListView/Form"));
    QCOMPARE(part<ZEMTextLabel>(page, "lblTitle")->text(),
             QStringLiteral("ZEMSimpleListView/Text label"));
}

void tst_ZEMSimpleListViewForm::listHasNoGround()
{
    QPalette colors;
    colors.setColor(QPalette::Base, Qt::yellow);
    colors.setColor(QPalette::Window, Qt::cyan);
    QWidget host;
    host.setPalette(colors);
    ZEMSimpleListView page(&host);
    auto *list = part<QListView>(page, "listView");
    const QBrush clear(QColor(255, 255, 255, 0));
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        QCOMPARE(list->palette().brush(group, QPalette::Base), clear);
        QCOMPARE(list->palette().brush(group, QPalette::Window), clear);
    }
    QCOMPARE(list->palette().brush(QPalette::Disabled, QPalette::Window), clear);
    QCOMPARE(list->palette().color(QPalette::Disabled, QPalette::Base), QColor(Qt::yellow));

    page.layout()->activate();
    const QImage image = ZemTest::render(&page, Qt::white);
    const QPoint inList = list->mapTo(&page, list->rect().center());
    auto *panel = part<ZEMPageBackground>(page, "zemPageBackground");
    const QPoint inPanel = panel->mapTo(&page, QPoint(5, 5));
    QCOMPARE(image.pixelColor(inList), image.pixelColor(inPanel));
    QVERIFY(image.pixelColor(inPanel) != image.pixelColor(2, 2));
    QVERIFY(image.pixelColor(2, 2) != QColor(Qt::white));
}

QTEST_MAIN(tst_ZEMSimpleListViewForm)
#include "tst_zemsimplelistviewform.moc"

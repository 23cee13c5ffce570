// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "listpagefixture.h"

#include <ZEMButton>

#include <QGridLayout>
#include <QListView>
#include <QTest>
#include <QVBoxLayout>

using namespace ListTest;

/** The parts that only a ZEMListView has, as they are on a new one. */
class tst_ZEMListViewForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formOfThePage();
    void formOfThePanel();
    void formOfTheList();
    void formOfTheButtons_data();
    void formOfTheButtons();
};

namespace {

QImage picture(const QString &path)
{
    return QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

void tst_ZEMListViewForm::formOfThePage()
{
    ZEMListView page;
    auto *grid = qobject_cast<QGridLayout *>(page.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(grid->count(), 5);
    QCOMPARE(grid->rowCount(), 3);
    QCOMPARE(grid->columnCount(), 4);

    struct Spacer
    {
        int row;
        int column;
        QSize size;
        Qt::Orientations expands;
    };
    const Spacer spacers[] = {{0, 2, QSize(20, 51), Qt::Vertical},
                              {1, 0, QSize(40, 20), Qt::Horizontal},
                              {1, 3, QSize(40, 20), Qt::Horizontal},
                              {2, 1, QSize(20, 51), Qt::Vertical}};
    for (const Spacer &spacer : spacers) {
        QSpacerItem *item = grid->itemAtPosition(spacer.row, spacer.column)->spacerItem();
        QVERIFY(item);
        QCOMPARE(item->sizeHint(), spacer.size);
        const bool isVertical = spacer.expands == Qt::Vertical;
        QCOMPARE(item->sizePolicy(),
                 QSizePolicy(isVertical ? QSizePolicy::Minimum : QSizePolicy::Expanding,
                             isVertical ? QSizePolicy::Expanding : QSizePolicy::Minimum));
    }
    auto *panel = part<ZEMPageBackground>(page, "zemPageBackground");
    int row = 0;
    int column = 0;
    int rowSpan = 0;
    int columnSpan = 0;
    grid->getItemPosition(grid->indexOf(panel), &row, &column, &rowSpan, &columnSpan);
    QCOMPARE(QRect(column, row, columnSpan, rowSpan), QRect(1, 1, 2, 1));
}

void tst_ZEMListViewForm::formOfThePanel()
{
    ZEMListView page;
    auto *panel = part<ZEMPageBackground>(page, "zemPageBackground");
    auto *grid = qobject_cast<QGridLayout *>(panel->layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(40, 20, 40, 20));
    QCOMPARE(grid->count(), 2);
    auto *buttons = part<QVBoxLayout>(page, "verticalLayout_2");
    QCOMPARE(grid->itemAtPosition(0, 1)->layout(), buttons);
    QCOMPARE(buttons->spacing(), 10);
    QCOMPARE(buttons->count(), 4);
}

void tst_ZEMListViewForm::formOfTheList()
{
    ZEMListView page;
    auto *list = part<QListView>(page, "listView");
    QCOMPARE(list->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
    QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(list->viewMode(), QListView::ListMode);
    QCOMPARE(list->flow(), QListView::TopToBottom);
    QCOMPARE(list->minimumSize(), QSize(0, 0));
}

void tst_ZEMListViewForm::formOfTheButtons_data()
{
    QTest::addColumn<QString>("icon");
    const QString tango = QStringLiteral(":/tango/graphics/tango/actions/");
    QTest::newRow("btnUp") << tango + QStringLiteral("go-up-icon.png");
    QTest::newRow("btnDown") << tango + QStringLiteral("go-down-icon.png");
    QTest::newRow("btnSelect") << QStringLiteral(":/zem/graphics/icons/green-ok-icon_small.png");
    QTest::newRow("btnCancel") << tango + QStringLiteral("process-stop-icon.png");
}

void tst_ZEMListViewForm::formOfTheButtons()
{
    ZEMListView page;
    auto *button = part<ZEMButton>(page, QTest::currentDataTag());
    QVERIFY(button);
    const QStringList order = {QStringLiteral("btnUp"), QStringLiteral("btnDown"),
                               QStringLiteral("btnSelect"), QStringLiteral("btnCancel")};
    auto *buttons = part<QVBoxLayout>(page, "verticalLayout_2");
    QCOMPARE(buttons->itemAt(order.indexOf(button->objectName()))->widget(), button);

    const QImage background =
        picture(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small_disabled.png"));
    QVERIFY(!background.isNull());
    QCOMPARE(button->getBackground().toImage().convertToFormat(background.format()), background);
    QCOMPARE(button->minimumSize(), background.size());
    QVERIFY(button->isEnabled());
    QVERIFY(!button->isCheckable());

    QFETCH(QString, icon);
    const QImage expected = picture(icon);
    QVERIFY(!expected.isNull());
    QCOMPARE(button->icon().availableSizes(QIcon::Normal, QIcon::Off), {expected.size()});
    QCOMPARE(button->icon().availableSizes(QIcon::Normal, QIcon::On), QList<QSize>());
    QCOMPARE(button->icon()
                 .pixmap(expected.size(), QIcon::Normal, QIcon::Off)
                 .toImage()
                 .convertToFormat(expected.format()),
             expected);
}

QTEST_MAIN(tst_ZEMListViewForm)
#include "tst_zemlistviewform.moc"

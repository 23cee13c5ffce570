// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMListView>
#include <ZEMTextLabel>

#include <QGridLayout>
#include <QListView>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;

/** The parts of a ZEMListView as they are on a new one. */
class tst_ZEMListViewForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formOfThePage();
    void formOfThePanel();
    void formOfTheHeader();
    void formOfTheList();
    void formOfTheButtons_data();
    void formOfTheButtons();
    void textsAreTranslated();
    void listHasNoGround();
};

namespace {

template <typename T>
T *part(const QObject &page, const char *name)
{
    return page.findChild<T *>(QLatin1String(name));
}

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
    QCOMPARE(panel->minimumSize(), QSize(0, 0));
    QCOMPARE(panel->getBackgroundColor(), QColor(0, 0, 0, 200));
    auto *grid = qobject_cast<QGridLayout *>(panel->layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->horizontalSpacing(), 40);
    QCOMPARE(grid->contentsMargins(), QMargins(40, 20, 40, 20));
    QCOMPARE(grid->count(), 2);
    auto *texts = part<QVBoxLayout>(page, "verticalLayout");
    auto *buttons = part<QVBoxLayout>(page, "verticalLayout_2");
    QCOMPARE(grid->itemAtPosition(0, 0)->layout(), texts);
    QCOMPARE(grid->itemAtPosition(0, 1)->layout(), buttons);
    QCOMPARE(texts->spacing(), 12);
    QCOMPARE(texts->count(), 2);
    QCOMPARE(texts->itemAt(0)->widget(), part<ZEMTextLabel>(page, "lblHeader"));
    QCOMPARE(texts->itemAt(1)->widget(), part<QListView>(page, "listView"));
    QCOMPARE(buttons->spacing(), 10);
    QCOMPARE(buttons->count(), 4);
}

void tst_ZEMListViewForm::formOfTheHeader()
{
    ZEMListView page;
    auto *label = part<ZEMTextLabel>(page, "lblHeader");
    QCOMPARE(label->text(), QStringLiteral("Text label"));
    QCOMPARE(label->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(label->font().pointSize(), 18);
    QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignCenter));
    QVERIFY(!label->getShadow());
}

void tst_ZEMListViewForm::formOfTheList()
{
    ZEMListView page;
    auto *list = part<QListView>(page, "listView");
    QCOMPARE(list->metaObject(), &QListView::staticMetaObject);
    QCOMPARE(list->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
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
    QCOMPARE(list->selectionMode(), QAbstractItemView::SingleSelection);
    QCOMPARE(list->viewMode(), QListView::ListMode);
    QCOMPARE(list->flow(), QListView::TopToBottom);
    QVERIFY(!list->uniformItemSizes());
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

void tst_ZEMListViewForm::textsAreTranslated()
{
    const ContextTranslator translator;
    ZEMListView page;
    QCOMPARE(page.windowTitle(), QStringLiteral("ZEMListView/Form"));
    QCOMPARE(part<ZEMTextLabel>(page, "lblHeader")->text(),
             QStringLiteral("ZEMListView/Text label"));
}

void tst_ZEMListViewForm::listHasNoGround()
{
    QPalette colors;
    colors.setColor(QPalette::Base, Qt::yellow);
    colors.setColor(QPalette::Window, Qt::cyan);
    QWidget host;
    host.setPalette(colors);
    ZEMListView page(&host);
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

QTEST_MAIN(tst_ZEMListViewForm)
#include "tst_zemlistviewform.moc"

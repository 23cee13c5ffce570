// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/widgettest.h"
#include "listpagefixture.h"

#include <ZEMPageBackground>
#include <ZEMTextLabel>

#include <QGridLayout>
#include <QListView>
#include <QPointer>
#include <QStyledItemDelegate>
#include <QTest>
#include <QVBoxLayout>

#include <limits>
#include <memory>
#include <type_traits>

using namespace ListTest;
using namespace WidgetTest;

namespace {

void addPages()
{
    QTest::addColumn<QByteArray>("title");
    QTest::newRow("ZEMListView") << QByteArray("lblHeader");
    QTest::newRow("ZEMSimpleListView") << QByteArray("lblTitle");
}

/** Calls @p check with a null pointer to the class that the present row is named after. */
template <typename Check>
void withPage(Check check)
{
    if (qstrcmp(QTest::currentDataTag(), "ZEMSimpleListView") == 0) {
        check(static_cast<ZEMSimpleListView *>(nullptr));
    } else {
        check(static_cast<ZEMListView *>(nullptr));
    }
}

} // namespace

/** What the two pages with a list have in common. */
class tst_ListPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newPage_data() { addPages(); }
    void newPage();
    void ownsALogicInTheList_data() { addPages(); }
    void ownsALogicInTheList();
    void operationsReachTheLogic_data() { addPages(); }
    void operationsReachTheLogic();
    void reservesThePageThatASubclassTellsOf_data();
    void reservesThePageThatASubclassTellsOf();
    void hugePagesAreNoTrouble_data() { addPages(); }
    void hugePagesAreNoTrouble();
    void lookOfThePanel_data() { addPages(); }
    void lookOfThePanel();
    void lookOfTheTitle_data() { addPages(); }
    void lookOfTheTitle();
    void lookOfTheList_data() { addPages(); }
    void lookOfTheList();
    void listHasNoGround_data() { addPages(); }
    void listHasNoGround();
    void textsAreTranslated_data() { addPages(); }
    void textsAreTranslated();
};

void tst_ListPages::newPage()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        View page;
        QCOMPARE(page.objectName(), QString::fromLatin1(QTest::currentDataTag()));
        QCOMPARE(page.windowTitle(), QStringLiteral("Form"));
        QCOMPARE(page.size(), QSize(640, 480));
        QCOMPARE(page.getBackgroundColor(), QColor(0, 0, 0, 150));
        QVERIFY(page.getBackground().isNull());
        QCOMPARE(page.nrPageItems(), 8);
        QCOMPARE(page.index(), 0);

        QWidget host;
        QCOMPARE((new View(&host))->parentWidget(), &host);
        QVERIFY((std::is_base_of_v<ZEMPageBackground, View>));
        QVERIFY((std::is_base_of_v<ZEMListViewInterface, View>));
    });
}

void tst_ListPages::ownsALogicInTheList()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        auto page = std::make_unique<View>();
        const QPointer<ZEMListViewLogic> logic = page->template findChild<ZEMListViewLogic *>();
        QVERIFY(logic);
        QCOMPARE(page->template findChildren<ZEMListViewLogic *>().count(), 1);
        QCOMPARE(logic->parent(), part<QListView>(*page, "listView"));
        page.reset();
        QVERIFY(logic.isNull());
    });
}

void tst_ListPages::operationsReachTheLogic()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        PageFixture<View> fixture(20, QSize(120, 24));
        ZEMListViewInterface *list = &fixture.page;
        RowModel other(20);
        QStyledItemDelegate delegate;
        list->setModel(&other);
        QCOMPARE(fixture.list()->model(), &other);
        list->setItemDelegate(&delegate);
        QCOMPARE(fixture.list()->itemDelegate(), &delegate);
        list->setNrPageItems(5);
        QCOMPARE(fixture.logic()->nrPageItems(), 5);
        QCOMPARE(list->nrPageItems(), 5);
        list->setIndex(3);
        QCOMPARE(fixture.logic()->index(), 3);
        QCOMPARE(list->index(), 3);
        QCOMPARE(list->data(4), QVariant(QStringLiteral("4:0")));
        list->setSelectionFlags(QItemSelectionModel::ClearAndSelect);
        fixture.logic()->page_next();
        QCOMPARE(selectedRows(*fixture.list()), QSet<int> {5});
        list->setModel(nullptr);
    });
}

void tst_ListPages::reservesThePageThatASubclassTellsOf_data()
{
    QTest::addColumn<int>("fitted");
    QTest::newRow("ZEMListView") << 4 * 24;
    QTest::newRow("ZEMSimpleListView") << 2 * 100; // cells of the grid, two in a row
}

void tst_ListPages::reservesThePageThatASubclassTellsOf()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        QFETCH(int, fitted);
        class Halved : public View
        {
        public:
            int nrPageItems() const override { return View::nrPageItems() / 2; }
        };
        Halved page;
        RowModel model(20);
        model.itemSize = QSize(120, 24);
        page.setModel(&model);
        page.setNrPageItems(6);
        QCOMPARE(part<QListView>(page, "listView")->minimumHeight(), 3 * 24);
        page.setNrPageItems(8);
        page.fitContents(0);
        QCOMPARE(part<QListView>(page, "listView")->minimumHeight(), fitted);
    });
}

void tst_ListPages::hugePagesAreNoTrouble()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        PageFixture<View> fixture(20, QSize(120, 24));
        fixture.page.setNrPageItems(std::numeric_limits<int>::max());
        QCOMPARE(fixture.list()->minimumHeight(), QWIDGETSIZE_MAX - 1);
        for (const int count : {std::numeric_limits<int>::max(), 0}) {
            fixture.page.fitContents(count);
            QCOMPARE(fixture.list()->minimumHeight(), QWIDGETSIZE_MAX - 1);
        }
    });
}

void tst_ListPages::lookOfThePanel()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        QFETCH(QByteArray, title);
        View page;
        auto *panel = part<ZEMPageBackground>(page, "zemPageBackground");
        QCOMPARE(panel->minimumSize(), QSize(0, 0));
        QCOMPARE(panel->getBackgroundColor(), QColor(0, 0, 0, 200));
        auto *grid = qobject_cast<QGridLayout *>(panel->layout());
        QVERIFY(grid);
        QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
        QCOMPARE(grid->horizontalSpacing(), 40);
        auto *column = part<QVBoxLayout>(page, "verticalLayout");
        QCOMPARE(grid->itemAtPosition(0, 0)->layout(), column);
        QCOMPARE(column->spacing(), 12);
        QCOMPARE(column->count(), 2);
        QCOMPARE(column->itemAt(0)->widget(), part<ZEMTextLabel>(page, title.constData()));
        QCOMPARE(column->itemAt(1)->widget(), part<QListView>(page, "listView"));
    });
}

void tst_ListPages::lookOfTheTitle()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        QFETCH(QByteArray, title);
        View page;
        auto *label = part<ZEMTextLabel>(page, title.constData());
        QCOMPARE(label->text(), QStringLiteral("Text label"));
        QCOMPARE(label->font().family(), QStringLiteral("Cabin"));
        QCOMPARE(label->font().pointSize(), 18);
        QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignCenter));
        QVERIFY(!label->getShadow());
    });
}

void tst_ListPages::lookOfTheList()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        View page;
        auto *list = part<QListView>(page, "listView");
        QCOMPARE(list->metaObject(), &QListView::staticMetaObject);
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
        QVERIFY(!list->uniformItemSizes());
    });
}

void tst_ListPages::listHasNoGround()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        QPalette colors;
        colors.setColor(QPalette::Base, Qt::yellow);
        colors.setColor(QPalette::Window, Qt::cyan);
        QWidget host;
        host.setPalette(colors);
        View page(&host);
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
    });
}

void tst_ListPages::textsAreTranslated()
{
    withPage([](auto *none) {
        using View = std::remove_pointer_t<decltype(none)>;
        QFETCH(QByteArray, title);
        const ContextTranslator translator;
        View page;
        const QString context = QLatin1String(QTest::currentDataTag()) + QLatin1Char('/');
        QCOMPARE(page.windowTitle(), context + QStringLiteral("Form"));
        QCOMPARE(part<ZEMTextLabel>(page, title.constData())->text(),
                 context + QStringLiteral("Text label"));
    });
}

QTEST_MAIN(tst_ListPages)
#include "tst_listpages.moc"

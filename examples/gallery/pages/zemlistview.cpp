// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QStringListModel>
#include <QStyledItemDelegate>
#include <ZEMButton>
#include <ZEMListView>
#include <ZEMTextLabel>

namespace {

QStringList towns()
{
    return {QStringLiteral("Almelo"),    QStringLiteral("Amersfoort"), QStringLiteral("Arnhem"),
            QStringLiteral("Assen"),     QStringLiteral("Breda"),      QStringLiteral("Delft"),
            QStringLiteral("Den Haag"),  QStringLiteral("Eindhoven"),  QStringLiteral("Emmen"),
            QStringLiteral("Enschede"),  QStringLiteral("Gouda"),      QStringLiteral("Groningen"),
            QStringLiteral("Haarlem"),   QStringLiteral("Leiden"),     QStringLiteral("Lelystad"),
            QStringLiteral("Maastricht")};
}

/** Items that are high enough for a finger. */
class HighItems : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, 40));
    }
};

/** Any list that pages can be filled so, whether it is a page or an engine. */
void fill(ZEMListViewInterface &list, QAbstractItemModel *model)
{
    list.setModel(model);
    list.setNrPageItems(7);
    list.setIndex(0);
}

} // namespace

void Pages::zemlistview(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(96, 112, 128));
    auto *chosen = new ZEMTextLabel(page);
    chosen->setGeometry(250, 30, 200, 30);
    auto *open = new ZEMButton(page);
    open->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/popup_btn.png")));
    open->setText(QStringLiteral("plaats"));
    open->move(184, 80);

    auto *list = new ZEMListView(page);
    list->setHeader(QStringLiteral("Kies een plaats"));
    list->findChild<QAbstractItemView *>()->setFont(QFont(QStringLiteral("Cabin"), 18));
    list->setItemDelegate(new HighItems(list));
    fill(*list, new QStringListModel(towns(), page));
    list->fitContents(7);
    QObject::connect(list, &ZEMListView::sigSelect, chosen, [=](int row) {
        chosen->setText(list->data(row).toString());
        list->hide();
    });
    QObject::connect(list, &ZEMListView::sigCancel, list, &QWidget::hide);
    QObject::connect(open, &ZEMButton::clicked, list, &QWidget::show);

    stage.cover(page);
    stage.addButton(QStringLiteral("setIndex(8)"), [=] { list->setIndex(8); });
    stage.addButton(QStringLiteral("setIndex(0)"), [=] { list->setIndex(0); });
    stage.addButton(QStringLiteral("setHeader(\"Plaats\")"),
                    [=] { list->setHeader(QStringLiteral("Plaats")); });
    stage.addButton(QStringLiteral("showPageButtons(false)"),
                    [=] { list->showPageButtons(false); });
    stage.addButton(QStringLiteral("showPageButtons(true)"), [=] { list->showPageButtons(true); });
    stage.addButton(QStringLiteral("ClearAndSelect"),
                    [=] { list->setSelectionFlags(QItemSelectionModel::ClearAndSelect); });
    stage.addButton(QStringLiteral("show()"), [=] { list->show(); });
}

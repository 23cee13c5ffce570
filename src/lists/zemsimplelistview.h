// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMSIMPLELISTVIEW_H
#define ZEMSIMPLELISTVIEW_H

#include "zemkit_export.h"
#include "zemlistviewinterface.h"
#include "zempagebackground.h"

#include <memory>

class QModelIndex;

ZEM_BEGIN_INTERFACES // the interface has no destructor

/**
 * A page to pick one of a few things by its picture: the page beneath is darkened, and a panel in
 * the middle has a title and a grid of two columns, 175 by 100 pixels for each item and icons of 60
 * by 60. A tap on an item picks it, also one with a wobble: items are never dragged, whatever the
 * model allows. A press beside the list cancels.
 *
 * @code
 * #include <QAction>
 * #include <QApplication>
 * #include <QDebug>
 * #include <ZEMActionListModel>
 * #include <ZEMSimpleListView>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground window;
 * auto *page = new ZEMSimpleListView(&window);
 * const QString icons = QStringLiteral(":/zem/graphics/icons/");
 * auto *actions = new ZEMActionListModel(page);
 * actions->setTitle(QStringLiteral("Bron"));
 * actions->appendAction(
 *     new QAction(QIcon(icons + QStringLiteral("icons_03.png")), QStringLiteral("Net"), page));
 * actions->appendAction(
 *     new QAction(QIcon(icons + QStringLiteral("icons_11.png")), QStringLiteral("Zon"), page));
 * page->setModel(actions);
 * page->fitContents(2);
 * QObject::connect(page, &ZEMSimpleListView::sigSelect,
 *                  [=](int row) { qDebug() << page->data(row); });
 * QObject::connect(page, &ZEMSimpleListView::sigSelect, page, &QObject::deleteLater);
 * QObject::connect(page, &ZEMSimpleListView::sigCancel, page, &QObject::deleteLater);
 * window.show();
 * @endcode
 *
 * The list is for as many items as the panel has room for: there is nothing to page with. The page
 * neither hides nor closes itself. A slot that hears of a pick or a cancel may delete it.
 *
 * A new page is 640 by 480 pixels. The panel is nearly black, and the texts take their colours from
 * the palette: they are read with ZEMStyle or another palette of light texts, and are black on
 * black without. The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 * For a list of texts, see ZEMListView.
 */
class ZEM_EXPORT ZEMSimpleListView : public ZEMPageBackground, public ZEMListViewInterface
{
    Q_OBJECT

public:
    explicit ZEMSimpleListView(QWidget *parent = nullptr);
    ~ZEMSimpleListView() override;

    /**
     * As in the interface, and takes the title from the horizontal header of column 0, unless that
     * is empty. Later changes of the header are not followed.
     */
    void setModel(QAbstractItemModel *model) override;
    void setItemDelegate(QAbstractItemDelegate *delegate) override;
    void setSelectionFlags(QItemSelectionModel::SelectionFlags flags) override;
    void setScrollHint(QAbstractItemView::ScrollHint hint) override;
    /**
     * As in the interface, and makes the list at least as high as that number of items below each
     * other, all as high as the first; to fit it to the grid call fitContents(). While there are no
     * items the height stays.
     */
    void setNrPageItems(int count) override;
    int nrPageItems() const override;
    void setIndex(int index) override;
    int index() const override;

    /** Sets the title; the translated "Text label" by default. */
    virtual void setTitle(const QString &title);

    QVariant data(int index) override;

    /**
     * Makes the list at least as wide as two columns and exactly as high as @p count items need, or
     * nrPageItems() items if @p count is not above 0; an odd last item takes a row of its own. The
     * page size stays. If a host has taken the grid of the list away, the items are measured.
     */
    virtual void fitContents(int count);

Q_SIGNALS:
    /**
     * The user tapped an item. @p index is its row, which is the current and the chosen one. A tap
     * on an item that cannot be current, being disabled in the model, picks the current row
     * instead, the first enabled one if there was none; if all are disabled, the tapped one. Check
     * it against the model.
     */
    void sigSelect(int index);

    /** The user pressed on the page, the panel or the title. */
    void sigCancel();

protected:
    void mousePressEvent(QMouseEvent *event) override;

private Q_SLOTS:
    void slotClicked(const QModelIndex &index);

private:
    Q_DISABLE_COPY(ZEMSimpleListView)

    class Private;
    std::unique_ptr<Private> d;
};

ZEM_END_INTERFACES

#endif

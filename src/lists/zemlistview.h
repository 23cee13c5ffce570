// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMLISTVIEW_H
#define ZEMLISTVIEW_H

#include "zemkit_export.h"
#include "zemlistviewinterface.h"
#include "zempagebackground.h"

#include <memory>

class QModelIndex;

ZEM_BEGIN_INTERFACES // the interface has no destructor

/**
 * A page to pick one of a list of texts: the page beneath is darkened, and a panel in the middle
 * has a heading, the list, and four buttons: page up, page down, select and cancel.
 *
 * @code
 * #include <QApplication>
 * #include <QDebug>
 * #include <QStringListModel>
 * #include <ZEMListView>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * QStringListModel languages({QStringLiteral("Nederlands"), QStringLiteral("English")});
 * ZEMPageBackground window;
 * auto *page = new ZEMListView(&window);
 * page->setHeader(QStringLiteral("Kies een taal"));
 * page->setModel(&languages);
 * page->setNrPageItems(6);
 * page->fitContents(6);
 * page->setIndex(0);
 * QObject::connect(page, &ZEMListView::sigSelect, [=](int row) {
 *     qDebug() << page->data(row);
 *     page->deleteLater();
 * });
 * QObject::connect(page, &ZEMListView::sigCancel, page, &QObject::deleteLater);
 * window.show();
 * @endcode
 *
 * A tap on an item, and paging, only make it current; the user picks it with the select button. The
 * page neither hides nor closes itself. A slot that hears of a pick or a cancel may delete it.
 *
 * A new page is 640 by 480 pixels. The panel is nearly black, and the texts take their colours from
 * the palette: they are read with ZEMStyle or another palette of light texts, and are black on
 * black without. The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 * For pictures to tap on, see ZEMSimpleListView.
 */
class ZEM_EXPORT ZEMListView : public ZEMPageBackground, public ZEMListViewInterface
{
    Q_OBJECT

public:
    explicit ZEMListView(QWidget *parent = nullptr);
    ~ZEMListView() override;

    /**
     * As in the interface. The page buttons stay as they are, both enabled on a new page, and do
     * nothing until a row is current: call setIndex() next. From then on they follow the rows of
     * the model.
     */
    void setModel(QAbstractItemModel *model) override;
    void setItemDelegate(QAbstractItemDelegate *delegate) override;
    void setSelectionFlags(QItemSelectionModel::SelectionFlags flags) override;
    void setScrollHint(QAbstractItemView::ScrollHint hint) override;
    /**
     * As in the interface, and makes the list at least as high as that number of rows, all as high
     * as the first. While there are no items the height stays: set the model first.
     */
    void setNrPageItems(int count) override;
    int nrPageItems() const override;
    /** As in the interface, and enables those page buttons that have a page to go to. */
    void setIndex(int index) override;
    int index() const override;
    QVariant data(int index) override;

    /** Sets the heading; the translated "Text label" by default. */
    void setHeader(const QString &text);

    /** Shows or hides the buttons page up and page down; they are shown by default. */
    void showPageButtons(bool show);

    /**
     * Makes the list at least as wide as its widest item and as high as @p count rows, or as
     * nrPageItems() rows if @p count is not above 0. The page size stays. Without items only the
     * width is set. Measures every item, so it is not for lists of many thousands.
     */
    void fitContents(int count);

Q_SIGNALS:
    /**
     * The user pressed select. @p index is the current row, which is the chosen one from now on; if
     * no row is current it is index() as it stands, 0 for a list never touched and -1 for one that
     * was emptied: check it against the model.
     */
    void sigSelect(int index);

    /** The user pressed cancel. */
    void sigCancel();

private Q_SLOTS:
    void btnSelect_clicked();
    void has_page(bool prev_hasPage, bool next_hasPage);
    void slotClicked(const QModelIndex &index);

private:
    Q_DISABLE_COPY(ZEMListView)

    class Private;
    std::unique_ptr<Private> d;
};

ZEM_END_INTERFACES

#endif

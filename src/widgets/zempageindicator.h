// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMPAGEINDICATOR_H
#define ZEMPAGEINDICATOR_H

#include "zemkit_export.h"

#include <QWidget>

#include <memory>

/**
 * A row of dots that tells which of several pages is shown. It takes no touches.
 *
 * @code
 * #include <QStackedWidget>
 * #include <ZEMPageHeader>
 * #include <ZEMPageIndicator>
 *
 * QStackedWidget pages;
 * for (int page = 0; page < 3; ++page) {
 *     pages.addWidget(new ZEMPageHeader);
 * }
 * ZEMPageIndicator dots;
 * dots.setNrPages(pages.count());
 * QObject::connect(&pages, &QStackedWidget::currentChanged, &dots,
 *                  &ZEMPageIndicator::setCurrentPage);
 * pages.setCurrentIndex(2);
 * dots.show();
 * @endcode
 * A new indicator has no dots and current page 0.
 */
class ZEM_EXPORT ZEMPageIndicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentPage READ getCurrentPage WRITE setCurrentPage)
    Q_PROPERTY(int pages READ getNrPages WRITE setNrPages)

public:
    explicit ZEMPageIndicator(QWidget *parent = nullptr);
    ~ZEMPageIndicator() override;

    /** The page set last, counted from 0; it may lie beyond the dots after setNrPages(). */
    int getCurrentPage() const;

    /** The number of dots: 0 or 2 to 9. */
    int getNrPages() const;
    /**
     * Makes a new row of @p count dots, 2 to 9, and marks the one of the current page, or none if
     * that page is gone: the current page does not change. A count of 0 or 1 leaves no dots, since
     * a single page needs none. Any other count is ignored.
     */
    void setNrPages(int count);

public Q_SLOTS:
    /** Marks the dot of @p page, counted from 0. A page without a dot is ignored. */
    void setCurrentPage(int page);

private:
    Q_DISABLE_COPY(ZEMPageIndicator)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

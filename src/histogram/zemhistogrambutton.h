// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAMBUTTON_H
#define ZEMHISTOGRAMBUTTON_H

#include "zemkit_export.h"

#include <QString>
#include <QWidget>

#include <memory>

class ZEMHistogram;

/**
 * A chart on a large button with a title over it.
 *
 * @code
 * auto *tile = new ZEMHistogramButton(page);
 * tile->setTitle(tr("elektriciteit"));
 * tile->setHistogram(chart);
 * connect(tile, &ZEMHistogramButton::clicked, this, &Page::openCharts);
 * @endcode
 * The button is as large as its picture, 322 by 152 pixels; the chart keeps 10 from its edges. A
 * chart that is dragged keeps the touches on its canvas for itself; a ZEMMiniDayHistogram leaves
 * them to the button.
 *
 * The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMHistogramButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)

public:
    explicit ZEMHistogramButton(QWidget *parent = nullptr);
    ~ZEMHistogramButton() override;

    /** The text above the button; the translated "Title" by default. */
    QString getTitle() const;
    void setTitle(const QString &title);

    /**
     * Puts @p histogram on the button and makes it a child of it. A second chart is put beside the
     * first.
     */
    void setHistogram(ZEMHistogram *histogram);

Q_SIGNALS:
    /** The button was clicked. */
    void clicked();

private:
    Q_DISABLE_COPY(ZEMHistogramButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

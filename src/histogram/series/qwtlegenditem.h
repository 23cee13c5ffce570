// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef QWTLEGENDITEM_H
#define QWTLEGENDITEM_H

#include "zemkit_export.h"

#include <QPixmap>
#include <QSize>

#include <memory>

#include <qwt_text_label.h>

class QPaintEvent;

/**
 * An entry of a legend: an identifier, which is a small picture of the plot item's colour, and the
 * title of the item behind it. Current versions of Qwt have no class of this name any more.
 *
 * All lengths are in pixels. The margin() of a new item is 2.
 */
class ZEM_EXPORT QwtLegendItem : public QwtTextLabel
{
    Q_OBJECT

public:
    explicit QwtLegendItem(QWidget *parent = nullptr);
    ~QwtLegendItem() override;

    /**
     * Room for the identifier, 8 by 8 when new; a negative side counts as 0. Makes the text begin
     * behind it: sets indent() to margin() + width + 2 * spacing(). Does not scale the identifier.
     */
    void setIdentifierSize(const QSize &size);
    QSize identifierSize() const;

    /** The picture, null when new, as large as its size divided by its ratio. Updates the item. */
    void setIdentifier(const QPixmap &identifier);
    QPixmap identifier() const;

    /**
     * Distance of the identifier to what stands beside it, 2 when new; a negative one counts as 0.
     * Sets indent() as setIdentifierSize() does.
     */
    void setSpacing(int spacing);
    int spacing() const;

    using QwtTextLabel::setText;

public Q_SLOTS:
    /** Shows @p text on the left, vertically centred, with tabs and wrapped at words. */
    void setText(const QwtText &text) override;

protected:
    /** The frame and the text, then the identifier at margin() from the left. */
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(QwtLegendItem)

    void updateIndent();

    class Private;
    std::unique_ptr<Private> d;
};

#endif

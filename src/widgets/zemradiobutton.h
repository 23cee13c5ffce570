// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMRADIOBUTTON_H
#define ZEMRADIOBUTTON_H

#include "zemkit_export.h"

#include <QAbstractButton>
#include <QPixmap>

#include <memory>

/**
 * The small dot of a page indicator: a picture, and a mark in its middle while it is checked.
 *
 * It looks the same enabled and disabled. Group several with a QButtonGroup to have one checked:
 * @code
 * #include <QButtonGroup>
 * #include <QHBoxLayout>
 * #include <ZEMRadioButton>
 *
 * QWidget indicator;
 * auto *row = new QHBoxLayout(&indicator);
 * auto *dots = new QButtonGroup(&indicator);
 * for (int page = 0; page < 3; ++page) {
 *     auto *dot = new ZEMRadioButton;
 *     dots->addButton(dot, page);
 *     row->addWidget(dot);
 * }
 * dots->button(1)->setChecked(true);
 * indicator.show();
 * @endcode
 * A new one is checkable, unchecked and as large as its default picture, 13 by 12 pixels.
 *
 * A slot of toggled() that has done with it calls deleteLater(): as every button of Qt, it goes on
 * after that signal. A slot of the other signals may delete it.
 */
class ZEM_EXPORT ZEMRadioButton : public QAbstractButton
{
    Q_OBJECT
    Q_PROPERTY(QPixmap background READ getBackground WRITE setBackground)
    Q_PROPERTY(QPixmap checkedIcon READ getCheckedIcon WRITE setCheckedIcon)

public:
    explicit ZEMRadioButton(QWidget *parent = nullptr);
    ~ZEMRadioButton() override;

    /** The picture; ":/zem/graphics/main/buttons/radio_btn_bg.png" by default. */
    QPixmap getBackground() const;
    /**
     * Sets the picture, locks the size of the button to its size, divided by its ratio, and paints
     * at once.
     */
    void setBackground(const QPixmap &background);

    /** The mark; ":/zem/graphics/main/buttons/radio_btn_selected.png" by default. */
    QPixmap getCheckedIcon() const;
    /**
     * Sets the mark and paints at once. It is drawn in its own size, divided by its ratio, in the
     * middle of the button; one that is wider or higher than the button begins at the left or top
     * edge and is cut off.
     */
    void setCheckedIcon(const QPixmap &icon);

    /** The present size. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMRadioButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

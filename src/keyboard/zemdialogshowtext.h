// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMDIALOGSHOWTEXT_H
#define ZEMDIALOGSHOWTEXT_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

/**
 * Shows a text on a darkened page, however long, and waits until the user has read it. There is no
 * scroll bar: two buttons turn the pages, and each is disabled at its end of the text.
 *
 * exec() shows the dialog and returns when it is closed. Until then a local event loop serves
 * timers, other widgets and the host's slots, so the display lives on. The dialog is an ordinary
 * widget: make it a child of the page, above all else on it, to cover the page.
 * @code
 * #include <ZEMDialogShowText>
 *
 * QWidget page;
 * ZEMDialogShowText letter(&page);
 * letter.setTitle(QObject::tr("Bericht"));
 * letter.setText(QObject::tr("De meterstand is doorgegeven."));
 * letter.setBtnEditVisible(true);
 * QObject::connect(&letter, &ZEMDialogShowText::sigBtnEditClicked,
 *                  [] { qDebug("an answer is wanted"); });
 * page.show();
 * letter.exec();
 * @endcode
 * Title, pencil button and size of the text stay for the next use until clearText() is called. A
 * new dialog is 640 by 480 pixels, and shows neither title nor pencil.
 *
 * Its texts have the colours of the palette, on a black ground: without ZEMStyle, or another
 * palette with light texts, they cannot be read.
 */
class ZEM_EXPORT ZEMDialogShowText : public ZEMPageBackground
{
    Q_OBJECT

public:
    explicit ZEMDialogShowText(QWidget *parent = nullptr);
    /** A dialog that is destroyed while exec() runs ends it; exec() returns false. */
    ~ZEMDialogShowText() override;

    /** Sets the text, plain or rich. If the dialog is open call updateButtons() afterwards. */
    void setText(QString text);

    /** Sets the title above the text; an empty one is hidden. */
    void setTitle(QString title);

    /** Sets the size of the text, in points above 0; 22 by default. */
    void setTextFontSize(int size);

    /** Whether there is a pencil button; false by default. */
    void setBtnEditVisible(bool visible);

    /** Empties the text, hides title and pencil button, and makes the text 22 points large. */
    void clearText();

    /**
     * Withdraws the dialog: ends a running exec(), which returns false unless a button was touched
     * before, and hides the dialog. This is the way to close it from a timer or a slot: if it is
     * merely hidden, exec() goes on waiting.
     */
    void reset();

    /**
     * Shows the dialog from the start of its text, and returns when it is closed: true if the
     * accept or the pencil button was touched, false after reset(). Do not call it again before it
     * has returned: the dialog can end the inner call only.
     */
    bool exec();

    /** Enables the two buttons that turn the pages as far as there is text to turn to. */
    void updateButtons();

Q_SIGNALS:
    /**
     * The pencil button was touched. The dialog is already hidden, and exec() will return true,
     * unless a slot deletes the dialog.
     */
    void sigBtnEditClicked();

private Q_SLOTS:
    void btn_accepted_clicked();
    void btn_pg_up_clicked();
    void btn_pg_down_clicked();

private:
    Q_DISABLE_COPY(ZEMDialogShowText)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

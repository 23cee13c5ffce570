// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMDIALOGPOPUP_H
#define ZEMDIALOGPOPUP_H

#include "zempagebackground.h"

#include <QString>

#include <memory>

/**
 * A question or a message on a darkened page: up to three lines of text, a spinner, and a button
 * each to reject and to accept.
 *
 * exec() and info() show the dialog and return when the user has answered. Until then a local event
 * loop serves timers, other widgets and the host's slots, so the display lives on. The dialog is an
 * ordinary widget: make it a child of the page, above all else on it, to cover the page. Its texts
 * have the colour of QPalette::WindowText on a nearly black ground: they are read with ZEMStyle or
 * another palette of light texts, and are black on black without.
 * @code
 * #include <QApplication>
 * #include <ZEMDialogPopup>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground page;
 * page.show();
 * ZEMDialogPopup sure(&page);
 * sure.setTextLine1(QStringLiteral("Afsluiten?"));
 * sure.setTextLine2(QStringLiteral("Er wordt niets meer gemeten."));
 * sure.setTextLine3(QString());
 * if (sure.exec()) {
 *     page.close();
 * }
 * @endcode
 * A notice that the user cannot close, with a spinner, until a job is done:
 * @code
 * #include <QApplication>
 * #include <QTimer>
 * #include <ZEMDialogPopup>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground page;
 * page.show();
 * ZEMDialogPopup busy(&page);
 * busy.setTextLine1(QStringLiteral("Even geduld"));
 * busy.setTextLine2(QString());
 * busy.setTextLine3(QStringLiteral("<throbber>"));
 * QTimer::singleShot(2000, &busy, &ZEMDialogPopup::reset); // the job is done
 * busy.info(true);
 * @endcode
 * A new dialog is 640 by 480 pixels and shows a sample text in all lines, and the spinner; set all
 * three lines, or call clearText() first. It is hidden until exec() or info() shows it, also on a
 * page that is shown later. To hide it while exec() or info() runs does not end them; reset() does.
 */
class ZEM_EXPORT ZEMDialogPopup : public ZEMPageBackground
{
    Q_OBJECT

public:
    explicit ZEMDialogPopup(QWidget *parent = nullptr);
    /** A dialog that is destroyed while exec() or info() runs ends it; exec() returns false. */
    ~ZEMDialogPopup() override;

    void setTextLine1(QString text);
    void setTextLine2(QString text);
    /**
     * Sets the third line, shows it and stops the spinner, which is hidden. The text "<throbber>"
     * instead hides the line and shows the spinner, which runs.
     */
    void setTextLine3(QString text);
    /** Empties all three lines and hides the spinner. */
    void clearText();

public Q_SLOTS:
    /**
     * Shows a message and returns when the accept button is touched or reset() is called. The
     * reject button is disabled meanwhile. If @p disableAcceptButton is true, so is the accept
     * button, until the next exec() or info(), and only reset() ends the call.
     */
    void info(bool disableAcceptButton = false);

    /**
     * Shows a question with both buttons and returns when one is touched or reset() is called: true
     * for the accept button, false for all else. Do not call it again before it has returned: the
     * dialog can end the inner call only.
     */
    bool exec();

    /**
     * Ends a running exec() or info() and hides the dialog. A call before one of them runs is lost:
     * they wait all the same. So what ends them comes through the event loop: from a timer, say, or
     * a signal of another thread.
     */
    void reset();

private Q_SLOTS:
    void btn_accepted_clicked();
    void btn_rejected_clicked();

private:
    Q_DISABLE_COPY(ZEMDialogPopup)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

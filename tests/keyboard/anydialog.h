// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ANYDIALOG_H
#define ANYDIALOG_H

#include "inputdialogtest.h"
#include "zemtest.h"

#include <ZEMLineEditDialog>
#include <ZEMLineEditSearchDialog>
#include <ZEMMultiLineDialog>
#include <ZEMNumericKeypad>
#include <ZEMPasswordDialog>

#include <QLineEdit>
#include <QPointer>
#include <QTest>
#include <QTextCursor>
#include <QTextEdit>

#include <functional>
#include <type_traits>

/** The five input dialogs as if they had a class in common, for tests that are made of each. */
namespace InputDialogTest {

constexpr const char *names[] = {"ZEMNumericKeypad", "ZEMLineEditDialog", "ZEMLineEditSearchDialog",
                                 "ZEMPasswordDialog", "ZEMMultiLineDialog"};

/** The name of the dialog in the tag of the present row: "ZEMNumericKeypad, some case". */
inline QByteArray nameInRow()
{
    return QByteArray(QTest::currentDataTag()).split(',').constFirst();
}

/** What stands behind the name of the dialog in the tag of the present row. */
inline QByteArray caseInRow()
{
    return QByteArray(QTest::currentDataTag()).split(',').value(1).trimmed();
}

/** Calls @p action with a null pointer to the class of this name. */
template <typename Action>
auto withClass(const QByteArray &name, Action action)
{
    if (name == "ZEMNumericKeypad") {
        return action(static_cast<ZEMNumericKeypad *>(nullptr));
    }
    if (name == "ZEMLineEditDialog") {
        return action(static_cast<ZEMLineEditDialog *>(nullptr));
    }
    if (name == "ZEMLineEditSearchDialog") {
        return action(static_cast<ZEMLineEditSearchDialog *>(nullptr));
    }
    if (name == "ZEMPasswordDialog") {
        return action(static_cast<ZEMPasswordDialog *>(nullptr));
    }
    if (name == "ZEMMultiLineDialog") {
        return action(static_cast<ZEMMultiLineDialog *>(nullptr));
    }
    qFatal("no such dialog: %s", name.constData());
}

inline void setAutoSelect(ZEMNumericKeypad *dialog, bool select)
{
    dialog->setAutoSelectInput(select);
}
template <typename Dialog>
void setAutoSelect(Dialog *dialog, bool select)
{
    dialog->setAutoSelect(select);
}
inline void setAutoSelect(ZEMMultiLineDialog *, bool) { }

inline void setText(ZEMNumericKeypad *dialog, const QString &text)
{
    dialog->setValue(text);
}
template <typename Dialog>
void setText(Dialog *dialog, const QString &text)
{
    dialog->setText(text);
}

inline QString textOf(const ZEMNumericKeypad *dialog)
{
    return dialog->value();
}
template <typename Dialog>
QString textOf(const Dialog *dialog)
{
    return dialog->text();
}

enum class Told { Shown, Select, Cancel };

/** What can be done with one of the dialogs. */
struct Kind
{
    std::function<ZEMPageBackground *(ZEMVirtualKeyboard *, QWidget *)> make;
    std::function<void(ZEMPageBackground *, Results *)> listen;
    std::function<void(ZEMPageBackground *, ZEMKeyboardInputHandler *)> setHandler;
    std::function<void(ZEMPageBackground *, bool)> setAutoSelect;
    std::function<void(ZEMPageBackground *, const QString &)> setTitle;
    std::function<void(ZEMPageBackground *, const QString &)> setText;
    std::function<QString(ZEMPageBackground *)> text;
    std::function<void(ZEMPageBackground *, Told, const std::function<void()> &)> when;
};

template <typename Dialog>
Kind kind()
{
    const auto cast = [](ZEMPageBackground *dialog) { return qobject_cast<Dialog *>(dialog); };
    return {
        [](ZEMVirtualKeyboard *keyboard, QWidget *page) { return new Dialog(keyboard, page); },
        [cast](ZEMPageBackground *dialog, Results *results) { results->listen(cast(dialog)); },
        [cast](ZEMPageBackground *dialog, ZEMKeyboardInputHandler *handler) {
            cast(dialog)->setActiveInputHandler(handler);
        },
        [cast](ZEMPageBackground *dialog, bool select) {
            InputDialogTest::setAutoSelect(cast(dialog), select);
        },
        [cast](ZEMPageBackground *dialog, const QString &text) { cast(dialog)->setTitle(text); },
        [cast](ZEMPageBackground *dialog, const QString &text) {
            InputDialogTest::setText(cast(dialog), text);
        },
        [cast](ZEMPageBackground *dialog) { return textOf(cast(dialog)); },
        [cast](ZEMPageBackground *dialog, Told told, const std::function<void()> &action) {
            const auto signal = told == Told::Shown ? &Dialog::sigShown
                : told == Told::Select              ? &Dialog::sigSelect
                                                    : &Dialog::sigCancel;
            QObject::connect(cast(dialog), signal, dialog->parentWidget(), action);
        }};
}

/** The dialog of the present row on a page. */
class AnyDialog
{
public:
    AnyDialog() : AnyDialog(false) { }

    /** The field, of which the multi line dialog has one of its own kind. */
    QWidget *field() const { return line() ? static_cast<QWidget *>(line()) : text(); }
    QLineEdit *line() const { return part<QLineEdit>(*dialog, "lineEdit"); }
    QTextEdit *text() const { return part<QTextEdit>(*dialog, "textEdit"); }

    QString selectedText() const
    {
        return line() ? line()->selectedText() : text()->textCursor().selectedText();
    }
    void deselect() const
    {
        if (line()) {
            line()->deselect();
        } else {
            QTextCursor cursor = text()->textCursor();
            cursor.clearSelection();
            text()->setTextCursor(cursor);
        }
    }

    Keyboards keyboards;
    QWidget page;
    Kind kind;
    QPointer<ZEMPageBackground> dialog;
    bool isReady = false;

protected:
    /** A dialog that is made while its page is hidden is shown with it. */
    explicit AnyDialog(bool isPageShown)
        : kind(withClass(nameInRow(), [](auto *none) {
              return InputDialogTest::kind<std::remove_pointer_t<decltype(none)>>();
          }))
    {
        page.resize(900, 600);
        if (isPageShown) {
            page.show();
            page.activateWindow();
            isReady = QTest::qWaitForWindowActive(&page, ZemTest::hangs);
        }
        dialog = kind.make(keyboards.make(), &page);
    }
};

/** The dialog of the present row, hidden until show(), on a page that is shown and active. */
class AnyStage : public AnyDialog
{
public:
    AnyStage() : AnyDialog(true) { }

    /** Shows the dialog and lets what it posts arrive, and its second selection after half a
     * second. */
    void show() const
    {
        dialog->show();
        ZemTest::outlast(secondSelection);
    }
};

} // namespace InputDialogTest

#endif

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "inputdialogs.h"

#include "dialogfit.h"
#include "displaysettings.h"
#include "keyboardfiles.h"
#include "pagelook.h"

#include <KeyboardFactoryDefault>
#include <QBoxLayout>
#include <QFontMetrics>
#include <QListView>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QTextBlockFormat>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTextDocument>
#include <QValidator>
#include <ZEMButton>
#include <ZEMDialogPopup>
#include <ZEMDialogShowText>
#include <ZEMKeyboardInputHandler>
#include <ZEMLineEditDialog>
#include <ZEMListView>
#include <ZEMNumericKeypad>
#include <ZEMSimpleListView>
#include <utility>

namespace {

constexpr int textSize = 14; // points
constexpr int itemsOfList = 7;
constexpr int itemHeight = 40; // pixels, for a finger
constexpr int listWidth = 360; // pixels
constexpr int longestLine = 60;

/** Items that are high enough for a finger. */
class HighItems : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, itemHeight});
    }
};

/** Makes the texts of a list white on the page. */
void styleList(QWidget *page)
{
    auto *list = page->findChild<QListView *>();
    list->setFont(PageLook::textFont(textSize));
    PageLook::makeTransparent(list);
}

/** Lets @p text show whole lines only, on each of its pages. */
void showWholeLines(QTextEdit *text)
{
    const int line = QFontMetrics(text->font()).lineSpacing();
    text->document()->setDocumentMargin(0.0);
    QTextBlockFormat format;
    format.setLineHeight(line, QTextBlockFormat::FixedHeight);
    format.setTopMargin(0.0);
    format.setBottomMargin(line);
    QTextCursor all(text->document());
    all.select(QTextCursor::Document);
    all.mergeBlockFormat(format);
    const int rest = (text->height() - 2 * text->frameWidth()) % line;
    text->setFixedHeight(text->height() - rest);
}

/** A button that does nothing now is not shown: disabled ones look like the others. */
void hideIdleButtons(QWidget *dialog)
{
    for (ZEMButton *button : dialog->findChildren<ZEMButton *>()) {
        button->setHideWhenDisabled(true);
    }
}

} // namespace

InputDialogs::InputDialogs(const QString &keyboardDirectory, const DisplaySettings *theSettings,
                           QWidget *theWindow)
    : QObject(theWindow), directory(keyboardDirectory), settings(theSettings), window(theWindow)
{
}

InputDialogs::~InputDialogs() = default;

QStringList InputDialogs::languages() const
{
    return KeyboardFiles::languagesIn(directory);
}

void InputDialogs::askLine(const QString &title, const QString &text, const Answer &answer)
{
    auto *dialog = new ZEMLineEditDialog(
        keyboards().createKeyboard(ZEMVirtualKeyboardFactoryIntf::PopupAbove), window);
    dialog->setTitle(title);
    dialog->setStringLengthLimit(longestLine);
    dialog->setText(text);
    run(dialog, &ZEMLineEditDialog::text, answer);
}

void InputDialogs::askNumber(const QString &title, const QString &value, QValidator *validator,
                             const QString &range, const Answer &answer)
{
    auto *dialog = new ZEMNumericKeypad(keyboards().createNumericKeypad(), window);
    dialog->setTitle(title);
    dialog->setValue(value);
    validator->setParent(dialog);
    dialog->setValidator(validator);
    // The field keeps letters out, but an empty text or a 0 can still stand in it.
    const auto accepts = [dialog, validator, range] {
        QString number = dialog->value();
        int position = 0;
        const bool isGood = validator->validate(number, position) == QValidator::Acceptable;
        if (!isGood) {
            dialog->setTitle(range);
        }
        return isGood;
    };
    run(dialog, &ZEMNumericKeypad::value, answer, accepts);
}

void InputDialogs::choose(const QString &title, const QStringList &choices, int current,
                          const std::function<void(int)> &chosen)
{
    auto *model = new QStringListModel(choices, this);
    choose(title, model, current, chosen);
    connect(window->findChildren<ZEMListView *>().constLast(), &QObject::destroyed, model,
            &QObject::deleteLater);
}

void InputDialogs::choose(const QString &title, QAbstractItemModel *choices, int current,
                          const std::function<void(int)> &chosen)
{
    auto *page = new ZEMListView(window);
    styleList(page);
    page->setItemDelegate(new HighItems(page));
    page->findChild<QListView *>()->setMinimumWidth(listWidth);
    hideIdleButtons(page);
    page->setHeader(title);
    page->setModel(choices);
    page->setNrPageItems(itemsOfList);
    page->setIndex(current);
    connect(page, &ZEMListView::sigSelect, this, [page, choices, chosen](int row) {
        page->hide();
        page->deleteLater();
        if (choices->hasIndex(row, 0)) {
            chosen(row);
        }
    });
    connect(page, &ZEMListView::sigCancel, page, &QObject::deleteLater);
    cover(page);
}

void InputDialogs::chooseByPicture(QAbstractItemModel *choices,
                                   const std::function<void(int)> &chosen)
{
    auto *page = new ZEMSimpleListView(window);
    styleList(page);
    page->setModel(choices);
    page->fitContents(choices->rowCount());
    connect(page, &ZEMSimpleListView::sigSelect, this, [page, choices, chosen](int row) {
        page->hide();
        page->deleteLater();
        if (choices->hasIndex(row, 0)) {
            chosen(row);
        }
    });
    connect(page, &ZEMSimpleListView::sigCancel, page, &QObject::deleteLater);
    cover(page);
}

void InputDialogs::read(const QString &title, const QString &text)
{
    ZEMDialogShowText dialog(window);
    dialog.setTitle(title);
    hideIdleButtons(&dialog);
    dialog.setTextFontSize(textSize);
    dialog.setText(text);
    fitDialog(&dialog, window->size());
    makeSolid(&dialog);
    dialog.ensurePolished();
    auto *browser = dialog.findChild<QTextBrowser *>();
    dialog.layout()->activate();
    browser->parentWidget()->layout()->activate();
    showWholeLines(browser);
    dialog.raise();
    covers.append(&dialog);
    dialog.exec();
}

void InputDialogs::inform(const QString &text)
{
    ZEMDialogPopup dialog(window);
    // The button that is left stands in the middle.
    auto *rejected = dialog.findChild<ZEMButton *>(QStringLiteral("btnRejected"));
    auto *row = dialog.findChild<QHBoxLayout *>(QStringLiteral("horizontalLayout"));
    delete row->takeAt(row->indexOf(rejected) + 1);
    rejected->hide();
    dialog.clearText();
    dialog.setTextLine1(text);
    fitDialog(&dialog, window->size());
    makeSolid(&dialog);
    dialog.raise();
    covers.append(&dialog);
    dialog.info();
}

bool InputDialogs::confirm(const QString &question, const QString &explanation)
{
    ZEMDialogPopup dialog(window);
    dialog.clearText();
    dialog.setTextLine1(question);
    dialog.setTextLine2(explanation);
    fitDialog(&dialog, window->size());
    makeSolid(&dialog);
    dialog.raise();
    covers.append(&dialog);
    return dialog.exec();
}

void InputDialogs::withdraw()
{
    const auto open = std::exchange(covers, {});
    for (const QPointer<QWidget> &dialog : open) {
        if (!dialog) {
            continue;
        }
        // Those that wait for their answer are not deleted under it.
        if (auto *text = qobject_cast<ZEMDialogShowText *>(dialog)) {
            text->reset();
        } else if (auto *popup = qobject_cast<ZEMDialogPopup *>(dialog)) {
            popup->reset();
        } else {
            dialog->hide();
            dialog->deleteLater();
        }
    }
}

KeyboardFactoryDefault &InputDialogs::keyboards()
{
    const QString language = settings->keyboardLanguage();
    auto &factory = factories[language];
    if (!factory) {
        factory = std::make_unique<KeyboardFactoryDefault>(directory, language);
    }
    return *factory;
}

template <class Dialog>
void InputDialogs::run(Dialog *dialog, QString (Dialog::*text)() const, const Answer &answer,
                       const std::function<bool()> &accepts)
{
    auto *handler = new ZEMKeyboardInputHandler(dialog);
    connect(handler, &ZEMKeyboardInputHandler::sigSelect, this, [dialog, text, answer, accepts] {
        if (accepts && !accepts()) {
            return;
        }
        const QString entered = (dialog->*text)();
        dialog->hide();
        dialog->deleteLater();
        answer(entered);
    });
    connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QWidget::hide);
    connect(handler, &ZEMKeyboardInputHandler::sigCancel, dialog, &QObject::deleteLater);
    dialog->setActiveInputHandler(handler);
    cover(dialog);
}

void InputDialogs::cover(QWidget *dialog)
{
    covers.removeAll(nullptr);
    covers.append(dialog);
    fitDialog(dialog, window->size());
    makeSolid(dialog);
    dialog->show();
    dialog->raise();
}

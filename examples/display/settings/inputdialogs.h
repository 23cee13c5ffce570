// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef INPUTDIALOGS_H
#define INPUTDIALOGS_H

#include <QAbstractItemModel>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>

class DisplaySettings;
class KeyboardFactoryDefault;
class QValidator;

/**
 * Asks people things, over all of the display. Each dialog has the keyboard of the language that is
 * set, and goes away when it is answered or cancelled; only an answer calls the function.
 */
class InputDialogs : public QObject
{
    Q_OBJECT

public:
    using Answer = std::function<void(const QString &)>;

    /** The keyboards of @p keyboardDirectory; the dialogs cover @p window. Settings are kept. */
    InputDialogs(const QString &keyboardDirectory, const DisplaySettings *settings,
                 QWidget *window);
    ~InputDialogs() override;

    /** The languages of which there is a keyboard, as "nl". */
    QStringList languages() const;

    void askLine(const QString &title, const QString &text, const Answer &answer);
    /**
     * Takes ownership of @p validator. A number that it does not accept stays, under the words of
     * @p range, which say what is accepted.
     */
    void askNumber(const QString &title, const QString &value, QValidator *validator,
                   const QString &range, const Answer &answer);

    /** Lets one of @p choices be chosen. */
    void choose(const QString &title, const QStringList &choices, int current,
                const std::function<void(int)> &chosen);
    /** The same of a model, which must outlive the list. */
    void choose(const QString &title, QAbstractItemModel *choices, int current,
                const std::function<void(int)> &chosen);
    /** A list to pick from by pictures. Takes no notice of a press beside it. */
    void chooseByPicture(QAbstractItemModel *choices, const std::function<void(int)> &chosen);

    /** Shows a long text until it is closed; other widgets live on. */
    void read(const QString &title, const QString &text);
    /** Shows a short text until it is closed; other widgets live on. */
    void inform(const QString &text);
    /** Whether @p question is answered with yes. Other widgets live on. */
    bool confirm(const QString &question, const QString &explanation);

    /** Takes back all that is open, as if it had been cancelled. */
    void withdraw();

private:
    KeyboardFactoryDefault &keyboards();
    template <class Dialog>
    void run(Dialog *dialog, QString (Dialog::*text)() const, const Answer &answer,
             const std::function<bool()> &accepts = {});
    void cover(QWidget *dialog);

    const QString directory;
    const DisplaySettings *settings;
    QWidget *window;
    QList<QPointer<QWidget>> covers; ///< the dialogs that are open, and some that were
    /** A keyboard may outlive a change of the language, and a factory its keyboards. */
    std::map<QString, std::unique_ptr<KeyboardFactoryDefault>> factories;
};

#endif

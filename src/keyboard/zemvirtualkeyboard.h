// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMVIRTUALKEYBOARD_H
#define ZEMVIRTUALKEYBOARD_H

#include "zemkeyboardinterfaces.h"
#include "zemkit_export.h"

#include <QWidget>

#include <memory>

class QDomElement;
class QHBoxLayout;
class QMargins;
class QVBoxLayout;
class ZEMVirtualKey;

/**
 * An on-screen keyboard, described by an XML file, that types into one widget.
 *
 * It is not a window: a dialog lays it out as a child and tells it what to type into. The dialogs
 * of the library do that with any keyboard they are given, and KeyboardFactoryDefault makes
 * keyboards that are ready for them. By hand, in this order:
 * @code
 * #include <KeyboardFactoryDefault>
 * #include <QLineEdit>
 * #include <QVBoxLayout>
 * #include <ZEMVirtualKeyboard>
 *
 * auto *page = new QWidget;
 * auto *layout = new QVBoxLayout(page);
 * auto *lineEdit = new QLineEdit;
 * layout->addWidget(lineEdit);
 * static KeyboardFactoryDefault keyboards(QStringLiteral("keyboards"),
 *                                         QStringLiteral("nl"));
 * auto *keyboard = new ZEMVirtualKeyboard;
 * keyboard->setFactory(&keyboards); // keys and their looks; before load()
 * keyboard->setMargins(QMargins(0, 46, 0, 2)); // room for the popups of the top row
 * if (keyboard->load(QStringLiteral("keyboards/keyboard_en.xml"))) {
 *     layout->addWidget(keyboard);
 *     keyboard->setFocusWidget(lineEdit);
 *     keyboard->setPopupParent(page);
 * }
 * @endcode
 *
 * What is typed reaches the target as QKeyEvent of type QEvent::KeyPress through
 * QCoreApplication::postEvent(), that is, on a later turn of the event loop; there are no events
 * for releases. A character is sent with its own Unicode value as key code, so that "a" is 97, not
 * Qt::Key_A, and "A" is 65. Delete is sent as Qt::Key_Backspace with the text "\b", Space as
 * Qt::Key_Space with a blank, and Enter as Qt::Key_Enter with two carriage returns as its text.
 *
 * A key is sent when it is released, and so when the finger is moved off it. While it is down, a
 * character key shows its character in a popup; after 750 ms it opens a panel with its alternative
 * characters, if it has any, and will not be sent itself. The panel opens only if key and keyboard
 * are still to be seen and the key is still held. It stays until one of its keys or any other key
 * is touched, or the keyboard is hidden.
 *
 * The caps key leads from small letters to one capital, then to capitals, and back. One capital
 * ends with the next key that sends anything, but not with an alternative character. A keyboard
 * that is shown starts on its first page, in small letters. As all texts follow the caps state,
 * a word that the file has in capitals is shown in small letters at first.
 *
 * The file: a root @c keyboard, whose attribute @c popup is 0 for neither previews nor panels, 2
 * for panels only and all else for both. In it, @c layout elements, one for each page, with the
 * position at which the page is inserted as @c id; in those @c row elements, and @c stretch with
 * its factor as @c value; in a row
 * - @c key, with @c value, the character or one of the words CAPS, DELETE, ENTER and SPACE;
 *   @c size, a factor for the width; @c width, pixels added to the width; @c alternate, up to ten
 *   characters; @c layout, the page that the key opens, which makes it a page key;
 * - @c stretch, with @c value;
 * - @c space, as wide as the key that @c key names, which has to come first in the file.
 * @code{.xml}
 * <keyboard>
 *   <layout id="0">
 *     <row><key value="CAPS" size="1.5"/><key value="e" alternate="éèêë"/></row>
 *     <row><key value="123" layout="1"/><key value="SPACE" width="120"/><key value="ENTER"/></row>
 *   </layout>
 *   <layout id="1"><row><key value="abc" layout="0"/><key value="1"/></row></layout>
 * </keyboard>
 * @endcode
 * Escapes in @c value are resolved a second time after XML has done so; thus "&amp;amp;lt;" is "<".
 *
 * The rows of keys stay as they are where the application is laid out from right to left.
 */
class ZEM_EXPORT ZEMVirtualKeyboard : public QWidget
{
    Q_OBJECT

public:
    enum t_caps {
        CapsOff, ///< small letters
        CapsSingle, ///< the next character is a capital
        CapsLock ///< capitals until the caps key is touched
    };

    /** An empty keyboard, which needs a factory before it can load a file. */
    explicit ZEMVirtualKeyboard(QWidget *parent = nullptr);
    /** Takes the popups along, wherever setPopupParent() has put them. */
    ~ZEMVirtualKeyboard() override;

    /**
     * Takes keys and spacings from @p factory, which stays the caller's; null is ignored. The
     * popups are made at once, the keys by load(). Calling it again renews the popups and leaves
     * the keys that there are. If the factory goes before the keyboard, that types on, but its keys
     * keep the look that they have.
     */
    void setFactory(ZEMVirtualKeyFactoryIntf *factory);

    /**
     * Builds pages and keys as the file @p fileName describes, and returns whether it could be
     * read. If it is not a well-formed XML file with a root @c keyboard, or there is no factory,
     * nothing is changed, so another file may be tried; the reason goes to qDebug(). Refused as not
     * well-formed are also elements that are nested more than 1,000 deep, and entities that may
     * make the file longer by more than 100,000 characters. All flaws below the root are passed
     * over in silence: a page without a valid id, a key without a value and unknown elements are
     * left out, a bad number counts as its default.
     *
     * To be called once. A second file adds its pages and keys to those of the first, whose keys
     * are sent several times from then on.
     */
    bool load(const QString &fileName);

    /**
     * Types into @p target from now on, which stays the caller's; null by default, which lets the
     * keyboard send nothing. The target may be deleted any time.
     */
    void setFocusWidget(QWidget *target);

    /** The margins, in pixels, of the pages of a later load(); 0 by default. */
    void setMargins(const QMargins &margins);

    /** Where the popups appear, from the next one on. Default: PopupAbove. */
    void setPopupStyle(ZEMVirtualKeyboardFactoryIntf::KeyboardPopupStyle style);

    /**
     * Makes the popups children of @p parent, so that they may leave the area of the keyboard. It
     * has to be the parent of the keyboard, in whose coordinates they are placed, and it is called
     * after that has got the keyboard, which would cover them otherwise. Until then they
     * are children of the keyboard, and misplaced by its position. Needs a factory.
     */
    void setPopupParent(QWidget *parent);

    /** Puts all keys into the caps state @p state; the keyboard's own state stays what it was. */
    void switchButtonCaps(t_caps state);

    /** A value of the file without its second level of escapes. */
    QString decodeValue(const QString &value) const;
    /** A new key @p name of the factory, typed by its name and appended to the keyboard's keys. */
    ZEMVirtualKey *createButton(const QString &name);
    /** Fills the page @p layout with the rows and stretches of the file's @p element. */
    void parseLayout(QVBoxLayout *layout, const QDomElement &element);
    /** Fills @p row with the keys, stretches and spaces of the file's @p element. */
    void parseRow(QHBoxLayout *row, const QDomElement &element);

Q_SIGNALS:
    /**
     * An Enter key was touched; its event is on its way to the target, if there is one. A slot may
     * delete the keyboard, as may one of the signals of its keys.
     */
    void sigKey_enter();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private Q_SLOTS:
    void sendKey(int index);
    void buttonPressed(int index);
    void buttonReleased(int index);
    void slotDisplayAlternatives();
    void slotSendAlternativeChar(int index);
    void slotUpdateLastPressedButton();

private:
    Q_DISABLE_COPY(ZEMVirtualKeyboard)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

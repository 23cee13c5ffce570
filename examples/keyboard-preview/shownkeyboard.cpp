// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "shownkeyboard.h"

#include <ZEMLineEditDialog>
#include <ZEMNumericKeypad>
#include <ZEMVirtualKey>

#include <QEventLoop>
#include <QFileInfo>
#include <QMargins>
#include <QStackedWidget>
#include <QTimer>

namespace {

constexpr int capsStates = 3;
constexpr int lookIsSettled = 100; // milliseconds; a shown keyboard redraws a key after 50
constexpr int panelIsOpen = 850; // milliseconds; a keyboard opens it after 750

// What KeyboardFactoryDefault gives the keyboards that it loads by language.
constexpr int stripForPopups = 46; // pixels
constexpr int lowerMargin = 2; // pixels

void wait(int time)
{
    QEventLoop loop;
    QTimer::singleShot(time, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

ShownKeyboard::ShownKeyboard(const QString &fileName, PopupStyle style, const QSize &size)
    : keyboard(new ZEMVirtualKeyboard)
{
    const bool isKeypad = QFileInfo(fileName).fileName() == QLatin1String("keyboard_numpad.xml");
    keyboard->setFactory(&factory);
    if (!isKeypad) {
        const bool strip = style == ZEMVirtualKeyboardFactoryIntf::PopupAbove;
        keyboard->setPopupStyle(style);
        keyboard->setMargins({0, strip ? stripForPopups : lowerMargin, 0, lowerMargin});
    }
    loaded = keyboard->load(fileName);
    stack = keyboard->findChild<QStackedWidget *>();
    dialog = makeDialog(isKeypad);
    host.setAttribute(Qt::WA_DontShowOnScreen);
    host.resize(size);
    dialog->setGeometry(QRect(QPoint(), size));
    host.show();
}

ShownKeyboard::~ShownKeyboard() = default;

QWidget *ShownKeyboard::makeDialog(bool isKeypad)
{
    if (isKeypad) {
        return new ZEMNumericKeypad(keyboard, &host);
    }
    return new ZEMLineEditDialog(keyboard, &host);
}

int ShownKeyboard::pageCount() const
{
    return stack->count();
}

QList<ZEMVirtualKey *> ShownKeyboard::keys(int page) const
{
    return stack->widget(page)->findChildren<ZEMVirtualKey *>(QString(),
                                                              Qt::FindDirectChildrenOnly);
}

ZEMVirtualKey *ShownKeyboard::capsKey() const
{
    for (int page = 0; page < pageCount(); ++page) {
        for (ZEMVirtualKey *key : keys(page)) {
            if (key->type() == ZEMVirtualKey::Caps) {
                return key;
            }
        }
    }
    return nullptr;
}

bool ShownKeyboard::hasCaps() const
{
    return capsKey() != nullptr;
}

void ShownKeyboard::open(int page, Caps caps)
{
    ZEMVirtualKey *key = capsKey();
    while (key && capsState != caps) {
        key->click();
        capsState = (capsState + 1) % capsStates;
    }
    stack->setCurrentIndex(page);
}

void ShownKeyboard::hold(ZEMVirtualKey *key)
{
    wait(lookIsSettled);
    Q_EMIT key->pressed();
    wait(panelIsOpen);
}

QSize ShownKeyboard::neededSize() const
{
    return dialog->minimumSizeHint();
}

QPixmap ShownKeyboard::picture()
{
    return host.grab();
}

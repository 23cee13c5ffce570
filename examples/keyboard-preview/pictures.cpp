// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pictures.h"

#include "shownkeyboard.h"

#include <ZEMVirtualKey>

#include <QDir>
#include <QFileInfo>

namespace {

struct CapsName
{
    ZEMVirtualKeyboard::t_caps state;
    const char *name;
};
constexpr CapsName capsNames[] = {{ZEMVirtualKeyboard::CapsOff, "small"},
                                  {ZEMVirtualKeyboard::CapsSingle, "single"},
                                  {ZEMVirtualKeyboard::CapsLock, "capitals"}};

struct StyleName
{
    ZEMVirtualKeyboardFactoryIntf::KeyboardPopupStyle style;
    const char *name;
};
constexpr StyleName styleNames[] = {{ZEMVirtualKeyboardFactoryIntf::PopupAbove, "above"},
                                    {ZEMVirtualKeyboardFactoryIntf::PopupFlip, "flip"}};

/** The first key that opens a panel, which tends to be one of the top row. */
ZEMVirtualKey *keyWithAlternates(const ShownKeyboard &keyboard)
{
    if (keyboard.pageCount() == 0) {
        return nullptr;
    }
    for (ZEMVirtualKey *key : keyboard.keys(0)) {
        if (key->type() == ZEMVirtualKey::Character && !key->alternateKeys().isEmpty()) {
            return key;
        }
    }
    return nullptr;
}

void drawPages(ShownKeyboard *keyboard, const QString &name, QVector<Picture> *pictures)
{
    for (int page = 0; page < keyboard->pageCount(); ++page) {
        for (const CapsName &caps : capsNames) {
            keyboard->open(page, caps.state);
            pictures->append(
                {QStringLiteral("%1-page%2-%3").arg(name).arg(page).arg(QLatin1String(caps.name)),
                 keyboard->picture()});
            if (!keyboard->hasCaps()) {
                break;
            }
        }
    }
}

} // namespace

QStringList pictureNames(const QStringList &files)
{
    QStringList names;
    for (const QString &file : files) {
        const QString base = QFileInfo(file).completeBaseName();
        QString name = base;
        for (int count = 2; names.contains(name); ++count) {
            name = QStringLiteral("%1-%2").arg(base).arg(count);
        }
        names.append(name);
    }
    return names;
}

QVector<Picture> drawPictures(const QString &fileName, const QString &name, const QSize &size)
{
    QVector<Picture> pictures;
    ShownKeyboard pages(fileName, ZEMVirtualKeyboardFactoryIntf::PopupAbove, size);
    drawPages(&pages, name, &pictures);
    for (const StyleName &style : styleNames) {
        ShownKeyboard keyboard(fileName, style.style, size);
        if (ZEMVirtualKey *key = keyWithAlternates(keyboard)) {
            keyboard.hold(key);
            pictures.append({QStringLiteral("%1-popup-%2").arg(name, QLatin1String(style.name)),
                             keyboard.picture()});
        }
    }
    return pictures;
}

QString writePictures(const QVector<Picture> &pictures, const QString &directory)
{
    const QDir dir(directory);
    if (!dir.mkpath(QStringLiteral("."))) {
        return QStringLiteral("cannot make the directory %1").arg(directory);
    }
    for (const Picture &picture : pictures) {
        const QString path = dir.filePath(picture.name + QStringLiteral(".png"));
        if (!picture.pixmap.save(path)) {
            return QStringLiteral("cannot write %1").arg(path);
        }
    }
    return QString();
}

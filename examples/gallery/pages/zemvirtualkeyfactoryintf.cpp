// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <KeyboardFactoryDefault>
#include <QDir>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QVBoxLayout>
#include <ZEMPageBackground>
#include <ZEMStyle>
#include <ZEMVirtualKey>
#include <ZEMVirtualKeyboard>

ZEM_BEGIN_INTERFACES // an interface of keys has no destructor

namespace {

/** Keys of one's own: blue, and amber while they are pressed. */
class BlueKeys : public ZEMVirtualKeyFactoryIntf
{
public:
    ZEMVirtualKey *createKey(const QString &name) override
    {
        auto *key = new ZEMVirtualKey(name);
        key->setMinimumSize(46, 46);
        key->setFocusPolicy(Qt::NoFocus);
        key->setFont(QFont(QStringLiteral("Cabin"), 14));
        return key;
    }
    ZEMVirtualKey *createAlternateKey() override { return createKey(QString()); }
    ZEMVirtualKey *createPopupKey() override { return createKey(QString()); }
    QWidget *createPopupKeysBackground() override { return new QLabel; }
    void changeKeyStylesheet(ZEMVirtualKey *key, bool pressed) override
    {
        const QSize least = key->minimumSize();
        key->setBackground(picture(key->size(), pressed));
        key->setMinimumSize(least);
    }
    int hSpacing() const override { return 6; }
    int vSpacing() const override { return 6; }

private:
    static QPixmap picture(const QSize &size, bool pressed)
    {
        const ZEMStyle style(nullptr);
        const qreal ratio = qApp->devicePixelRatio();
        QPixmap picture(size * ratio);
        picture.setDevicePixelRatio(ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(style.color(pressed ? ZEMStyle::Amber : ZEMStyle::SlateBlue));
        painter.drawRoundedRect(QRect(QPoint(), size), 8, 8);
        return picture;
    }
};

} // namespace

ZEM_END_INTERFACES

void Pages::zemvirtualkeyfactoryintf(Stage &stage)
{
    // A factory lives until the last of its keyboards is gone.
    static BlueKeys keys;
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(22, 32, 40));
    auto *rows = new QVBoxLayout(page);
    auto *field = new QLineEdit;
    field->setFont(QFont(QStringLiteral("Cabin"), 18));
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, QColor(40, 56, 68)); // beneath the white text of ZEMStyle
    field->setPalette(palette);
    rows->addSpacing(44);
    rows->addWidget(field);

    auto *keyboard = new ZEMVirtualKeyboard;
    keyboard->setFactory(&keys);
    keyboard->setMargins(QMargins(0, 46, 0, 2));
    keyboard->load(QDir(stage.keyboardDirectory()).filePath(QStringLiteral("keyboard_en.xml")));
    rows->addWidget(keyboard);
    keyboard->setFocusWidget(field);
    keyboard->setPopupParent(page);
    stage.cover(page);
}

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardpage.h"

#include <KeyboardFactoryDefault>
#include <ZEMVirtualKeyboard>

#include <QAbstractButton>
#include <QFile>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace Keyboards {

namespace {

constexpr QSize windowSize(640, 480);
constexpr QRect boardRect(55, 100, 530, 338);
constexpr QMargins margins(0, 46, 0, 2);
constexpr int keySide = 50; // pixels
constexpr int previewSide = 40; // pixels
constexpr int spacing = 10; // pixels, between keys
constexpr int previewGap = 5; // pixels, between a key and its preview

QString label(int row, int column)
{
    constexpr auto characters = "123456789qwertyuioasdfghjklzxcvbnm,.-+/:;()?!";
    return QString(QLatin1Char(characters[row * columns + column]));
}

QFont keyFont()
{
    return QFont(QStringLiteral("Cabin"), 16);
}

void prepareWindow(QWidget *window)
{
    window->setPalette(QPalette(QColor(30, 60, 90)));
    window->setFixedSize(windowSize);
}

class LibraryPage : public Page
{
public:
    explicit LibraryPage(Popups popups) : factory(directory.path(), QStringLiteral("bench"))
    {
        prepareWindow(&page);
        writeFile(popups);
        keyboard = factory.createKeyboard(ZEMVirtualKeyboardFactoryIntf::PopupAbove);
        keyboard->setParent(&page);
        keyboard->setPopupParent(&page);
        keyboard->setGeometry(boardRect);
    }

    QWidget *window() override { return &page; }
    QWidget *board() override { return keyboard; }

private:
    /** Every third key has alternates, which are not to be seen in a short touch. */
    void writeFile(Popups popups)
    {
        QString text = QStringLiteral("<keyboard popup=\"%1\"><layout id=\"0\">")
                           .arg(popups == Popups::Shown ? 1 : 0);
        for (int row = 0; row < rows; ++row) {
            text += QStringLiteral("<row>");
            for (int column = 0; column < columns; ++column) {
                const QString alternates =
                    column % 3 == 0 ? QStringLiteral(" alternate=\"%&amp;\"") : QString();
                text += QStringLiteral("<key value=\"") + label(row, column) + QLatin1Char('"')
                    + alternates + QStringLiteral("/>");
            }
            text += QStringLiteral("</row>");
        }
        text += QStringLiteral("</layout></keyboard>");
        QFile file(directory.filePath(QStringLiteral("keyboard_bench.xml")));
        if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0) {
            qFatal("%s cannot be written", qPrintable(file.fileName()));
        }
    }

    QTemporaryDir directory;
    KeyboardFactoryDefault factory;
    QWidget page;
    ZEMVirtualKeyboard *keyboard = nullptr;
};

/** Rows of buttons in a window, with a preview of the key that is held. */
class ButtonPage : public Page
{
public:
    QWidget *window() override { return &page; }
    QWidget *board() override { return keyboard; }

protected:
    ButtonPage()
    {
        prepareWindow(&page);
        keyboard->setGeometry(boardRect);
    }

    /** @p make makes a button of a size. */
    template <typename Make>
    void fill(Popups popups, const Make &make)
    {
        auto *layout = new QVBoxLayout(keyboard);
        layout->setContentsMargins(margins);
        layout->setSpacing(spacing);
        for (int row = 0; row < rows; ++row) {
            auto *line = new QHBoxLayout;
            line->setSpacing(spacing);
            for (int column = 0; column < columns; ++column) {
                auto *key = make(QSize(keySide, keySide));
                key->setText(label(row, column));
                line->addWidget(key);
                if (popups == Popups::Shown) {
                    connectPreview(key);
                }
            }
            layout->addLayout(line);
        }
        if (popups == Popups::Shown) {
            preview = make(QSize(previewSide, previewSide));
            preview->setParent(&page);
            preview->hide();
        }
    }

private:
    void connectPreview(QAbstractButton *key)
    {
        QObject::connect(key, &QAbstractButton::pressed, keyboard, [this, key] {
            const int inset = (keySide - previewSide) / 2;
            preview->setText(key->text());
            preview->move(keyboard->pos() + key->pos() + QPoint(inset, -previewSide - previewGap));
            preview->show();
        });
        QObject::connect(key, &QAbstractButton::released, keyboard, [this] { preview->hide(); });
    }

    QWidget page;
    QWidget *keyboard = new QWidget(&page);
    QAbstractButton *preview = nullptr;
};

/** A button that draws what it is given, without any library. */
class BareButton : public QAbstractButton
{
public:
    BareButton(const QPixmap &releasedPicture, const QPixmap &pressedPicture)
        : released(releasedPicture), pressed(pressedPicture)
    {
        setFixedSize(released.size());
        setFont(keyFont());
        setFocusPolicy(Qt::NoFocus);
        QPalette black = palette();
        black.setColor(QPalette::ButtonText, Qt::black);
        setPalette(black);
    }

protected:
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        painter.drawPixmap(0, 0, isDown() ? pressed : released);
        painter.setPen(palette().color(QPalette::ButtonText));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

private:
    QPixmap released;
    QPixmap pressed;
};

QPixmap stretched(const QPixmap &picture, const QSize &size)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter(&pixmap).drawPixmap(QRect(QPoint(0, 0), size), picture);
    return pixmap;
}

class BarePage : public ButtonPage
{
public:
    explicit BarePage(Popups popups)
    {
        KeyboardFactoryDefault pictures {QString(), QString()};
        // A preview shows the picture of a key, made smaller.
        const QSize keySize(keySide, keySide);
        fill(popups, [&](const QSize &size) {
            return new BareButton(stretched(pictures.getBackground(keySize, false), size),
                                  stretched(pictures.getBackground(keySize, true), size));
        });
    }
};

class StyleSheetPage : public ButtonPage
{
public:
    explicit StyleSheetPage(Popups popups)
    {
        fill(popups, [](const QSize &size) {
            auto *button = new QPushButton;
            button->setFixedSize(size);
            button->setFont(keyFont());
            button->setFocusPolicy(Qt::NoFocus);
            setShade(button, 200);
            QObject::connect(button, &QPushButton::pressed, button,
                             [button] { setShade(button, 120); });
            QObject::connect(button, &QPushButton::released, button,
                             [button] { setShade(button, 200); });
            return button;
        });
    }

private:
    static void setShade(QPushButton *button, int grey)
    {
        button->setStyleSheet(QStringLiteral("color:black;background-color:rgb(%1, %1, %1);"
                                             "border:2px solid #8f8f91;border-radius:10px;")
                                  .arg(grey));
    }
};

} // namespace

QPointF keyCentre(int row, int column)
{
    constexpr int step = keySide + spacing;
    constexpr QPointF first(keySide / 2.0, keySide / 2.0);
    return boardRect.topLeft() + QPointF(margins.left(), margins.top())
        + QPointF(column * step, row * step) + first;
}

std::shared_ptr<Page> libraryPage(Popups popups)
{
    return std::make_shared<LibraryPage>(popups);
}

std::shared_ptr<Page> barePage(Popups popups)
{
    return std::make_shared<BarePage>(popups);
}

std::shared_ptr<Page> styleSheetPage(Popups popups)
{
    return std::make_shared<StyleSheetPage>(popups);
}

} // namespace Keyboards

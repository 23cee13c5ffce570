// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemvirtualkeyboard.h"

#include "capswalk_p.h"
#include "keyboardfile_p.h"
#include "keyevents_p.h"
#include "keytouch_p.h"
#include "objectname_p.h"
#include "popupplace_p.h"
#include "zemvirtualkey.h"

#include <QDebug>
#include <QDomDocument>
#include <QHBoxLayout>
#include <QPointer>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <QVector>

#include <algorithm>
#include <utility>

namespace {

constexpr int holdTime = 750; // ms
constexpr int redrawDelay = 50; // ms after the keyboard is shown
constexpr int alternativeKeyCount = 10;
constexpr int panelMargin = 5; // pixels
constexpr int panelSpacing = 1; // pixels

void setShown(QWidget *widget, bool shown)
{
    if (widget) {
        widget->setVisible(shown);
    }
}

/**
 * Keys are translucent at their corners, so each painting of one begins with all that is beneath
 * it. A stack without a frame has nothing to draw there, but sets up a painter to find that out.
 */
class PageStack : public QStackedWidget
{
protected:
    void paintEvent(QPaintEvent *event) override
    {
        if (frameShape() != NoFrame) {
            QStackedWidget::paintEvent(event);
        }
    }
};

} // namespace

class ZEMVirtualKeyboard::Private
{
public:
    explicit Private(ZEMVirtualKeyboard *owner) : keyboard(owner) { }

    void deletePopups()
    {
        for (const QPointer<ZEMVirtualKey> &key : std::as_const(alternativeKeys)) {
            delete key;
        }
        alternativeKeys.clear();
        delete previewKey;
        delete alternativesBackground;
        delete alternativesPanel;
    }

    void adopt(QWidget *widget) const
    {
        if (widget) {
            widget->setParent(keyboard);
            widget->setVisible(false);
        }
    }

    /** Null if there is none, or none any more. */
    ZEMVirtualKeyFactoryIntf *factory() const
    {
        return factoryLife.expired() ? nullptr : lastFactory;
    }

    void createPopups(ZEMVirtualKeyFactoryIntf *factory)
    {
        for (int i = 0; i < alternativeKeyCount; ++i) {
            ZEMVirtualKey *key = factory->createAlternateKey();
            adopt(key);
            alternativeKeys.append(key);
        }
        previewKey = factory->createPopupKey();
        adopt(previewKey);
        alternativesBackground = factory->createPopupKeysBackground();
        adopt(alternativesBackground);

        alternativesPanel = new QWidget;
        adopt(alternativesPanel);
        alternativesLayout = new QHBoxLayout(alternativesPanel);
        alternativesLayout->setContentsMargins(panelMargin, panelMargin, panelMargin, panelMargin);
        alternativesLayout->setSpacing(panelSpacing);
    }

    void connectAlternativeKeys()
    {
        for (int i = 0; i < alternativeKeys.size(); ++i) {
            if (const ZEMVirtualKey *key = alternativeKeys.at(i)) {
                connect(key, &ZEMVirtualKey::clicked, keyboard,
                        [this, i] { keyboard->slotSendAlternativeChar(i); });
            }
        }
    }

    void changeLook(ZEMVirtualKey *key, bool pressed) const
    {
        if (factory() && key) {
            factory()->changeKeyStylesheet(key, pressed);
        }
    }

    void appendPage(int position, const QDomElement &element, int spacing)
    {
        auto *page = new QWidget;
        auto *layout = new QVBoxLayout(page);
        layout->setSpacing(spacing);
        layout->setContentsMargins(pageMargins);
        keyboard->parseLayout(layout, element);
        pageStack->insertWidget(position, page);
    }

    void appendKey(QHBoxLayout *row, const QDomElement &element)
    {
        const QString value = QStringLiteral("value");
        const QString alternate = QStringLiteral("alternate");
        ZEMVirtualKey *key = element.hasAttribute(value)
            ? keyboard->createButton(keyboard->decodeValue(element.attribute(value)))
            : nullptr;
        if (!key) {
            return;
        }
        if (element.hasAttribute(alternate)) {
            key->setAlternateKeys(element.attribute(alternate));
        }
        const int page = KeyboardFile::position(element.attribute(QStringLiteral("layout")));
        if (page >= 0) {
            key->setType(ZEMVirtualKey::Layout);
            key->setLayoutId(page);
        }
        key->setMinimumWidth(KeyboardFile::keyWidth(key->minimumSize().width(),
                                                    element.attribute(QStringLiteral("size")),
                                                    element.attribute(QStringLiteral("width"))));
        row->addWidget(key, 0, Qt::Alignment());
    }

    void appendSpace(QHBoxLayout *row, const QString &name) const
    {
        const auto named = std::find_if(keys.cbegin(), keys.cend(), [&](const ZEMVirtualKey *key) {
            return key && key->name() == name;
        });
        if (named != keys.cend() && factory()) {
            row->insertSpacing(-1, (*named)->width() + factory()->hSpacing());
        }
    }

    /** Once for each file that is loaded, and each time for all keys. */
    template <typename Signal, typename Slot>
    void connectKeys(Signal signal, Slot slot)
    {
        for (int i = 0; i < keys.size(); ++i) {
            if (const ZEMVirtualKey *key = keys.at(i)) {
                connect(key, signal, keyboard, [this, i, slot] { callForEachFile(slot, i); });
            }
        }
    }

    /** With nothing behind the call but what outlives a keyboard that a listener deletes. */
    template <typename Slot>
    void callForEachFile(Slot slot, int index)
    {
        const QPointer<ZEMVirtualKeyboard> alive(keyboard);
        for (int files = loadedFiles; files > 0 && alive; --files) {
            (alive->*slot)(index);
        }
    }

    /** A key does not tell that a host puts it up, or that it is no longer seen. */
    bool isHeld(const ZEMVirtualKey *key) const
    {
        return key->isVisible() && (key->isDown() || !isTouched);
    }

    bool isPanelOpen() const { return alternativesPanel && alternativesPanel->isVisible(); }

    void hidePanel() const
    {
        setShown(alternativesBackground, false);
        setShown(alternativesPanel, false);
    }

    /** The keyboard in its parent; unlike its geometry(), with the frame of a window. */
    QRect place() const { return {keyboard->pos(), keyboard->size()}; }

    void showPreview(const ZEMVirtualKey *key) const
    {
        if (previewKey && showKeyPreview) {
            previewKey->setText(key->text());
            previewKey->move(
                PopupPlace::preview(place(), key->geometry(), previewKey->size(), popupStyle));
            previewKey->setVisible(true);
        }
    }

    void fillPanel(const QString &alternates) const
    {
        for (const QPointer<ZEMVirtualKey> &key : alternativeKeys) {
            if (key) {
                alternativesLayout->removeWidget(key);
                key->setVisible(false);
            }
        }
        const int count = qMin(alternates.size(), alternativeKeys.size());
        for (int i = 0; i < count; ++i) {
            if (ZEMVirtualKey *key = alternativeKeys.at(i)) {
                key->setText(alternates.at(i));
                key->setKey(alternates.at(i));
                alternativesLayout->addWidget(key, 0, Qt::Alignment());
                key->setVisible(true);
            }
        }
        alternativesPanel->adjustSize();
    }

    void showPanel(const ZEMVirtualKey *key) const
    {
        fillPanel(key->alternateKeys());
        QSize size = alternativesPanel->size();
        if (alternativesBackground) {
            alternativesBackground->resize(size);
            size.setHeight(alternativesBackground->height());
        }
        const QPoint corner = PopupPlace::alternatives(place(), key->geometry(), size, popupStyle);
        for (QWidget *widget : {alternativesBackground.data(), alternativesPanel.data()}) {
            if (widget) {
                widget->move(corner);
                widget->setVisible(true);
            }
        }
    }

    void setCaps(t_caps state)
    {
        if (state != capsState) {
            capsState = state;
            keyboard->switchButtonCaps(state);
        }
    }

    /** False if the keyboard is gone, deleted by a listener. */
    bool type(const ZEMVirtualKey *key)
    {
        KeyEvents::post(focusWidget, KeyEvents::strokeOf(key->type(), key->key()));
        if (key->type() == ZEMVirtualKey::Enter) {
            const QPointer<ZEMVirtualKeyboard> alive(keyboard);
            Q_EMIT keyboard->sigKey_enter();
            if (!alive) {
                return false;
            }
        }
        setCaps(CapsWalk::afterSentKey(capsState));
        return true;
    }

    /** Does what @p key stands for; false if the keyboard is gone. */
    bool perform(const ZEMVirtualKey *key)
    {
        switch (key->type()) {
        case ZEMVirtualKey::Layout:
            if (key->layoutId() >= 0) {
                pageStack->setCurrentIndex(key->layoutId());
            }
            return true;
        case ZEMVirtualKey::Caps:
            setCaps(CapsWalk::afterCapsKey(capsState));
            return true;
        default:
            return type(key);
        }
    }

    ZEMVirtualKeyboard *keyboard;
    QPointer<QWidget> focusWidget;
    QStackedWidget *pageStack = nullptr;
    QMargins pageMargins;
    int loadedFiles = 0;
    ZEMVirtualKeyFactoryIntf *lastFactory = nullptr;
    std::weak_ptr<const bool> factoryLife;
    bool showKeyPreview = true;
    bool showAlternatives = true;
    QPointer<ZEMVirtualKey> previewKey;
    QVector<QPointer<ZEMVirtualKey>> keys;
    QTimer *holdTimer = nullptr;
    int lastPressed = 0;
    bool isTouched = false; // or pressed by something else than a finger
    KeyTouch touch;
    t_caps capsState = CapsOff;
    // The popups live in a widget of the host, with which they may go.
    QPointer<QWidget> alternativesPanel;
    QHBoxLayout *alternativesLayout = nullptr;
    QPointer<QWidget> alternativesBackground;
    QVector<QPointer<ZEMVirtualKey>> alternativeKeys;
    ZEMVirtualKeyboardFactoryIntf::KeyboardPopupStyle popupStyle =
        ZEMVirtualKeyboardFactoryIntf::PopupAbove;
};

ZEMVirtualKeyboard::ZEMVirtualKeyboard(QWidget *parent)
    : QWidget(parent), d(std::make_unique<Private>(this))
{
    setObjectNameFromClass(this, staticMetaObject);
    // Keys lie as on any keyboard of the language, whichever way its texts run.
    setLayoutDirection(Qt::LeftToRight);
    auto *layout = new QHBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    d->pageStack = new PageStack;
    layout->addWidget(d->pageStack, 0);

    d->holdTimer = new QTimer(this);
    d->holdTimer->setSingleShot(true);
    d->holdTimer->setInterval(holdTime);
    connect(d->holdTimer, &QTimer::timeout, this, &ZEMVirtualKeyboard::slotDisplayAlternatives);
}

ZEMVirtualKeyboard::~ZEMVirtualKeyboard()
{
    d->deletePopups();
}

void ZEMVirtualKeyboard::setFactory(ZEMVirtualKeyFactoryIntf *factory)
{
    if (!factory) {
        return;
    }
    d->lastFactory = factory;
    d->factoryLife = factory->life.watch();
    d->deletePopups();
    d->createPopups(factory);
    d->connectAlternativeKeys();
}

bool ZEMVirtualKeyboard::load(const QString &fileName)
{
    if (!d->factory()) {
        qDebug() << "Error: Cannot load a keyboard that has no factory";
        return false;
    }
    QDomDocument document;
    if (!KeyboardFile::read(fileName, &document)) {
        return false;
    }
    const QDomElement root = document.documentElement();
    const auto popups = KeyboardFile::popups(root.attribute(QStringLiteral("popup")));
    d->showKeyPreview = popups.preview;
    d->showAlternatives = popups.alternatives;

    const int spacing = d->factory()->vSpacing();
    for (auto page = root.firstChildElement(QStringLiteral("layout")); !page.isNull();
         page = page.nextSiblingElement(QStringLiteral("layout"))) {
        const int position = KeyboardFile::position(page.attribute(QStringLiteral("id")));
        if (position >= 0) {
            d->appendPage(position, page, spacing);
        }
    }
    d->pageStack->adjustSize();

    ++d->loadedFiles;
    d->connectKeys(&ZEMVirtualKey::pressed, &ZEMVirtualKeyboard::buttonPressed);
    d->connectKeys(&ZEMVirtualKey::released, &ZEMVirtualKeyboard::buttonReleased);
    return true;
}

void ZEMVirtualKeyboard::setFocusWidget(QWidget *target)
{
    d->focusWidget = target;
}

void ZEMVirtualKeyboard::setMargins(const QMargins &margins)
{
    d->pageMargins = margins;
}

void ZEMVirtualKeyboard::setPopupStyle(ZEMVirtualKeyboardFactoryIntf::KeyboardPopupStyle style)
{
    d->popupStyle = style;
}

void ZEMVirtualKeyboard::setPopupParent(QWidget *parent)
{
    for (QWidget *popup : {static_cast<QWidget *>(d->previewKey), d->alternativesBackground.data(),
                           d->alternativesPanel.data()}) {
        if (popup) {
            popup->setParent(parent);
        }
    }
}

QString ZEMVirtualKeyboard::decodeValue(const QString &value) const
{
    return KeyboardFile::decodeValue(value);
}

ZEMVirtualKey *ZEMVirtualKeyboard::createButton(const QString &name)
{
    ZEMVirtualKey *key = d->factory() ? d->factory()->createKey(name) : nullptr;
    if (key) {
        key->setParent(this);
        key->setType(KeyboardFile::typeOf(name));
        key->installEventFilter(&d->touch);
        d->keys.append(key);
    }
    return key;
}

void ZEMVirtualKeyboard::parseLayout(QVBoxLayout *layout, const QDomElement &element)
{
    const int spacing = d->factory() ? d->factory()->hSpacing() : 0;
    for (auto child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == QLatin1String("row")) {
            auto *row = new QHBoxLayout;
            row->setSpacing(spacing);
            parseRow(row, child);
            layout->insertLayout(-1, row, 0);
        } else if (child.tagName() == QLatin1String("stretch")) {
            const QString value = child.attribute(QStringLiteral("value"));
            layout->insertStretch(-1, KeyboardFile::stretch(value));
        }
    }
}

void ZEMVirtualKeyboard::parseRow(QHBoxLayout *row, const QDomElement &element)
{
    for (auto child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        if (child.tagName() == QLatin1String("key")) {
            d->appendKey(row, child);
        } else if (child.tagName() == QLatin1String("stretch")) {
            const QString value = child.attribute(QStringLiteral("value"));
            row->insertStretch(-1, KeyboardFile::stretch(value));
        } else if (child.tagName() == QLatin1String("space")) {
            d->appendSpace(row, child.attribute(QStringLiteral("key")));
        }
    }
}

void ZEMVirtualKeyboard::switchButtonCaps(t_caps state)
{
    for (const QPointer<ZEMVirtualKey> &key : std::as_const(d->keys)) {
        if (!key) {
            continue;
        }
        switch (state) {
        case CapsOff:
            key->toLower();
            break;
        case CapsSingle:
            key->toUpperSingle();
            break;
        case CapsLock:
            key->toUpper();
            break;
        }
    }
}

void ZEMVirtualKeyboard::buttonPressed(int index)
{
    d->touch.letPaint();
    ZEMVirtualKey *key = d->keys.value(index);
    if (!key) {
        return;
    }
    d->hidePanel();
    d->lastPressed = index;
    d->isTouched = key->isDown();
    d->changeLook(key, true);
    if (key->type() != ZEMVirtualKey::Character) {
        return;
    }
    d->showPreview(key);
    if (key->hasAlternateKeys() && d->showAlternatives) {
        d->holdTimer->start();
    }
}

void ZEMVirtualKeyboard::buttonReleased(int index)
{
    d->touch.letPaint();
    d->holdTimer->stop();
    const QPointer<ZEMVirtualKeyboard> alive(this);
    if (!d->isPanelOpen()) {
        sendKey(index);
    }
    if (alive) {
        d->changeLook(d->keys.value(index), false);
        setShown(d->previewKey, false);
    }
}

void ZEMVirtualKeyboard::sendKey(int index)
{
    const ZEMVirtualKey *key = d->keys.value(index);
    if (key && !d->isPanelOpen() && !d->perform(key)) {
        return;
    }
    setShown(d->previewKey, false);
}

void ZEMVirtualKeyboard::slotDisplayAlternatives()
{
    setShown(d->previewKey, false);
    const ZEMVirtualKey *key = d->keys.value(d->lastPressed);
    // A key of another type may have been touched while a character key was held.
    if (key && key->type() == ZEMVirtualKey::Character && d->isHeld(key) && d->alternativesPanel) {
        d->showPanel(key);
    }
}

void ZEMVirtualKeyboard::slotSendAlternativeChar(int index)
{
    if (const ZEMVirtualKey *key = d->alternativeKeys.value(index)) {
        KeyEvents::post(d->focusWidget, KeyEvents::strokeOf(ZEMVirtualKey::Character, key->key()));
    }
    d->hidePanel();
}

void ZEMVirtualKeyboard::slotUpdateLastPressedButton()
{
    d->changeLook(d->keys.value(d->lastPressed), false);
}

void ZEMVirtualKeyboard::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    for (const QPointer<ZEMVirtualKey> &key : std::as_const(d->keys)) {
        d->changeLook(key, false);
    }
    for (const QPointer<ZEMVirtualKey> &key : std::as_const(d->alternativeKeys)) {
        d->changeLook(key, false);
    }
}

void ZEMVirtualKeyboard::showEvent(QShowEvent *)
{
    d->pageStack->setCurrentIndex(0);
    d->capsState = CapsOff;
    switchButtonCaps(CapsOff);
    QTimer::singleShot(redrawDelay, this, &ZEMVirtualKeyboard::slotUpdateLastPressedButton);
}

void ZEMVirtualKeyboard::hideEvent(QHideEvent *)
{
    setShown(d->previewKey, false);
    d->hidePanel();
}

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "qwtpannerbase.h"

#include "objectname_p.h"
#include "pangesture_p.h"

#include <QCursor>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>

#include <optional>

namespace {

bool sameModifiers(Qt::KeyboardModifiers modifiers, int state)
{
    constexpr auto mask = static_cast<uint>(Qt::KeyboardModifierMask);
    return (static_cast<uint>(modifiers) & mask) == (static_cast<uint>(state) & mask);
}

} // namespace

class QwtPannerBase::Private
{
public:
    QPoint constrained(const QPoint &position) const
    {
        return PanGesture::constrained(position, initialPos,
                                       orientationsEnabled ? orientations : Qt::Orientations());
    }

    qint64 pressedFor() const { return pressTime.isValid() ? pressTime.elapsed() : 0; }

    int button = Qt::LeftButton;
    int buttonState = 0;
    int abortKey = Qt::Key_Escape;
    int abortKeyState = 0;
    QPoint initialPos;
    QPoint lastPos;
    bool hasMoved = false;
    QElapsedTimer pressTime;
    QwtInterval clickInterval {100.0, 1000.0};
    std::optional<QCursor> cursor;
    std::optional<QCursor> restoreCursor;
    bool hasCursor = false;
    bool isEnabled = false;
    bool orientationsEnabled = true;
    Qt::Orientations orientations = Qt::Horizontal | Qt::Vertical;
    uint dxThreshold = 0;
    uint dyThreshold = 0;
};

QwtPannerBase::QwtPannerBase(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    // A child that was never hidden appears together with its parent.
    hide();
    setEnabled(true);
}

QwtPannerBase::~QwtPannerBase() = default;

void QwtPannerBase::setMouseButton(int button, int state)
{
    d->button = button;
    d->buttonState = state;
}

void QwtPannerBase::getMouseButton(int &button, int &state) const
{
    button = d->button;
    state = d->buttonState;
}

void QwtPannerBase::setAbortKey(int key, int state)
{
    d->abortKey = key;
    d->abortKeyState = state;
}

void QwtPannerBase::getAbortKey(int &key, int &state) const
{
    key = d->abortKey;
    state = d->abortKeyState;
}

void QwtPannerBase::setCursor(const QCursor &cursor)
{
    d->cursor = cursor;
}

QCursor QwtPannerBase::cursor() const
{
    if (d->cursor) {
        return *d->cursor;
    }
    return parentWidget() ? parentWidget()->cursor() : QCursor();
}

void QwtPannerBase::setEnabled(bool enabled)
{
    if (enabled == d->isEnabled) {
        return;
    }
    d->isEnabled = enabled;
    if (!parentWidget()) {
        return;
    }
    if (enabled) {
        parentWidget()->installEventFilter(this);
    } else {
        parentWidget()->removeEventFilter(this);
    }
}

bool QwtPannerBase::isEnabled() const
{
    return d->isEnabled;
}

void QwtPannerBase::enableOrientations(bool enabled)
{
    d->orientationsEnabled = enabled;
}

void QwtPannerBase::setOrientations(QFlags<Qt::Orientation> orientations)
{
    d->orientations = orientations;
}

QFlags<Qt::Orientation> QwtPannerBase::orientations() const
{
    return d->orientations;
}

bool QwtPannerBase::isOrientationEnabled(Qt::Orientation orientation) const
{
    return d->orientationsEnabled && d->orientations.testFlag(orientation);
}

void QwtPannerBase::setDxSignalThreshold(unsigned int pixels)
{
    d->dxThreshold = pixels;
}

unsigned int QwtPannerBase::dxSignalThreshold() const
{
    return d->dxThreshold;
}

void QwtPannerBase::setDySignalThreshold(unsigned int pixels)
{
    d->dyThreshold = pixels;
}

unsigned int QwtPannerBase::dySignalThreshold() const
{
    return d->dyThreshold;
}

void QwtPannerBase::setClickDetectInterval(unsigned int min, unsigned int max)
{
    d->clickInterval = QwtInterval(min, max);
}

QwtInterval QwtPannerBase::clickDetectInterval() const
{
    return d->clickInterval;
}

void QwtPannerBase::showCursor(bool on)
{
    if (on == d->hasCursor || !parentWidget() || !d->cursor) {
        return;
    }
    d->hasCursor = on;
    if (on) {
        if (parentWidget()->testAttribute(Qt::WA_SetCursor)) {
            d->restoreCursor = parentWidget()->cursor();
        }
        parentWidget()->setCursor(*d->cursor);
    } else if (d->restoreCursor) {
        parentWidget()->setCursor(*d->restoreCursor);
        d->restoreCursor.reset();
    } else {
        parentWidget()->unsetCursor();
    }
}

bool QwtPannerBase::eventFilter(QObject *object, QEvent *event)
{
    if (!object || object != parentWidget()) {
        return false;
    }
    const QPointer<QObject> parent = object;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        widgetMousePressEvent(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseButtonRelease:
        widgetMouseReleaseEvent(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::MouseMove:
        widgetMouseMoveEvent(static_cast<QMouseEvent *>(event));
        break;
    case QEvent::KeyPress:
        widgetKeyPressEvent(static_cast<QKeyEvent *>(event));
        break;
    case QEvent::KeyRelease:
        widgetKeyReleaseEvent(static_cast<QKeyEvent *>(event));
        break;
    default:
        break;
    }
    // Qt would go on to deliver the event to a parent that a slot has deleted.
    return parent.isNull();
}

void QwtPannerBase::widgetMousePressEvent(QMouseEvent *event)
{
    if (static_cast<int>(event->button()) != d->button || !parentWidget()
        || !sameModifiers(event->modifiers(), d->buttonState)) {
        return;
    }
    showCursor(true);
    d->initialPos = d->lastPos = event->pos();
    d->hasMoved = false;
    d->pressTime.start();
    // From here on rect() stands for the parent's, as it was at the press.
    setGeometry(parentWidget()->rect());
}

void QwtPannerBase::widgetMouseReleaseEvent(QMouseEvent *event)
{
    showCursor(false);
    const bool wasDrag = d->hasMoved;
    d->hasMoved = false;

    QPoint position = event->pos();
    if (!rect().contains(position)) {
        return;
    }
    if (wasDrag) {
        position = d->constrained(position);
        d->lastPos = position;
        const QPoint rest = position - d->initialPos;
        if (!rest.isNull()) {
            Q_EMIT panned(rest.x(), rest.y());
        }
    } else if (PanGesture::isClick(d->pressedFor(), d->clickInterval)) {
        Q_EMIT clicked(position);
    }
}

void QwtPannerBase::widgetMouseMoveEvent(QMouseEvent *event)
{
    if (!rect().contains(event->pos())) {
        return;
    }
    const QPoint position = d->constrained(event->pos());
    if (position == d->lastPos) {
        return;
    }
    d->lastPos = position;
    const QPoint distance = position - d->initialPos;
    if (!PanGesture::passesThreshold(distance, d->dxThreshold, d->dyThreshold)) {
        return;
    }
    d->initialPos = position;
    d->hasMoved = true;
    Q_EMIT moved(distance.x(), distance.y());
}

void QwtPannerBase::widgetKeyPressEvent(QKeyEvent *event)
{
    if (event->key() == d->abortKey && sameModifiers(event->modifiers(), d->abortKeyState)) {
        showCursor(false);
    }
}

void QwtPannerBase::widgetKeyReleaseEvent(QKeyEvent *event)
{
    Q_UNUSED(event)
}

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "screenfaults.h"

#include "zemtest.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>
#include <QStackedWidget>
#include <QTextEdit>
#include <QWidget>
#include <ZEMButton>
#include <ZEMPageBackground>
#include <algorithm>
#include <cmath>
#include <qwt_scale_draw.h>
#include <qwt_scale_widget.h>
#include <qwt_text_label.h>

namespace ScreenFaults {

namespace {

constexpr int leastTarget = 40; // pixels
constexpr double leastContrast = 4.5;

QString nameOf(const QWidget *widget)
{
    QString name;
    for (const QWidget *each = widget; each && !each->isWindow(); each = each->parentWidget()) {
        const QString own = each->objectName().isEmpty()
            ? QString::fromLatin1(each->metaObject()->className())
            : each->objectName();
        name = name.isEmpty() ? own : own + QLatin1Char('/') + name;
    }
    return name;
}

/** Those that somebody sees: an overlay hides what is beneath it. */
QList<QWidget *> seenIn(const QWidget *window)
{
    const QWidget *top = nullptr;
    for (QObject *child : window->children()) {
        auto *widget = qobject_cast<QWidget *>(child);
        top = widget && widget->isVisible() ? widget : top;
    }
    QList<QWidget *> seen;
    for (QWidget *widget : window->findChildren<QWidget *>()) {
        if (widget->isVisible() && (widget == top || top->isAncestorOf(widget))) {
            seen.append(widget);
        }
    }
    return seen;
}

/** What a scroll area shows is cut by it, as it should be. */
bool isScrolled(const QWidget *widget)
{
    for (const QWidget *each = widget; each; each = each->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea *>(each->parentWidget())) {
            return true;
        }
    }
    return false;
}

QString sizeText(const QSize &size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QSize neededBy(const QLabel *label)
{
    if (label->wordWrap()) {
        return QFontMetrics(label->font())
            .boundingRect(QRect(0, 0, label->contentsRect().width(), 10000),
                          int(label->alignment()) | Qt::TextWordWrap, label->text())
            .size();
    }
    return QFontMetrics(label->font()).size(0, label->text());
}

/** Labels of a horizontal scale that touch, and those that stand out of it. */
QStringList crowded(const QwtScaleWidget *scale)
{
    constexpr int daysOfWeek = 7;
    const QwtScaleDraw *draw = scale->scaleDraw();
    // A row of many names reads as one where seven are still apart; in pixels.
    const bool isLongRow = draw->scaleDiv().ticks(QwtScaleDiv::MajorTick).size() > daysOfWeek;
    const double gap = isLongRow ? 6.0 : 3.0;
    if (draw->orientation() != Qt::Horizontal || scale->parentWidget()->size().isEmpty()) {
        return {};
    }
    QStringList faults;
    double end = -1e9;
    for (const double tick : draw->scaleDiv().ticks(QwtScaleDiv::MajorTick)) {
        if (draw->label(tick).isEmpty() || !draw->scaleDiv().contains(tick)) {
            continue;
        }
        const QRect place = draw->boundingLabelRect(scale->font(), tick);
        if (place.left() < end + gap) {
            faults << QStringLiteral("%1: '%2' touches the label before it")
                          .arg(nameOf(scale), draw->label(tick).text());
        }
        end = place.right();
    }
    return faults;
}

/** Where @p scale has ink, in its own pixels, also where it has no room for it. */
QRectF inkOf(const QwtScaleWidget *scale)
{
    constexpr int around = 20; // pixels
    const QSize size = scale->size() + QSize(2 * around, 2 * around);
    QImage picture(size * scale->devicePixelRatioF(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(scale->devicePixelRatioF());
    picture.fill(Qt::black);
    QPainter painter(&picture);
    painter.translate(around, around);
    painter.setFont(scale->font());
    QPalette white(Qt::white);
    white.setColor(QPalette::Text, Qt::white);
    scale->scaleDraw()->draw(&painter, white);
    painter.end();
    const QRect ink = ZemTest::inkRect(picture);
    return QRectF(QPointF(ink.topLeft()) / scale->devicePixelRatioF() - QPointF(around, around),
                  QSizeF(ink.size()) / scale->devicePixelRatioF());
}

double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double contrast(const QColor &one, const QColor &other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QImage pictureOf(QWidget *window, const QWidget *part)
{
    return window->grab(QRect(part->mapTo(window, QPoint(0, 0)), part->size())).toImage();
}

/** The contrast of the strokes of a text, between the picture with it and the one without. */
double contrastOf(const QImage &with, const QImage &without)
{
    constexpr double stroke = 0.9; // of the largest difference; less is the edge of a stroke
    double largest = 0.0;
    double least = 1e9;
    const auto difference = [&](int x, int y) {
        return std::fabs(luminance(with.pixelColor(x, y)) - luminance(without.pixelColor(x, y)));
    };
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y)) {
                largest = std::max(largest, difference(x, y));
            }
        }
    }
    for (int y = 0; y < with.height(); ++y) {
        for (int x = 0; x < with.width(); ++x) {
            if (with.pixel(x, y) != without.pixel(x, y) && difference(x, y) >= stroke * largest) {
                least = std::min(least, contrast(with.pixelColor(x, y), without.pixelColor(x, y)));
            }
        }
    }
    return least;
}

bool hasText(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return !label->text().isEmpty();
    }
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
        return !button->text().isEmpty();
    }
    return qobject_cast<const QAbstractItemView *>(widget)
        || qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QTextEdit *>(widget)
        || qobject_cast<const QwtScaleWidget *>(widget)
        || qobject_cast<const QwtTextLabel *>(widget);
}

/** Items that can be seen. */
QModelIndexList itemsOf(const QAbstractItemView *view)
{
    QModelIndexList items;
    const QAbstractItemModel *model = view->model();
    for (int row = 0; model && row < model->rowCount(view->rootIndex()); ++row) {
        for (int column = 0; column < model->columnCount(view->rootIndex()); ++column) {
            const QModelIndex index = model->index(row, column, view->rootIndex());
            if (view->viewport()->rect().intersects(view->visualRect(index))) {
                items << index;
            }
        }
    }
    return items;
}

QStringList headingsOf(const QHeaderView *header)
{
    QStringList texts;
    for (int i = 0; i < header->count(); ++i) {
        texts << header->model()->headerData(i, header->orientation()).toString();
    }
    return texts;
}

} // namespace

QStringList textsOn(const QWidget *window)
{
    QStringList texts;
    for (const QWidget *widget : seenIn(window)) {
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            texts << label->text();
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            texts << button->text();
        } else if (const auto *legend = qobject_cast<const QwtTextLabel *>(widget)) {
            texts << legend->text().text();
        } else if (const auto *scale = qobject_cast<const QwtScaleWidget *>(widget)) {
            texts << scale->title().text();
        } else if (const auto *browser = qobject_cast<const QTextEdit *>(widget)) {
            texts << browser->toPlainText();
        } else if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
            texts << headingsOf(header);
        } else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
            for (const QModelIndex &item : itemsOf(view)) {
                texts << item.data().toString();
            }
        }
    }
    texts.removeDuplicates();
    texts.removeAll(QString());
    return texts;
}

QStringList outside(const QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : seenIn(window)) {
        if (!isScrolled(widget) && !widget->parentWidget()->rect().contains(widget->geometry())
            && !widget->size().isEmpty()) {
            const QRect place = widget->geometry();
            faults << QStringLiteral("%1: %2 at %3,%4 in %5")
                          .arg(nameOf(widget), sizeText(place.size()))
                          .arg(place.x())
                          .arg(place.y())
                          .arg(sizeText(widget->parentWidget()->size()));
        }
    }
    return faults;
}

QStringList overlaps(const QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : seenIn(window)) {
        if (!widget->layout()) {
            continue;
        }
        QList<QLayout *> layouts = widget->layout()->findChildren<QLayout *>();
        layouts.prepend(widget->layout());
        for (const QLayout *layout : std::as_const(layouts)) {
            for (int i = 0; i < layout->count(); ++i) {
                for (int j = 0; j < i; ++j) {
                    const QLayoutItem *one = layout->itemAt(i);
                    const QLayoutItem *other = layout->itemAt(j);
                    if (!one->isEmpty() && !other->isEmpty() && !layout->inherits("QStackedLayout")
                        && one->geometry().intersects(other->geometry())) {
                        faults << QStringLiteral("%1: items %2 and %3 of %4")
                                      .arg(nameOf(widget))
                                      .arg(j)
                                      .arg(i)
                                      .arg(layout->objectName());
                    }
                }
            }
        }
    }
    return faults;
}

QStringList cutTexts(const QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : seenIn(window)) {
        QSize needed(0, 0);
        QSize room = widget->size();
        QString text;
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            text = label->text();
            room = label->contentsRect().size();
            needed = Qt::mightBeRichText(text) ? QSize(0, 0) : neededBy(label);
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            text = button->text();
            needed = text.isEmpty() ? QSize(0, 0) : QFontMetrics(button->font()).size(0, text);
        } else if (const auto *legend = qobject_cast<const QwtTextLabel *>(widget)) {
            text = legend->text().text();
            needed = legend->sizeHint();
        } else if (const auto *scale = qobject_cast<const QwtScaleWidget *>(widget)) {
            faults << crowded(scale);
        } else if (const auto *header = qobject_cast<const QHeaderView *>(widget)) {
            for (int i = 0; header->isVisible() && i < header->count(); ++i) {
                text = header->model()->headerData(i, header->orientation()).toString();
                needed = QFontMetrics(header->font()).size(0, text);
                room = QSize(header->sectionSize(i), header->height());
                if (needed.width() > room.width() || needed.height() > room.height()) {
                    break;
                }
            }
        }
        if (!text.isEmpty() && (needed.width() > room.width() || needed.height() > room.height())) {
            faults << QStringLiteral("%1: '%2' needs %3, has %4")
                          .arg(nameOf(widget), text, sizeText(needed), sizeText(room));
        }
    }
    return faults;
}

QStringList cutLabels(const QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : seenIn(window)) {
        const auto *scale = qobject_cast<const QwtScaleWidget *>(widget);
        if (!scale || scale->visibleRegion().isEmpty()) {
            continue;
        }
        const QRectF ink = inkOf(scale);
        const double below = scale->height() - ink.bottom();
        // A horizontal scale begins with its ticks.
        const bool isVertical = scale->scaleDraw()->orientation() == Qt::Vertical;
        if (!ink.isEmpty() && (below < 0.0 || (isVertical && ink.top() < 0.0))) {
            faults << QStringLiteral("%1: ink from %2 to %3 of %4")
                          .arg(nameOf(scale))
                          .arg(ink.top())
                          .arg(ink.bottom())
                          .arg(scale->height());
        }
    }
    return faults;
}

QStringList elidedTexts(const QWidget *window)
{
    QStringList faults;
    for (const QString &text : textsOn(window)) {
        if (text.endsWith(QChar(0x2026))) {
            faults << QStringLiteral("'%1' is cut").arg(text);
        }
    }
    for (const QWidget *widget : seenIn(window)) {
        const auto *view = qobject_cast<const QAbstractItemView *>(widget);
        if (!view || qobject_cast<const QHeaderView *>(view)) {
            continue;
        }
        for (const QModelIndex &item : itemsOf(view)) {
            const int needed = QFontMetrics(view->font()).horizontalAdvance(item.data().toString());
            const int room = std::min(view->visualRect(item).width(), view->viewport()->width());
            if (needed > room) {
                faults << QStringLiteral("%1: '%2' needs %3, has %4")
                              .arg(nameOf(view), item.data().toString())
                              .arg(needed)
                              .arg(room);
            }
        }
    }
    return faults;
}

QStringList smallTargets(const QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : seenIn(window)) {
        QSize size = widget->size();
        bool isTarget = false;
        if (qobject_cast<const QAbstractButton *>(widget)) {
            isTarget =
                widget->isEnabled() && !widget->testAttribute(Qt::WA_TransparentForMouseEvents);
        } else if (const auto *view = qobject_cast<const QAbstractItemView *>(widget)) {
            const bool isTable = view->inherits("QTableView") || view->inherits("QHeaderView");
            if (!isTable && view->model() && view->model()->rowCount() > 0) {
                size = view->visualRect(view->model()->index(0, 0)).size();
                isTarget = true;
            }
        }
        if (isTarget && (size.width() < leastTarget || size.height() < leastTarget)) {
            faults << QStringLiteral("%1: %2").arg(nameOf(widget), sizeText(size));
        }
    }
    return faults;
}

QStringList touchableLooks(QWidget *window)
{
    constexpr double most = 0.8; // of the brightness of a button that can be touched
    const auto brightest = [window](const QWidget *widget) {
        const QImage picture = pictureOf(window, widget);
        double found = 0.0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                found = std::max(found, luminance(picture.pixelColor(x, y)));
            }
        }
        return found;
    };
    QStringList faults;
    for (QWidget *widget : seenIn(window)) {
        auto *button = qobject_cast<ZEMButton *>(widget);
        if (!button || button->isEnabled() || !button->parentWidget()->isEnabled()) {
            continue;
        }
        const double idle = brightest(button);
        button->setEnabled(true);
        if (idle > most * brightest(button)) {
            faults << nameOf(button);
        }
        button->setEnabled(false);
    }
    return faults;
}

QStringList seeThrough(QWidget *window)
{
    QStringList faults;
    const QList<QWidget *> seen = seenIn(window);
    if (seen.isEmpty() || qobject_cast<QStackedWidget *>(window)->currentWidget() == seen.first()) {
        return faults;
    }
    // The overlay comes first, and something bright between it and the page.
    QWidget patch(window);
    patch.setAutoFillBackground(true);
    patch.setPalette(QPalette(Qt::white));
    patch.setGeometry(window->rect());
    for (const QWidget *widget : seen) {
        const auto *panel = qobject_cast<const ZEMPageBackground *>(widget);
        if (!panel) {
            continue;
        }
        const QImage before = pictureOf(window, panel);
        patch.stackUnder(seen.first());
        patch.show();
        if (pictureOf(window, panel) != before) {
            faults << nameOf(panel);
        }
        patch.hide();
    }
    return faults;
}

QStringList faintTexts(QWidget *window)
{
    QStringList faults;
    for (QWidget *widget : seenIn(window)) {
        if (!hasText(widget) || widget->visibleRegion().isEmpty()) {
            continue;
        }
        const QImage with = pictureOf(window, widget);
        const bool hadPalette = widget->testAttribute(Qt::WA_SetPalette);
        const QPalette before = widget->palette();
        QPalette blank = before;
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                                QPalette::HighlightedText, QPalette::Shadow}) {
            blank.setColor(QPalette::All, role, Qt::transparent);
        }
        widget->setPalette(blank);
        const QImage without = pictureOf(window, widget);
        widget->setPalette(hadPalette ? before : QPalette());
        const double found = contrastOf(with, without);
        if (found < leastContrast) {
            faults << QStringLiteral("%1: %2 to 1").arg(nameOf(widget)).arg(found, 0, 'f', 2);
        }
    }
    return faults;
}

} // namespace ScreenFaults

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// artwork FOLDER
//
// A program of the build: draws the icons of the widget box, each a picture of the widget as it is
// on a form, and writes them to FOLDER with the collection icons.qrc that lists them, and a form of
// all widgets, allwidgets.ui.

#include "formxml.h"
#include "widgettable.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QLoggingCategory>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QTextStream>
#include <QTimer>
#include <QWidget>
#include <ZEMStyle>
#include <memory>
#include <vector>

namespace {

constexpr int side = 22; // pixels, that of Designer's widget box
constexpr double corner = 3.0; // pixels
constexpr double mostStretched = 1.6; // how much wider than high a picture may be
constexpr int timeToSettle = 700; // milliseconds, in which layouts are done and arrows set off
constexpr QRgb ground = 0xff5a6e7d; // light and dark widgets are seen on it

/** The widget with the properties that it has on a form. */
std::unique_ptr<QWidget> widgetOf(const WidgetEntry &entry)
{
    std::unique_ptr<QWidget> widget(entry.makeAlive(nullptr));
    for (const SampleProperty &property : entry.properties) {
        widget->setProperty(property.name, valueOf(entry, property));
    }
    widget->resize(entry.size);
    return widget;
}

/** All widgets of the table, on the screen. */
std::vector<std::unique_ptr<QWidget>> settledWidgets()
{
    std::vector<std::unique_ptr<QWidget>> widgets;
    for (const WidgetEntry &entry : allEntries()) {
        widgets.push_back(widgetOf(entry));
        widgets.back()->show();
    }
    QEventLoop loop;
    QTimer::singleShot(timeToSettle, &loop, &QEventLoop::quit);
    loop.exec();
    return widgets;
}

/** The smallest rectangle with all of @p picture that is not clear. */
QRect inkOf(const QImage &picture)
{
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) > 0) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

/** What is seen of @p picture: of what is long, the end or the middle where its text is. */
QRect sightOf(const QImage &picture, const QWidget *widget)
{
    const QRect ink = inkOf(picture);
    const int width = qMin(ink.width(), int(ink.height() * mostStretched));
    const bool isCentred = (widget->property("alignment").toInt() & Qt::AlignHCenter) != 0;
    const int left = isCentred ? ink.center().x() - width / 2 : ink.left();
    return {left, ink.top(), width, ink.height()};
}

QImage iconOf(QWidget *widget, int ratio)
{
    const QSize room(side * ratio, side * ratio);
    QImage icon(room, QImage::Format_ARGB32_Premultiplied);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(icon.rect()), corner * ratio, corner * ratio);
    painter.setClipPath(shape);
    painter.fillRect(icon.rect(), QColor(ground));

    QImage picture(widget->size(), QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    widget->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    const QImage small = picture.copy(sightOf(picture, widget))
                             .scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    painter.drawImage((room.width() - small.width()) / 2, (room.height() - small.height()) / 2,
                      small);
    return icon;
}

bool write(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text.toUtf8()) >= 0 && file.flush();
}

/** Whether everything could be written to @p folder. */
bool writeAll(const QDir &folder)
{
    QString collection = QStringLiteral("<RCC><qresource prefix=\"/zemkit/designer/icons\">\n");
    const std::vector<std::unique_ptr<QWidget>> widgets = settledWidgets();
    for (std::size_t i = 0; i < widgets.size(); ++i) {
        const WidgetEntry &entry = allEntries().at(int(i));
        for (const int ratio : {1, 2}) {
            const QString file = QLatin1String(entry.className)
                + (ratio == 1 ? QStringLiteral(".png") : QStringLiteral("@2x.png"));
            if (!iconOf(widgets[i].get(), ratio).save(folder.filePath(file.toLower()))) {
                return false;
            }
            collection += QStringLiteral("<file>%1</file>\n").arg(file.toLower());
        }
    }
    collection += QStringLiteral("</qresource></RCC>\n");
    return write(folder.filePath(QStringLiteral("allwidgets.ui")), formOfAll())
        && write(folder.filePath(QStringLiteral("icons.qrc")), collection);
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    ZEMStyle::setApplicationFonts();
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));

    const QDir folder(application.arguments().value(1));
    if (!folder.mkpath(QStringLiteral(".")) || !writeAll(folder)) {
        QTextStream(stderr) << "artwork: cannot write to " << folder.path() << '\n';
        return 1;
    }
    return 0;
}

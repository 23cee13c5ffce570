// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef RECORDINGDEVICE_H
#define RECORDINGDEVICE_H

#include <QLineF>
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPen>
#include <QPolygonF>
#include <QString>
#include <QTransform>
#include <QVector>

#include <limits>

namespace PlotTest {

/** One thing that was drawn, with its points before the transformation. */
struct Drawn
{
    enum Kind { Line, Rect, Polyline, Polygon, Text, Other };

    Kind kind = Other;
    QPolygonF points; ///< a rectangle: top left and bottom right
    QString text;
    QTransform transform;
    QPen pen;
};

/** Lines as the device below tells of them. */
inline QVector<QPolygonF> lines(const QVector<QLineF> &expected)
{
    QVector<QPolygonF> polygons;
    for (const QLineF &line : expected) {
        polygons << QPolygonF(QVector<QPointF> {line.p1(), line.p2()});
    }
    return polygons;
}

/** Notes what is drawn instead of drawing it. */
class RecordingEngine : public QPaintEngine
{
public:
    RecordingEngine() : QPaintEngine(QPaintEngine::AllFeatures) { }

    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return QPaintEngine::User; }

    void updateState(const QPaintEngineState &newState) override
    {
        if (newState.state() & QPaintEngine::DirtyTransform) {
            transform = newState.transform();
        }
        if (newState.state() & QPaintEngine::DirtyPen) {
            pen = newState.pen();
        }
    }

    void drawLines(const QLineF *lines, int count) override
    {
        for (int i = 0; i < count; ++i) {
            note(Drawn::Line, QVector<QPointF> {lines[i].p1(), lines[i].p2()});
        }
    }
    void drawRects(const QRectF *rects, int count) override
    {
        for (int i = 0; i < count; ++i) {
            note(Drawn::Rect, QVector<QPointF> {rects[i].topLeft(), rects[i].bottomRight()});
        }
    }
    void drawPolygon(const QPointF *points, int count, PolygonDrawMode mode) override
    {
        QPolygonF polygon;
        for (int i = 0; i < count; ++i) {
            polygon << points[i];
        }
        note(mode == PolylineMode ? Drawn::Polyline : Drawn::Polygon, polygon);
    }
    void drawTextItem(const QPointF &position, const QTextItem &item) override
    {
        note(Drawn::Text, QVector<QPointF> {position}, item.text());
    }
    void drawPixmap(const QRectF &rect, const QPixmap &, const QRectF &) override
    {
        note(Drawn::Other, QVector<QPointF> {rect.topLeft()});
    }

    using QPaintEngine::drawLines;
    using QPaintEngine::drawPolygon;
    using QPaintEngine::drawRects;

    QVector<Drawn> drawn;

private:
    void note(Drawn::Kind kind, const QPolygonF &points, const QString &text = QString())
    {
        drawn.append({kind, points, text, transform, pen});
    }

    QTransform transform;
    QPen pen;
};

/** A device for a QPainter whose drawing is to be looked at number by number. */
class RecordingDevice : public QPaintDevice
{
public:
    QPaintEngine *paintEngine() const override { return &engine; }
    const QVector<Drawn> &drawn() const { return engine.drawn; }
    /** What was drawn of one kind, in the order of drawing. */
    QVector<QPolygonF> points(Drawn::Kind kind) const
    {
        QVector<QPolygonF> found;
        for (const Drawn &item : engine.drawn) {
            if (item.kind == kind) {
                found.append(item.points);
            }
        }
        return found;
    }

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        constexpr int side = 1000; // pixels
        constexpr int dotsPerInch = 96;
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return side;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return dotsPerInch;
        case PdmWidthMM:
        case PdmHeightMM:
            return static_cast<int>(side * 25.4 / dotsPerInch);
        case PdmDepth:
            return 32;
        case PdmNumColors:
            return std::numeric_limits<int>::max();
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return static_cast<int>(devicePixelRatioFScale());
        default: // Qt 6 has more
            return QPaintDevice::metric(metric);
        }
    }

private:
    mutable RecordingEngine engine;
};

} // namespace PlotTest

#endif

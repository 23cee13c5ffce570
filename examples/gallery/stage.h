// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef STAGE_H
#define STAGE_H

#include <QHash>
#include <QList>
#include <QPair>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QVector>
#include <Qt>
#include <functional>

class KeyboardFactoryDefault;
class QHBoxLayout;
class QObject;
class QVBoxLayout;
class QWidget;

/**
 * What the page of a class is given to show itself on. The page makes the sample, which is one of:
 * widgets one after the other, each with a caption (add()), one widget that fills the place of the
 * sample (fill()), or a whole screen (cover()). Then it tells what can be played with.
 */
class Stage
{
public:
    /** The room of a sample that is not a whole screen, in pixels. */
    static constexpr int width = 400;
    static constexpr int height = 398;

    /** @p keyboards makes the keyboards of samples and outlives them. */
    explicit Stage(KeyboardFactoryDefault *keyboards, const QString &keyboardDirectory);
    /** Deletes the sample. */
    ~Stage();

    /** Appends @p widget to the sample, under a small @p caption, where there is room for it. */
    void add(const QString &caption, QWidget *widget);
    /**
     * Makes @p widget the sample, which gets the width of the stage and @p pixels of its height,
     * with a small margin.
     */
    void fill(QWidget *widget, int pixels = width * 3 / 4);
    /**
     * Makes @p page the sample, a whole screen of 640 by 480 pixels. A button lies in the corner
     * @p wayBack of it, in which the sample has nothing to touch.
     */
    void cover(QWidget *page, Qt::Corner wayBack = Qt::TopLeftCorner);

    /** Offers the properties of @p object, one of the sample. */
    void playWith(QObject *object);
    /** Keeps the controls of the number @p property between @p least and @p most. */
    void setRange(const QString &property, double least, double most);
    /** Offers a button, for what has no property. */
    void addButton(const QString &text, const std::function<void()> &pressed);

    KeyboardFactoryDefault &keyboards() const;
    QString keyboardDirectory() const;

    // What the gallery asks afterwards.

    QWidget *sample() const;
    bool coversScreen() const;
    /** How large the sample is when it is alone. */
    QSize pictureSize() const;
    Qt::Corner wayBack() const;
    QList<QPointer<QObject>> objects() const;
    /** The range of a property; everything if none was set. */
    QPair<double, double> range(const QString &property) const;

    struct Button
    {
        QString text;
        std::function<void()> pressed;
    };
    QVector<Button> buttons() const;

private:
    Q_DISABLE_COPY(Stage)

    void startRow();

    KeyboardFactoryDefault *const factory;
    const QString directory;
    QPointer<QWidget> shown;
    QVBoxLayout *rows = nullptr;
    QHBoxLayout *row = nullptr;
    int rowWidth = 0;
    bool isScreen = false;
    Qt::Corner corner = Qt::TopLeftCorner;
    QList<QPointer<QObject>> played;
    QHash<QString, QPair<double, double>> ranges;
    QVector<Button> ownButtons;
};

#endif

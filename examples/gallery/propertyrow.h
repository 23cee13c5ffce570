// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PROPERTYROW_H
#define PROPERTYROW_H

#include <QMetaProperty>
#include <QPair>
#include <QPointer>
#include <QWidget>

class ZEMButton;
class ZEMTextLabel;

/** The control of one property of an object that may go any time. */
class PropertyRow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int width = 222; // pixels
    static constexpr int height = 62;

    PropertyRow(QObject *object, const QMetaProperty &property,
                const QPair<double, double> &allowedRange, QWidget *parent = nullptr);
    ~PropertyRow() override;

    QString name() const;
    /** Shows the present value. */
    void refresh();
    /** Sets the value; a text that was asked for comes this way. */
    void write(const QVariant &value);
    QVariant value() const;

Q_SIGNALS:
    /** The control has set a value. */
    void changed();
    /** The user wants to type another text. */
    void textWanted(PropertyRow *row);

private:
    void makeControls();
    ZEMButton *addStep(const QString &text, int direction);

    const QPointer<QObject> target;
    const QMetaProperty property;
    const QPair<double, double> range;
    const QVariant first;
    ZEMButton *button = nullptr; ///< shows the value, but for a number
    ZEMTextLabel *number = nullptr;
};

#endif

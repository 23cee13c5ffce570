// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMBARINDICATOR_H
#define ZEMBARINDICATOR_H

#include "zemkit_export.h"

#include <QPen>
#include <QWidget>

#include <memory>

/**
 * A horizontal bar that is a comb of upright lines: up to the value in one pen, after it in
 * another, with an optional marker line at a second value.
 *
 * @code
 * #include <ZEMBarIndicator>
 * #include <ZEMPageBackground>
 *
 * ZEMPageBackground page;
 * page.setBackgroundColor(QColor(96, 112, 128));
 * auto *budget = new ZEMBarIndicator(&page);
 * budget->setGeometry(20, 20, 200, 12);
 * budget->setMaxValue(3500.0); // kWh
 * budget->setValue(1200.0);
 * page.show();
 * @endcode
 * Between two lines there is a gap as wide as the pen. The size of the widget is the owner's
 * business.
 *
 * The length of the bar is (value - minimum) / maximum of the width: only with the default minimum
 * of 0 does the maximum fill it. A bar is painted into the rectangle that is to be painted and not
 * into the widget, so a call of update() with a part of the widget draws a small bar there.
 */
class ZEM_EXPORT ZEMBarIndicator : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(double value READ getValue WRITE setValue)
    Q_PROPERTY(double maxValue READ getMaxValue WRITE setMaxValue)
    Q_PROPERTY(QPen valuePen READ getValuePen WRITE setValuePen)
    Q_PROPERTY(QPen maxValuePen READ getMaxValuePen WRITE setMaxValuePen)
    Q_PROPERTY(bool setEnableMidValue READ getEnableMidValue WRITE setEnableMidValue)
    Q_PROPERTY(double midValue READ getMidValue WRITE setMidValue)
    Q_PROPERTY(QPen midValuePen READ getMidValuePen WRITE setMidValuePen)

public:
    explicit ZEMBarIndicator(QWidget *parent = nullptr);
    ~ZEMBarIndicator() override;

    /** The lower limit, in the unit of the values; 0 by default. */
    double getMinValue() const;
    /**
     * Sets the lower limit if it is below the upper one; it is painted soon. Any other is ignored.
     * Value and mid value stay, even if they are now outside.
     */
    void setMinValue(double minValue);

    /** The value; 10 by default. */
    double getValue() const;
    /** Sets the value, limited to minimum and maximum; it is painted soon. NaN is ignored. */
    void setValue(double value);

    /** The upper limit; 100 by default. */
    double getMaxValue() const;
    /** Sets the upper limit if it is above the lower one, as setMinValue() does the lower one. */
    void setMaxValue(double maxValue);

    /** The pen of the lines up to the value; white, 1 pixel wide, by default. */
    QPen getValuePen() const;
    /** Sets the pen of the lines up to the value; it is painted soon. */
    void setValuePen(const QPen &pen);

    /** The pen of the lines after the value; black, 1 pixel wide, by default. */
    QPen getMaxValuePen() const;
    /** Sets the pen of the lines after the value; it is painted soon. */
    void setMaxValuePen(const QPen &pen);

    /** Whether the marker is drawn; false by default. */
    bool getEnableMidValue() const;
    /** Switches the marker; it is seen from the next paint on. */
    void setEnableMidValue(bool enable);

    /** The value of the marker; 50 by default. */
    double getMidValue() const;
    /** Sets the marker, limited to minimum and maximum; it is painted soon. NaN is ignored. */
    void setMidValue(double midValue);

    /** The pen of the marker; red, 1 pixel wide, by default. */
    QPen getMidValuePen() const;
    /** Sets the pen of the marker; it is painted soon. */
    void setMidValuePen(const QPen &pen);

    /** The present size. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMBarIndicator)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMHISTOGRAMBUTTON_H
#define ZEMHISTOGRAMBUTTON_H

#include "zemkit_export.h"

#include <QString>
#include <QWidget>

#include <memory>

class ZEMHistogram;

/**
 * A chart on a large button with a title over it.
 *
 * @code
 * #include <ZEMHistogramButton>
 * #include <ZEMMiniDayHistogram>
 *
 * QWidget page;
 * auto *chart = new ZEMMiniDayHistogram;
 * chart->init();
 * auto *tile = new ZEMHistogramButton(&page);
 * tile->setTitle(QStringLiteral("elektriciteit"));
 * tile->setHistogram(chart);
 * QObject::connect(tile, &ZEMHistogramButton::clicked, &page, &QWidget::close);
 * @endcode
 * The button is as large as its picture, 322 by 152 pixels; the chart keeps 10 from its edges.
 * Touches on the chart reach the button: a tap on a ZEMMiniDayHistogram clicks it, and so does a
 * drag of a chart that can be dragged, which is moved as well. To keep a chart's touches from the
 * button, set Qt::WA_NoMousePropagation on it. Button and chart may be deleted in a slot of
 * clicked().
 *
 * The font, "Cabin", is the host's; see ZEMStyle::setApplicationFonts().
 */
class ZEM_EXPORT ZEMHistogramButton : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)

public:
    explicit ZEMHistogramButton(QWidget *parent = nullptr);
    ~ZEMHistogramButton() override;

    /** The text above the button; the translated "Title" by default. */
    QString getTitle() const;
    void setTitle(const QString &title);

    /**
     * Puts @p histogram on the button and makes it a child of it. A second chart is put beside the
     * first.
     */
    void setHistogram(ZEMHistogram *histogram);

Q_SIGNALS:
    /** The button was clicked. */
    void clicked();

private:
    Q_DISABLE_COPY(ZEMHistogramButton)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMWIDGETLABEL_H
#define ZEMWIDGETLABEL_H

#include "zemkit_export.h"

#include <QString>
#include <QWidget>

#include <memory>

/**
 * The small title strip above a composite widget: one line of shadowed text in 12 point "Cabin",
 * 5 pixels from the left. The font is the host's, see ZEMStyle::setApplicationFonts(), and so is
 * the colour, QPalette::WindowText.
 *
 * @code
 * #include <QApplication>
 * #include <ZEMPageBackground>
 * #include <ZEMStyle>
 * #include <ZEMWidgetLabel>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMPageBackground page;
 * auto *strip = new ZEMWidgetLabel(&page);
 * strip->setTitle(QStringLiteral("totaal vandaag"));
 * page.show();
 * @endcode
 */
class ZEM_EXPORT ZEMWidgetLabel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString title READ getTitle WRITE setTitle)

public:
    explicit ZEMWidgetLabel(QWidget *parent = nullptr);
    ~ZEMWidgetLabel() override;

    /** The text; the translated "Title" by default. */
    QString getTitle() const;
    void setTitle(const QString &title);

private:
    Q_DISABLE_COPY(ZEMWidgetLabel)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

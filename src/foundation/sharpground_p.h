// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef SHARPGROUND_P_H
#define SHARPGROUND_P_H

#include "sharppicture_p.h"

#include <QObject>

class QWidget;

/**
 * Keeps the picture that a widget is filled with, that of the brush of its palette for windows, the
 * one for the screen. It looks at each paint of the widget's parent, which comes first.
 */
class SharpGround : public QObject
{
    Q_OBJECT

public:
    /** Watches @p widget as long as both live; once is enough. Null does nothing. */
    static void watch(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit SharpGround(QWidget *widget);

    QWidget *const filled;
    SharpPicture picture;
    qint64 shownKey = 0; ///< of the picture that was put in its place
};

#endif

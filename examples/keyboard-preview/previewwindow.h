// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef PREVIEWWINDOW_H
#define PREVIEWWINDOW_H

#include "pictures.h"

#include <QWidget>

class QLabel;
class QPushButton;

/** Pages through pictures of keyboards, by its buttons or the arrow keys. */
class PreviewWindow : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewWindow(const QVector<Picture> &pictures, QWidget *parent = nullptr);
    ~PreviewWindow() override;

    /** The place of the picture that is shown, from 0. */
    int current() const { return place; }

public Q_SLOTS:
    void showNext();
    void showPrevious();

private:
    Q_DISABLE_COPY(PreviewWindow)

    void showPicture(int number);

    const QVector<Picture> pictures;
    QLabel *view;
    QLabel *caption;
    QPushButton *btnPrevious;
    QPushButton *btnNext;
    int place = 0;
};

#endif

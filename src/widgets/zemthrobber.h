// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTHROBBER_H
#define ZEMTHROBBER_H

#include "zemtextlabel.h"

#include <QString>

#include <memory>

/**
 * A spinner: a label that plays the frames of a strip over and over, ten a second, to show that
 * the display is busy.
 *
 * @code
 * #include <QTimer>
 * #include <ZEMPageBackground>
 * #include <ZEMThrobber>
 *
 * ZEMPageBackground page;
 * auto *spinner = new ZEMThrobber(&page);
 * QTimer::singleShot(2000, spinner, &ZEMThrobber::stop); // the job is done
 * page.show();
 * @endcode
 * It runs from its construction on until pause() or stop(), shown or not. The default strip,
 * ":/zem/graphics/icons/throbber.png", has 12 frames of 32 by 32 pixels, a turn in 1.2 seconds.
 * On a sharp screen it plays the strip that was made for one, if there is such a file beside it
 * with
 * "@2x" before the last dot of its name, or a higher number, and frames of so many times the size.
 * The frames stand in the middle of the label; setAlignment() changes that. With a shadow switched
 * on, a label shows no pictures.
 */
class ZEM_EXPORT ZEMThrobber : public ZEMTextLabel
{
    Q_OBJECT

public:
    explicit ZEMThrobber(QWidget *parent = nullptr);
    ~ZEMThrobber() override;

    /** Shows the next frame and goes on from there. */
    void start();
    /** Shows the next frame and rests on it; start() goes on. */
    void pause();
    /** Stops and empties the label; start() goes on where it was. */
    void stop();

    /**
     * Plays another strip, from its first frame and at once, also if it was at rest: the picture at
     * @p path, cut into @p frames columns of equal width. What is left over at the right is not
     * shown. With a picture that cannot be read, or no frames, the label is empty.
     */
    void setImage(QString path, int frames);

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void slotChangeImage();

private:
    Q_DISABLE_COPY(ZEMThrobber)

    void init();

    class Private;
    std::unique_ptr<Private> d;
};

#endif

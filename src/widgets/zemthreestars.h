// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMTHREESTARS_H
#define ZEMTHREESTARS_H

#include "zemkit_export.h"

#include <QWidget>

#include <memory>

/**
 * A rating of up to three stars in a triangle. It fills from the bottom left to the bottom right,
 * and the star at the top is the last.
 *
 * The stars keep their size and stand in the corners and at the top of the widget, whose size is
 * the owner's business; it asks a layout for no room:
 * @code
 * #include <ZEMPageBackground>
 * #include <ZEMThreeStars>
 *
 * ZEMPageBackground page;
 * auto *rating = new ZEMThreeStars(&page);
 * rating->resize(90, 80); // room for stars of 43 by 39 pixels; the small ones have 22 by 20
 * rating->setStars(2);
 * page.show();
 * @endcode
 */
class ZEM_EXPORT ZEMThreeStars : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int stars READ getStars WRITE setStars)
    Q_PROPERTY(bool smallVersion READ isSmallVersion WRITE setSmallVersion)

public:
    explicit ZEMThreeStars(QWidget *parent = nullptr);
    ~ZEMThreeStars() override;

    /** The number of filled stars; 0 by default. */
    int getStars() const;
    /** Sets the number of filled stars, 0 to 3, and paints at once. Any other is ignored. */
    void setStars(int stars);

    /** Whether the stars are the small ones; false by default. */
    bool isSmallVersion() const;
    /** Switches to the small or the large stars and paints at once. The widget keeps its size. */
    void setSmallVersion(bool smallVersion);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMThreeStars)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

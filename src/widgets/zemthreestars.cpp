// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemthreestars.h"

#include "objectname_p.h"
#include "sharppicture_p.h"
#include "starplaces_p.h"

#include <QPainter>
#include <QPixmap>

class ZEMThreeStars::Private
{
public:
    Private() { loadIcons(); }

    void loadIcons()
    {
        const QLatin1String size(smallVersion ? "_small" : "");
        const QString path = QStringLiteral(":/zem/graphics/icons/%1_icon%2.png");
        starIcon = QPixmap(path.arg(QLatin1String("star"), size));
        emptyStarIcon = QPixmap(path.arg(QLatin1String("star_empty"), size));
    }

    int stars = 0;
    bool smallVersion = false;
    SharpPicture starIcon;
    SharpPicture emptyStarIcon;
};

ZEMThreeStars::ZEMThreeStars(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>())
{
    setObjectNameFromClass(this, staticMetaObject);
    QMetaObject::connectSlotsByName(this);
}

ZEMThreeStars::~ZEMThreeStars() = default;

int ZEMThreeStars::getStars() const
{
    return d->stars;
}

void ZEMThreeStars::setStars(int stars)
{
    if (stars >= 0 && stars <= StarPlaces::mostStars) {
        d->stars = stars;
        repaint();
    }
}

bool ZEMThreeStars::isSmallVersion() const
{
    return d->smallVersion;
}

void ZEMThreeStars::setSmallVersion(bool smallVersion)
{
    if (smallVersion != d->smallVersion) {
        d->smallVersion = smallVersion;
        d->loadIcons();
        repaint();
    }
}

void ZEMThreeStars::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QSize starSize = d->starIcon.size();
    for (const StarPlaces::Star &star : StarPlaces::triangle(d->stars, size(), starSize)) {
        const QRectF place(star.topLeft, QSizeF(starSize));
        (star.filled ? d->starIcon : d->emptyStarIcon).draw(painter, place);
    }
    QWidget::paintEvent(event);
}

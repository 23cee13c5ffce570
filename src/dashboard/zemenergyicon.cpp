// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemenergyicon.h"

#include "centredmark_p.h"
#include "objectname_p.h"
#include "sharppicture_p.h"
#include "zempixmapcache.h"

#include <QPainter>
#include <QPixmap>

#include <array>

namespace {

constexpr int typeCount = 5;

struct IconSet
{
    const char *background;
    std::array<const char *, typeCount> symbols; // in the order of ZEMEnergyIcon::Type
};

constexpr IconSet smallIcons {
    "icon_bg_16x16",
    {"icon_el_12x16", "icon_fi_12x16", "icon_wa_12x16", "icon_ci_12x16", "icon_sp_12x16"}};
constexpr IconSet bigIcons {
    "icon_bg_25x25",
    {"icon_el_15x20", "icon_fi_15x20", "icon_wa_15x20", "icon_ci_15x20", "icon_sp_15x20"}};

QPixmap getIconFromCache(const char *name)
{
    QPixmap icon;
    ZEMPixmapCache::load(
        icon, QStringLiteral(":/zem/graphics/gwe/icons/%1.png").arg(QLatin1String(name)));
    return icon;
}

} // namespace

class ZEMEnergyIcon::Private
{
public:
    void drawSymbol(QPainter &painter, const QSize &size) const
    {
        if (energyType < Electricity || energyType > SolarProduction) {
            return;
        }
        const SharpPicture &symbol = symbols[size_t(energyType)];
        symbol.draw(painter, centredMark(size, symbol.size()));
    }

    bool useBigIcon = false;
    SharpPicture background;
    std::array<SharpPicture, typeCount> symbols;
    Type energyType = Electricity;
};

ZEMEnergyIcon::ZEMEnergyIcon(QWidget *parent) : QWidget(parent), d(std::make_unique<Private>())
{
    qRegisterMetaType<Type>(); // for signals of others that carry a type and are queued
    setObjectNameFromClass(this, staticMetaObject);
    updateUI();
}

ZEMEnergyIcon::~ZEMEnergyIcon() = default;

bool ZEMEnergyIcon::getUseBigIcon() const
{
    return d->useBigIcon;
}

void ZEMEnergyIcon::setUseBigIcon(bool big)
{
    d->useBigIcon = big;
    updateUI();
}

ZEMEnergyIcon::Type ZEMEnergyIcon::getEnergyType() const
{
    return d->energyType;
}

void ZEMEnergyIcon::setEnergyType(Type type)
{
    d->energyType = type;
    repaint();
}

QSize ZEMEnergyIcon::sizeHint() const
{
    return size();
}

void ZEMEnergyIcon::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    d->background.draw(painter, QRect(QPoint(), d->background.size()));
    d->drawSymbol(painter, size());
    QWidget::paintEvent(event);
}

void ZEMEnergyIcon::updateUI()
{
    const IconSet &icons = d->useBigIcon ? bigIcons : smallIcons;
    d->background = getIconFromCache(icons.background);
    for (size_t type = 0; type < d->symbols.size(); ++type) {
        d->symbols[type] = getIconFromCache(icons.symbols[type]);
    }

    const QSize size = d->background.size();
    resize(size);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMinimumSize(size);
    setMaximumSize(size);
    repaint();
}

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMENERGYICON_H
#define ZEMENERGYICON_H

#include "zemkit_export.h"

#include <QWidget>

#include <memory>

/**
 * A small badge with the symbol of an energy, and the home of the enum by which the whole library
 * names an energy.
 *
 * @code
 * #include <ZEMEnergyIcon>
 * #include <ZEMPageBackground>
 *
 * ZEMPageBackground page;
 * auto *icon = new ZEMEnergyIcon(&page);
 * icon->setEnergyType(ZEMEnergyIcon::Gas);
 * page.show();
 * @endcode
 * The widget is locked to the size of its badge, 16 by 16 pixels or 25 by 25 for the big one.
 */
class ZEM_EXPORT ZEMEnergyIcon : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool useBigIcon READ getUseBigIcon WRITE setUseBigIcon)
    Q_PROPERTY(Type energyType READ getEnergyType WRITE setEnergyType)

public:
    enum Type { Electricity, Gas, Water, Heating, SolarProduction };
    Q_ENUM(Type)

    explicit ZEMEnergyIcon(QWidget *parent = nullptr);
    ~ZEMEnergyIcon() override;

    /** Whether the badge is the big one; false by default. */
    bool getUseBigIcon() const;
    /** Chooses the badge, locks the size of the widget to it and paints at once. */
    void setUseBigIcon(bool big);

    /** The energy shown; Electricity by default. */
    Type getEnergyType() const;
    /** Sets the energy and paints at once. A value that is no Type leaves the badge empty. */
    void setEnergyType(Type type);

    /** The present size. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Q_DISABLE_COPY(ZEMEnergyIcon)

    void updateUI();

    class Private;
    std::unique_ptr<Private> d;
};

#endif

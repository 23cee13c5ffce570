// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef DISPLAYPAGE_H
#define DISPLAYPAGE_H

#include <QString>
#include <ZEMPageBackground>

class EnergySource;
class QVBoxLayout;
class ZEMButton;
class ZEMLabel;
class ZEMTextLabel;

/**
 * The base of all pages of the display: the dark ground, and a header strip with a way back, the
 * title of the page and the power of the grid. A page is 640 by 480 pixels.
 */
class DisplayPage : public ZEMPageBackground
{
    Q_OBJECT

public:
    /** @p source must outlive the page. */
    DisplayPage(const QString &title, const EnergySource &source, QWidget *parent = nullptr);

    /** The start page has no way back. */
    void setBackVisible(bool visible);

Q_SIGNALS:
    void backClicked();

protected:
    const EnergySource &energySource() const { return shownSource; }
    /** The room beneath the header strip. */
    QVBoxLayout *content() const { return contentLayout; }

private:
    QWidget *makeHeader(const QString &title);
    void showGridPower();

    const EnergySource &shownSource;
    QVBoxLayout *contentLayout = nullptr;
    ZEMButton *back = nullptr;
    ZEMTextLabel *powerCaption = nullptr;
    ZEMLabel *power = nullptr;
};

#endif

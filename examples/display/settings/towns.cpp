// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "towns.h"

QStringList townNames()
{
    static const char *const names =
        "Alkmaar|Almelo|Almere|Alphen aan den Rijn|Amersfoort|Amstelveen|Amsterdam|Antwerpen|"
        "Apeldoorn|Arnhem|Assen|Bergen op Zoom|Breda|Brugge|Brussel|Capelle aan den IJssel|Delft|"
        "Den Bosch|Den Haag|Den Helder|Deventer|Dordrecht|Ede|Eindhoven|Emmen|Enschede|Gent|Goes|"
        "Gouda|Groningen|Haarlem|Harderwijk|Hasselt|Heerenveen|Heerlen|Helmond|Hengelo|Hilversum|"
        "Hoorn|Kampen|Kortrijk|Leeuwarden|Leiden|Lelystad|Leuven|Maastricht|Mechelen|Meppel|"
        "Middelburg|Nijmegen|Oostende|Oss|Purmerend|Roermond|Roosendaal|Rotterdam|Schiedam|"
        "Sittard|Sneek|Tilburg|Utrecht|Veenendaal|Venlo|Vlissingen|Wageningen|Zaandam|Zeist|"
        "Zoetermeer|Zutphen|Zwolle";
    return QString::fromUtf8(names).split(QLatin1Char('|'));
}

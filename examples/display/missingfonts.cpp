// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "missingfonts.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontInfo>

QStringList missingFonts()
{
    QStringList lines;
    for (const QString &family : {QStringLiteral("Cabin"), QStringLiteral("Quicksand")}) {
        const QString found = QFontInfo(QFont(family)).family();
        if (found.compare(family, Qt::CaseInsensitive) != 0) {
            lines << QCoreApplication::translate(
                         "MissingFonts",
                         "het lettertype %1 is er niet (fonts-%2): teksten passen misschien niet")
                         .arg(family, family.toLower());
        }
    }
    return lines;
}

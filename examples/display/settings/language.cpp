// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "language.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

// A macro that must stand outside of a namespace.
static void makeCataloguesKnown()
{
    Q_INIT_RESOURCE(catalogues);
}

void Language::speakDutch()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    makeCataloguesKnown();
    auto *translator = new QTranslator(QCoreApplication::instance());
    [[maybe_unused]] const bool isLoaded =
        translator->load(QStringLiteral(":/zemkit/translations/zemkit-display_nl.qm"));
    Q_ASSERT(isLoaded);
    QCoreApplication::installTranslator(translator);
}

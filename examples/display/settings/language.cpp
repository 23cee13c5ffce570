// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "language.h"

#include <QCoreApplication>
#include <QDir>
#include <QLocale>
#include <QTranslator>
#include <memory>

// A macro that must stand outside of a namespace.
static void makeCataloguesKnown()
{
    Q_INIT_RESOURCE(catalogues);
}

namespace {

const QString directory = QStringLiteral(":/zemkit/translations");
const QString ownPrefix = QStringLiteral("zemkit-display_");
const QString suffix = QStringLiteral(".qm");

QLocale localeOf(const QString &language)
{
    // Alone, "en" is that of the United States, who write dates another way round.
    return language == QLatin1String("en") ? QLocale(QLocale::English, QLocale::UnitedKingdom)
                                           : QLocale(language);
}

} // namespace

QStringList Language::all()
{
    makeCataloguesKnown();
    const QStringList files =
        QDir(directory).entryList({ownPrefix + QLatin1Char('*') + suffix}, QDir::Files, QDir::Name);
    QStringList languages;
    for (const QString &file : files) {
        languages << file.mid(ownPrefix.size()).chopped(suffix.size());
    }
    return languages;
}

void Language::speak(const QString &language)
{
    makeCataloguesKnown();
    QLocale::setDefault(localeOf(language));
    static const QString name = QStringLiteral("language of the display");
    QCoreApplication *application = QCoreApplication::instance();
    qDeleteAll(application->findChildren<QTranslator *>(name, Qt::FindDirectChildrenOnly));
    for (const QString &prefix : {QStringLiteral("zemkit_"), ownPrefix}) {
        auto translator = std::make_unique<QTranslator>();
        // The library needs none for Dutch.
        if (translator->load(directory + QLatin1Char('/') + prefix + language + suffix)) {
            translator->setObjectName(name);
            translator->setParent(application);
            QCoreApplication::installTranslator(translator.release());
        }
    }
}

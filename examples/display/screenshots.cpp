// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "screenshots.h"

#include "charts/chartspage.h"

#include <QDir>
#include <QPixmap>
#include <ZEMHistogram>

namespace {

const char *nameOf(Period period)
{
    switch (period) {
    case Period::Day:
        return "day";
    case Period::Week:
        return "week";
    case Period::Month:
        break;
    }
    return "month";
}

QString writePicture(QWidget *page, const QDir &directory, const QString &name)
{
    const QString path = directory.filePath(name + QStringLiteral(".png"));
    return page->grab().save(path) ? QString() : QStringLiteral("cannot write %1").arg(path);
}

} // namespace

QString writeScreenshots(const QString &directory, ChartsPage *charts)
{
    const QDir dir(directory);
    if (!dir.mkpath(QStringLiteral("."))) {
        return QStringLiteral("cannot make the directory %1").arg(directory);
    }
    const QStringList keys = charts->energyKeys();
    for (int energy = 0; energy < keys.size(); ++energy) {
        for (const Period period : {Period::Day, Period::Week, Period::Month}) {
            const QString name =
                QStringLiteral("charts-%1-%2").arg(keys[energy], QLatin1String(nameOf(period)));
            charts->showChart(energy, period);
            QString problem = writePicture(charts, dir, name);
            if (problem.isEmpty()) {
                // The period before, which tends to be a whole one.
                charts->chart()->showPrevPeriod();
                problem = writePicture(charts, dir, name + QStringLiteral("-before"));
            }
            if (!problem.isEmpty()) {
                return problem;
            }
        }
    }
    return {};
}

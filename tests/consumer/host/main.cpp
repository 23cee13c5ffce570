// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// A host that knows nothing of the tree that the library was built in.

#include <QApplication>
#include <QPixmap>
#include <ZEMButton>
#include <ZEMSmartDayHistogram>
#include <zemkit_version.h>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    ZEMButton button;
    button.setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small.png")));
    ZEMSmartDayHistogram chart;
    chart.init();
    const bool works = button.width() == 75 && chart.layout()
        && qstrcmp(zemkitVersion(), ZEMKIT_VERSION_STR) == 0
        && qstrcmp(zemkitVersion(), PACKAGE_VERSION) == 0;
    return works ? 0 : 1;
}

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// A host that knows nothing of the tree that the library was built in.

#include <QApplication>
#include <QPixmap>
#include <ZEMButton>
#include <ZEMSmartDayHistogram>
#include <ZEMUtils>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    ZEMButton button;
    button.setBackground(
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small.png")));
    ZEMSmartDayHistogram chart;
    chart.init();
    const bool works = button.width() == 75 && chart.layout()
        && ZEMUtils::getVersion().startsWith(QStringLiteral(ZEMKIT_VERSION "."));
    return works ? 0 : 1;
}

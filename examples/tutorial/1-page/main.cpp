// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <ZEMPageBackground>
#include <ZEMStyle>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
    ZEMStyle::setApplicationFonts();

    ZEMPageBackground page;
    page.setBackgroundColor(QColor(22, 32, 40));
    page.resize(640, 480);
    page.show();
    return QApplication::exec();
}

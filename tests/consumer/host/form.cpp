// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// A host whose page was made in Qt Designer.

#include "ui_page.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    ZEMPageBackground page;
    Ui::Page ui;
    ui.setupUi(&page);
    ui.chart->init();
    const bool works = ui.header->getTitle() == QStringLiteral("verbruik")
        && ui.header->getNrOfButtons() == 1 && ui.header->isAncestorOf(ui.mail)
        && !ui.mail->getIcon().isNull() && page.getBackgroundColor() == QColor(22, 32, 40);
    return works ? 0 : 1;
}

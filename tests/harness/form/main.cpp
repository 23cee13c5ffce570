// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "ui_greeting.h"

#include <QApplication>
#include <cstdio>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    QWidget greeting;
    Ui::Greeting form;
    form.setupUi(&greeting);
    std::puts(qPrintable(form.label->text()));
    return 0;
}

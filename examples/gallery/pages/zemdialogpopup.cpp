// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "pages.h"
#include "stage.h"

#include <QTimer>
#include <ZEMButton>
#include <ZEMDialogPopup>
#include <ZEMTextLabel>

static ZEMButton *makeButton(const QString &text, int place, QWidget *page)
{
    auto *button = new ZEMButton(page);
    button->setBackground(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/popup_btn.png")));
    button->setText(text);
    button->move(40, 80 + 80 * place);
    return button;
}

void Pages::zemdialogpopup(Stage &stage)
{
    auto *page = new ZEMPageBackground;
    page->setBackgroundColor(QColor(96, 112, 128));
    auto *answer = new ZEMTextLabel(page);
    answer->setGeometry(340, 96, 260, 30);
    auto *dialog = new ZEMDialogPopup(page);

    const auto ask = [dialog] {
        dialog->clearText();
        dialog->setTextLine1(QStringLiteral("Afsluiten?"));
        dialog->setTextLine2(QStringLiteral("Er wordt niets meer gemeten."));
    };
    auto *question = makeButton(QStringLiteral("exec()"), 0, page);
    QObject::connect(question, &ZEMButton::clicked, dialog, [=] {
        ask();
        const QPointer<QObject> alive(dialog);
        const bool yes = dialog->exec(); // until it is answered
        if (alive) {
            answer->setText(yes ? QStringLiteral("ja") : QStringLiteral("nee"));
        }
    });

    auto *message = makeButton(QStringLiteral("info()"), 1, page);
    QObject::connect(message, &ZEMButton::clicked, dialog, [=] {
        dialog->clearText();
        dialog->setTextLine1(QStringLiteral("De instellingen zijn bewaard."));
        dialog->info();
    });

    auto *notice = makeButton(QStringLiteral("info(true), for 2 s"), 2, page);
    QObject::connect(notice, &ZEMButton::clicked, dialog, [=] {
        dialog->setTextLine1(QStringLiteral("Even geduld"));
        dialog->setTextLine2(QString());
        dialog->setTextLine3(QStringLiteral("<throbber>"));
        QTimer::singleShot(2000, dialog, &ZEMDialogPopup::reset); // the job is done
        dialog->info(true);
    });

    // The question, as it looks while exec() waits for the answer.
    ask();
    dialog->raise();
    dialog->show();
    stage.cover(page);
    stage.addButton(QStringLiteral("setTextLine3(\"<throbber>\")"),
                    [=] { dialog->setTextLine3(QStringLiteral("<throbber>")); });
    stage.addButton(QStringLiteral("setTextLine3(\"Zeker?\")"),
                    [=] { dialog->setTextLine3(QStringLiteral("Zeker?")); });
    stage.addButton(QStringLiteral("clearText()"), [=] { dialog->clearText(); });
    stage.addButton(QStringLiteral("reset()"), [=] { dialog->reset(); });
    stage.addButton(QStringLiteral("show()"), [=] { dialog->show(); });
}

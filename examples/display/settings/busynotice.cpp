// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "busynotice.h"

#include "dialogfit.h"

#include <QThread>
#include <ZEMDialogPopup>
#include <ZEMPageBackground>
#include <memory>

void doWithNotice(const QString &text, const std::function<void()> &job, const QSize &size)
{
    ZEMPageBackground page;
    page.setBackground(PageLook::background());
    page.setFixedSize(size);
    ZEMDialogPopup notice(&page);
    notice.clearText();
    notice.setTextLine1(text);
    notice.setTextLine3(QStringLiteral("<throbber>"));
    fitDialog(&notice, size);
    page.show();

    const std::unique_ptr<QThread> thread(QThread::create(job));
    // The signal is delivered by the event loop of info(), so it cannot come before that runs.
    QObject::connect(thread.get(), &QThread::finished, &notice, &ZEMDialogPopup::reset);
    thread->start();
    notice.info(true);
    thread->wait();
}

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "busynotice.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <ZEMDialogPopup>
#include <ZEMThrobber>
#include <atomic>

class tst_BusyNotice : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void returnsWhenTheJobIsDone();
    void showsTextAndSpinnerMeanwhile();
    void jobMayBeDoneAtOnce();
};

void tst_BusyNotice::returnsWhenTheJobIsDone()
{
    QThread *worker = nullptr;
    bool isDone = false;
    doWithNotice(QStringLiteral("lezen"), [&] {
        worker = QThread::currentThread();
        QThread::msleep(50);
        isDone = true;
    });
    QVERIFY(isDone);
    QVERIFY(worker != QThread::currentThread());
    QVERIFY(QApplication::topLevelWidgets().isEmpty());
}

void tst_BusyNotice::showsTextAndSpinnerMeanwhile()
{
    std::atomic_bool mayEnd {false};
    QStringList texts;
    bool hasSpinner = false;
    QTimer looker;
    connect(&looker, &QTimer::timeout, this, [&] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        auto *notice =
            windows.isEmpty() ? nullptr : windows.constFirst()->findChild<ZEMDialogPopup *>();
        if (!notice || !notice->isVisible()) {
            return;
        }
        for (const QLabel *label : notice->findChildren<QLabel *>()) {
            texts << label->text();
        }
        hasSpinner = notice->findChild<ZEMThrobber *>()->isVisible();
        mayEnd = true;
    });
    looker.start(1);
    doWithNotice(QStringLiteral("Standen lezen …"), [&] {
        while (!mayEnd) {
            QThread::msleep(1);
        }
    });
    QVERIFY(texts.contains(QStringLiteral("Standen lezen …")));
    QVERIFY(hasSpinner);
}

void tst_BusyNotice::jobMayBeDoneAtOnce()
{
    int count = 0;
    for (int i = 0; i < 20; ++i) {
        doWithNotice(QString(), [&] { ++count; });
    }
    QCOMPARE(count, 20);
}

QTEST_MAIN(tst_BusyNotice)
#include "tst_busynotice.moc"

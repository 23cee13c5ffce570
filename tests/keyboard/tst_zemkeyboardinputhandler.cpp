// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "keyboardtest.h"
#include "ownmethods.h"

#include <ZEMKeyboardInputHandler>

#include <QSignalSpy>

using Handler = ZEMKeyboardInputHandler;

class tst_ZEMKeyboardInputHandler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsOwn();
    void relaysEachCallOnce();
};

void tst_ZEMKeyboardInputHandler::declaresItsOwn()
{
    QCOMPARE(
        ZemTest::ownMethods(Handler::staticMetaObject),
        QStringList({QStringLiteral("signal sigSelect()"), QStringLiteral("signal sigCancel()"),
                     QStringLiteral("signal sigSearch()"),
                     QStringLiteral("signal sigTextEdited(QString)")}));
    QObject parent;
    QCOMPARE((new Handler(&parent))->parent(), &parent);
}

void tst_ZEMKeyboardInputHandler::relaysEachCallOnce()
{
    Handler handler;
    QSignalSpy select(&handler, &Handler::sigSelect);
    QSignalSpy cancel(&handler, &Handler::sigCancel);
    QSignalSpy search(&handler, &Handler::sigSearch);
    QSignalSpy edited(&handler, &Handler::sigTextEdited);
    const auto counts = [&] {
        return QVector<qsizetype> {select.count(), cancel.count(), search.count(), edited.count()};
    };
    handler.emitSelect();
    QCOMPARE(counts(), QVector<qsizetype>({1, 0, 0, 0}));
    handler.emitCancel();
    QCOMPARE(counts(), QVector<qsizetype>({1, 1, 0, 0}));
    handler.emitSearch();
    QCOMPARE(counts(), QVector<qsizetype>({1, 1, 1, 0}));
    handler.emitTextEdited(QStringLiteral("word"));
    QCOMPARE(counts(), QVector<qsizetype>({1, 1, 1, 1}));
    QCOMPARE(edited.first(), QVariantList({QStringLiteral("word")}));
}

QTEST_MAIN(tst_ZEMKeyboardInputHandler)
#include "tst_zemkeyboardinputhandler.moc"

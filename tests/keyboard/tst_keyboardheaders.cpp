// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "anydialog.h"

#include <KeyboardFactoryDefault>
#include <ZEMDialogShowText>

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QStyleFactory>
#include <QTest>

#include <memory>

using KeyboardTest::Board;

/** Sentences of the headers that no other test tries. */
class tst_KeyboardHeaders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void movingOffAKeySendsIt();
    void multiLineDialogOnAPage();
    void dialogsHaveTheTextsOfThePalette_data();
    void dialogsHaveTheTextsOfThePalette();
    void readerHasTheTextsOfThePalette();
};

void tst_KeyboardHeaders::movingOffAKeySendsIt()
{
    Board board("<row><key value='a'/></row>");
    QVERIFY(board.show());
    board.press("a");
    QVERIFY(board.target->take().isEmpty());
    ZemTest::moveTo(board.key("a"), QPoint(-25, -25));
    QCOMPARE(board.target->takeText(), QStringLiteral("a"));
    ZemTest::release(board.key("a"), QPoint(-25, -25));
    QCOMPARE(board.target->takeText(), QString());
}

void tst_KeyboardHeaders::multiLineDialogOnAPage()
{
    using Intf = ZEMVirtualKeyboardFactoryIntf;
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    KeyboardFactoryDefault keyboards(QStringLiteral(KEYBOARDS_DIR), QStringLiteral("nl"));
    const ZEMMultiLineDialog above(keyboards.createKeyboard(Intf::PopupAbove));
    // How tall a line of text is depends on Qt and its fonts.
    const int needed = above.minimumSizeHint().height();
    QVERIFY2(needed >= 485 && needed <= 495, qPrintable(QString::number(needed)));
    const ZEMMultiLineDialog flip(keyboards.createKeyboard(Intf::PopupFlip));
    QVERIFY(flip.minimumSizeHint().height() <= 480);
}

namespace {

QPalette withTexts(const QColor &color)
{
    QPalette palette;
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, color);
    }
    return palette;
}

/** Whether what @p setText sets can be told from nothing on @p dialog. */
template <typename SetText>
bool canBeRead(QWidget *dialog, const QColor &color, SetText setText)
{
    dialog->setPalette(withTexts(color));
    setText(QStringLiteral("Wat een titel"));
    const QImage full = ZemTest::render(dialog);
    setText(QStringLiteral(" "));
    return ZemTest::render(dialog) != full;
}

} // namespace

void tst_KeyboardHeaders::dialogsHaveTheTextsOfThePalette_data()
{
    QTest::addColumn<QString>("title");
    for (const char *name : InputDialogTest::names) {
        QTest::newRow(name) << QStringLiteral("Wat een titel");
    }
}

void tst_KeyboardHeaders::dialogsHaveTheTextsOfThePalette()
{
    const InputDialogTest::AnyDialog any;
    const auto setTitle = [&](const QString &text) { any.kind.setTitle(any.dialog, text); };
    QVERIFY(!canBeRead(any.dialog, Qt::black, setTitle));
    QVERIFY(canBeRead(any.dialog, Qt::white, setTitle));
}

void tst_KeyboardHeaders::readerHasTheTextsOfThePalette()
{
    ZEMDialogShowText dialog;
    const auto setTitle = [&](const QString &text) { dialog.setTitle(text); };
    QVERIFY(!canBeRead(&dialog, Qt::black, setTitle));
    QVERIFY(canBeRead(&dialog, Qt::white, setTitle));
}

QTEST_MAIN(tst_KeyboardHeaders)
#include "tst_keyboardheaders.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "../widgets/dialogtest.h"
#include "../widgets/widgettest.h"
#include "keyboardtest.h"
#include "ownmethods.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMDialogShowText>

#include <QGridLayout>
#include <QLabel>
#include <QPalette>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QVBoxLayout>

using DialogTest::Page;
using FormTest::part;
using FormTest::strings;

namespace {

QImage picture(const char *path)
{
    return QPixmap(QLatin1String(path)).toImage();
}

QTextBrowser *browserOf(const ZEMDialogShowText &dialog)
{
    return part<QTextBrowser>(dialog, "textBrowser");
}

ZEMButton *buttonOf(const ZEMDialogShowText &dialog, const char *name)
{
    return part<ZEMButton>(dialog, name);
}

} // namespace

class tst_ZEMDialogShowText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDialog();
    void formOfThePage();
    void formOfTheContents();
    void formOfTheText();
    void formOfTheButtons_data();
    void formOfTheButtons();
    void textsAreTranslated();
    void declaresItsSignalsAndSlots();
    void titleIsSeenUnlessEmpty();
    void textIsPlainOrRich();
    void fontSizeIsThatOfTheText();
    void editButtonIsSeenWhenWanted();
    void clearTextStartsAfresh();
    void updateButtonsFollowsTheScrollBar_data();
    void updateButtonsFollowsTheScrollBar();
    void isPaintedOverThePage();
};

void tst_ZEMDialogShowText::newDialog()
{
    QWidget host;
    const ZEMDialogShowText dialog(&host);
    QCOMPARE(dialog.parentWidget(), &host);
    QCOMPARE(dialog.objectName(), QStringLiteral("ZEMDialogShowText"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(dialog.size(), QSize(640, 480));
    QCOMPARE(dialog.getBackgroundColor(), QColor(0, 0, 0, 150));
    QVERIFY(dialog.getBackground().isNull());
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.testAttribute(Qt::WA_ShowModal));
    QVERIFY(part<QLabel>(dialog, "lblTitle")->isHidden());
    QVERIFY(buttonOf(dialog, "btnEdit")->isHidden());
    for (const char *name : {"btnPgUp", "btnPgDown", "btnAccepted"}) {
        QVERIFY(!buttonOf(dialog, name)->isHidden());
        QVERIFY(buttonOf(dialog, name)->isEnabled()); // until exec() or updateButtons()
    }
}

void tst_ZEMDialogShowText::formOfThePage()
{
    const ZEMDialogShowText dialog;
    const auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->contentsMargins(), FormTest::styleMargins());
    QStringList items = FormTest::items(grid);
    items.sort();
    QCOMPARE(items,
             strings({"0,1: spacer 20x53 Minimum/Expanding", "1,0: spacer 80x20 Minimum/Minimum",
                      "1,1: ZEMPageBackground pageCutout", "1,2: spacer 80x20 Minimum/Minimum",
                      "2,1: spacer 20x52 Minimum/Expanding"}));
    const auto *cutout = part<ZEMPageBackground>(dialog, "pageCutout");
    QCOMPARE(cutout->sizePolicy(), FormTest::policy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(cutout->minimumSize(), QSize(450, 335));
    QCOMPARE(cutout->getBackgroundColor(), QColor(0, 0, 0, 200));
}

void tst_ZEMDialogShowText::formOfTheContents()
{
    const ZEMDialogShowText dialog;
    const auto *column = qobject_cast<QVBoxLayout *>(part<QWidget>(dialog, "pageCutout")->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QStringLiteral("verticalLayout_2"));
    QCOMPARE(column->contentsMargins(), FormTest::styleMarginsOfAChild());
    QCOMPARE(FormTest::items(column),
             strings({"spacer 20x29 Minimum/Expanding", "QLabel lblTitle",
                      "QHBoxLayout horizontalLayout", "spacer 20x29 Minimum/Expanding"}));
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "horizontalLayout")),
             strings({"QTextBrowser textBrowser", "QVBoxLayout verticalLayout"}));
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "verticalLayout")),
             strings({"ZEMButton btnPgUp", "ZEMButton btnPgDown", "ZEMButton btnEdit",
                      "ZEMButton btnAccepted"}));
    const auto *title = part<QLabel>(dialog, "lblTitle");
    QCOMPARE(title->font().pointSize(), 22);
    QCOMPARE(title->text(), QStringLiteral("Title"));
}

void tst_ZEMDialogShowText::formOfTheText()
{
    const ZEMDialogShowText dialog;
    const auto *browser = browserOf(dialog);
    QCOMPARE(browser->font().family(), QStringLiteral("MS Shell Dlg 2"));
    QCOMPARE(browser->font().pointSize(), 22);
    QCOMPARE(browser->frameShape(), QFrame::NoFrame);
    QCOMPARE(browser->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(browser->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    const QPalette palette = browser->palette();
    QCOMPARE(palette.color(QPalette::Active, QPalette::Base), QColor(255, 255, 255, 0));
    QCOMPARE(palette.color(QPalette::Inactive, QPalette::Base), QColor(255, 255, 255, 0));
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::Base), QColor(240, 240, 240, 255));
}

void tst_ZEMDialogShowText::formOfTheButtons_data()
{
    QTest::addColumn<QByteArray>("icon");
    QTest::newRow("btnPgUp") << QByteArray(":/tango/graphics/tango/actions/go-up-icon.png");
    QTest::newRow("btnPgDown") << QByteArray(":/tango/graphics/tango/actions/go-down-icon.png");
    QTest::newRow("btnEdit") << QByteArray(":/zem/graphics/icons/icon_pencil.png");
    QTest::newRow("btnAccepted") << QByteArray(":/zem/graphics/icons/green-ok-icon.png");
}

void tst_ZEMDialogShowText::formOfTheButtons()
{
    QFETCH(QByteArray, icon);
    const ZEMDialogShowText dialog;
    const auto *button = buttonOf(dialog, QTest::currentDataTag());
    QVERIFY(button);
    const QImage iconPicture = picture(icon.constData());
    QVERIFY(!iconPicture.isNull());
    QCOMPARE(button->icon().pixmap(iconPicture.size()).toImage(), iconPicture);
    QCOMPARE(button->getBackground().toImage(),
             picture(":/zem/graphics/main/buttons/btn_square_small.png"));
    QVERIFY(button->getBackgroundOff().isNull());
}

void tst_ZEMDialogShowText::textsAreTranslated()
{
    const WidgetTest::ContextTranslator translator;
    const ZEMDialogShowText dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("ZEMDialogShowText/Form"));
    QCOMPARE(part<QLabel>(dialog, "lblTitle")->text(), QStringLiteral("ZEMDialogShowText/Title"));
}

void tst_ZEMDialogShowText::declaresItsSignalsAndSlots()
{
    QCOMPARE(ZemTest::ownMethods(ZEMDialogShowText::staticMetaObject),
             strings({"signal sigBtnEditClicked()", "private btn_accepted_clicked()",
                      "private btn_pg_up_clicked()", "private btn_pg_down_clicked()"}));
    QVERIFY(WidgetTest::ownProperties(ZEMDialogShowText::staticMetaObject).isEmpty());
}

void tst_ZEMDialogShowText::titleIsSeenUnlessEmpty()
{
    ZEMDialogShowText dialog;
    const auto *title = part<QLabel>(dialog, "lblTitle");
    dialog.setTitle(QStringLiteral("Bericht"));
    QCOMPARE(title->text(), QStringLiteral("Bericht"));
    QVERIFY(!title->isHidden());
    dialog.setTitle(QString());
    QVERIFY(title->text().isEmpty());
    QVERIFY(title->isHidden());
    dialog.setTitle(QStringLiteral("Weer"));
    QCOMPARE(title->text(), QStringLiteral("Weer"));
    QVERIFY(!title->isHidden());
}

void tst_ZEMDialogShowText::textIsPlainOrRich()
{
    ZEMDialogShowText dialog;
    dialog.setText(QStringLiteral("een\ntwee < drie"));
    QCOMPARE(browserOf(dialog)->toPlainText(), QStringLiteral("een\ntwee < drie"));
    dialog.setText(QStringLiteral("<p>een <b>twee</b></p>"));
    QCOMPARE(browserOf(dialog)->toPlainText(), QStringLiteral("een twee"));
    QVERIFY(browserOf(dialog)->toHtml().contains(QStringLiteral("font-weight")));
}

void tst_ZEMDialogShowText::fontSizeIsThatOfTheText()
{
    ZEMDialogShowText dialog;
    dialog.setTextFontSize(12);
    QCOMPARE(browserOf(dialog)->font().pointSize(), 12);
    QCOMPARE(browserOf(dialog)->font().family(), QStringLiteral("MS Shell Dlg 2"));
    QCOMPARE(part<QLabel>(dialog, "lblTitle")->font().pointSize(), 22);
}

void tst_ZEMDialogShowText::editButtonIsSeenWhenWanted()
{
    ZEMDialogShowText dialog;
    dialog.setBtnEditVisible(true);
    QVERIFY(!buttonOf(dialog, "btnEdit")->isHidden());
    dialog.setBtnEditVisible(false);
    QVERIFY(buttonOf(dialog, "btnEdit")->isHidden());
}

void tst_ZEMDialogShowText::clearTextStartsAfresh()
{
    ZEMDialogShowText dialog;
    dialog.setTitle(QStringLiteral("Bericht"));
    dialog.setText(QStringLiteral("tekst"));
    dialog.setTextFontSize(12);
    dialog.setBtnEditVisible(true);
    dialog.clearText();
    QVERIFY(browserOf(dialog)->toPlainText().isEmpty());
    QVERIFY(buttonOf(dialog, "btnEdit")->isHidden());
    QVERIFY(part<QLabel>(dialog, "lblTitle")->isHidden());
    QCOMPARE(browserOf(dialog)->font().pointSize(), 22);
    QCOMPARE(part<QLabel>(dialog, "lblTitle")->text(), QStringLiteral("Bericht")); // but not seen
}

void tst_ZEMDialogShowText::updateButtonsFollowsTheScrollBar_data()
{
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<bool>("up");
    QTest::addColumn<bool>("down");
    QTest::newRow("fits") << 0 << 0 << false << false;
    QTest::newRow("at the start") << 100 << 0 << false << true;
    QTest::newRow("between") << 100 << 1 << true << true;
    QTest::newRow("almost at the end") << 100 << 99 << true << true;
    QTest::newRow("at the end") << 100 << 100 << true << false;
}

void tst_ZEMDialogShowText::updateButtonsFollowsTheScrollBar()
{
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(bool, up);
    QFETCH(bool, down);
    ZEMDialogShowText dialog;
    QScrollBar *bar = browserOf(dialog)->verticalScrollBar();
    bar->setRange(0, maximum);
    bar->setValue(value);
    for (const bool before : {true, false}) {
        buttonOf(dialog, "btnPgUp")->setEnabled(before);
        buttonOf(dialog, "btnPgDown")->setEnabled(before);
        dialog.updateButtons();
        QCOMPARE(buttonOf(dialog, "btnPgUp")->isEnabled(), up);
        QCOMPARE(buttonOf(dialog, "btnPgDown")->isEnabled(), down);
    }
}

void tst_ZEMDialogShowText::isPaintedOverThePage()
{
    Page page;
    QVERIFY(page.isReady);
    ZEMDialogShowText dialog(&page);
    dialog.show();
    QCoreApplication::processEvents();
    const auto *cutout = part<QWidget>(dialog, "pageCutout");
    // Wide as its minimum, as high as its four buttons need, in the middle of the page.
    QCOMPARE(cutout->width(), 450);
    QVERIFY(qAbs(cutout->geometry().center().x() - 320) <= 1);
    QVERIFY(qAbs(cutout->geometry().center().y() - 240) <= 1);

    const QImage image = ZemTest::render(&dialog, Qt::white);
    const int veil = image.pixelColor(5, 5).red();
    QVERIFY(qAbs(veil - 105) <= 1); // 255 - 150
    const QPoint margin = cutout->geometry().topLeft() + QPoint(3, 3);
    const int dark = image.pixelColor(margin).red();
    QVERIFY(qAbs(dark - veil * 55 / 255) <= 1); // 200 of 255 are taken
}

QTEST_MAIN(tst_ZEMDialogShowText)
#include "tst_zemdialogshowtext.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "playedsource.h"

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QLocale>
#include <QLoggingCategory>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>
#include <ZEMDialogPopup>
#include <ZEMDialogShowText>
#include <ZEMLineEditButton>
#include <ZEMLineEditDialog>
#include <ZEMListView>
#include <ZEMNumericKeypad>

class tst_SettingsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void fieldsOfARowEndInOneLine();
    void houseNameIsTyped();
    void cancelChangesNothing();
    void priceIsANumber();
    void fullStopIsADecimalSignToo();
    void priceOfAContractIsNotEntered();
    void contractIsChosen();
    void keyboardFollowsTheLanguage();
    void standbyIsChosen();
    void nightIsChosenInTwoSteps();
    void arrowsThatLeadNowhereAreNotShown();
    void longTextIsRead();
    void longTextShowsWholeLines();
    void allIsForgottenAfterAQuestion_data();
    void allIsForgottenAfterAQuestion();
    void dialogsCoverTheDisplay_data();
    void dialogsCoverTheDisplay();

private:
    ZEMLineEditButton *field(const char *name) const
    {
        return display->onPage<ZEMLineEditButton>(name);
    }
    template <class Dialog>
    Dialog *open(const char *name) const
    {
        PlayedDisplay::tap(field(name));
        return display->inputDialog<Dialog>();
    }
    static void type(const QWidget *dialog, const QString &keys);
    static void tapButton(const QWidget *dialog, const char *name);
    void choose(int row) const;

    PlayedSource source;
    std::unique_ptr<PlayedDisplay> display;
};

void tst_SettingsPage::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
}

void tst_SettingsPage::init()
{
    display.reset();
    display = std::make_unique<PlayedDisplay>(source);
    display->window.openPage(QStringLiteral("settings"));
    QVERIFY(display->show());
}

void tst_SettingsPage::type(const QWidget *dialog, const QString &keys)
{
    for (const QChar key : keys) {
        PlayedDisplay::tapKey(dialog,
                              key == QLatin1Char(' ') ? QStringLiteral("SPACE") : QString(key));
    }
}

void tst_SettingsPage::tapButton(const QWidget *dialog, const char *name)
{
    PlayedDisplay::tap(dialog->findChild<ZEMButton *>(QLatin1String(name)));
}

void tst_SettingsPage::choose(int row) const
{
    auto *page = display->overlay<ZEMListView>();
    QVERIFY(page);
    auto *list = page->findChild<QListView *>();
    const QPoint item = list->visualRect(list->model()->index(row, 0)).center();
    ZemTest::press(list->viewport(), item);
    ZemTest::release(list->viewport(), item);
    tapButton(page, "btnSelect");
}

void tst_SettingsPage::fieldsOfARowEndInOneLine()
{
    const std::pair<const char *, const char *> rows[] = {{"houseName", "price"},
                                                          {"contract", "keyboard"},
                                                          {"standby", "night"},
                                                          {"privacy", "clear"}};
    for (const auto &[left, right] : rows) {
        QCOMPARE(field(right)->geometry().bottom(), field(left)->geometry().bottom());
    }
    const int step = field("contract")->y() - field("houseName")->y();
    QCOMPARE(field("standby")->y() - field("contract")->y(), step);
    QCOMPARE(field("privacy")->y() - field("standby")->y(), step);
}

void tst_SettingsPage::houseNameIsTyped()
{
    QCOMPARE(field("houseName")->text(), QStringLiteral("–"));
    auto *dialog = open<ZEMLineEditDialog>("houseName");
    QVERIFY(dialog);
    PlayedDisplay::tapKey(dialog, QStringLiteral("CAPS"));
    type(dialog, QStringLiteral("dijk huis "));
    QCOMPARE(dialog->text(), QStringLiteral("Dijk huis "));
    tapButton(dialog, "btnOK");
    QVERIFY(!display->overlay<ZEMLineEditDialog>());
    QCOMPARE(display->settings.houseName(), QStringLiteral("Dijk huis"));
    QCOMPARE(field("houseName")->text(), QStringLiteral("Dijk huis"));
}

void tst_SettingsPage::cancelChangesNothing()
{
    auto *dialog = open<ZEMLineEditDialog>("houseName");
    type(dialog, QStringLiteral("x"));
    tapButton(dialog, "btnCancel");
    QVERIFY(!display->overlay<ZEMLineEditDialog>());
    QVERIFY(display->settings.houseName().isEmpty());
}

void tst_SettingsPage::priceIsANumber()
{
    QCOMPARE(field("price")->text(), QStringLiteral("€ 0,3000"));
    auto *dialog = open<ZEMNumericKeypad>("price");
    QVERIFY(dialog);
    QCOMPARE(dialog->value(), QStringLiteral("0,3000"));
    // The first key replaces what is selected; a second comma and a fifth digit are kept out.
    type(dialog, QStringLiteral("0,,21985"));
    QCOMPARE(dialog->value(), QStringLiteral("0,2198"));
    tapButton(dialog, "btnOK");
    QCOMPARE(display->settings.price(), 0.2198);
    QCOMPARE(field("price")->text(), QStringLiteral("€ 0,2198"));
}

void tst_SettingsPage::priceOfAContractIsNotEntered()
{
    display->window.setCostRules({});
    QCOMPARE(field("price")->text(), QStringLiteral("volgens contract"));
    display->whenOpen<ZEMDialogPopup>([](ZEMDialogPopup *popup) { popup->reset(); });
    PlayedDisplay::tap(field("price"));
    QVERIFY(!display->overlay<ZEMDialogPopup>());
    QVERIFY(!display->overlay<ZEMNumericKeypad>());
    QCOMPARE(field("price")->text(), QStringLiteral("volgens contract"));
}

void tst_SettingsPage::fullStopIsADecimalSignToo()
{
    auto *dialog = open<ZEMNumericKeypad>("price");
    QVERIFY(dialog);
    type(dialog, QStringLiteral("0.25"));
    QCOMPARE(dialog->value(), QStringLiteral("0,25"));
    tapButton(dialog, "btnOK");
    QCOMPARE(display->settings.price(), 0.25);
}

void tst_SettingsPage::contractIsChosen()
{
    source.count(Readings::Quantity::GridImport, 3);
    QCOMPARE(field("contract")->text(), QStringLiteral("Dag en nacht"));
    QVERIFY(open<ZEMListView>("contract"));
    choose(0);
    QCOMPARE(display->settings.contract(), ContractType::Single);
    QCOMPARE(field("contract")->text(), QStringLiteral("Enkel tarief"));
    QVERIFY(!display->overlay<ZEMListView>());
}

void tst_SettingsPage::keyboardFollowsTheLanguage()
{
    QCOMPARE(field("keyboard")->text(), QStringLiteral("Nederlands"));
    auto *page = open<ZEMListView>("keyboard");
    QVERIFY(page);
    int row = 0;
    while (page->data(row).toString() != QStringLiteral("Deutsch")) {
        QVERIFY(page->data(row).isValid());
        ++row;
    }
    choose(row);
    QCOMPARE(field("keyboard")->text(), QStringLiteral("Deutsch"));
    QCOMPARE(display->settings.keyboardLanguage(), QStringLiteral("de"));
    auto *dialog = open<ZEMLineEditDialog>("houseName");
    type(dialog, QStringLiteral("ü")); // which has a key of its own there
    QCOMPARE(dialog->text(), QStringLiteral("ü"));
}

void tst_SettingsPage::standbyIsChosen()
{
    QCOMPARE(field("standby")->text(), QStringLiteral("nooit"));
    QVERIFY(open<ZEMListView>("standby"));
    choose(4);
    QCOMPARE(display->settings.standby().after, 10);
    QCOMPARE(field("standby")->text(), QStringLiteral("10 minuten"));
    QVERIFY(open<ZEMListView>("standby"));
    tapButton(display->overlay<ZEMListView>(), "btnSelect"); // the one that is in use
    QCOMPARE(display->settings.standby().after, 10);
}

void tst_SettingsPage::nightIsChosenInTwoSteps()
{
    QCOMPARE(field("night")->text(), QStringLiteral("nooit"));
    QVERIFY(open<ZEMListView>("night"));
    choose(4);
    QVERIFY(!display->settings.standby().isNight(QTime(23, 30)));
    choose(1);
    QCOMPARE(field("night")->text(), QStringLiteral("23:00 – 6:00 uur"));
    QVERIFY(display->settings.standby().isNight(QTime(23, 30)));
    QVERIFY(!display->settings.standby().isNight(QTime(6, 0)));
    QVERIFY(open<ZEMListView>("night"));
    choose(0);
    QCOMPARE(field("night")->text(), QStringLiteral("nooit"));
}

void tst_SettingsPage::arrowsThatLeadNowhereAreNotShown()
{
    auto *list = open<ZEMListView>("contract");
    QVERIFY(list);
    auto *up = list->findChild<ZEMButton *>(QStringLiteral("btnUp"));
    QVERIFY(!up->isEnabled());
    const QRect place(up->mapTo(list, QPoint(0, 0)), up->size());
    const QImage idle = list->grab(place).toImage();
    QImage panel = idle;
    panel.fill(idle.pixel(0, 0));
    QCOMPARE(idle, panel);
    up->setEnabled(true);
    QVERIFY(list->grab(place).toImage() != panel);
}

void tst_SettingsPage::longTextIsRead()
{
    bool isLong = false;
    bool isRead = false;
    display->whenOpen<ZEMDialogShowText>([&](ZEMDialogShowText *text) {
        auto *down = text->findChild<ZEMButton *>(QStringLiteral("btnPgDown"));
        isLong = down->isEnabled();
        while (down->isEnabled()) {
            PlayedDisplay::tap(down);
        }
        tapButton(text, "btnAccepted");
        isRead = true;
    });
    PlayedDisplay::tap(field("privacy"));
    QVERIFY(isRead);
    QVERIFY(isLong);
    QVERIFY(!display->overlay<ZEMDialogShowText>());
}

/** Lines of @p text that its view shows a part of. */
static int cutLines(const QTextEdit *text)
{
    constexpr double rounding = 1.0; // pixels
    const double top = text->verticalScrollBar()->value();
    const double bottom = top + text->viewport()->height();
    int cut = 0;
    for (QTextBlock block = text->document()->begin(); block.isValid(); block = block.next()) {
        const QPointF place =
            text->document()->documentLayout()->blockBoundingRect(block).topLeft();
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            const QRectF line = block.layout()->lineAt(i).rect().translated(place);
            const auto isCutAt = [&](double edge) {
                return line.top() + rounding < edge && edge < line.bottom() - rounding;
            };
            cut += isCutAt(top) || isCutAt(bottom) ? 1 : 0;
        }
    }
    return cut;
}

void tst_SettingsPage::longTextShowsWholeLines()
{
    QList<int> cut;
    display->whenOpen<ZEMDialogShowText>([&](ZEMDialogShowText *dialog) {
        const auto *text = dialog->findChild<QTextEdit *>();
        auto *down = dialog->findChild<ZEMButton *>(QStringLiteral("btnPgDown"));
        cut << cutLines(text);
        while (down->isEnabled()) {
            PlayedDisplay::tap(down);
            cut << cutLines(text);
        }
        tapButton(dialog, "btnAccepted");
    });
    PlayedDisplay::tap(field("privacy"));
    QVERIFY(cut.size() > 1);
    for (const int count : std::as_const(cut)) {
        QCOMPARE(count, 0);
    }
}

void tst_SettingsPage::allIsForgottenAfterAQuestion_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("name");
    QTest::newRow("yes") << "btnAccepted"
                         << "";
    QTest::newRow("no") << "btnRejected"
                        << "huis";
}

void tst_SettingsPage::allIsForgottenAfterAQuestion()
{
    QFETCH(QString, button);
    display->settings.setHouseName(QStringLiteral("huis"));
    bool isAnswered = false;
    display->whenOpen<ZEMDialogPopup>([&](ZEMDialogPopup *question) {
        tapButton(question, qPrintable(button));
        isAnswered = true;
    });
    PlayedDisplay::tap(field("clear"));
    QVERIFY(isAnswered);
    QTEST(display->settings.houseName(), "name");
}

void tst_SettingsPage::dialogsCoverTheDisplay_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"houseName", "price", "contract", "keyboard", "standby", "night"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_SettingsPage::dialogsCoverTheDisplay()
{
    QFETCH(QString, name);
    auto *dialog = open<ZEMPageBackground>(qPrintable(name));
    QVERIFY(dialog);
    QCoreApplication::processEvents();
    QCOMPARE(dialog->geometry(), display->window.rect());
    const QRect page = dialog->rect();
    for (const QWidget *child : dialog->findChildren<QWidget *>()) {
        const QRect place(child->mapTo(dialog, QPoint(0, 0)), child->size());
        if (child->isVisible() && qobject_cast<const ZEMButton *>(child)) {
            QVERIFY2(page.contains(place), qPrintable(child->objectName()));
        }
    }
}

QTEST_MAIN(tst_SettingsPage)
#include "tst_settingspage.moc"

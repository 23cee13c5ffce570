// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "lifetimerows.h"

#include <ZEMBarIndicator>
#include <ZEMButton>
#include <ZEMDialogPopup>
#include <ZEMLabel>
#include <ZEMLabeledButton>
#include <ZEMLineEdit>
#include <ZEMLineEditButton>
#include <ZEMMenuOverlay>
#include <ZEMNotificationButton>
#include <ZEMNotificationIcon>
#include <ZEMPageBackground>
#include <ZEMPageHeader>
#include <ZEMPageHeaderButton>
#include <ZEMPageIndicator>
#include <ZEMPixmap>
#include <ZEMProfileButton>
#include <ZEMRadioButton>
#include <ZEMTextLabel>
#include <ZEMThreeStars>
#include <ZEMThrobber>
#include <ZEMWidgetLabel>

#include <QButtonGroup>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTimer>

#include <memory>

using namespace LifetimeRows;

/** Widgets that end in the middle of one of their signals, and parts that end before them. */
class tst_WidgetLifetime : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsInItsSignal_data();
    void endsInItsSignal() { check(); }
    void allSignalsAreHeard();
    void headerOutlivesWhatItHolds();
    void headerLosesAButtonInItsOwnClick();
    void lineEditOutlivesItsValidator();
    void rowOutlivesItsGroup();
};

namespace {

template <typename... Widgets>
void addMenuRowsOfAll()
{
    (addMenuRows<Widgets>(), ...);
}

/** Two buttons of a row of which one is checked; a touch on the other one toggles both. */
template <typename Button>
void addExclusiveRows(bool touchedOneEnds)
{
    add(Button::staticMetaObject.className(), "toggled(bool)",
        [touchedOneEnds] {
            auto *button = new Button;
            Lifetime::Stage stage = stageOf(button);
            auto *other = new Button(stage.page);
            for (Button *one : {button, other}) {
                one->resize(100, 60);
                one->setCheckable(true);
                one->setAutoExclusive(true);
                one->show();
            }
            other->move(200, 0);
            (touchedOneEnds ? other : button)->setChecked(true);
            const QPointer<QWidget> touched = touchedOneEnds ? button : other;
            stage.act = [touched] { touch(touched); };
            return stage;
        },
        touchedOneEnds ? " by itself in a row" : " by its neighbour", {Lifetime::End::DeleteLater});
}

/** A dialog that waits, and is asked for a menu meanwhile. */
void addLoopRows(bool asks)
{
    add(
        "ZEMDialogPopup", "customContextMenuRequested(QPoint)",
        [asks] {
            auto *dialog = new ZEMDialogPopup;
            dialog->setContextMenuPolicy(Qt::CustomContextMenu);
            Lifetime::Stage stage;
            stage.page = Lifetime::shownPage();
            stage.object = dialog;
            dialog->setParent(stage.page);
            stage.act = [dialog, asks] {
                QTimer::singleShot(0, dialog, [dialog] { askForMenu(dialog); });
                if (asks) {
                    dialog->exec();
                } else {
                    dialog->info();
                }
            };
            return stage;
        },
        asks ? " in exec()" : " in info()");
}

} // namespace

void tst_WidgetLifetime::endsInItsSignal_data()
{
    addColumns();
    addButtonRows<ZEMButton>();
    addButtonRows<ZEMRadioButton>();
    addButtonRows<ZEMProfileButton>();
    addButtonRows<ZEMNotificationButton>();
    addButtonRows<ZEMLineEditButton>();
    for (const bool touchedOneEnds : {true, false}) {
        addExclusiveRows<ZEMButton>(touchedOneEnds);
        addExclusiveRows<ZEMRadioButton>(touchedOneEnds);
        addExclusiveRows<ZEMProfileButton>(touchedOneEnds);
    }
    add("ZEMLabeledButton", "clicked()", [] {
        auto *button = new ZEMLabeledButton;
        button->setBackground(ZemTest::flatPixmap(QSize(80, 60), Qt::red));
        return touchedStage(button, "btn");
    });
    for (const char *number : {"1", "2", "3", "4"}) {
        const QByteArray signal = QByteArray("button") + number + "_clicked()";
        const QByteArray name = QByteArray("button") + number;
        add("ZEMMenuOverlay", signal.constData(), [name] {
            auto *menu = new ZEMMenuOverlay;
            menu->showButton4(true);
            return touchedStage(menu, name.constData());
        });
    }
    addLoopRows(true);
    addLoopRows(false);
    addMenuRowsOfAll<ZEMBarIndicator, ZEMButton, ZEMDialogPopup, ZEMLabel, ZEMLabeledButton,
                     ZEMLineEdit, ZEMLineEditButton, ZEMMenuOverlay, ZEMNotificationButton,
                     ZEMNotificationIcon, ZEMPageBackground, ZEMPageHeader, ZEMPageHeaderButton,
                     ZEMPageIndicator, ZEMPixmap, ZEMProfileButton, ZEMRadioButton, ZEMTextLabel,
                     ZEMThreeStars, ZEMThrobber, ZEMWidgetLabel>();
}

void tst_WidgetLifetime::allSignalsAreHeard()
{
    for (const QMetaObject *metaObject : {&ZEMBarIndicator::staticMetaObject,
                                          &ZEMButton::staticMetaObject,
                                          &ZEMDialogPopup::staticMetaObject,
                                          &ZEMLabel::staticMetaObject,
                                          &ZEMLabeledButton::staticMetaObject,
                                          &ZEMLineEdit::staticMetaObject,
                                          &ZEMLineEditButton::staticMetaObject,
                                          &ZEMMenuOverlay::staticMetaObject,
                                          &ZEMNotificationButton::staticMetaObject,
                                          &ZEMNotificationIcon::staticMetaObject,
                                          &ZEMPageBackground::staticMetaObject,
                                          &ZEMPageHeader::staticMetaObject,
                                          &ZEMPageHeaderButton::staticMetaObject,
                                          &ZEMPageIndicator::staticMetaObject,
                                          &ZEMPixmap::staticMetaObject,
                                          &ZEMProfileButton::staticMetaObject,
                                          &ZEMRadioButton::staticMetaObject,
                                          &ZEMTextLabel::staticMetaObject,
                                          &ZEMThreeStars::staticMetaObject,
                                          &ZEMThrobber::staticMetaObject,
                                          &ZEMWidgetLabel::staticMetaObject}) {
        QCOMPARE(unheard(*metaObject), QStringList());
    }
}

void tst_WidgetLifetime::headerOutlivesWhatItHolds()
{
    const std::unique_ptr<QWidget> page(Lifetime::shownPage());
    auto *header = new ZEMPageHeader(page.get());
    auto *actions = new QStackedWidget;
    auto *action = new ZEMButton;
    auto *mail = new ZEMNotificationButton;
    header->setActionButton(actions);
    header->setActionButton2(action);
    header->addButton(mail);
    header->show();
    delete actions;
    delete action;
    delete mail;
    header->enableActionButton(false);
    header->enableActionButton2(false);
    header->enableButton(0, false);
    QCoreApplication::processEvents();
    header->setNrOfButtons(0);
    QCOMPARE(header->getNrOfButtons(), 0);
}

void tst_WidgetLifetime::headerLosesAButtonInItsOwnClick()
{
    const std::unique_ptr<QWidget> page(Lifetime::shownPage());
    auto *header = new ZEMPageHeader(page.get());
    const QPointer<ZEMNotificationButton> mail = new ZEMNotificationButton;
    header->addButton(mail);
    header->show();
    QCoreApplication::processEvents();
    connect(mail.data(), &QAbstractButton::clicked, header, [header] {
        header->setNrOfButtons(0); // deletes what the tile holds
    });
    touch(mail.data());
    QVERIFY(!mail);
    QCOMPARE(header->getNrOfButtons(), 0);
}

void tst_WidgetLifetime::lineEditOutlivesItsValidator()
{
    ZEMLineEdit edit;
    auto validator = std::make_unique<QIntValidator>(0, 9);
    edit.setValidator(validator.get());
    validator.reset();
    QVERIFY(!edit.validator());
    auto *field = edit.findChild<QLineEdit *>();
    QTest::keyClicks(field, QStringLiteral("abc"));
    QCOMPARE(edit.text(), QStringLiteral("abc"));
}

void tst_WidgetLifetime::rowOutlivesItsGroup()
{
    Lifetime::Stage stage = touchedStage(new ZEMProfileButton);
    auto *row = qobject_cast<ZEMProfileButton *>(stage.object);
    QVERIFY(row);
    QVERIFY(!row->isChecked());
    auto group = std::make_unique<QButtonGroup>();
    group->addButton(row);
    group.reset();
    stage.act();
    QVERIFY(row->isChecked());
    delete stage.page;
}

QTEST_MAIN(tst_WidgetLifetime)
#include "tst_widgetlifetime.moc"

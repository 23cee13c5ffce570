// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

// What becomes of widgets on the page of a host: their sizes in its layouts, and their texts in its
// colours.

#include <ZEMButton>
#include <ZEMCurrentStatusDetails>
#include <ZEMCurrentStatusDetailsItem>
#include <ZEMCurrentStatusWidget>
#include <ZEMDialogPopup>
#include <ZEMEnergyTab>
#include <ZEMLabel>
#include <ZEMLabeledButton>
#include <ZEMLineEdit>
#include <ZEMLineEditButton>
#include <ZEMListView>
#include <ZEMMenuOverlay>
#include <ZEMNotificationButton>
#include <ZEMNotificationIcon>
#include <ZEMPageHeader>
#include <ZEMProfileButton>
#include <ZEMSimpleListView>
#include <ZEMThreeStars>
#include <ZEMTotalsTodayWidget>
#include <ZEMWidgetLabel>

#include <QApplication>
#include <QFontInfo>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QStyleFactory>
#include <QTest>

#include <functional>

using Maker = std::function<QWidget *()>;
Q_DECLARE_METATYPE(Maker)

namespace {

const QColor windowText(Qt::red);
const QColor buttonText(Qt::green);
const QColor enteredText(Qt::blue);

QPalette paletteOfTheHost()
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, windowText);
    palette.setColor(QPalette::ButtonText, buttonText);
    palette.setColor(QPalette::Text, enteredText);
    return palette;
}

QWidget *labelOnAButton()
{
    auto *button = new ZEMButton;
    new ZEMLabel(button);
    return button;
}

template <typename Widget>
QWidget *make()
{
    return new Widget;
}

bool hasCabin()
{
    return QFontInfo(QFont(QStringLiteral("Cabin"))).family() == QLatin1String("Cabin");
}

} // namespace

class tst_HostPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void sizeInARow_data();
    void sizeInARow();
    void textColor_data();
    void textColor();
    void labelIsGreyWhileDisabled();
    void listIsInTheColorOfEnteredText_data();
    void listIsInTheColorOfEnteredText();
    void fieldStandsInTheMiddleOfItsRoom();
};

void tst_HostPage::initTestCase()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

void tst_HostPage::sizeInARow_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QSize>("fresh");
    QTest::addColumn<QSize>("inARow");

    const auto row = [](const char *name, const Maker &maker, QSize fresh, QSize inARow) {
        QTest::newRow(name) << maker << fresh << inARow;
    };
    row("ZEMProfileButton", make<ZEMProfileButton>, {233, 50}, {233, 53});
    row("ZEMNotificationIcon", make<ZEMNotificationIcon>, {45, 45}, {0, 0});
    row("ZEMNotificationButton", make<ZEMNotificationButton>, {45, 45}, {45, 45});
    row("ZEMThreeStars", make<ZEMThreeStars>, {640, 480}, {0, 0});
    row("ZEMEnergyTab", make<ZEMEnergyTab>, {47, 40}, {47, 43});
    row("ZEMCurrentStatusWidget", make<ZEMCurrentStatusWidget>, {322, 174}, {322, 175});
    row("ZEMCurrentStatusDetails", make<ZEMCurrentStatusDetails>, {493, 262}, {493, 265});
    row("ZEMTotalsTodayWidget", make<ZEMTotalsTodayWidget>, {152, 175}, {152, 175});
}

void tst_HostPage::sizeInARow()
{
    QFETCH(Maker, maker);
    QFETCH(QSize, fresh);
    QFETCH(QSize, inARow);
    if (!hasCabin()) {
        QSKIP("The heights of titles are those of the font Cabin.");
    }

    QWidget page;
    page.resize(640, 480);
    auto *rows = new QVBoxLayout(&page);
    auto *row = new QHBoxLayout;
    rows->addLayout(row);
    rows->addStretch();
    QWidget *widget = maker();
    QCOMPARE(widget->size(), fresh);
    row->addWidget(widget);
    row->addStretch();
    page.show();
    QCOMPARE(widget->size(), inARow);
}

void tst_HostPage::textColor_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QString>("child");
    QTest::addColumn<QColor>("color");

    const auto row = [](const char *name, const Maker &maker, const char *child,
                        const QColor &color) {
        QTest::newRow(name) << maker << QString::fromLatin1(child) << color;
    };
    const QColor white(Qt::white);
    row("ZEMLabel", make<ZEMLabel>, "label", white);
    row("ZEMLabel on a button", labelOnAButton, "label", buttonText);
    row("ZEMWidgetLabel", make<ZEMWidgetLabel>, "lblTitle", windowText);
    row("ZEMLabeledButton", make<ZEMLabeledButton>, "lblTitle", windowText);
    row("ZEMLineEditButton", make<ZEMLineEditButton>, "textLabel", buttonText);
    row("ZEMProfileButton", make<ZEMProfileButton>, "label", QColor(255, 255, 255, 204));
    row("ZEMMenuOverlay", make<ZEMMenuOverlay>, "lblButton1", Qt::black);
    row("ZEMDialogPopup, line 1", make<ZEMDialogPopup>, "textLine1", windowText);
    row("ZEMDialogPopup, line 3", make<ZEMDialogPopup>, "textLine3", windowText);
    row("ZEMPageHeader, title", make<ZEMPageHeader>, "lblTitle", QColor(227, 0, 123));
    row("ZEMPageHeader, subtitle", make<ZEMPageHeader>, "lblSubtitle", QColor(97, 180, 220));
    row("ZEMListView", make<ZEMListView>, "lblHeader", windowText);
    row("ZEMSimpleListView", make<ZEMSimpleListView>, "lblTitle", windowText);
    row("ZEMCurrentStatusWidget, title", make<ZEMCurrentStatusWidget>, "lblTitle", windowText);
    row("ZEMCurrentStatusWidget, power", make<ZEMCurrentStatusWidget>, "label", white);
    row("ZEMCurrentStatusDetails, title", make<ZEMCurrentStatusDetails>, "lblTitle", windowText);
    row("ZEMCurrentStatusDetails, total", make<ZEMCurrentStatusDetails>, "lblProductionValue",
        windowText);
    row("ZEMCurrentStatusDetailsItem", make<ZEMCurrentStatusDetailsItem>, "label", windowText);
}

void tst_HostPage::textColor()
{
    QFETCH(Maker, maker);
    QFETCH(QString, child);
    QFETCH(QColor, color);

    QWidget page;
    page.setPalette(paletteOfTheHost());
    QWidget *widget = maker();
    widget->setParent(&page);
    const auto *text = widget->findChild<QWidget *>(child);
    QVERIFY(text);
    QCOMPARE(text->palette().color(QPalette::Active, text->foregroundRole()), color);
}

void tst_HostPage::labelIsGreyWhileDisabled()
{
    ZEMLabel label;
    const auto *text = label.findChild<QWidget *>(QStringLiteral("label"));
    QCOMPARE(text->palette().color(QPalette::Disabled, text->foregroundRole()),
             QColor(120, 120, 120));
}

void tst_HostPage::listIsInTheColorOfEnteredText_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::newRow("ZEMListView") << Maker(make<ZEMListView>);
    QTest::newRow("ZEMSimpleListView") << Maker(make<ZEMSimpleListView>);
}

void tst_HostPage::listIsInTheColorOfEnteredText()
{
    QFETCH(Maker, maker);
    QWidget page;
    page.setPalette(paletteOfTheHost());
    QWidget *widget = maker();
    widget->setParent(&page);
    const auto *list = widget->findChild<QWidget *>(QStringLiteral("listView"));
    QCOMPARE(list->palette().color(QPalette::Active, QPalette::Text), enteredText);
}

void tst_HostPage::fieldStandsInTheMiddleOfItsRoom()
{
    ZEMLineEdit field;
    field.setPixmap(QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_rect_xs_wide.png")));
    field.setLayoutLeft(12);
    field.setLayoutTop(10);
    field.layout()->activate();
    const auto *line = field.findChild<QLineEdit *>(QStringLiteral("lineEdit"));
    QCOMPARE(line->x(), 12);
    QCOMPARE(line->width(), field.width() - 12);
    QCOMPARE(line->height(), line->sizeHint().height());
    QCOMPARE(line->y(), 10 + (field.height() - 10 - line->height()) / 2);
}

QTEST_MAIN(tst_HostPage)
#include "tst_hostpage.moc"

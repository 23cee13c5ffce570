// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMLabeledButton>
#include <ZEMWidgetLabel>

#include <QHBoxLayout>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMLabeledButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void form();
    void textsAreTranslated();
    void declaresItsPropertiesAndItsSignal();
    void picturesReachTheButton();
    void titleReachesTheStrip();
    void titleIsHiddenEvenWhileNothingIsShown();
    void hiddenTitleGivesItsRoomBack();
    void iconReachesTheButton();
    void clickOfTheButtonIsPassedOn();
    void clickOnTheTitleIsNot();
    void buttonIsPaintedBelowTheTitle();
};

void tst_ZEMLabeledButton::newButton()
{
    ZEMLabeledButton button;
    QCOMPARE(button.objectName(), QStringLiteral("ZEMLabeledButton"));
    QCOMPARE(button.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(button.size(), QSize(50, 74));
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    QCOMPARE(button.font().family(), QStringLiteral("Cabin"));
    QCOMPARE(button.font().pointSize(), 11);
    QCOMPARE(button.getTitle(), QStringLiteral("Title"));
    QVERIFY(!button.getTitleIsHidden());
    QVERIFY(button.getBackground().isNull());
    QVERIFY(button.getBackgroundOff().isNull());
    QVERIFY(button.getIcon().isNull());

    QWidget host;
    QCOMPARE((new ZEMLabeledButton(&host))->parentWidget(), &host);
}

void tst_ZEMLabeledButton::form()
{
    ZEMLabeledButton button;
    auto *vertical = qobject_cast<QVBoxLayout *>(button.layout());
    QVERIFY(vertical);
    QCOMPARE(vertical->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(vertical->spacing(), 2);
    QCOMPARE(vertical->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(vertical->count(), 2);

    auto *horizontal = qobject_cast<QHBoxLayout *>(vertical->itemAt(0)->layout());
    QVERIFY(horizontal);
    QCOMPARE(horizontal->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(horizontal->spacing(), 0);
    QCOMPARE(horizontal->count(), 1);

    auto *title = qobject_cast<ZEMWidgetLabel *>(horizontal->itemAt(0)->widget());
    QVERIFY(title);
    QCOMPARE(title->objectName(), QStringLiteral("title"));
    QCOMPARE(title->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(title->font().pointSize(), 12);

    auto *btn = qobject_cast<ZEMButton *>(vertical->itemAt(1)->widget());
    QVERIFY(btn);
    QCOMPARE(btn->objectName(), QStringLiteral("btn"));
    QCOMPARE(btn->metaObject(), &ZEMButton::staticMetaObject);
    QCOMPARE(btn->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(btn->font().pointSize(), 11); // from the composite
    QCOMPARE(button.getBackgroundWidget(), btn);

    const auto children = button.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(children.size(), 2);
}

void tst_ZEMLabeledButton::textsAreTranslated()
{
    ContextTranslator translator;
    ZEMLabeledButton button;
    QCOMPARE(button.windowTitle(), QStringLiteral("ZEMLabeledButton/Form"));
    QCOMPARE(button.getTitle(), QStringLiteral("ZEMLabeledButton/Title"));
}

void tst_ZEMLabeledButton::declaresItsPropertiesAndItsSignal()
{
    const QMetaObject &metaObject = ZEMLabeledButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             QStringList({QStringLiteral("background:QPixmap"),
                          QStringLiteral("backgroundOff:QPixmap"), QStringLiteral("title:QString"),
                          QStringLiteral("titleHidden:bool"), QStringLiteral("icon:QIcon")}));
    QCOMPARE(ownMethodCount(metaObject), 1);
    QVERIFY(metaObject.indexOfSignal("clicked()") >= metaObject.methodOffset());
}

void tst_ZEMLabeledButton::picturesReachTheButton()
{
    ZEMLabeledButton button;
    ZEMButton *btn = button.getBackgroundWidget();
    const QPixmap on = flatPixmap({152, 75}, Qt::red);
    const QPixmap off = flatPixmap({152, 75}, Qt::blue);

    QVERIFY(button.setProperty("background", on));
    QCOMPARE(btn->getBackground().cacheKey(), on.cacheKey());
    QCOMPARE(btn->size(), QSize(152, 75));
    QCOMPARE(btn->minimumSize(), QSize(152, 75));
    QCOMPARE(button.getBackground().cacheKey(), on.cacheKey());
    QCOMPARE(button.property("background").value<QPixmap>().cacheKey(), on.cacheKey());

    QVERIFY(button.setProperty("backgroundOff", off));
    QCOMPARE(btn->getBackgroundOff().cacheKey(), off.cacheKey());
    QCOMPARE(button.getBackgroundOff().cacheKey(), off.cacheKey());
    QCOMPARE(button.property("backgroundOff").value<QPixmap>().cacheKey(), off.cacheKey());
    QCOMPARE(btn->getBackground().cacheKey(), on.cacheKey());
}

void tst_ZEMLabeledButton::titleReachesTheStrip()
{
    ZEMLabeledButton button;
    QVERIFY(button.setProperty("title", QStringLiteral("totaal nu")));
    QCOMPARE(button.findChild<ZEMWidgetLabel *>(QStringLiteral("title"))->getTitle(),
             QStringLiteral("totaal nu"));
    QCOMPARE(button.getTitle(), QStringLiteral("totaal nu"));
    QCOMPARE(button.property("title").toString(), QStringLiteral("totaal nu"));
}

void tst_ZEMLabeledButton::titleIsHiddenEvenWhileNothingIsShown()
{
    ZEMLabeledButton button;
    QVERIFY(!button.isVisible());
    button.setTitleHidden(true);
    QVERIFY(button.getTitleIsHidden());
    QVERIFY(button.property("titleHidden").toBool());
    QVERIFY(button.setProperty("titleHidden", false));
    QVERIFY(!button.getTitleIsHidden());
    QVERIFY(!button.findChild<ZEMWidgetLabel *>(QStringLiteral("title"))->isHidden());
}

void tst_ZEMLabeledButton::hiddenTitleGivesItsRoomBack()
{
    ZEMLabeledButton button;
    button.setBackground(flatPixmap({152, 75}, Qt::red));
    const int withTitle = button.sizeHint().height();
    QVERIFY(withTitle > 75 + 2);
    button.setTitleHidden(true);
    button.layout()->activate();
    QCOMPARE(button.sizeHint().height(), 75);
}

void tst_ZEMLabeledButton::iconReachesTheButton()
{
    ZEMLabeledButton button;
    const QIcon icon(flatPixmap({20, 20}, Qt::red));
    QVERIFY(button.setProperty("icon", icon));
    QCOMPARE(button.getBackgroundWidget()->icon().cacheKey(), icon.cacheKey());
    QCOMPARE(button.getIcon().cacheKey(), icon.cacheKey());
    QCOMPARE(button.property("icon").value<QIcon>().cacheKey(), icon.cacheKey());
}

void tst_ZEMLabeledButton::clickOfTheButtonIsPassedOn()
{
    ZEMLabeledButton button;
    button.setBackground(flatPixmap({152, 75}, Qt::red));
    button.adjustSize();
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(&button, &ZEMLabeledButton::clicked);
    ZEMButton *btn = button.getBackgroundWidget();
    ZemTest::press(btn, btn->rect().center());
    QCOMPARE(clicked.count(), 0);
    ZemTest::release(btn, btn->rect().center());
    QCOMPARE(clicked.count(), 1);
    btn->click();
    QCOMPARE(clicked.count(), 2);
}

void tst_ZEMLabeledButton::clickOnTheTitleIsNot()
{
    ZEMLabeledButton button;
    button.setBackground(flatPixmap({152, 75}, Qt::red));
    button.adjustSize();
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(&button, &ZEMLabeledButton::clicked);
    ZemTest::press(&button, QPoint(10, 5));
    ZemTest::release(&button, QPoint(10, 5));
    QCOMPARE(clicked.count(), 0);
}

void tst_ZEMLabeledButton::buttonIsPaintedBelowTheTitle()
{
    ZEMLabeledButton button;
    button.setTitle(QString());
    button.setBackground(flatPixmap({152, 75}, Qt::red));
    button.setBackgroundOff(flatPixmap({152, 75}, Qt::blue));
    button.adjustSize();
    const int top = button.height() - 75;
    QVERIFY(top > 2);
    QCOMPARE(ZemTest::inkRect(render(&button)), QRect(0, top, 152, 75));
    QCOMPARE(render(&button).pixelColor(0, top), QColor(Qt::red));
    button.setEnabled(false);
    QCOMPARE(render(&button).pixelColor(0, top), QColor(Qt::blue));
}

QTEST_MAIN(tst_ZEMLabeledButton)
#include "tst_zemlabeledbutton.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMNotificationButton>
#include <ZEMNotificationIcon>

#include <QSignalSpy>
#include <QTest>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMNotificationButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void declaresItsPropertiesAndSlots();
    void propertiesReachTheIcon();
    void slotsReachTheIcon();
    void iconCoversTheButton();
    void backgroundCarriesTheIcon();
    void disabledButtonShowsTheDisabledIcon();
    void touchReachesTheButton();
    void signalsCanSetTheBadge();
    void settersPaintTheIconSoon_data();
    void settersPaintTheIconSoon();
};

static ZEMNotificationIcon *iconOf(const ZEMNotificationButton &button)
{
    const auto icons = button.findChildren<ZEMNotificationIcon *>();
    return icons.size() == 1 ? icons.first() : nullptr;
}

void tst_ZEMNotificationButton::newButton()
{
    ZEMNotificationButton button;
    QCOMPARE(button.objectName(), QStringLiteral("ZEMNotificationButton"));
    QCOMPARE(button.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(button.size(), QSize(45, 45));
    QCOMPARE(button.sizeHint(), QSize(45, 45));
    QVERIFY(iconOf(button));
    QCOMPARE(iconOf(button)->parentWidget(), &button);
    QVERIFY(button.getIcon().isNull());
    QVERIFY(button.getDisabledIcon().isNull());
    QCOMPARE(button.getNotifyCount(), 0);
    QVERIFY(!button.getWarning());
    QVERIFY(ZemTest::inkRect(render(&button)).isNull());

    QWidget host;
    QCOMPARE((new ZEMNotificationButton(&host))->parentWidget(), &host);
    ContextTranslator translator;
    QCOMPARE(ZEMNotificationButton().windowTitle(), QStringLiteral("ZEMButton/Form"));
}

void tst_ZEMNotificationButton::declaresItsPropertiesAndSlots()
{
    const QMetaObject &metaObject = ZEMNotificationButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMButton::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             FormTest::strings(
                 {"icon:QPixmap", "iconDisabled:QPixmap", "notifyCount:int", "warning:bool"}));
    QCOMPARE(ownMethodCount(metaObject), 2);
    for (const char *slot : {"setNotifyCount(int)", "setWarning(bool)"}) {
        const int index = metaObject.indexOfSlot(slot);
        QVERIFY(index >= metaObject.methodOffset());
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Public);
    }
}

void tst_ZEMNotificationButton::propertiesReachTheIcon()
{
    ZEMNotificationButton button;
    const ZEMNotificationIcon *icon = iconOf(button);
    const QPixmap picture = flatPixmap({30, 20}, Qt::red);
    const QPixmap disabled = flatPixmap({30, 20}, Qt::blue);
    QVERIFY(button.setProperty("icon", picture));
    QVERIFY(button.setProperty("iconDisabled", disabled));
    QVERIFY(button.setProperty("notifyCount", 12));
    QVERIFY(button.setProperty("warning", true));
    QCOMPARE(icon->getIcon().cacheKey(), picture.cacheKey());
    QCOMPARE(icon->getDisabledIcon().cacheKey(), disabled.cacheKey());
    QCOMPARE(icon->getNotifyCount(), 12);
    QVERIFY(icon->getWarning());
    QCOMPARE(button.getIcon().cacheKey(), picture.cacheKey());
    QCOMPARE(button.getDisabledIcon().cacheKey(), disabled.cacheKey());
    QCOMPARE(button.property("icon").value<QPixmap>().cacheKey(), picture.cacheKey());
    QCOMPARE(button.property("iconDisabled").value<QPixmap>().cacheKey(), disabled.cacheKey());
    QCOMPARE(button.property("notifyCount").toInt(), 12);
    QVERIFY(button.property("warning").toBool());
}

void tst_ZEMNotificationButton::slotsReachTheIcon()
{
    ZEMNotificationButton button;
    button.setNotifyCount(4);
    QCOMPARE(iconOf(button)->getNotifyCount(), 4);
    button.setNotifyCount(-1);
    QCOMPARE(button.getNotifyCount(), 4);
    button.setWarning(true);
    QVERIFY(iconOf(button)->getWarning());
    QVERIFY(button.getWarning());
    button.setWarning(false);
    QVERIFY(!button.getWarning());
}

void tst_ZEMNotificationButton::iconCoversTheButton()
{
    ZEMNotificationButton button;
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QCOMPARE(iconOf(button)->geometry(), QRect(0, 0, 45, 45));
    for (const QSize &size : {QSize(100, 60), QSize(20, 30)}) {
        button.resize(size);
        QCOMPARE(iconOf(button)->geometry(), QRect(QPoint(0, 0), size));
    }
    button.setBackground(flatPixmap({54, 52}, Qt::red));
    QCOMPARE(iconOf(button)->geometry(), QRect(0, 0, 54, 52));
}

void tst_ZEMNotificationButton::backgroundCarriesTheIcon()
{
    ZEMNotificationButton button;
    button.setBackground(flatPixmap({54, 54}, Qt::red));
    button.setIcon(flatPixmap({20, 20}, Qt::blue));
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QImage image = render(&button);
    QCOMPARE(image.pixelColor(16, 16), QColor(Qt::red));
    QCOMPARE(image.pixelColor(17, 17), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(36, 36), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(37, 37), QColor(Qt::red));
    QCOMPARE(image.pixelColor(42, 4), QColor(Qt::red));

    button.setNotifyCount(3);
    image = render(&button);
    QVERIFY(image.pixelColor(42, 6) != QColor(Qt::red)); // the upper half of the disc
    QCOMPARE(image.pixelColor(53, 0), QColor(Qt::red));
}

void tst_ZEMNotificationButton::disabledButtonShowsTheDisabledIcon()
{
    ZEMNotificationButton button;
    button.setIcon(flatPixmap({20, 20}, Qt::blue));
    button.setDisabledIcon(flatPixmap({20, 20}, Qt::green));
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QCOMPARE(render(&button).pixelColor(22, 22), QColor(Qt::blue));
    button.setEnabled(false);
    QCOMPARE(render(&button).pixelColor(22, 22), QColor(Qt::green));
}

void tst_ZEMNotificationButton::touchReachesTheButton()
{
    ZEMNotificationButton button;
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(&button, &ZEMNotificationButton::clicked);
    ZemTest::press(&button, {40, 5}); // on the badge
    ZemTest::release(&button, {40, 5});
    QCOMPARE(clicked.count(), 1);
}

void tst_ZEMNotificationButton::signalsCanSetTheBadge()
{
    ZEMNotificationButton button;
    ZEMNotificationButton source;
    source.setCheckable(true);
    connect(&source, &ZEMNotificationButton::toggled, &button, &ZEMNotificationButton::setWarning);
    source.setChecked(true);
    QVERIFY(button.getWarning());
    source.setChecked(false);
    QVERIFY(!button.getWarning());
}

void tst_ZEMNotificationButton::settersPaintTheIconSoon_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isPainted");
    const auto row = [](const char *name, const char *property, const QVariant &value,
                        bool paints) {
        QTest::newRow(name) << QByteArray(property) << value << paints;
    };
    row("picture", "icon", flatPixmap({20, 20}, Qt::blue), true);
    row("picture of the disabled one", "iconDisabled", flatPixmap({20, 20}, Qt::green), true);
    row("count", "notifyCount", 3, true);
    row("negative count", "notifyCount", -3, false);
    row("warning", "warning", true, true);
}

void tst_ZEMNotificationButton::settersPaintTheIconSoon()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QFETCH(bool, isPainted);
    ZEMNotificationButton button;
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    const Painted painted = paintedBy(
        iconOf(button), [&] { QVERIFY(button.setProperty(property.constData(), value)); });
    QCOMPARE(painted, isPainted ? Painted::Later : Painted::Never);
}

QTEST_MAIN(tst_ZEMNotificationButton)
#include "tst_zemnotificationbutton.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "margintest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMLineEditButton>
#include <ZEMTextLabel>

#include <QGridLayout>
#include <QSignalSpy>
#include <QTest>

using namespace WidgetTest;
using FormTest::part;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMLineEditButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void form();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void textAndAlignmentAreTheLabels();
    void marginsAreIndependent_data();
    void marginsAreIndependent();
    void flagsAreStoredOnly();
    void readOnlyButtonCanBeTouched();
    void backgroundLocksTheSize_data();
    void backgroundLocksTheSize();
    void otherPicturesChangeNoSize();
    void isPaintedAsAButtonWithItsLabel();
};

void tst_ZEMLineEditButton::newButton()
{
    ZEMLineEditButton button;
    QCOMPARE(button.objectName(), QStringLiteral("ZEMLineEditButton"));
    QCOMPARE(button.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(button.size(), QSize(64, 32));
    QCOMPARE(button.sizePolicy(), FormTest::policy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(button.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(button.text(), QString());
    QVERIFY(!button.isReadOnly());
    QVERIFY(!button.isModified());
    QCOMPARE(button.alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QVERIFY(!button.isCheckable());

    QWidget host;
    QCOMPARE((new ZEMLineEditButton(&host))->parentWidget(), &host);
    ContextTranslator translator;
    QCOMPARE(ZEMLineEditButton().windowTitle(), QStringLiteral("ZEMLineEditButton/Form"));
}

void tst_ZEMLineEditButton::form()
{
    const ZEMLineEditButton button;
    const auto *layout = qobject_cast<QGridLayout *>(button.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("layout"));
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(FormTest::items(layout), FormTest::strings({"0,0: ZEMTextLabel textLabel"}));
    QVERIFY(!part<ZEMTextLabel>(button, "textLabel")->getShadow());
}

void tst_ZEMLineEditButton::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMLineEditButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMButton::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             FormTest::strings({"text:QString", "readOnly:bool", "modified:bool",
                                "alignment:Qt::Alignment", "layoutLeft:int", "layoutTop:int",
                                "layoutRight:int", "layoutBottom:int"}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMLineEditButton::propertiesReachTheAccessors()
{
    ZEMLineEditButton button;
    QVERIFY(button.setProperty("text", QStringLiteral("keuken")));
    QVERIFY(button.setProperty("readOnly", true));
    QCOMPARE(button.text(), QStringLiteral("keuken"));
    QVERIFY(button.isReadOnly());
    QVERIFY(!button.isModified());
    button.setReadOnly(false);
    QVERIFY(button.setProperty("modified", true));
    QVERIFY(button.isModified());
    QVERIFY(!button.isReadOnly());
    QCOMPARE(button.property("text").toString(), QStringLiteral("keuken"));
    QVERIFY(button.property("modified").toBool());
    QVERIFY(!button.property("readOnly").toBool());
}

void tst_ZEMLineEditButton::textAndAlignmentAreTheLabels()
{
    ZEMLineEditButton button;
    auto *label = part<ZEMTextLabel>(button, "textLabel");
    button.setText(QStringLiteral("zolder"));
    button.setAlignment(Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(label->text(), QStringLiteral("zolder"));
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignTop);
    QVERIFY(static_cast<QAbstractButton &>(button).text().isEmpty());

    label->setText(QStringLiteral("kelder"));
    label->setAlignment(Qt::AlignCenter);
    QCOMPARE(button.text(), QStringLiteral("kelder"));
    QCOMPARE(button.alignment(), Qt::Alignment(Qt::AlignCenter));
    QCOMPARE(button.property("alignment").toInt(), int(Qt::AlignCenter));
    QVERIFY(button.setProperty("alignment", int(Qt::AlignBottom)));
    QCOMPARE(label->alignment(), Qt::Alignment(Qt::AlignBottom));
}

void tst_ZEMLineEditButton::marginsAreIndependent_data()
{
    MarginTest::addRows();
}

void tst_ZEMLineEditButton::marginsAreIndependent()
{
    MarginTest::compare<ZEMLineEditButton>();
}

void tst_ZEMLineEditButton::flagsAreStoredOnly()
{
    ZEMLineEditButton button;
    button.setReadOnly(true);
    QVERIFY(button.isEnabled());
    button.setText(QStringLiteral("nieuw"));
    QVERIFY(!button.isModified());
    button.setModified(true);
    button.setText(QStringLiteral("anders"));
    QVERIFY(button.isModified());
    QVERIFY(button.isReadOnly());

    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(&button, [&] { button.setReadOnly(false); }), Painted::Never);
    QCOMPARE(paintedBy(&button, [&] { button.setModified(false); }), Painted::Never);
}

void tst_ZEMLineEditButton::readOnlyButtonCanBeTouched()
{
    ZEMLineEditButton button;
    button.setBackground(flatPixmap({100, 50}, Qt::red));
    button.setText(QStringLiteral("keuken"));
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(&button, &ZEMLineEditButton::clicked);
    for (const bool readOnly : {false, true}) {
        button.setReadOnly(readOnly);
        clicked.clear();
        ZemTest::press(&button, {50, 25});
        ZemTest::release(&button, {50, 25});
        QCOMPARE(clicked.count(), 1);
    }
}

void tst_ZEMLineEditButton::backgroundLocksTheSize_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("larger") << QSize(100, 50);
    QTest::newRow("smaller") << QSize(20, 10);
    QTest::newRow("wider and lower") << QSize(233, 12);
}

void tst_ZEMLineEditButton::backgroundLocksTheSize()
{
    QFETCH(QSize, size);
    ZEMLineEditButton button;
    button.setBackground(flatPixmap({60, 30}, Qt::red)); // a lock that must give way
    ZEMButton *base = &button;
    base->setBackground(flatPixmap(size, Qt::red));
    QCOMPARE(button.size(), size);
    QCOMPARE(button.minimumSize(), size);
    QCOMPARE(button.maximumSize(), size);
    button.resize(300, 300);
    QCOMPARE(button.size(), size);
    button.resize(1, 1);
    QCOMPARE(button.size(), size);

    ZEMButton growing;
    growing.setBackground(flatPixmap(size, Qt::red));
    growing.resize(300, 300);
    QCOMPARE(growing.size(), QSize(300, 300));
}

void tst_ZEMLineEditButton::otherPicturesChangeNoSize()
{
    ZEMLineEditButton button;
    button.setBackground(flatPixmap({100, 50}, Qt::red));
    button.setBackgroundOff(flatPixmap({10, 10}, Qt::blue));
    button.setBackgroundDisabled(flatPixmap({200, 200}, Qt::green));
    QCOMPARE(button.size(), QSize(100, 50));
    QCOMPARE(button.maximumSize(), QSize(100, 50));
    QCOMPARE(button.minimumSize(), QSize(100, 50));
}

void tst_ZEMLineEditButton::isPaintedAsAButtonWithItsLabel()
{
    ZEMLineEditButton button;
    button.setBackground(flatPixmap({100, 50}, Qt::red));
    button.setBackgroundOff(flatPixmap({100, 50}, Qt::blue));
    button.setLayoutLeft(40);
    QPalette palette;
    palette.setColor(QPalette::WindowText, Qt::green);
    palette.setColor(QPalette::ButtonText, Qt::green);
    button.setPalette(palette);
    QImage image = render(&button);
    QVERIFY(ZemTest::inkRect(image, Qt::red).isNull());

    button.setText(QStringLiteral("III"));
    image = render(&button);
    const QRect ink = ZemTest::inkRect(image, Qt::red);
    QVERIFY(!ink.isNull());
    QVERIFY2(ink.left() >= 40 && ink.left() < 46, qPrintable(QString::number(ink.left())));

    button.setText(QString());
    button.setEnabled(false);
    QVERIFY(ZemTest::inkRect(render(&button), Qt::blue).isNull());
}

QTEST_MAIN(tst_ZEMLineEditButton)
#include "tst_zemlineeditbutton.moc"

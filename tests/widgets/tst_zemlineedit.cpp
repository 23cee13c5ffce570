// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "margintest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMLineEdit>

#include <QGridLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

using namespace WidgetTest;
using FormTest::part;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMLineEdit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newField();
    void form();
    void palette();
    void declaresItsPropertiesOnly();
    void propertiesReachTheLineEdit();
    void lineEditReachesTheAccessors();
    void marginsAreIndependent_data();
    void marginsAreIndependent();
    void marginsPlaceTheField();
    void validatorReachesTheLineEdit();
    void lengthAndReadOnlyHoldForTyping();
    void typingModifies();
    void pictureLocksTheSize();
    void pictureShowsThrough();
    void disabledFieldIsOpaque();
};

void tst_ZEMLineEdit::newField()
{
    ZEMLineEdit field;
    QCOMPARE(field.objectName(), QStringLiteral("ZEMLineEdit"));
    QCOMPARE(field.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(field.size(), QSize(640, 480));
    QCOMPARE(field.sizeHint(), QSize(640, 480));
    QCOMPARE(field.text(), QString());
    QCOMPARE(field.placeholderText(), QString());
    QVERIFY(!field.isReadOnly());
    QVERIFY(!field.isModified());
    QCOMPARE(field.maxLength(), 32767);
    QVERIFY(!field.validator());

    QWidget host;
    QCOMPARE((new ZEMLineEdit(&host))->parentWidget(), &host);
    ContextTranslator translator;
    QCOMPARE(ZEMLineEdit().windowTitle(), QStringLiteral("ZEMLineEdit/Form"));
}

void tst_ZEMLineEdit::form()
{
    const ZEMLineEdit field;
    const auto *layout = qobject_cast<QGridLayout *>(field.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("layout"));
    QCOMPARE(layout->horizontalSpacing(), 0);
    QCOMPARE(layout->verticalSpacing(), 0);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(FormTest::items(layout), FormTest::strings({"0,0: QLineEdit lineEdit"}));
    QVERIFY(!part<QLineEdit>(field, "lineEdit")->hasFrame());
}

void tst_ZEMLineEdit::palette()
{
    const ZEMLineEdit field;
    const QPalette palette = part<QLineEdit>(field, "lineEdit")->palette();
    const QBrush clear(QColor(255, 255, 255, 0), Qt::SolidPattern);
    QCOMPARE(palette.brush(QPalette::Active, QPalette::Base), clear);
    QCOMPARE(palette.brush(QPalette::Inactive, QPalette::Base), clear);
    QCOMPARE(palette.brush(QPalette::Disabled, QPalette::Base),
             QBrush(QColor(240, 240, 240, 255), Qt::SolidPattern));
}

void tst_ZEMLineEdit::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMLineEdit::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMPixmap::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             FormTest::strings({"text:QString", "placeholderText:QString", "readOnly:bool",
                                "modified:bool", "maxLength:int", "layoutLeft:int", "layoutTop:int",
                                "layoutRight:int", "layoutBottom:int"}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMLineEdit::propertiesReachTheLineEdit()
{
    ZEMLineEdit field;
    const auto *lineEdit = part<QLineEdit>(field, "lineEdit");
    QVERIFY(field.setProperty("text", QStringLiteral("keuken")));
    QVERIFY(field.setProperty("placeholderText", QStringLiteral("naam")));
    QVERIFY(field.setProperty("readOnly", true));
    QVERIFY(field.setProperty("maxLength", 12)); // which makes a QLineEdit unmodified
    QVERIFY(field.setProperty("modified", true));
    QCOMPARE(lineEdit->text(), QStringLiteral("keuken"));
    QCOMPARE(lineEdit->placeholderText(), QStringLiteral("naam"));
    QVERIFY(lineEdit->isReadOnly());
    QVERIFY(lineEdit->isModified());
    QCOMPARE(lineEdit->maxLength(), 12);
    field.setModified(false);
    QVERIFY(!lineEdit->isModified());
    field.setReadOnly(false);
    QVERIFY(!lineEdit->isReadOnly());
}

void tst_ZEMLineEdit::lineEditReachesTheAccessors()
{
    ZEMLineEdit field;
    auto *lineEdit = part<QLineEdit>(field, "lineEdit");
    lineEdit->setMaxLength(9);
    lineEdit->setText(QStringLiteral("zolder"));
    lineEdit->setPlaceholderText(QStringLiteral("waar"));
    lineEdit->setModified(true);
    lineEdit->setReadOnly(true);
    QCOMPARE(field.text(), QStringLiteral("zolder"));
    QCOMPARE(field.placeholderText(), QStringLiteral("waar"));
    QVERIFY(field.isModified());
    QVERIFY(field.isReadOnly());
    QCOMPARE(field.maxLength(), 9);
    QCOMPARE(field.property("text").toString(), QStringLiteral("zolder"));
    QCOMPARE(field.property("placeholderText").toString(), QStringLiteral("waar"));
    QVERIFY(field.property("modified").toBool());
    QVERIFY(field.property("readOnly").toBool());
    QCOMPARE(field.property("maxLength").toInt(), 9);
}

void tst_ZEMLineEdit::marginsAreIndependent_data()
{
    MarginTest::addRows();
}

void tst_ZEMLineEdit::marginsAreIndependent()
{
    MarginTest::compare<ZEMLineEdit>();
}

void tst_ZEMLineEdit::marginsPlaceTheField()
{
    ZEMLineEdit field;
    field.setPixmap(flatPixmap({200, 60}, Qt::red));
    field.setLayoutLeft(12);
    field.setLayoutRight(30);
    field.setLayoutTop(9);
    field.setLayoutBottom(7);
    render(&field);
    const QRect place = part<QLineEdit>(field, "lineEdit")->geometry();
    QCOMPARE(place.left(), 12);
    QCOMPARE(place.right(), 200 - 30 - 1);
    QVERIFY(QRect(12, 9, 158, 44).contains(place));
}

void tst_ZEMLineEdit::validatorReachesTheLineEdit()
{
    ZEMLineEdit field;
    QIntValidator *validator = new QIntValidator(0, 500, this);
    const QPointer<QObject> alive(validator);
    field.setValidator(validator);
    QCOMPARE(field.validator(), validator);
    QCOMPARE(part<QLineEdit>(field, "lineEdit")->validator(), validator);
    QTest::keyClicks(part<QLineEdit>(field, "lineEdit"), QStringLiteral("a4b2"));
    QCOMPARE(field.text(), QStringLiteral("42"));
    field.setValidator(nullptr);
    QVERIFY(!field.validator());
    QVERIFY(alive);
    delete validator;
}

void tst_ZEMLineEdit::lengthAndReadOnlyHoldForTyping()
{
    ZEMLineEdit field;
    auto *lineEdit = part<QLineEdit>(field, "lineEdit");
    field.setMaxLength(3);
    QTest::keyClicks(lineEdit, QStringLiteral("abcd"));
    QCOMPARE(field.text(), QStringLiteral("abc"));
    field.setMaxLength(10);
    field.setReadOnly(true);
    QTest::keyClicks(lineEdit, QStringLiteral("d"));
    QCOMPARE(field.text(), QStringLiteral("abc"));
}

void tst_ZEMLineEdit::typingModifies()
{
    ZEMLineEdit field;
    field.setText(QStringLiteral("a"));
    QVERIFY(!field.isModified());
    QTest::keyClicks(part<QLineEdit>(field, "lineEdit"), QStringLiteral("b"));
    QVERIFY(field.isModified());
    field.setText(QStringLiteral("c"));
    QVERIFY(!field.isModified());
}

void tst_ZEMLineEdit::pictureLocksTheSize()
{
    ZEMLineEdit field;
    field.setPixmap(flatPixmap({233, 50}, Qt::red));
    QCOMPARE(field.size(), QSize(233, 50));
    QCOMPARE(field.minimumSize(), QSize(233, 50));
    QCOMPARE(field.maximumSize(), QSize(233, 50));
    QCOMPARE(field.sizeHint(), QSize(233, 50));
}

void tst_ZEMLineEdit::pictureShowsThrough()
{
    ZEMLineEdit field;
    field.setPixmap(flatPixmap({200, 30}, Qt::red));
    const QImage image = render(&field);
    QVERIFY(part<QLineEdit>(field, "lineEdit")->geometry().contains(100, 15));
    QCOMPARE(image.pixelColor(100, 15), QColor(Qt::red));
    QVERIFY(ZemTest::inkRect(image, Qt::red).isNull());
}

void tst_ZEMLineEdit::disabledFieldIsOpaque()
{
    ZEMLineEdit field;
    field.setPixmap(flatPixmap({200, 30}, Qt::red));
    field.setLayoutLeft(20);
    field.setEnabled(false);
    const QImage image = render(&field);
    QCOMPARE(image.pixelColor(100, 15), QColor(240, 240, 240));
    QCOMPARE(image.pixelColor(20, 15), QColor(240, 240, 240));
    QCOMPARE(image.pixelColor(19, 15), QColor(Qt::red));
}

QTEST_MAIN(tst_ZEMLineEdit)
#include "tst_zemlineedit.moc"

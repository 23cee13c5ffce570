// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "propertyvalues.h"

#include <QColor>
#include <QPen>
#include <QTest>
#include <ZEMAnimatedArrows>
#include <ZEMBarIndicator>
#include <ZEMLabel>
#include <ZEMLineEditButton>
#include <ZEMMenuOverlay>
#include <ZEMPixmap>

#include <limits>

class tst_PropertyValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stepOf_data();
    void stepOf();
    void numberStaysInItsRange();
    void enumeratorsFollowEachOther();
    void alignmentsFollowEachOther();
    void coloursGoRound();
    void penKeepsItsWidth();
    void pictureComesBack();
    void propertyDeclaredAnewComesOnce();
    void geometryIsNotPlayedWith();
    void texts();
};

static QMetaProperty propertyOf(const QObject &object, const char *name)
{
    return object.metaObject()->property(object.metaObject()->indexOfProperty(name));
}

/** The values of a property from the present one on, until it comes again; empty if it does not. */
static QVariantList roundOf(QObject *object, const char *name)
{
    const QMetaProperty property = propertyOf(*object, name);
    const QVariant first = property.read(object);
    QVariantList round;
    for (int i = 0; i < 50; ++i) {
        round.append(property.read(object));
        property.write(object, PropertyValues::next(property, property.read(object), first));
        if (PropertyValues::textOf(property, property.read(object))
            == PropertyValues::textOf(property, first)) {
            return round;
        }
    }
    return {};
}

void tst_PropertyValues::stepOf_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<double>("step");
    QTest::newRow("int") << QVariant(250) << 1.0;
    QTest::newRow("zero") << QVariant(0.0) << 0.1;
    QTest::newRow("opacity") << QVariant(1.0) << 0.1;
    QTest::newRow("tens") << QVariant(50.0) << 1.0;
    QTest::newRow("watts") << QVariant(2100.0) << 100.0;
    QTest::newRow("negative") << QVariant(-2100.0) << 100.0;
}

void tst_PropertyValues::stepOf()
{
    QFETCH(QVariant, value);
    QFETCH(double, step);
    QCOMPARE(PropertyValues::stepOf(value), step);
}

void tst_PropertyValues::numberStaysInItsRange()
{
    const QPair<double, double> range(0.0, 5.0);
    QCOMPARE(PropertyValues::moved(5, 1.0, range), QVariant(5));
    QCOMPARE(PropertyValues::moved(4, 1.0, range), QVariant(5));
    QCOMPARE(PropertyValues::moved(0, -1.0, range), QVariant(0));
    QCOMPARE(PropertyValues::moved(4.95, 0.1, range), QVariant(5.0));
    QCOMPARE(PropertyValues::moved(4, 1.0, range).userType(), int(QMetaType::Int));
}

void tst_PropertyValues::enumeratorsFollowEachOther()
{
    ZEMAnimatedArrows arrows;
    arrows.setSpeed(ZEMAnimatedArrows::Medium);
    const QVariantList round = roundOf(&arrows, "speed");
    QCOMPARE(round.size(), 4);
    QCOMPARE(round.at(1).toInt(), int(ZEMAnimatedArrows::Fast));
    QCOMPARE(round.at(2).toInt(), int(ZEMAnimatedArrows::Stopped));
}

void tst_PropertyValues::alignmentsFollowEachOther()
{
    ZEMLabel label;
    const QVariantList round = roundOf(&label, "alignment");
    QCOMPARE(round.size(), 5);
}

void tst_PropertyValues::coloursGoRound()
{
    ZEMMenuOverlay menu;
    const QMetaProperty property = propertyOf(menu, "popupColor");
    // The colour that it was is not one of the few.
    property.write(&menu, PropertyValues::next(property, menu.getPopupColor(), QVariant()));
    QCOMPARE(roundOf(&menu, "popupColor").size(), 5);
}

void tst_PropertyValues::penKeepsItsWidth()
{
    ZEMBarIndicator bar;
    bar.setValuePen(QPen(Qt::white, 3.0));
    const QMetaProperty property = propertyOf(bar, "valuePen");
    const QPen next =
        PropertyValues::next(property, QVariant(bar.getValuePen()), QVariant()).value<QPen>();
    QVERIFY(next.color() != QColor(Qt::white));
    QCOMPARE(next.widthF(), 3.0);
}

void tst_PropertyValues::pictureComesBack()
{
    ZEMPixmap pixmap;
    QPixmap picture(20, 10);
    picture.fill(Qt::red);
    pixmap.setPixmap(picture);
    const QVariantList round = roundOf(&pixmap, "pixmap");
    QVERIFY(round.size() > 2);
    QCOMPARE(pixmap.getPixmap().toImage(), picture.toImage());
}

static QStringList namesOf(const QObject &object)
{
    QStringList names;
    for (const QMetaProperty &property : PropertyValues::playable(&object)) {
        names.append(QString::fromLatin1(property.name()));
    }
    return names;
}

void tst_PropertyValues::propertyDeclaredAnewComesOnce()
{
    const ZEMLineEditButton button;
    const QStringList names = namesOf(button);
    QCOMPARE(names.count(QStringLiteral("text")), 1);
    for (const QMetaProperty &property : PropertyValues::playable(&button)) {
        if (qstrcmp(property.name(), "text") == 0) {
            QCOMPARE(property.enclosingMetaObject()->className(), "ZEMLineEditButton");
        }
    }
}

void tst_PropertyValues::geometryIsNotPlayedWith()
{
    const ZEMLineEditButton button;
    const QStringList names = namesOf(button);
    QVERIFY(names.contains(QStringLiteral("enabled")));
    QVERIFY(names.contains(QStringLiteral("checkable")));
    QVERIFY(names.contains(QStringLiteral("layoutLeft")));
    QVERIFY(names.contains(QStringLiteral("background")));
    for (const char *name : {"geometry", "visible", "styleSheet", "objectName", "focus"}) {
        QVERIFY2(!names.contains(QLatin1String(name)), name);
    }
}

void tst_PropertyValues::texts()
{
    ZEMAnimatedArrows arrows;
    const auto text = [&arrows](const char *name) {
        const QMetaProperty property = propertyOf(arrows, name);
        return PropertyValues::textOf(property, property.read(&arrows));
    };
    QCOMPARE(text("direction"), QStringLiteral("Left"));
    QCOMPARE(text("running"), QStringLiteral("false"));
    ZEMPixmap pixmap;
    const QMetaProperty opacity = propertyOf(pixmap, "opacity");
    QCOMPARE(PropertyValues::textOf(opacity, 0.30000000000000004), QStringLiteral("0.3"));
    QCOMPARE(PropertyValues::textOf(propertyOf(pixmap, "pixmap"), QPixmap()),
             QStringLiteral("none"));
    QCOMPARE(PropertyValues::textOf(propertyOf(pixmap, "pixmap"), QPixmap(20, 10)),
             QStringLiteral("20 x 10"));
}

QTEST_MAIN(tst_PropertyValues)
#include "tst_propertyvalues.moc"

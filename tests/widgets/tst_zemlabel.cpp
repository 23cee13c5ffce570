// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettest.h"
#include "zemtest.h"

#include <ZEMLabel>
#include <ZEMTextLabel>

#include <QMetaType>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newLabel();
    void form();
    void palette();
    void titleIsTranslated();
    void declaresItsPropertiesOnly();
    void propertiesReachTheLabel_data();
    void propertiesReachTheLabel();
    void accessorsReachTheLabel();
    void sizeHintIsThatOfTheLabel();
    void textStandsOnThePicture();
    void labelFillsTheWidgetButForItsEdge();
    void pictureLocksTheSize();
    void switchingTheShadowPaintsNothing();
};

static ZEMTextLabel *innerLabel(const ZEMLabel &label)
{
    return label.findChild<ZEMTextLabel *>(QStringLiteral("label"), Qt::FindDirectChildrenOnly);
}

void tst_ZEMLabel::newLabel()
{
    ZEMLabel label;
    QCOMPARE(label.objectName(), QStringLiteral("ZEMLabel"));
    QCOMPARE(label.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(label.size(), QSize(64, 31));
    QCOMPARE(label.sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    QVERIFY(!label.sizePolicy().hasHeightForWidth());
    QVERIFY(label.getShadow());
    QVERIFY(label.getPixmap().isNull());

    QWidget host;
    QCOMPARE((new ZEMLabel(&host))->parentWidget(), &host);
}

void tst_ZEMLabel::form()
{
    ZEMLabel label;
    auto *layout = qobject_cast<QVBoxLayout *>(label.layout());
    QVERIFY(layout);
    QCOMPARE(layout->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(layout->spacing(), 1);
    QCOMPARE(layout->contentsMargins(), QMargins(1, 1, 1, 1));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->stretch(0), 0);
    QCOMPARE(layout->itemAt(0)->alignment(), Qt::Alignment());

    ZEMTextLabel *inner = innerLabel(label);
    QVERIFY(inner);
    QCOMPARE(layout->itemAt(0)->widget(), inner);
    QCOMPARE(inner->text(), QString());
    QCOMPARE(inner->alignment(), Qt::Alignment(Qt::AlignCenter));
    QVERIFY(inner->getShadow());
    QCOMPARE(label.findChildren<QWidget *>().size(), 1);
}

void tst_ZEMLabel::palette()
{
    ZEMLabel label;
    for (const QWidget *widget : {static_cast<QWidget *>(&label), // what the label inherits
                                  static_cast<QWidget *>(innerLabel(label))}) {
        const QPalette palette = widget->palette();
        QCOMPARE(palette.brush(QPalette::Active, QPalette::WindowText),
                 QBrush(QColor(255, 255, 255)));
        QCOMPARE(palette.brush(QPalette::Inactive, QPalette::WindowText),
                 QBrush(QColor(255, 255, 255)));
        QCOMPARE(palette.brush(QPalette::Disabled, QPalette::WindowText),
                 QBrush(QColor(120, 120, 120)));
    }
}

void tst_ZEMLabel::titleIsTranslated()
{
    ContextTranslator translator;
    QCOMPARE(ZEMLabel().windowTitle(), QStringLiteral("ZEMLabel/Form"));
    QCOMPARE(ZEMLabel().getText(), QString());
}

void tst_ZEMLabel::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMLabel::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMPixmap::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             QStringList({QStringLiteral("text:QString"), QStringLiteral("alignment:Qt::Alignment"),
                          QStringLiteral("indent:int"), QStringLiteral("margin:int"),
                          QStringLiteral("textFormat:Qt::TextFormat"),
                          QStringLiteral("enableShadow:bool")}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMLabel::propertiesReachTheLabel_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QVariant>("initial");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char *name, const QVariant &initial, const QVariant &value) {
        QTest::newRow(name) << QByteArray(name) << initial << value;
    };
    row("text", QString(), QStringLiteral("1,5 kW"));
    row("alignment", int(Qt::AlignCenter), int(Qt::AlignRight | Qt::AlignTop));
    row("indent", -1, 12);
    row("margin", 0, 3);
    row("textFormat", int(Qt::AutoText), int(Qt::PlainText));
    row("enableShadow", true, false);
}

void tst_ZEMLabel::propertiesReachTheLabel()
{
    QFETCH(QByteArray, name);
    QFETCH(QVariant, initial);
    QFETCH(QVariant, value);

    // An enumeration is compared as its number.
    const auto sameType = [](const QVariant &variant, const QVariant &model) {
        return model.userType() == QMetaType::Int ? QVariant(variant.toInt()) : variant;
    };
    ZEMLabel label;
    QCOMPARE(sameType(label.property(name), initial), initial);
    QVERIFY(label.setProperty(name, value));
    QCOMPARE(sameType(label.property(name), value), value);
    QCOMPARE(sameType(innerLabel(label)->property(name), value), value);
}

void tst_ZEMLabel::accessorsReachTheLabel()
{
    ZEMLabel label;
    ZEMTextLabel *inner = innerLabel(label);

    label.setText(QStringLiteral("a"));
    QCOMPARE(inner->text(), QStringLiteral("a"));
    inner->setText(QStringLiteral("b"));
    QCOMPARE(label.getText(), QStringLiteral("b"));

    label.setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    QCOMPARE(inner->alignment(), Qt::AlignLeft | Qt::AlignBottom);
    inner->setAlignment(Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(label.getAlignment(), Qt::AlignRight | Qt::AlignTop);

    label.setIndent(4);
    QCOMPARE(inner->indent(), 4);
    inner->setIndent(6);
    QCOMPARE(label.getIndent(), 6);

    label.setMargin(5);
    QCOMPARE(inner->margin(), 5);
    inner->setMargin(7);
    QCOMPARE(label.getMargin(), 7);

    label.setTextFormat(Qt::RichText);
    QCOMPARE(inner->textFormat(), Qt::RichText);
    inner->setTextFormat(Qt::PlainText);
    QCOMPARE(label.getTextFormat(), Qt::PlainText);

    label.setShadow(false);
    QVERIFY(!inner->getShadow());
    inner->setShadow(true);
    QVERIFY(label.getShadow());
}

void tst_ZEMLabel::sizeHintIsThatOfTheLabel()
{
    ZEMLabel label;
    QCOMPARE(label.sizeHint(), innerLabel(label)->sizeHint());
    label.setText(QStringLiteral("een lange tekst op een regel"));
    QCOMPARE(label.sizeHint(), innerLabel(label)->sizeHint());
    QVERIFY(label.sizeHint().width() > 64);
    label.setPixmap(flatPixmap({10, 10}, Qt::red));
    QCOMPARE(label.sizeHint(), innerLabel(label)->sizeHint());
}

void tst_ZEMLabel::textStandsOnThePicture()
{
    ZEMLabel label;
    label.setPixmap(flatPixmap({80, 40}, Qt::blue));
    QCOMPARE(render(&label).pixelColor(0, 0), QColor(Qt::blue));
    QVERIFY(ZemTest::inkRect(render(&label), Qt::blue).isNull());
    label.setText(QStringLiteral("HH"));
    QVERIFY(
        label.rect().adjusted(1, 1, -1, -1).contains(ZemTest::inkRect(render(&label), Qt::blue)));
}

void tst_ZEMLabel::labelFillsTheWidgetButForItsEdge()
{
    ZEMLabel label;
    label.setPixmap(flatPixmap({80, 40}, Qt::blue));
    label.layout()->activate();
    QCOMPARE(innerLabel(label)->geometry(), QRect(1, 1, 78, 38));
}

void tst_ZEMLabel::pictureLocksTheSize()
{
    ZEMLabel label;
    label.setPixmap(flatPixmap({77, 27}, Qt::blue));
    QCOMPARE(label.size(), QSize(77, 27));
    QCOMPARE(label.minimumSize(), QSize(77, 27));
    QCOMPARE(label.maximumSize(), QSize(77, 27));
}

void tst_ZEMLabel::switchingTheShadowPaintsNothing()
{
    ZEMLabel label;
    label.setText(QStringLiteral("HH"));
    const Stage stage(&label);
    QVERIFY(stage.isReady());
    ZEMTextLabel *inner = innerLabel(label);
    QCOMPARE(paintedBy(inner, [&] { label.setShadow(false); }), Painted::Never);
    QCOMPARE(paintedBy(&label, [&] { label.setShadow(true); }), Painted::Never);
    QCOMPARE(paintedBy(inner, [&] { label.setText(QStringLiteral("II")); }), Painted::Later);
}

QTEST_MAIN(tst_ZEMLabel)
#include "tst_zemlabel.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettest.h"
#include "zemtest.h"

#include <ZEMTextLabel>
#include <ZEMWidgetLabel>

#include <QHBoxLayout>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;

class tst_ZEMWidgetLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newLabel();
    void form();
    void textsAreTranslated();
    void declaresItsPropertyOnly();
    void titleReachesTheLabel();
    void titleIsIndentedAndShadowed();
};

void tst_ZEMWidgetLabel::newLabel()
{
    ZEMWidgetLabel label;
    QCOMPARE(label.objectName(), QStringLiteral("ZEMWidgetLabel"));
    QCOMPARE(label.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(label.size(), QSize(217, 21));
    QCOMPARE(label.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));
    QCOMPARE(label.font().family(), QStringLiteral("Cabin"));
    QCOMPARE(label.font().pointSize(), 12);
    QCOMPARE(label.getTitle(), QStringLiteral("Title"));

    QWidget host;
    QCOMPARE((new ZEMWidgetLabel(&host))->parentWidget(), &host);
}

void tst_ZEMWidgetLabel::form()
{
    ZEMWidgetLabel label;
    auto *vertical = qobject_cast<QVBoxLayout *>(label.layout());
    QVERIFY(vertical);
    QCOMPARE(vertical->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(vertical->spacing(), 0);
    QCOMPARE(vertical->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(vertical->count(), 1);

    QWidget *widget = vertical->itemAt(0)->widget();
    QVERIFY(widget);
    QCOMPARE(widget->objectName(), QStringLiteral("widget"));
    QCOMPARE(widget->metaObject(), &QWidget::staticMetaObject);
    QCOMPARE(widget->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));

    auto *horizontal = qobject_cast<QHBoxLayout *>(widget->layout());
    QVERIFY(horizontal);
    QCOMPARE(horizontal->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(horizontal->spacing(), 0);
    QCOMPARE(horizontal->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(horizontal->count(), 1);

    auto *title = qobject_cast<ZEMTextLabel *>(horizontal->itemAt(0)->widget());
    QVERIFY(title);
    QCOMPARE(title->objectName(), QStringLiteral("lblTitle"));
    QCOMPARE(title->indent(), 5);
    QVERIFY(title->getShadow());
    QCOMPARE(title->font().family(), QStringLiteral("Cabin"));
    QCOMPARE(title->font().pointSize(), 12);
    QCOMPARE(label.findChildren<QWidget *>().size(), 2);
}

void tst_ZEMWidgetLabel::textsAreTranslated()
{
    ContextTranslator translator;
    ZEMWidgetLabel label;
    QCOMPARE(label.windowTitle(), QStringLiteral("ZEMWidgetLabel/Form"));
    QCOMPARE(label.getTitle(), QStringLiteral("ZEMWidgetLabel/Title"));
}

void tst_ZEMWidgetLabel::declaresItsPropertyOnly()
{
    const QMetaObject &metaObject = ZEMWidgetLabel::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList(QStringLiteral("title:QString")));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMWidgetLabel::titleReachesTheLabel()
{
    ZEMWidgetLabel label;
    auto *title = label.findChild<ZEMTextLabel *>(QStringLiteral("lblTitle"));
    label.setTitle(QStringLiteral("huidige status"));
    QCOMPARE(title->text(), QStringLiteral("huidige status"));
    QVERIFY(label.setProperty("title", QStringLiteral("totaal vandaag")));
    QCOMPARE(label.getTitle(), QStringLiteral("totaal vandaag"));
    QCOMPARE(label.property("title").toString(), QStringLiteral("totaal vandaag"));
}

void tst_ZEMWidgetLabel::titleIsIndentedAndShadowed()
{
    ZEMWidgetLabel label;
    label.setTitle(QStringLiteral("H"));
    const auto inkInColors = [&](const QColor &text, const QColor &shadow) {
        QPalette palette;
        palette.setColor(QPalette::WindowText, text);
        palette.setColor(QPalette::Shadow, shadow);
        label.setPalette(palette);
        return ZemTest::inkRect(ZemTest::render(&label));
    };
    const QRect text = inkInColors(Qt::white, Qt::transparent);
    const QRect shadow = inkInColors(Qt::transparent, Qt::white);
    label.findChild<ZEMTextLabel *>(QStringLiteral("lblTitle"))->setIndent(0);
    const QRect atEdge = inkInColors(Qt::white, Qt::transparent);
    QVERIFY(!atEdge.isNull());
    QCOMPARE(text, atEdge.translated(5, 0));
    QCOMPARE(shadow, atEdge.translated(6, 1));
}

QTEST_MAIN(tst_ZEMWidgetLabel)
#include "tst_zemwidgetlabel.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "centredmark_p.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMRadioButton>

#include <QButtonGroup>
#include <QPainter>
#include <QTest>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::inkRect;
using ZemTest::render;

class tst_ZEMRadioButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void defaultPictures();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void backgroundLocksTheSize();
    void checkedIconChangesNoSize();
    void backgroundIsStretched();
    void markStandsInTheMiddle_data();
    void markStandsInTheMiddle();
    void oversizedMarkIsDrawnFromTheCornerInFullSize();
    void uncheckedButtonHasNoMark();
    void disabledButtonLooksTheSame();
    void groupChecksOne();
    void whenSettersPaint();
};

void tst_ZEMRadioButton::newButton()
{
    ZEMRadioButton button;
    QCOMPARE(button.objectName(), QStringLiteral("ZEMRadioButton"));
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    QVERIFY(!button.inherits("ZEMButton"));
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(button.size(), QSize(13, 12));
    QCOMPARE(button.minimumSize(), QSize(13, 12));
    QCOMPARE(button.maximumSize(), QSize(13, 12));
    QCOMPARE(button.sizeHint(), QSize(13, 12));

    QWidget host;
    QCOMPARE((new ZEMRadioButton(&host))->parentWidget(), &host);
}

void tst_ZEMRadioButton::defaultPictures()
{
    ZEMRadioButton button;
    const QString folder = QStringLiteral(":/zem/graphics/main/buttons/");
    const QPixmap background(folder + QStringLiteral("radio_btn_bg.png"));
    const QPixmap mark(folder + QStringLiteral("radio_btn_selected.png"));
    QVERIFY(!background.isNull());
    QVERIFY(!mark.isNull());
    QCOMPARE(button.getBackground().toImage(), background.toImage());
    QCOMPARE(button.getCheckedIcon().toImage(), mark.toImage());
}

void tst_ZEMRadioButton::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMRadioButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QAbstractButton::staticMetaObject);
    QCOMPARE(
        ownProperties(metaObject),
        QStringList({QStringLiteral("background:QPixmap"), QStringLiteral("checkedIcon:QPixmap")}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMRadioButton::propertiesReachTheAccessors()
{
    ZEMRadioButton button;
    const QPixmap background = flatPixmap({30, 20}, Qt::red);
    const QPixmap mark = flatPixmap({10, 10}, Qt::blue);
    QVERIFY(button.setProperty("background", background));
    QVERIFY(button.setProperty("checkedIcon", mark));
    QCOMPARE(button.getBackground().cacheKey(), background.cacheKey());
    QCOMPARE(button.getCheckedIcon().cacheKey(), mark.cacheKey());
    QCOMPARE(button.property("background").value<QPixmap>().cacheKey(), background.cacheKey());
    QCOMPARE(button.property("checkedIcon").value<QPixmap>().cacheKey(), mark.cacheKey());
}

void tst_ZEMRadioButton::backgroundLocksTheSize()
{
    ZEMRadioButton button;
    for (const QSize &size : {QSize(40, 8), QSize(6, 30)}) {
        button.setBackground(flatPixmap(size, Qt::red));
        QCOMPARE(button.size(), size);
        QCOMPARE(button.minimumSize(), size);
        QCOMPARE(button.maximumSize(), size);
        QCOMPARE(button.sizeHint(), size);
    }
}

void tst_ZEMRadioButton::checkedIconChangesNoSize()
{
    ZEMRadioButton button;
    button.setCheckedIcon(flatPixmap({100, 100}, Qt::blue));
    QCOMPARE(button.size(), QSize(13, 12));
}

void tst_ZEMRadioButton::backgroundIsStretched()
{
    ZEMRadioButton button;
    button.setBackground(flatPixmap({4, 4}, Qt::red));
    button.setFixedSize(50, 30);
    QCOMPARE(inkRect(render(&button)), QRect(0, 0, 50, 30));
    QCOMPARE(button.sizeHint(), QSize(50, 30));
}

void tst_ZEMRadioButton::markStandsInTheMiddle_data()
{
    QTest::addColumn<QSize>("button");
    QTest::addColumn<QSize>("mark");
    QTest::addColumn<QPoint>("place");

    QTest::newRow("even rest") << QSize(20, 12) << QSize(6, 6) << QPoint(7, 3);
    QTest::newRow("odd rest") << QSize(13, 13) << QSize(6, 8) << QPoint(3, 2);
    QTest::newRow("same size") << QSize(13, 12) << QSize(13, 12) << QPoint(0, 0);
    QTest::newRow("one pixel less") << QSize(13, 12) << QSize(12, 11) << QPoint(0, 0);
    QTest::newRow("too wide") << QSize(10, 20) << QSize(14, 6) << QPoint(0, 7);
    QTest::newRow("too high") << QSize(20, 10) << QSize(6, 15) << QPoint(7, 0);
    QTest::newRow("too large") << QSize(10, 10) << QSize(30, 30) << QPoint(0, 0);
}

void tst_ZEMRadioButton::markStandsInTheMiddle()
{
    QFETCH(QSize, button);
    QFETCH(QSize, mark);
    QFETCH(QPoint, place);

    QCOMPARE(centredMark(button, mark), QRect(place, mark));

    ZEMRadioButton radio;
    radio.setBackground(flatPixmap(button, Qt::red));
    radio.setCheckedIcon(flatPixmap(mark, Qt::blue));
    radio.setChecked(true);
    QCOMPARE(inkRect(render(&radio), Qt::red), QRect(place, mark) & QRect(QPoint(0, 0), button));
}

void tst_ZEMRadioButton::oversizedMarkIsDrawnFromTheCornerInFullSize()
{
    QPixmap mark = flatPixmap({30, 30}, Qt::blue);
    QPainter painter(&mark);
    painter.fillRect(0, 0, 5, 5, Qt::green);
    painter.end();

    ZEMRadioButton button;
    button.setBackground(flatPixmap({10, 10}, Qt::red));
    button.setCheckedIcon(mark);
    button.setChecked(true);
    const QImage image = render(&button);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::green));
    QCOMPARE(image.pixelColor(4, 4), QColor(Qt::green));
    QCOMPARE(image.pixelColor(5, 5), QColor(Qt::blue));
}

void tst_ZEMRadioButton::uncheckedButtonHasNoMark()
{
    ZEMRadioButton button;
    button.setBackground(flatPixmap({10, 10}, Qt::red));
    button.setCheckedIcon(flatPixmap({4, 4}, Qt::blue));
    QVERIFY(inkRect(render(&button), Qt::red).isNull());
}

void tst_ZEMRadioButton::disabledButtonLooksTheSame()
{
    ZEMRadioButton button;
    for (bool checked : {false, true}) {
        button.setEnabled(true);
        button.setChecked(checked);
        const QImage enabled = render(&button);
        button.setEnabled(false);
        QCOMPARE(render(&button), enabled);
    }
}

void tst_ZEMRadioButton::groupChecksOne()
{
    QButtonGroup group;
    ZEMRadioButton first;
    ZEMRadioButton second;
    group.addButton(&first);
    group.addButton(&second);
    first.setChecked(true);
    second.setChecked(true);
    QVERIFY(!first.isChecked());
    QVERIFY(second.isChecked());
}

void tst_ZEMRadioButton::whenSettersPaint()
{
    ZEMRadioButton button;
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    const QPixmap background = button.getBackground();
    QCOMPARE(paintedBy(&button, [&] { button.setBackground(background); }), Painted::AtOnce);
    QCOMPARE(paintedBy(&button, [&] { button.setCheckedIcon(background); }), Painted::AtOnce);
}

QTEST_MAIN(tst_ZEMRadioButton)
#include "tst_zemradiobutton.moc"

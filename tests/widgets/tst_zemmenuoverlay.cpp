// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMMenuOverlay>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPaintEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;
using FormTest::part;
using ZemTest::flatPixmap;
using ZemTest::render;

namespace {

constexpr int buttonCount = 4;
const char *const buttonNames[] = {"button1", "button2", "button3", "button4"};
const char *const labelNames[] = {"lblButton1", "lblButton2", "lblButton3", "lblButton4"};
const char *const rowNames[] = {"horizontalLayout", "horizontalLayout_2", "horizontalLayout_3",
                                "horizontalLayout_4"};
const char *const texts[] = {"afsluiten", "standby", "annuleren", "status"};

using Signal = void (ZEMMenuOverlay::*)();
const Signal clickedSignals[] = {&ZEMMenuOverlay::button1_clicked, &ZEMMenuOverlay::button2_clicked,
                                 &ZEMMenuOverlay::button3_clicked,
                                 &ZEMMenuOverlay::button4_clicked};

ZEMPageBackground *cutoutOf(const ZEMMenuOverlay &menu)
{
    return part<ZEMPageBackground>(menu, "pageCutout");
}

/** Collects what is to be painted of one widget. */
class PaintedRegion : public QObject
{
public:
    explicit PaintedRegion(QWidget *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            region += static_cast<QPaintEvent *>(event)->region();
        }
        return false;
    }

    QRegion region;
};

QString labelText(const ZEMMenuOverlay &menu, int index)
{
    return part<QLabel>(menu, labelNames[index])->text();
}

} // namespace

class tst_ZEMMenuOverlay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newMenu();
    void formOfThePage();
    void formOfTheButtons();
    void textIsBlackInTheFontOfTheMenu();
    void textsAreTranslated();
    void declaresItsInterface();
    void textsReachTheirLabels();
    void propertiesReachTheAccessors();
    void fontsReachTheirLabels();
    void popupColor();
    void fourthButtonIsShownAndHidden();
    void touchHidesAndTells_data();
    void touchHidesAndTells();
    void menuCanBeShownAgainByTheHost();
    void touchBesideTheButtonsDoesNothing();
    void isPaintedOverThePage();
};

void tst_ZEMMenuOverlay::newMenu()
{
    ZEMMenuOverlay menu;
    QCOMPARE(menu.objectName(), QStringLiteral("ZEMMenuOverlay"));
    QCOMPARE(menu.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(menu.size(), QSize(640, 480));
    QCOMPARE(menu.getBackgroundColor(), QColor(0, 0, 0, 191));
    QVERIFY(menu.getBackground().isNull());
    QCOMPARE(menu.font().family(), QStringLiteral("Quicksand Book"));
    QCOMPARE(menu.font().pointSize(), 18);
    QCOMPARE(menu.font().weight(), int(QFont::Bold));
    for (int i = 0; i < buttonCount; ++i) {
        QCOMPARE(part<ZEMButton>(menu, buttonNames[i])->isHidden(), i == 3);
        QCOMPARE(labelText(menu, i), QLatin1String(texts[i]));
    }

    QWidget host;
    QCOMPARE((new ZEMMenuOverlay(&host))->parentWidget(), &host);
}

void tst_ZEMMenuOverlay::formOfThePage()
{
    const ZEMMenuOverlay menu;
    const auto *grid = qobject_cast<QGridLayout *>(menu.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QStringList items = FormTest::items(grid);
    items.sort();
    QCOMPARE(items,
             FormTest::strings(
                 {"0,1: spacer 20x113 Minimum/Expanding", "1,0: spacer 158x20 Expanding/Minimum",
                  "1,1 2x1: ZEMPageBackground pageCutout", "2,2: spacer 158x20 Expanding/Minimum",
                  "3,1: spacer 20x112 Minimum/Expanding"}));
    QCOMPARE(cutoutOf(menu)->minimumSize(), QSize(0, 0));
    QCOMPARE(cutoutOf(menu)->getBackgroundColor(), QColor(255, 255, 255, 25));
}

void tst_ZEMMenuOverlay::formOfTheButtons()
{
    const ZEMMenuOverlay menu;
    const auto *column = qobject_cast<QVBoxLayout *>(cutoutOf(menu)->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(column->spacing(), 7);
    QCOMPARE(column->contentsMargins(), QMargins(7, 7, 7, 7));
    QCOMPARE(FormTest::items(column),
             FormTest::strings({"ZEMButton button1", "ZEMButton button2", "ZEMButton button3",
                                "ZEMButton button4"}));

    const QImage picture =
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/popup_btn.png")).toImage();
    for (int i = 0; i < buttonCount; ++i) {
        const auto *button = part<ZEMButton>(menu, buttonNames[i]);
        QCOMPARE(button->getBackground().toImage(), picture);
        QCOMPARE(button->size(), QSize(272, 62));
        const auto *row = qobject_cast<QHBoxLayout *>(button->layout());
        QVERIFY(row);
        QCOMPARE(row->objectName(), QLatin1String(rowNames[i]));
        QCOMPARE(FormTest::items(row),
                 QStringList(QStringLiteral("QLabel ") + QLatin1String(labelNames[i])));
        QCOMPARE(part<QLabel>(menu, labelNames[i])->alignment(), Qt::Alignment(Qt::AlignCenter));
    }
}

void tst_ZEMMenuOverlay::textIsBlackInTheFontOfTheMenu()
{
    const ZEMMenuOverlay menu;
    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(menu.palette().color(group, QPalette::ButtonText), QColor(Qt::black));
    }
    for (const char *name : labelNames) {
        const auto *label = part<QLabel>(menu, name);
        QCOMPARE(label->foregroundRole(), QPalette::ButtonText);
        QCOMPARE(label->palette().color(QPalette::Active, QPalette::ButtonText), QColor(Qt::black));
        QCOMPARE(label->font().pointSize(), 18);
        QCOMPARE(label->font().family(), QStringLiteral("Quicksand Book"));
    }
}

void tst_ZEMMenuOverlay::textsAreTranslated()
{
    ContextTranslator translator;
    const ZEMMenuOverlay menu;
    QCOMPARE(menu.windowTitle(), QStringLiteral("ZEMMenuOverlay/Form"));
    for (int i = 0; i < buttonCount; ++i) {
        QCOMPARE(labelText(menu, i), QStringLiteral("ZEMMenuOverlay/") + QLatin1String(texts[i]));
    }
}

void tst_ZEMMenuOverlay::declaresItsInterface()
{
    const QMetaObject &metaObject = ZEMMenuOverlay::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMPageBackground::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             FormTest::strings({"popupColor:QColor", "text1:QString", "text2:QString",
                                "text3:QString", "text4:QString"}));
    QCOMPARE(ownMethodCount(metaObject), 9);
    for (const char *name : buttonNames) {
        const QByteArray signal = QByteArray(name) + "_clicked()";
        QVERIFY(metaObject.indexOfSignal(signal.constData()) >= metaObject.methodOffset());
        const QByteArray slot = QByteArray(name) + "_clicked_hide()";
        const int index = metaObject.indexOfSlot(slot.constData());
        QVERIFY(index >= metaObject.methodOffset());
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Private);
    }
    const int index = metaObject.indexOfSlot("showButton4(bool)");
    QVERIFY(index >= metaObject.methodOffset());
    QCOMPARE(metaObject.method(index).access(), QMetaMethod::Public);
}

void tst_ZEMMenuOverlay::textsReachTheirLabels()
{
    ZEMMenuOverlay menu;
    menu.setText1(QStringLiteral("a"));
    menu.setText2(QStringLiteral("b"));
    menu.setText3(QStringLiteral("c"));
    menu.setText4(QStringLiteral("d"));
    QCOMPARE(labelText(menu, 0), QStringLiteral("a"));
    QCOMPARE(labelText(menu, 1), QStringLiteral("b"));
    QCOMPARE(labelText(menu, 2), QStringLiteral("c"));
    QCOMPARE(labelText(menu, 3), QStringLiteral("d"));
    QCOMPARE(menu.getText1(), QStringLiteral("a"));
    QCOMPARE(menu.getText2(), QStringLiteral("b"));
    QCOMPARE(menu.getText3(), QStringLiteral("c"));
    QCOMPARE(menu.getText4(), QStringLiteral("d"));
}

void tst_ZEMMenuOverlay::propertiesReachTheAccessors()
{
    ZEMMenuOverlay menu;
    for (int i = 0; i < buttonCount; ++i) {
        const QByteArray property = "text" + QByteArray::number(i + 1);
        QCOMPARE(menu.property(property.constData()).toString(), QLatin1String(texts[i]));
        QVERIFY(menu.setProperty(property.constData(), QString::number(i)));
        QCOMPARE(labelText(menu, i), QString::number(i));
    }
    QVERIFY(menu.setProperty("popupColor", QColor(Qt::green)));
    QCOMPARE(menu.getPopupColor(), QColor(Qt::green));
    QCOMPARE(menu.property("popupColor").value<QColor>(), QColor(Qt::green));
}

void tst_ZEMMenuOverlay::fontsReachTheirLabels()
{
    ZEMMenuOverlay menu;
    using SetFont = void (ZEMMenuOverlay::*)(QFont &);
    const SetFont setters[] = {&ZEMMenuOverlay::setFont1, &ZEMMenuOverlay::setFont2,
                               &ZEMMenuOverlay::setFont3, &ZEMMenuOverlay::setFont4};
    for (int i = 0; i < buttonCount; ++i) {
        QFont font(QStringLiteral("DejaVu Serif"), 30 + i);
        (menu.*setters[i])(font);
    }
    for (int i = 0; i < buttonCount; ++i) {
        const QFont font = part<QLabel>(menu, labelNames[i])->font();
        QCOMPARE(font.pointSize(), 30 + i);
        QCOMPARE(font.family(), QStringLiteral("DejaVu Serif"));
    }
    QCOMPARE(menu.font().pointSize(), 18);
}

void tst_ZEMMenuOverlay::popupColor()
{
    ZEMMenuOverlay menu;
    QCOMPARE(menu.getPopupColor(), QColor(255, 255, 255, 25));
    const Stage stage(&menu);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(&menu, [&] { menu.setPopupColor(Qt::green); }), Painted::AtOnce);
    const PaintedRegion painted(&menu);
    menu.setPopupColor(Qt::green);
    QCOMPARE(painted.region, QRegion(menu.rect())); // and not the cutout alone
    QCOMPARE(cutoutOf(menu)->getBackgroundColor(), QColor(Qt::green));
    QCOMPARE(menu.getPopupColor(), QColor(Qt::green));
    QCOMPARE(menu.getBackgroundColor(), QColor(0, 0, 0, 191));
}

void tst_ZEMMenuOverlay::fourthButtonIsShownAndHidden()
{
    ZEMMenuOverlay menu;
    const auto *button = part<ZEMButton>(menu, "button4");
    const Stage stage(&menu);
    QVERIFY(stage.isReady());
    QVERIFY(!button->isVisible());
    menu.showButton4(true);
    QVERIFY(button->isVisible());
    menu.showButton4(false);
    QVERIFY(!button->isVisible());
    QVERIFY(QMetaObject::invokeMethod(&menu, "showButton4", Q_ARG(bool, true)));
    QVERIFY(button->isVisible());
}

void tst_ZEMMenuOverlay::touchHidesAndTells_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < buttonCount; ++i) {
        QTest::newRow(buttonNames[i]) << i;
    }
}

void tst_ZEMMenuOverlay::touchHidesAndTells()
{
    QFETCH(int, index);
    ZEMMenuOverlay menu;
    menu.showButton4(true);
    const Stage stage(&menu);
    QVERIFY(stage.isReady());
    QList<int> told;
    QList<bool> visible;
    for (int i = 0; i < buttonCount; ++i) {
        connect(&menu, clickedSignals[i], &menu, [&told, &visible, &menu, i] {
            told.append(i);
            visible.append(menu.isVisible());
        });
    }
    auto *button = part<ZEMButton>(menu, buttonNames[index]);
    ZemTest::press(button, button->rect().center()); // on the label, which lets it through
    QVERIFY(menu.isVisible());
    QVERIFY(told.isEmpty());
    ZemTest::release(button, button->rect().center());
    QCOMPARE(told, QList<int>({index}));
    QCOMPARE(visible, QList<bool>({false}));
    QVERIFY(menu.isHidden());
}

void tst_ZEMMenuOverlay::menuCanBeShownAgainByTheHost()
{
    ZEMMenuOverlay menu;
    const Stage stage(&menu);
    QVERIFY(stage.isReady());
    connect(&menu, &ZEMMenuOverlay::button2_clicked, &menu, &QWidget::show);
    part<ZEMButton>(menu, "button2")->click();
    QVERIFY(menu.isVisible());
    part<ZEMButton>(menu, "button1")->click();
    QVERIFY(!menu.isVisible());
}

void tst_ZEMMenuOverlay::touchBesideTheButtonsDoesNothing()
{
    ZEMMenuOverlay menu;
    const Stage stage(&menu);
    QVERIFY(stage.isReady());
    for (Signal signal : clickedSignals) {
        connect(&menu, signal, &menu, [] { QFAIL("nothing was chosen"); });
    }
    for (const QPoint &place : {QPoint(5, 5), QPoint(320, 470), cutoutOf(menu)->pos()}) {
        ZemTest::press(&menu, place);
        ZemTest::release(&menu, place);
        QVERIFY(menu.isVisible());
    }
}

void tst_ZEMMenuOverlay::isPaintedOverThePage()
{
    ZEMMenuOverlay menu;
    for (const char *name : buttonNames) {
        part<ZEMButton>(menu, name)->setBackground(flatPixmap({272, 62}, Qt::red));
    }
    menu.setText1(QString());
    menu.setText2(QString());
    menu.setText3(QString());
    menu.setPopupColor(Qt::green);
    const QImage image = render(&menu, Qt::white);

    // The cutout holds three buttons and the margins and gaps of 7, and stands in the middle.
    const QSize cutout(272 + 2 * 7, 3 * 62 + 4 * 7);
    const QRect place = cutoutOf(menu)->geometry();
    QCOMPARE(place.size(), cutout);
    QCOMPARE(place.left(), (640 - cutout.width()) / 2);
    QVERIFY(qAbs(place.top() - (480 - cutout.height()) / 2) <= 1);

    const QColor dimmed(64, 64, 64); // a quarter of the white page
    const QPoint outside = place.topLeft() - QPoint(1, 1);
    for (const QPoint &point : {QPoint(0, 0), QPoint(639, 479), outside}) {
        QVERIFY(qAbs(image.pixelColor(point).red() - dimmed.red()) <= 1);
    }
    QCOMPARE(image.pixelColor(place.topLeft()), QColor(Qt::green));
    QCOMPARE(image.pixelColor(place.bottomRight()), QColor(Qt::green));
    for (int i = 0; i < 3; ++i) {
        const QPoint first = place.topLeft() + QPoint(7, 7 + i * (62 + 7));
        QCOMPARE(image.pixelColor(first), QColor(Qt::red));
        QCOMPARE(image.pixelColor(first - QPoint(0, 1)), QColor(Qt::green));
        QCOMPARE(image.pixelColor(first + QPoint(271, 61)), QColor(Qt::red));
        QCOMPARE(image.pixelColor(first + QPoint(272, 62)), QColor(Qt::green));
    }
}

QTEST_MAIN(tst_ZEMMenuOverlay)
#include "tst_zemmenuoverlay.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "dialogtest.h"
#include "formtest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMButton>
#include <ZEMDialogPopup>
#include <ZEMTextLabel>
#include <ZEMThrobber>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;
using DialogTest::buttonOf;
using FormTest::part;
using ZemTest::flatPixmap;
using ZemTest::render;

namespace {

const char *const lineNames[] = {"textLine1", "textLine2", "textLine3"};
const QString spinnerText = QStringLiteral("<throbber>");

const ZEMTextLabel *line(const ZEMDialogPopup &dialog, int number)
{
    return part<ZEMTextLabel>(dialog, lineNames[number - 1]);
}

ZEMThrobber *spinnerOf(const ZEMDialogPopup &dialog)
{
    return part<ZEMThrobber>(dialog, "throbber");
}

bool spinnerIsEmpty(const ZEMDialogPopup &dialog)
{
    return spinnerOf(dialog)->pixmap().isNull();
}

constexpr int patience = 120000; // ms, for a machine that hangs
constexpr int someFrames = 500; // ms

/** Whether the spinner shows another picture within @p time. */
bool spins(const ZEMDialogPopup &dialog, int time = patience)
{
    const auto picture = [&] { return spinnerOf(dialog)->pixmap().cacheKey(); };
    const qint64 first = picture();
    return QTest::qWaitFor([&] { return picture() != first; }, time);
}

} // namespace

class tst_ZEMDialogPopup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDialog();
    void staysHiddenWhenItsPageIsShown();
    void formOfThePage();
    void formOfTheContents();
    void formOfTheButtons();
    void textsAreTranslated();
    void declaresItsSlots();
    void upperLines();
    void markerShowsTheSpinner();
    void textShowsTheThirdLine_data();
    void textShowsTheThirdLine();
    void clearTextEmptiesAll();
    void isPaintedOverThePage();
};

void tst_ZEMDialogPopup::newDialog()
{
    ZEMDialogPopup dialog;
    QCOMPARE(dialog.objectName(), QStringLiteral("ZEMDialogPopup"));
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(dialog.size(), QSize(640, 480));
    QCOMPARE(dialog.getBackgroundColor(), QColor(0, 0, 0, 150));
    QVERIFY(dialog.getBackground().isNull());
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.testAttribute(Qt::WA_ShowModal));
    for (int number : {1, 2, 3}) {
        QCOMPARE(line(dialog, number)->text(), QStringLiteral("Are you sure?"));
        QVERIFY(!line(dialog, number)->isHidden());
    }
    QCOMPARE(spinnerOf(dialog)->text(), spinnerText);
    QVERIFY(!spinnerOf(dialog)->isHidden());
    QVERIFY(spins(dialog));

    QWidget host;
    host.show();
    auto *child = new ZEMDialogPopup(&host);
    QCOMPARE(child->parentWidget(), &host);
    QVERIFY(!child->isVisible());
}

void tst_ZEMDialogPopup::staysHiddenWhenItsPageIsShown()
{
    QWidget page;
    const auto *onThePage = new ZEMDialogPopup(&page);
    auto *inALayout = new ZEMDialogPopup;
    (new QVBoxLayout(&page))->addWidget(inALayout);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page, ZemTest::hangs));
    QCoreApplication::processEvents();
    QVERIFY(!onThePage->isVisible());
    QVERIFY(!inALayout->isVisible());
}

void tst_ZEMDialogPopup::formOfThePage()
{
    const ZEMDialogPopup dialog;
    const auto *grid = qobject_cast<QGridLayout *>(dialog.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->contentsMargins(), FormTest::styleMargins());
    QStringList items = FormTest::items(grid);
    items.sort();
    QCOMPARE(items,
             FormTest::strings(
                 {"0,1: spacer 20x53 Minimum/Expanding", "1,0: spacer 80x20 Minimum/Minimum",
                  "1,1: ZEMPageBackground pageCutout", "1,2: spacer 80x20 Minimum/Minimum",
                  "2,1: spacer 20x52 Minimum/Expanding"}));
    const auto *cutout = part<ZEMPageBackground>(dialog, "pageCutout");
    QCOMPARE(cutout->sizePolicy(),
             FormTest::policy(QSizePolicy::Preferred, QSizePolicy::Preferred));
    QCOMPARE(cutout->minimumSize(), QSize(440, 240));
    QCOMPARE(cutout->getBackgroundColor(), QColor(0, 0, 0, 200));
}

void tst_ZEMDialogPopup::formOfTheContents()
{
    const ZEMDialogPopup dialog;
    const auto *column = qobject_cast<QVBoxLayout *>(part<QWidget>(dialog, "pageCutout")->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QStringLiteral("verticalLayout_2"));
    QCOMPARE(column->spacing(), 6);
    const QMargins style = FormTest::styleMarginsOfAChild();
    QCOMPARE(column->contentsMargins(), QMargins(style.left(), 20, style.right(), 20));
    QCOMPARE(FormTest::items(column),
             FormTest::strings({"QVBoxLayout verticalLayout", "spacer 20x40 Minimum/Minimum",
                                "QHBoxLayout horizontalLayout", "spacer 20x39 Minimum/Minimum"}));
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "verticalLayout")),
             FormTest::strings({"ZEMTextLabel textLine1", "ZEMTextLabel textLine2",
                                "ZEMTextLabel textLine3", "ZEMThrobber throbber"}));
    for (int number : {1, 2, 3}) {
        QCOMPARE(line(dialog, number)->font().pointSize(), 22);
        QCOMPARE(line(dialog, number)->alignment(), Qt::Alignment(Qt::AlignCenter));
        QVERIFY(line(dialog, number)->getShadow());
    }
    QVERIFY(!spinnerOf(dialog)->getShadow());
}

void tst_ZEMDialogPopup::formOfTheButtons()
{
    const ZEMDialogPopup dialog;
    QCOMPARE(FormTest::items(part<QLayout>(dialog, "horizontalLayout")),
             FormTest::strings({"spacer 40x20 Expanding/Minimum", "ZEMButton btnRejected",
                                "spacer 40x20 Preferred/Minimum", "ZEMButton btnAccepted",
                                "spacer 40x20 Expanding/Minimum"}));
    const QImage background =
        QPixmap(QStringLiteral(":/zem/graphics/main/buttons/btn_square_small.png")).toImage();
    const auto check = [&](const char *name, const QString &icon) {
        const ZEMButton *button = buttonOf(dialog, name);
        QCOMPARE(button->getBackground().toImage(), background);
        QCOMPARE(button->size(), QSize(75, 75));
        QCOMPARE(button->icon().pixmap(50, 50, QIcon::Normal, QIcon::Off).toImage(),
                 QIcon(icon).pixmap(50, 50).toImage());
        QVERIFY(button->isEnabled());
    };
    check("btnRejected", QStringLiteral(":/zem/graphics/icons/red-close-icon.png"));
    check("btnAccepted", QStringLiteral(":/zem/graphics/icons/green-ok-icon.png"));
}

void tst_ZEMDialogPopup::textsAreTranslated()
{
    ContextTranslator translator;
    const ZEMDialogPopup dialog;
    QCOMPARE(dialog.windowTitle(), QStringLiteral("ZEMDialogPopup/Form"));
    for (int number : {1, 2, 3}) {
        QCOMPARE(line(dialog, number)->text(), QStringLiteral("ZEMDialogPopup/Are you sure?"));
    }
    QCOMPARE(spinnerOf(dialog)->text(), QStringLiteral("ZEMDialogPopup/<throbber>"));
}

void tst_ZEMDialogPopup::declaresItsSlots()
{
    const QMetaObject &metaObject = ZEMDialogPopup::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMPageBackground::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList());
    QCOMPARE(ownMethodCount(metaObject), 6); // info() is there with and without its argument
    const auto access = [&](const char *slot) {
        const int index = metaObject.indexOfSlot(slot);
        return index < metaObject.methodOffset() ? QMetaMethod::Protected
                                                 : metaObject.method(index).access();
    };
    QCOMPARE(access("info(bool)"), QMetaMethod::Public);
    QCOMPARE(access("info()"), QMetaMethod::Public);
    QCOMPARE(access("exec()"), QMetaMethod::Public);
    QCOMPARE(access("reset()"), QMetaMethod::Public);
    QCOMPARE(access("btn_accepted_clicked()"), QMetaMethod::Private);
    QCOMPARE(access("btn_rejected_clicked()"), QMetaMethod::Private);
    QCOMPARE(metaObject.method(metaObject.indexOfSlot("exec()")).returnType(),
             int(QMetaType::Bool));
}

void tst_ZEMDialogPopup::upperLines()
{
    ZEMDialogPopup dialog;
    dialog.setTextLine1(QStringLiteral("een"));
    dialog.setTextLine2(spinnerText); // means nothing here
    QCOMPARE(line(dialog, 1)->text(), QStringLiteral("een"));
    QCOMPARE(line(dialog, 2)->text(), spinnerText);
    QCOMPARE(line(dialog, 3)->text(), QStringLiteral("Are you sure?"));
    QVERIFY(!line(dialog, 2)->isHidden());
}

void tst_ZEMDialogPopup::markerShowsTheSpinner()
{
    ZEMDialogPopup dialog;
    dialog.setTextLine3(QStringLiteral("drie"));
    QVERIFY(spinnerIsEmpty(dialog));
    dialog.setTextLine3(spinnerText);
    QVERIFY(line(dialog, 3)->isHidden());
    QCOMPARE(line(dialog, 3)->text(), QStringLiteral("drie"));
    QVERIFY(!spinnerOf(dialog)->isHidden());
    QVERIFY(!spinnerIsEmpty(dialog));
    QVERIFY(spins(dialog));
}

void tst_ZEMDialogPopup::textShowsTheThirdLine_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("text") << QStringLiteral("drie");
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("null") << QString();
    QTest::newRow("marker in capitals") << QStringLiteral("<THROBBER>");
    QTest::newRow("more than the marker") << QStringLiteral("<throbber> ");
}

void tst_ZEMDialogPopup::textShowsTheThirdLine()
{
    QFETCH(QString, text);
    ZEMDialogPopup dialog;
    dialog.setTextLine3(spinnerText);
    dialog.setTextLine3(text);
    QCOMPARE(line(dialog, 3)->text(), text);
    QVERIFY(!line(dialog, 3)->isHidden());
    QVERIFY(spinnerOf(dialog)->isHidden());
    QVERIFY(spinnerIsEmpty(dialog));
    QVERIFY(!spins(dialog, someFrames));
}

void tst_ZEMDialogPopup::clearTextEmptiesAll()
{
    ZEMDialogPopup dialog;
    dialog.setTextLine3(spinnerText);
    dialog.clearText();
    for (int number : {1, 2, 3}) {
        QVERIFY(line(dialog, number)->text().isEmpty());
        QVERIFY(!line(dialog, number)->isHidden());
    }
    QVERIFY(spinnerOf(dialog)->isHidden());
    QVERIFY(spinnerIsEmpty(dialog));
    QVERIFY(!spins(dialog, someFrames));
}

void tst_ZEMDialogPopup::isPaintedOverThePage()
{
    ZEMDialogPopup dialog;
    dialog.clearText();
    for (const char *name : {"btnRejected", "btnAccepted"}) {
        buttonOf(dialog, name)->setIcon(QIcon());
        buttonOf(dialog, name)
            ->setBackground(flatPixmap({75, 75}, name[3] == 'R' ? Qt::red : Qt::green));
    }
    const QImage image = render(&dialog, Qt::white);
    const auto grey = [&](const QPoint &point) { return image.pixelColor(point).red(); };

    const QRect cutout = part<QWidget>(dialog, "pageCutout")->geometry();
    QVERIFY(cutout.width() >= 440 && cutout.height() >= 240);
    QVERIFY(qAbs(cutout.center().x() - 320) <= 1);
    QVERIFY(qAbs(cutout.center().y() - 240) <= 1);
    // White under a black of 150 is 105, and that under a black of 200 is 23.
    QVERIFY(qAbs(grey({2, 2}) - 105) <= 1);
    QVERIFY(qAbs(grey(cutout.topLeft() - QPoint(1, 1)) - 105) <= 1);
    QVERIFY(qAbs(grey(cutout.topLeft()) - 23) <= 1);
    QVERIFY(qAbs(grey(cutout.bottomRight()) - 23) <= 1);

    const auto middleOf = [&](const char *name) {
        const ZEMButton *button = buttonOf(dialog, name);
        return button->mapTo(&dialog, button->rect().center());
    };
    QCOMPARE(image.pixelColor(middleOf("btnRejected")), QColor(Qt::red));
    QCOMPARE(image.pixelColor(middleOf("btnAccepted")), QColor(Qt::green));
    QVERIFY(middleOf("btnRejected").x() < middleOf("btnAccepted").x());

    dialog.setTextLine1(QStringLiteral("III"));
    const QRect place = line(dialog, 1)->geometry().translated(cutout.topLeft());
    QVERIFY(render(&dialog, Qt::white).copy(place) != image.copy(place));
}

QTEST_MAIN(tst_ZEMDialogPopup)
#include "tst_zemdialogpopup.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettest.h"
#include "zemtest.h"

#include <ZEMLabel>
#include <ZEMPixmap>
#include <ZEMProfileButton>
#include <ZEMTextLabel>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

class tst_ZEMProfileButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButton();
    void picturesAreSwapped();
    void formOfTheRow();
    void formOfTheImage();
    void formOfTheTitle();
    void formOfTheMark();
    void textsAreTranslated();
    void titleHasTheButtonColorInItsPalette();
    void declaresItsPropertiesOnly();
    void propertiesReachTheForm();
    void imageIsShownInItsOwnSize();
    void mark_data();
    void mark();
    void markFollowsAtThePaintOnly();
    void clickOnTheProfileInUseKeepsItsMark();
    void touchOnAnyPartSelectsTheRow_data();
    void touchOnAnyPartSelectsTheRow();
    void rowPaintsAsAButton();
    void titleHasTheButtonColor();
    void titleFollowsTheState();
    void disablingReleasesTheRow();
    void whenSettersPaint();
};

template <typename T>
static T *part(const QObject &button, const char *name)
{
    return button.findChild<T *>(QLatin1String(name));
}

static ZEMButton *checkMark(const ZEMProfileButton &button)
{
    return part<ZEMButton>(button, "iconChecker");
}

static QImage picture(const char *path)
{
    const QImage image(QLatin1String(":/zem/graphics/") + QLatin1String(path));
    return image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

static QImage imageOf(const QPixmap &pixmap)
{
    return pixmap.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void tst_ZEMProfileButton::newButton()
{
    ZEMProfileButton button;
    QCOMPARE(button.objectName(), QStringLiteral("ZEMProfileButton"));
    QCOMPARE(button.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(button.size(), QSize(233, 50));
    QCOMPARE(button.minimumSize(), QSize(233, 50));
    QCOMPARE(button.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    QVERIFY(!button.isActivated());
    QVERIFY(button.getIcon().isNull());
    QCOMPARE(button.getTitle(), QStringLiteral("TextLabel"));

    QWidget host;
    QCOMPARE((new ZEMProfileButton(&host))->parentWidget(), &host);
}

void tst_ZEMProfileButton::picturesAreSwapped()
{
    ZEMProfileButton button;
    const QImage checked = picture("main/buttons/btn_rect_xs_wide_disabled.png");
    const QImage unchecked = picture("main/buttons/btn_rect_xs_wide.png");
    QCOMPARE(checked.size(), QSize(233, 50));
    QVERIFY(checked != unchecked);
    QCOMPARE(imageOf(button.getBackground()), checked);
    QCOMPARE(imageOf(button.getBackgroundOff()), unchecked);
    QVERIFY(button.getBackgroundDisabled().isNull());
}

void tst_ZEMProfileButton::formOfTheRow()
{
    ZEMProfileButton button;
    auto *row = qobject_cast<QHBoxLayout *>(button.layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(row->spacing(), 4);
    QHBoxLayout *styled = new QHBoxLayout;
    QWidget host;
    host.setLayout(styled);
    QCOMPARE(row->contentsMargins(),
             QMargins(6, styled->contentsMargins().top(), 6, styled->contentsMargins().bottom()));
    QCOMPARE(row->count(), 3);
    QCOMPARE(row->itemAt(0)->widget(), part<QWidget>(button, "widget"));
    QCOMPARE(row->itemAt(1)->layout(), part<QVBoxLayout>(button, "verticalLayout"));
    QCOMPARE(row->itemAt(2)->widget(), part<QWidget>(button, "widget_2"));

    for (const char *name : {"widget", "widget_2"}) {
        auto *widget = part<QWidget>(button, name);
        QCOMPARE(widget->metaObject(), &QWidget::staticMetaObject);
        QCOMPARE(widget->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
        QCOMPARE(widget->minimumSize(), QSize(41, 35));
    }
}

void tst_ZEMProfileButton::formOfTheImage()
{
    ZEMProfileButton button;
    auto *grid = qobject_cast<QGridLayout *>(part<QWidget>(button, "widget")->layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    auto *pixmap = qobject_cast<ZEMPixmap *>(grid->itemAtPosition(0, 0)->widget());
    QVERIFY(pixmap);
    QCOMPARE(pixmap->objectName(), QStringLiteral("zemPixmap"));
    QCOMPARE(pixmap->maximumSize(), QSize(0, 0));
    QCOMPARE(grid->count(), 1);
}

void tst_ZEMProfileButton::formOfTheTitle()
{
    ZEMProfileButton button;
    auto *column = part<QVBoxLayout>(button, "verticalLayout");
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins(0, 6, 0, 6)); // nested, so the rest is 0
    QCOMPARE(column->count(), 1);
    auto *title = qobject_cast<ZEMLabel *>(column->itemAt(0)->widget());
    QVERIFY(title);
    QCOMPARE(title->objectName(), QStringLiteral("lblTitle"));
    QCOMPARE(title->getAlignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(title->getText(), QStringLiteral("TextLabel"));
}

void tst_ZEMProfileButton::formOfTheMark()
{
    ZEMProfileButton button;
    auto *grid = qobject_cast<QGridLayout *>(part<QWidget>(button, "widget_2")->layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout_2"));
    QCOMPARE(grid->horizontalSpacing(), 0);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid->count(), 1);

    auto *mark = qobject_cast<ZEMButton *>(grid->itemAtPosition(0, 0)->widget());
    QVERIFY(mark);
    QCOMPARE(mark->objectName(), QStringLiteral("iconChecker"));
    QVERIFY(mark->isCheckable());
    QVERIFY(mark->isChecked());
    QVERIFY(!mark->getHideWhenDisabled());
    QCOMPARE(mark->size(), QSize(28, 25));
    QCOMPARE(imageOf(mark->getBackground()), picture("icons/check.png"));
    QCOMPARE(imageOf(mark->getBackgroundOff()), picture("icons/check_disabled.png"));
}

void tst_ZEMProfileButton::textsAreTranslated()
{
    ContextTranslator translator;
    ZEMProfileButton button;
    QCOMPARE(button.windowTitle(), QStringLiteral("ZEMProfileButton/Form"));
    QCOMPARE(button.getTitle(), QStringLiteral("ZEMProfileButton/TextLabel"));
}

void tst_ZEMProfileButton::titleHasTheButtonColorInItsPalette()
{
    ZEMProfileButton button;
    const QPalette palette = part<ZEMLabel>(button, "lblTitle")->palette();
    for (int group = 0; group < QPalette::NColorGroups; ++group) {
        QCOMPARE(palette.brush(QPalette::ColorGroup(group), QPalette::ButtonText),
                 QBrush(QColor(255, 255, 255, 204)));
    }
    QCOMPARE(palette.color(QPalette::Active, QPalette::WindowText), QColor(Qt::white));
    QCOMPARE(palette.color(QPalette::Disabled, QPalette::WindowText), QColor(120, 120, 120));
}

void tst_ZEMProfileButton::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMProfileButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMButton::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             QStringList({QStringLiteral("icon:QPixmap"), QStringLiteral("title:QString"),
                          QStringLiteral("activated:bool")}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMProfileButton::propertiesReachTheForm()
{
    ZEMProfileButton button;
    const QPixmap image = flatPixmap({30, 30}, Qt::red);
    QVERIFY(button.setProperty("icon", image));
    QCOMPARE(part<ZEMPixmap>(button, "zemPixmap")->getPixmap().cacheKey(), image.cacheKey());
    QCOMPARE(button.getIcon().cacheKey(), image.cacheKey());
    QCOMPARE(button.property("icon").value<QPixmap>().cacheKey(), image.cacheKey());
    QVERIFY(button.icon().isNull());

    QVERIFY(button.setProperty("title", QStringLiteral("Afwezig")));
    QCOMPARE(part<ZEMLabel>(button, "lblTitle")->getText(), QStringLiteral("Afwezig"));
    QCOMPARE(button.getTitle(), QStringLiteral("Afwezig"));
    QCOMPARE(button.property("title").toString(), QStringLiteral("Afwezig"));
    QCOMPARE(button.text(), QString());

    QVERIFY(button.setProperty("activated", true));
    QVERIFY(button.isActivated());
    QVERIFY(button.property("activated").toBool());
}

void tst_ZEMProfileButton::imageIsShownInItsOwnSize()
{
    ZEMProfileButton button;
    button.setBackground(flatPixmap({233, 50}, Qt::black));
    button.setBackgroundOff(QPixmap());
    button.setTitle(QString());
    button.setIcon(flatPixmap({21, 15}, Qt::red));
    const QRect image = ZemTest::inkRect(render(&button));
    const QRect room = part<QWidget>(button, "widget")->geometry();
    QCOMPARE(room.left(), 6);
    QCOMPARE(room.size(), QSize(41, 35));
    QCOMPARE(image, QRect(room.topLeft() + QPoint(10, 10), QSize(21, 15)));
}

void tst_ZEMProfileButton::mark_data()
{
    QTest::addColumn<bool>("activated");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("visible");
    QTest::addColumn<bool>("green");

    QTest::newRow("in use and selected") << true << true << true << true;
    QTest::newRow("in use") << true << false << true << true;
    QTest::newRow("selected") << false << true << true << false;
    QTest::newRow("neither") << false << false << false << true;
}

void tst_ZEMProfileButton::mark()
{
    QFETCH(bool, activated);
    QFETCH(bool, checked);
    QFETCH(bool, visible);
    QFETCH(bool, green);

    ZEMProfileButton button;
    button.setActivated(activated);
    button.setChecked(checked);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    button.repaint();
    QCOMPARE(checkMark(button)->isVisible(), visible);
    if (visible) {
        QCOMPARE(checkMark(button)->isChecked(), green);
    }

    // And from every other state.
    for (int before = 0; before < 4; ++before) {
        button.setActivated(before & 1);
        button.setChecked(before & 2);
        button.repaint();
        button.setActivated(activated);
        button.setChecked(checked);
        button.repaint();
        QCOMPARE(checkMark(button)->isVisible(), visible);
        if (visible) {
            QCOMPARE(checkMark(button)->isChecked(), green);
        }
    }
}

void tst_ZEMProfileButton::markFollowsAtThePaintOnly()
{
    ZEMProfileButton button;
    button.setChecked(true);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    button.repaint();
    QVERIFY(!checkMark(button)->isChecked());
    button.setActivated(true);
    QVERIFY(!checkMark(button)->isChecked());
    QTRY_VERIFY(checkMark(button)->isChecked());
}

void tst_ZEMProfileButton::clickOnTheProfileInUseKeepsItsMark()
{
    ZEMProfileButton button;
    button.setActivated(true);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    for (bool checked : {true, false}) {
        ZemTest::press(&button, QPoint(100, 25));
        ZemTest::release(&button, QPoint(100, 25));
        QCOMPARE(button.isChecked(), checked);
        button.repaint();
        QVERIFY(checkMark(button)->isVisible());
        QVERIFY(checkMark(button)->isChecked());
    }
}

void tst_ZEMProfileButton::touchOnAnyPartSelectsTheRow_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"widget", "lblTitle", "widget_2", "iconChecker"}) {
        QTest::newRow(name) << QByteArray(name);
    }
}

void tst_ZEMProfileButton::touchOnAnyPartSelectsTheRow()
{
    QFETCH(QByteArray, name);

    ZEMProfileButton button;
    button.setIcon(flatPixmap({30, 30}, Qt::red));
    button.setActivated(true);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    button.repaint();
    auto *touched = part<QWidget>(button, name);
    QVERIFY(touched->isVisible());
    QSignalSpy clicked(&button, &ZEMProfileButton::clicked);
    ZemTest::press(touched, touched->rect().center());
    ZemTest::release(touched, touched->rect().center());
    QCOMPARE(clicked.count(), 1);
    QVERIFY(button.isChecked());
    QVERIFY(checkMark(button)->isChecked());
}

void tst_ZEMProfileButton::rowPaintsAsAButton()
{
    ZEMProfileButton button;
    button.setBackground(flatPixmap({233, 50}, Qt::green));
    button.setBackgroundOff(flatPixmap({233, 50}, Qt::blue));
    QCOMPARE(render(&button).pixelColor(1, 1), QColor(Qt::blue));
    button.setChecked(true);
    QCOMPARE(render(&button).pixelColor(1, 1), QColor(Qt::green));
    button.setEnabled(false);
    QCOMPARE(render(&button).pixelColor(1, 1), QColor(Qt::blue));
}

/** The strongest red, green and blue of the title, whatever the pixel. */
static QColor titleColor(ZEMProfileButton *button)
{
    const QImage image = render(button);
    QColor strongest(Qt::black);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            strongest =
                QColor(qMax(strongest.red(), pixel.red()), qMax(strongest.green(), pixel.green()),
                       qMax(strongest.blue(), pixel.blue()));
        }
    }
    return strongest;
}

/** A black row with nothing on it but a title whose letters have stems of several pixels. */
static void prepareTitle(ZEMProfileButton *button)
{
    button->setBackground(flatPixmap({233, 50}, Qt::black));
    button->setBackgroundOff(QPixmap());
    button->setTitle(QStringLiteral("HHH"));
    auto *title = part<ZEMLabel>(*button, "lblTitle");
    title->setShadow(false);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(30);
    font.setBold(true);
    title->setFont(font);
}

void tst_ZEMProfileButton::titleHasTheButtonColor()
{
    ZEMProfileButton button;
    prepareTitle(&button);
    for (bool enabled : {true, false, true}) {
        button.setEnabled(enabled);
        QCOMPARE(titleColor(&button), QColor(204, 204, 204));
    }
}

void tst_ZEMProfileButton::titleFollowsTheState()
{
    ZEMProfileButton button;
    prepareTitle(&button);
    auto *title = part<ZEMLabel>(button, "lblTitle");
    QPalette palette = title->palette();
    palette.setColor(QPalette::Active, QPalette::ButtonText, Qt::green);
    palette.setColor(QPalette::Inactive, QPalette::ButtonText, Qt::red);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::blue);
    title->setPalette(palette);

    QCOMPARE(titleColor(&button), QColor(Qt::green));
    button.setEnabled(false);
    QCOMPARE(title->palette().currentColorGroup(), QPalette::Disabled);
    QCOMPARE(titleColor(&button), QColor(Qt::blue));
    button.setEnabled(true);
    QCOMPARE(title->palette().currentColorGroup(), QPalette::Active);
    QCOMPARE(titleColor(&button), QColor(Qt::green));
}

void tst_ZEMProfileButton::disablingReleasesTheRow()
{
    ZEMProfileButton button;
    button.setDown(true);
    button.setEnabled(false);
    QVERIFY(!button.isDown());
}

void tst_ZEMProfileButton::whenSettersPaint()
{
    ZEMProfileButton button;
    const QPixmap image = flatPixmap({30, 30}, Qt::red);
    button.setIcon(image);
    const Stage stage(&button);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(&button, [&] { button.setActivated(true); }), Painted::Later);
    QCOMPARE(paintedBy(part<ZEMPixmap>(button, "zemPixmap"), [&] { button.setIcon(image); }),
             Painted::AtOnce);
}

QTEST_MAIN(tst_ZEMProfileButton)
#include "tst_zemprofilebutton.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMPageHeader>
#include <ZEMPageHeaderButton>
#include <ZEMPageIndicator>
#include <ZEMRadioButton>

#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include <limits>
#include <utility>

using namespace WidgetTest;
using FormTest::part;
using ZemTest::flatPixmap;
using ZemTest::render;

namespace {

const char fullWarning[] = "ZEMPageHeader: Maximum number of supported app buttons reached!";
const QColor magenta(227, 0, 123);
const QColor skyBlue(97, 180, 220);

QLayout *buttonRow(const ZEMPageHeader &header)
{
    return part<QLayout>(header, "btnLayout");
}

/** The application buttons in the order of the row. */
QList<ZEMPageHeaderButton *> tilesOf(const ZEMPageHeader &header)
{
    QList<ZEMPageHeaderButton *> tiles;
    for (int i = 0; i < buttonRow(header)->count(); ++i) {
        tiles.append(qobject_cast<ZEMPageHeaderButton *>(buttonRow(header)->itemAt(i)->widget()));
    }
    return tiles;
}

int markedDot(const ZEMPageHeader &header)
{
    int marked = -1;
    const auto dots = header.findChildren<ZEMRadioButton *>();
    for (int i = 0; i < dots.size(); ++i) {
        marked = dots.at(i)->isChecked() ? i : marked;
    }
    return marked;
}

/** A header that counts the calls of its virtual operation. */
class CountingHeader : public ZEMPageHeader
{
public:
    void addButton(QWidget *widget) override
    {
        widgets.append(widget);
        ZEMPageHeader::addButton(widget);
    }

    QList<QWidget *> widgets;
};

} // namespace

class tst_ZEMPageHeader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newHeader();
    void sizeHoldsInsideAParent();
    void formOfTheStrip();
    void formOfTheActions();
    void formOfTheTitle();
    void labelsHaveTheirLook();
    void textsAreTranslated();
    void declaresItsPropertiesAndSlots();
    void propertiesReachTheAccessors();
    void textsReachTheLabels();
    void textSlotsCanBeConnected();
    void pages_data();
    void pages();
    void currentPageReachesTheDots();
    void indicatorIsShownAndHidden();
    void actionButtonHoldsAStack();
    void secondActionIsHiddenUntilItHasAWidget();
    void buttonsStandInTheirOrder();
    void sixthButtonIsRefused();
    void sameNumberOfButtonsKeepsThem();
    void otherNumberOfButtonsMakesNewOnes();
    void refusedNumbersOfButtons();
    void surplusButtonsWarnOnceEach();
    void newButtonsGoThroughTheVirtualOperation();
    void removeAllButtonsKeepsThem();
    void enableButton_data();
    void enableButton();
    void defaultPictureReachesAllTiles();
    void heldButtonsTakeTouches();
    void diesWithItsButtons();
    void isPainted();
};

void tst_ZEMPageHeader::newHeader()
{
    ZEMPageHeader header;
    QCOMPARE(header.objectName(), QStringLiteral("ZEMPageHeader"));
    QCOMPARE(header.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(header.size(), QSize(640, 74));
    QCOMPARE(header.minimumSize(), QSize(640, 68));
    QCOMPARE(header.sizePolicy(), FormTest::policy(QSizePolicy::Minimum, QSizePolicy::Fixed));
    QCOMPARE(header.getBackground().toImage(),
             QImage(QStringLiteral(":/zem/graphics/header/header_bg.png"))
                 .convertToFormat(header.getBackground().toImage().format()));
    QCOMPARE(header.getTitle(), QStringLiteral("startscherm"));
    QCOMPARE(header.getSubTitle(), QStringLiteral("zaterdag 25 februari 2011, 15:15"));
    QCOMPARE(header.getNrOfPages(), 2);
    QCOMPARE(header.getNrOfButtons(), 0);
    QCOMPARE(markedDot(header), 0);

    QWidget host;
    QCOMPARE((new ZEMPageHeader(&host))->parentWidget(), &host);
}

void tst_ZEMPageHeader::sizeHoldsInsideAParent()
{
    QWidget page;
    page.resize(640, 480);
    auto *header = new ZEMPageHeader(&page);
    page.show();
    QVERIFY(QTest::qWaitForWindowExposed(&page, ZemTest::hangs));
    QCOMPARE(header->geometry(), QRect(0, 0, 640, 74));
}

void tst_ZEMPageHeader::formOfTheStrip()
{
    const ZEMPageHeader header;
    const auto *grid = qobject_cast<QGridLayout *>(header.layout());
    QVERIFY(grid);
    QCOMPARE(grid->objectName(), QStringLiteral("gridLayout"));
    QCOMPARE(grid->horizontalSpacing(), 16);
    QCOMPARE(grid->contentsMargins(), QMargins(12, 6, 12, 14));
    QCOMPARE(FormTest::items(grid),
             FormTest::strings({"0,0: QWidget widget_2", "0,1: QHBoxLayout horizontalLayout_3",
                                "0,2: QHBoxLayout btnLayout"}));
    QCOMPARE(buttonRow(header)->spacing(), 6);
    QCOMPARE(buttonRow(header)->count(), 0);
}

void tst_ZEMPageHeader::formOfTheActions()
{
    const ZEMPageHeader header;
    const auto *row = qobject_cast<QHBoxLayout *>(part<QWidget>(header, "widget_2")->layout());
    QVERIFY(row);
    QCOMPARE(row->objectName(), QStringLiteral("horizontalLayout"));
    QCOMPARE(row->spacing(), 6);
    QCOMPARE(row->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(FormTest::items(row),
             FormTest::strings(
                 {"ZEMPageHeaderButton actionButton", "ZEMPageHeaderButton actionButton2"}));
    QCOMPARE(part<QWidget>(header, "actionButton")->sizePolicy(),
             FormTest::policy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(part<QWidget>(header, "actionButton2")->sizePolicy(), QWidget().sizePolicy());
}

void tst_ZEMPageHeader::formOfTheTitle()
{
    const ZEMPageHeader header;
    const auto *row = part<QHBoxLayout>(header, "horizontalLayout_3");
    QVERIFY(row);
    QCOMPARE(row->spacing(), 0);
    QCOMPARE(FormTest::items(row),
             FormTest::strings({"QWidget widget", "spacer 128x20 Expanding/Minimum"}));

    const auto *column = qobject_cast<QVBoxLayout *>(part<QWidget>(header, "widget")->layout());
    QVERIFY(column);
    QCOMPARE(column->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(column->spacing(), 0);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(FormTest::items(column),
             FormTest::strings({"QGridLayout gridLayout_2", "QLabel lblSubtitle"}));

    const auto *grid = part<QGridLayout>(header, "gridLayout_2");
    QCOMPARE(grid->horizontalSpacing(), 12);
    QCOMPARE(grid->verticalSpacing(), 0);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0)); // nested: Qt's default at the sides
    QCOMPARE(FormTest::items(grid),
             FormTest::strings({"0,0: QLabel lblTitle", "0,1: ZEMPageIndicator pageIndicator",
                                "0,2: spacer 40x20 Expanding/Minimum"}));
    QCOMPARE(part<QWidget>(header, "pageIndicator")->sizePolicy(),
             FormTest::policy(QSizePolicy::Preferred, QSizePolicy::Preferred));
}

void tst_ZEMPageHeader::labelsHaveTheirLook()
{
    const ZEMPageHeader header;
    const QLabel *title = header.getTitleWidget();
    const QLabel *subtitle = header.getSubtitleWidget();
    QCOMPARE(title, part<QLabel>(header, "lblTitle"));
    QCOMPARE(subtitle, part<QLabel>(header, "lblSubtitle"));
    QCOMPARE(title->frameShape(), QFrame::NoFrame);
    QCOMPARE(subtitle->frameShape(), QFrame::NoFrame);

    QCOMPARE(title->font().family(), QStringLiteral("Quicksand Book"));
    QCOMPARE(title->font().pointSize(), 18);
    QVERIFY(!title->font().bold());
    QCOMPARE(subtitle->font().family(), QStringLiteral("Quicksand Book"));
    QCOMPARE(subtitle->font().pointSize(), 10);
    QCOMPARE(subtitle->font().weight(), int(QFont::Bold));

    for (auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        QCOMPARE(title->palette().color(group, QPalette::WindowText), magenta);
        QCOMPARE(subtitle->palette().color(group, QPalette::WindowText), skyBlue);
    }
}

void tst_ZEMPageHeader::textsAreTranslated()
{
    ContextTranslator translator;
    const ZEMPageHeader header;
    QCOMPARE(header.windowTitle(), QStringLiteral("ZEMPageHeader/Form"));
    QCOMPARE(header.getTitle(), QStringLiteral("ZEMPageHeader/startscherm"));
    QCOMPARE(header.getSubTitle(),
             QStringLiteral("ZEMPageHeader/zaterdag 25 februari 2011, 15:15"));
}

void tst_ZEMPageHeader::declaresItsPropertiesAndSlots()
{
    const QMetaObject &metaObject = ZEMPageHeader::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMPageBackground::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             FormTest::strings({"title:QString", "subTitle:QString", "pages:int", "buttons:int"}));
    QCOMPARE(ownMethodCount(metaObject), 2);
    for (const char *slot : {"setTitle(QString)", "setSubtitle(QString)"}) {
        const int index = metaObject.indexOfSlot(slot);
        QVERIFY(index >= metaObject.methodOffset());
        QCOMPARE(metaObject.method(index).access(), QMetaMethod::Public);
    }
}

void tst_ZEMPageHeader::propertiesReachTheAccessors()
{
    ZEMPageHeader header;
    QVERIFY(header.setProperty("title", QStringLiteral("verbruik")));
    QVERIFY(header.setProperty("subTitle", QStringLiteral("vandaag")));
    QVERIFY(header.setProperty("pages", 7));
    QVERIFY(header.setProperty("buttons", 4));
    QCOMPARE(header.getTitle(), QStringLiteral("verbruik"));
    QCOMPARE(header.getSubTitle(), QStringLiteral("vandaag"));
    QCOMPARE(header.getNrOfPages(), 7);
    QCOMPARE(header.getNrOfButtons(), 4);
    QCOMPARE(header.property("title").toString(), QStringLiteral("verbruik"));
    QCOMPARE(header.property("subTitle").toString(), QStringLiteral("vandaag"));
    QCOMPARE(header.property("pages").toInt(), 7);
    QCOMPARE(header.property("buttons").toInt(), 4);
}

void tst_ZEMPageHeader::textsReachTheLabels()
{
    ZEMPageHeader header;
    header.setTitle(QStringLiteral("a"));
    header.setSubtitle(QStringLiteral("b"));
    QCOMPARE(header.getTitleWidget()->text(), QStringLiteral("a"));
    QCOMPARE(header.getSubtitleWidget()->text(), QStringLiteral("b"));
    header.getTitleWidget()->setText(QStringLiteral("c"));
    header.getSubtitleWidget()->setText(QStringLiteral("d"));
    QCOMPARE(header.getTitle(), QStringLiteral("c"));
    QCOMPARE(header.getSubTitle(), QStringLiteral("d"));
}

void tst_ZEMPageHeader::textSlotsCanBeConnected()
{
    ZEMPageHeader header;
    QObject source;
    connect(&source, &QObject::objectNameChanged, &header, &ZEMPageHeader::setTitle);
    source.setObjectName(QStringLiteral("meters"));
    QCOMPARE(header.getTitle(), QStringLiteral("meters"));
    QVERIFY(
        QMetaObject::invokeMethod(&header, "setSubtitle", Q_ARG(QString, QStringLiteral("nu"))));
    QCOMPARE(header.getSubTitle(), QStringLiteral("nu"));
}

void tst_ZEMPageHeader::pages_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("dots");
    QTest::newRow("least") << std::numeric_limits<int>::min() << 4;
    QTest::newRow("-1") << -1 << 4;
    QTest::newRow("0") << 0 << 0;
    QTest::newRow("1") << 1 << 0;
    for (int count = 2; count <= 9; ++count) {
        QTest::newRow(QByteArray::number(count).constData()) << count << count;
    }
    QTest::newRow("10") << 10 << 4;
    QTest::newRow("most") << std::numeric_limits<int>::max() << 4;
}

void tst_ZEMPageHeader::pages()
{
    QFETCH(int, count);
    QFETCH(int, dots);
    ZEMPageHeader header;
    header.setNrOfPages(4);
    header.setNrOfPages(count);
    QCOMPARE(header.getNrOfPages(), dots);
    QCOMPARE(header.findChildren<ZEMRadioButton *>().size(), dots);
    QCOMPARE(part<ZEMPageIndicator>(header, "pageIndicator")->getNrPages(), dots);
}

void tst_ZEMPageHeader::currentPageReachesTheDots()
{
    ZEMPageHeader header;
    header.setNrOfPages(4);
    for (int page : {3, 0, 2}) {
        header.setCurrentPage(page);
        QCOMPARE(markedDot(header), page);
    }
    header.setCurrentPage(4);
    QCOMPARE(markedDot(header), 2);
    header.setCurrentPage(-1);
    QCOMPARE(markedDot(header), 2);
}

void tst_ZEMPageHeader::indicatorIsShownAndHidden()
{
    ZEMPageHeader header;
    const auto *dots = part<ZEMPageIndicator>(header, "pageIndicator");
    QVERIFY(!dots->isHidden());
    header.showPageIndicator(false);
    QVERIFY(dots->isHidden());
    header.showPageIndicator(true);
    QVERIFY(!dots->isHidden());
}

void tst_ZEMPageHeader::actionButtonHoldsAStack()
{
    ZEMPageHeader header;
    auto *tile = part<ZEMPageHeaderButton>(header, "actionButton");
    QVERIFY(!tile->isHidden());
    QVERIFY(tile->isEnabled());
    auto *stack = new QStackedWidget;
    header.setActionButton(stack);
    QCOMPARE(stack->parentWidget(), tile);
    QCOMPARE(tile->layout()->itemAt(0)->widget(), stack);

    header.enableActionButton(false);
    QVERIFY(!stack->isEnabled());
    QVERIFY(!tile->isEnabled());
    QVERIFY(part<QWidget>(header, "actionButton2")->isEnabled());
    header.enableActionButton(true);
    QVERIFY(stack->isEnabled());
}

void tst_ZEMPageHeader::secondActionIsHiddenUntilItHasAWidget()
{
    ZEMPageHeader header;
    auto *tile = part<ZEMPageHeaderButton>(header, "actionButton2");
    const Stage stage(&header);
    QVERIFY(stage.isReady());
    QVERIFY(!tile->isVisible());
    auto *held = new QWidget;
    header.setActionButton2(held);
    QVERIFY(tile->isVisible());
    QCOMPARE(held->parentWidget(), tile);

    header.enableActionButton2(false);
    QVERIFY(!held->isEnabled());
    QVERIFY(part<QWidget>(header, "actionButton")->isEnabled());
    header.enableActionButton2(true);
    QVERIFY(held->isEnabled());
}

void tst_ZEMPageHeader::buttonsStandInTheirOrder()
{
    ZEMPageHeader header;
    header.setSubtitle(QStringLiteral("vandaag")); // short enough for five buttons in any font
    QList<QWidget *> held;
    for (int i = 0; i < 5; ++i) {
        held.append(new QWidget);
        header.addButton(held.last());
        QCOMPARE(header.getNrOfButtons(), i + 1);
    }
    const Stage stage(&header);
    QVERIFY(stage.isReady());
    const auto tiles = tilesOf(header);
    QCOMPARE(tiles.size(), 5);
    for (int i = 0; i < 5; ++i) {
        QCOMPARE(held.at(i)->parentWidget(), tiles.at(i));
        QCOMPARE(buttonRow(header)->itemAt(i)->alignment(), Qt::Alignment());
        QVERIFY(tiles.at(i)->isVisible());
        // Tiles 54 pixels wide with gaps of 6, up to the right margin of 12.
        QCOMPARE(tiles.at(i)->geometry(), QRect(640 - 12 - 54 - (4 - i) * 60, 6, 54, 54));
    }
}

void tst_ZEMPageHeader::sixthButtonIsRefused()
{
    ZEMPageHeader header;
    header.setNrOfButtons(5);
    const auto tiles = tilesOf(header);
    QWidget surplus;
    QTest::ignoreMessage(QtWarningMsg, fullWarning);
    header.addButton(&surplus);
    QCOMPARE(header.getNrOfButtons(), 5);
    QCOMPARE(tilesOf(header), tiles);
    QVERIFY(!surplus.parent());
}

void tst_ZEMPageHeader::sameNumberOfButtonsKeepsThem()
{
    ZEMPageHeader header;
    for (int i = 0; i < 3; ++i) {
        header.addButton(new QWidget);
    }
    const auto tiles = tilesOf(header);
    const QPointer<QObject> last = tiles.last();
    header.setNrOfButtons(3);
    QVERIFY(last);
    QCOMPARE(tilesOf(header), tiles);
    QCOMPARE(tiles.last()->layout()->count(), 1);
}

void tst_ZEMPageHeader::otherNumberOfButtonsMakesNewOnes()
{
    ZEMPageHeader header;
    QList<QPointer<QObject>> old;
    for (int i = 0; i < 3; ++i) {
        auto *held = new QWidget;
        header.addButton(held);
        old << held << held->parent();
    }
    header.setNrOfButtons(2);
    for (const auto &object : std::as_const(old)) {
        QVERIFY(object.isNull());
    }
    QCOMPARE(header.getNrOfButtons(), 2);
    QCOMPARE(tilesOf(header).size(), 2);
    for (const auto *tile : tilesOf(header)) {
        QCOMPARE(tile->layout()->count(), 0);
    }
    header.setNrOfButtons(4);
    QCOMPARE(tilesOf(header).size(), 4);
}

void tst_ZEMPageHeader::refusedNumbersOfButtons()
{
    ZEMPageHeader header;
    header.setNrOfButtons(3);
    const auto tiles = tilesOf(header);
    header.setNrOfButtons(-1);
    header.setNrOfButtons(std::numeric_limits<int>::min());
    QCOMPARE(tilesOf(header), tiles);
    header.setNrOfButtons(0);
    QCOMPARE(header.getNrOfButtons(), 0);
    QCOMPARE(tilesOf(header).size(), 0);
    header.setNrOfButtons(0);
    QCOMPARE(header.getNrOfButtons(), 0);
}

void tst_ZEMPageHeader::surplusButtonsWarnOnceEach()
{
    ZEMPageHeader header;
    QTest::ignoreMessage(QtWarningMsg, fullWarning);
    QTest::ignoreMessage(QtWarningMsg, fullWarning);
    QTest::ignoreMessage(QtWarningMsg, fullWarning);
    header.setNrOfButtons(8);
    QCOMPARE(header.getNrOfButtons(), 5);
}

void tst_ZEMPageHeader::newButtonsGoThroughTheVirtualOperation()
{
    CountingHeader header;
    header.setNrOfButtons(3);
    QCOMPARE(header.widgets, QList<QWidget *>({nullptr, nullptr, nullptr}));
}

void tst_ZEMPageHeader::removeAllButtonsKeepsThem()
{
    ZEMPageHeader header;
    header.addButton(new QWidget);
    header.addButton(new QWidget);
    const auto tiles = tilesOf(header);
    header.removeAllButtons();
    QCOMPARE(header.getNrOfButtons(), 2);
    QCOMPARE(tilesOf(header), tiles);
    QCOMPARE(tiles.last()->layout()->count(), 1);
}

void tst_ZEMPageHeader::enableButton_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("first") << 0 << QStringLiteral("-xx");
    QTest::newRow("middle") << 1 << QStringLiteral("x-x");
    QTest::newRow("last") << 2 << QStringLiteral("xx-");
    QTest::newRow("one too many") << 3 << QStringLiteral("xxx");
    QTest::newRow("far too many") << 5 << QStringLiteral("xxx");
    QTest::newRow("negative") << -1 << QStringLiteral("xxx");
}

void tst_ZEMPageHeader::enableButton()
{
    QFETCH(int, index);
    ZEMPageHeader header;
    header.setNrOfButtons(3);
    const auto states = [&] {
        QString letters;
        for (const auto *tile : tilesOf(header)) {
            letters.append(QLatin1Char(tile->isEnabled() ? 'x' : '-'));
        }
        return letters;
    };
    header.enableButton(index, false);
    QTEST(states(), "enabled");
    header.enableButton(index, true);
    QCOMPARE(states(), QStringLiteral("xxx"));
}

void tst_ZEMPageHeader::defaultPictureReachesAllTiles()
{
    const QString path = QStringLiteral(":/zem/graphics/icons/star_icon.png");
    const QImage star = QPixmap(path).toImage();
    ZEMPageHeader older;
    ZEMPageHeaderButton::setDefaultBackgroundImage(path);
    const ZEMPageHeader header;
    older.addButton(nullptr);
    ZEMPageHeaderButton::setDefaultBackgroundImage(QString());

    const auto pictureOf = [](const ZEMPageHeader &of, const char *name) {
        return part<ZEMPageHeaderButton>(of, name)->getBackground().toImage();
    };
    QCOMPARE(pictureOf(header, "actionButton"), star);
    QCOMPARE(pictureOf(header, "actionButton2"), star);
    QVERIFY(pictureOf(older, "actionButton") != star);
    QCOMPARE(tilesOf(older).first()->getBackground().toImage(), star);
}

void tst_ZEMPageHeader::heldButtonsTakeTouches()
{
    ZEMPageHeader header;
    auto *held = new ZEMRadioButton;
    header.addButton(held);
    const Stage stage(&header);
    QVERIFY(stage.isReady());
    QSignalSpy clicked(held, &ZEMRadioButton::clicked);
    ZemTest::press(held, held->rect().center());
    ZemTest::release(held, held->rect().center());
    QCOMPARE(clicked.count(), 1);
    header.enableButton(0, false);
    ZemTest::press(held, held->rect().center());
    ZemTest::release(held, held->rect().center());
    QCOMPARE(clicked.count(), 1);
}

void tst_ZEMPageHeader::diesWithItsButtons()
{
    auto *header = new ZEMPageHeader;
    const QPointer<QWidget> held = new QWidget;
    header->addButton(held);
    const QPointer<QObject> tile = held->parent();
    delete header;
    QVERIFY(held.isNull());
    QVERIFY(tile.isNull());
}

void tst_ZEMPageHeader::isPainted()
{
    ZEMPageHeader header;
    header.setBackground(flatPixmap({640, 68}, Qt::white));
    ZEMPageHeaderButton *action = part<ZEMPageHeaderButton>(header, "actionButton");
    action->setBackground(flatPixmap({54, 54}, Qt::red));
    header.addButton(nullptr);
    tilesOf(header).first()->setBackground(flatPixmap({54, 54}, Qt::blue));
    header.resize(640, 74);

    const QImage image = render(&header);
    QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
    QCOMPARE(image.pixelColor(639, 73), QColor(Qt::white));
    QCOMPARE(image.pixelColor(12, 6), QColor(Qt::red));
    QCOMPARE(image.pixelColor(65, 59), QColor(Qt::red));
    QCOMPARE(image.pixelColor(66, 6), QColor(Qt::white));
    QCOMPARE(image.pixelColor(640 - 12 - 54, 6), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(627, 59), QColor(Qt::blue));
    QCOMPARE(image.pixelColor(628, 59), QColor(Qt::white));

    // The title begins after the first action: its tile and the gap.
    const QLabel *title = header.getTitleWidget();
    QCOMPARE(title->mapTo(&header, QPoint(0, 0)).x(), 12 + 54 + 16);
}

QTEST_MAIN(tst_ZEMPageHeader)
#include "tst_zempageheader.moc"

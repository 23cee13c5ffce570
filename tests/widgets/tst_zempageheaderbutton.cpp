// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMPageHeaderButton>

#include <QPointer>
#include <QTest>
#include <QVBoxLayout>

using namespace WidgetTest;
using ZemTest::flatPixmap;
using ZemTest::render;

namespace {

const char starPath[] = ":/zem/graphics/icons/star_icon.png";
const char tilePath[] = ":/zem/graphics/header/header_btn_bg.png";

QPixmap picture(const char *path)
{
    return QPixmap(QLatin1String(path));
}

} // namespace

class tst_ZEMPageHeaderButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void newTile();
    void declaresNothing();
    void defaultPicture();
    void ownDefaultPictureIsForNewTiles();
    void unreadableDefaultPictureLeavesNone();
    void emptyPathIsNotTheDefault();
    void widgetStandsInTheMiddle();
    void secondWidgetStandsUnderTheFirst();
    void nullWidgetIsIgnored();
    void ownsItsWidgets();
};

void tst_ZEMPageHeaderButton::cleanup()
{
    ZEMPageHeaderButton::setDefaultBackgroundImage(QString());
}

void tst_ZEMPageHeaderButton::newTile()
{
    ZEMPageHeaderButton tile;
    QCOMPARE(tile.objectName(), QStringLiteral("ZEMPageHeaderButton"));
    QCOMPARE(tile.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(tile.minimumSize(), QSize(54, 54));
    const auto *layout = qobject_cast<QVBoxLayout *>(tile.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->count(), 0);

    QWidget host;
    QCOMPARE((new ZEMPageHeaderButton(&host))->parentWidget(), &host);
    ContextTranslator translator;
    QCOMPARE(ZEMPageHeaderButton().windowTitle(), QStringLiteral("ZEMPageHeaderButton/Form"));
}

void tst_ZEMPageHeaderButton::declaresNothing()
{
    const QMetaObject &metaObject = ZEMPageHeaderButton::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &ZEMPageBackground::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList());
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMPageHeaderButton::defaultPicture()
{
    ZEMPageHeaderButton tile;
    QCOMPARE(tile.getBackground().toImage(), picture(tilePath).toImage());

    tile.resize(54, 54);
    tile.setBackground(flatPixmap({54, 54}, Qt::red));
    QCOMPARE(ZemTest::inkRect(render(&tile)), QRect(0, 0, 54, 54));
}

void tst_ZEMPageHeaderButton::ownDefaultPictureIsForNewTiles()
{
    const ZEMPageHeaderButton old;
    ZEMPageHeaderButton::setDefaultBackgroundImage(QLatin1String(starPath));
    const ZEMPageHeaderButton tile;
    QCOMPARE(tile.getBackground().toImage(), picture(starPath).toImage());
    QCOMPARE(tile.minimumSize(), QSize(43, 39));
    QCOMPARE(old.getBackground().toImage(), picture(tilePath).toImage());
    QCOMPARE(old.minimumSize(), QSize(54, 54));

    ZEMPageHeaderButton::setDefaultBackgroundImage(QString());
    QCOMPARE(ZEMPageHeaderButton().getBackground().toImage(), picture(tilePath).toImage());
    QCOMPARE(tile.getBackground().toImage(), picture(starPath).toImage());
}

void tst_ZEMPageHeaderButton::unreadableDefaultPictureLeavesNone()
{
    ZEMPageHeaderButton::setDefaultBackgroundImage(QStringLiteral(":/no/such/picture.png"));
    ZEMPageHeaderButton tile;
    QVERIFY(tile.getBackground().isNull());
    QCOMPARE(tile.minimumSize(), QSize(0, 0));
    tile.resize(20, 20);
    QCOMPARE(ZemTest::inkRect(render(&tile, Qt::white), Qt::black), QRect()); // all black
}

void tst_ZEMPageHeaderButton::emptyPathIsNotTheDefault()
{
    ZEMPageHeaderButton::setDefaultBackgroundImage(QStringLiteral(""));
    QVERIFY(ZEMPageHeaderButton().getBackground().isNull());
}

void tst_ZEMPageHeaderButton::widgetStandsInTheMiddle()
{
    ZEMPageHeaderButton tile;
    tile.setBackground(flatPixmap({54, 54}, Qt::red));
    tile.resize(54, 54);
    auto *held = new ZEMPageBackground;
    held->setBackgroundColor(Qt::green);
    held->setFixedSize(20, 30);
    tile.setWidget(held);

    QLayoutItem *item = tile.layout()->itemAt(0);
    QCOMPARE(item->alignment(), Qt::Alignment(Qt::AlignHCenter));
    QCOMPARE(qobject_cast<QVBoxLayout *>(tile.layout())->stretch(0), 0);

    const QImage image = render(&tile);
    QCOMPARE(held->geometry(), QRect(17, 12, 20, 30));
    QCOMPARE(image.pixelColor(17, 12), QColor(Qt::green));
    QCOMPARE(image.pixelColor(36, 41), QColor(Qt::green));
    QCOMPARE(image.pixelColor(16, 12), QColor(Qt::red));
    QCOMPARE(image.pixelColor(37, 12), QColor(Qt::red));
}

void tst_ZEMPageHeaderButton::secondWidgetStandsUnderTheFirst()
{
    ZEMPageHeaderButton tile;
    auto *first = new QWidget;
    auto *second = new QWidget;
    tile.setWidget(first);
    tile.setWidget(second);
    QCOMPARE(tile.layout()->count(), 2);
    tile.resize(54, 60);
    tile.layout()->activate();
    QCOMPARE(tile.layout()->itemAt(0)->widget(), first);
    QVERIFY(second->y() > first->y());
}

void tst_ZEMPageHeaderButton::nullWidgetIsIgnored()
{
    ZEMPageHeaderButton tile;
    tile.setWidget(nullptr);
    QCOMPARE(tile.layout()->count(), 0);
}

void tst_ZEMPageHeaderButton::ownsItsWidgets()
{
    auto *tile = new ZEMPageHeaderButton;
    const QPointer<QWidget> held = new QWidget;
    tile->setWidget(held);
    QCOMPARE(held->parentWidget(), tile);
    delete tile;
    QVERIFY(held.isNull());
}

QTEST_MAIN(tst_ZEMPageHeaderButton)
#include "tst_zempageheaderbutton.moc"

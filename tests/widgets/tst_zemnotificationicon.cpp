// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "notificationbadge_p.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMNotificationIcon>

#include <QPainter>
#include <QTest>

#include <limits>

using namespace WidgetTest;
using NotificationBadge::Content;
using ZemTest::flatPixmap;
using ZemTest::render;

namespace {

const QColor magenta(227, 0, 123);
const QColor iconColor(0, 0, 90);
const QColor disabledColor(0, 90, 0);
const QSize badgeSize(22, 22);

/** What an icon must look like with @p picture at @p place and @p text, if any, in its badge. */
QImage expectedImage(const QSize &size, const QPixmap &picture, const QPoint &place,
                     const QString &text = QString(), const QFont &font = QFont())
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.drawPixmap(place, picture);
    if (!text.isEmpty()) {
        const QPoint badgePlace(qMax(size.width() - badgeSize.width() - 1, 0), 1);
        painter.drawPixmap(badgePlace,
                           QPixmap(QStringLiteral(":/zem/graphics/header/header_num_bg_03.png")));
        painter.setPen(magenta);
        painter.setFont(font);
        painter.drawText(QRect(badgePlace, badgeSize), Qt::AlignCenter, text);
    }
    return image;
}

QFont boldFont(int points, bool squeezed = false)
{
    QFont font(QWidget().font());
    font.setPointSize(points);
    font.setWeight(QFont::Bold);
    if (squeezed) {
        font.setLetterSpacing(QFont::PercentageSpacing, 80.0);
    }
    return font;
}

} // namespace

Q_DECLARE_METATYPE(NotificationBadge::Content)

class tst_ZEMNotificationIcon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newIcon();
    void declaresItsPropertiesOnly();
    void propertiesReachTheAccessors();
    void negativeCountIsRefused();
    void settersPaintLater();
    void badge_data();
    void badge();
    void badgeFont();
    void badgeFontInPixelsKeepsItsSize();
    void badgeStandsInTheTopRightCorner_data();
    void badgeStandsInTheTopRightCorner();
    void picture_data();
    void picture();
    void disabledIconHasItsOwnPicture();
    void withoutPictureThereIsNoBadge();
    void fontOfTheWidgetReachesTheBadge();
};

void tst_ZEMNotificationIcon::newIcon()
{
    ZEMNotificationIcon icon;
    QCOMPARE(icon.objectName(), QStringLiteral("ZEMNotificationIcon"));
    QCOMPARE(icon.windowTitle(), QString());
    QCOMPARE(icon.size(), QSize(45, 45));
    QCOMPARE(icon.font().pointSize(), 9);
    QCOMPARE(icon.font().weight(), int(QFont::Bold));
    QVERIFY(icon.getIcon().isNull());
    QVERIFY(icon.getDisabledIcon().isNull());
    QCOMPARE(icon.getNotifyCount(), 0);
    QVERIFY(!icon.getWarning());

    QWidget host;
    QFont font(QStringLiteral("DejaVu Serif"), 30);
    font.setItalic(true);
    host.setFont(font);
    auto *child = new ZEMNotificationIcon(&host);
    QCOMPARE(child->parentWidget(), &host);
    QCOMPARE(child->font().family(), QStringLiteral("DejaVu Serif"));
    QVERIFY(child->font().italic());
    QCOMPARE(child->font().pointSize(), 9);
}

void tst_ZEMNotificationIcon::declaresItsPropertiesOnly()
{
    const QMetaObject &metaObject = ZEMNotificationIcon::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject),
             FormTest::strings(
                 {"icon:QPixmap", "iconDisabled:QPixmap", "notifyCount:int", "warning:bool"}));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMNotificationIcon::propertiesReachTheAccessors()
{
    ZEMNotificationIcon icon;
    const QPixmap picture = flatPixmap({30, 20}, iconColor);
    const QPixmap disabled = flatPixmap({30, 20}, disabledColor);
    QVERIFY(icon.setProperty("icon", picture));
    QVERIFY(icon.setProperty("iconDisabled", disabled));
    QVERIFY(icon.setProperty("notifyCount", 7));
    QVERIFY(icon.setProperty("warning", true));
    QCOMPARE(icon.getIcon().cacheKey(), picture.cacheKey());
    QCOMPARE(icon.getDisabledIcon().cacheKey(), disabled.cacheKey());
    QCOMPARE(icon.getNotifyCount(), 7);
    QVERIFY(icon.getWarning());
    QCOMPARE(icon.property("icon").value<QPixmap>().cacheKey(), picture.cacheKey());
    QCOMPARE(icon.property("iconDisabled").value<QPixmap>().cacheKey(), disabled.cacheKey());
    QCOMPARE(icon.property("notifyCount").toInt(), 7);
    QVERIFY(icon.property("warning").toBool());
    QCOMPARE(icon.size(), QSize(45, 45));
}

void tst_ZEMNotificationIcon::negativeCountIsRefused()
{
    ZEMNotificationIcon icon;
    icon.setNotifyCount(3);
    icon.setNotifyCount(-1);
    QCOMPARE(icon.getNotifyCount(), 3);
    icon.setNotifyCount(0);
    QCOMPARE(icon.getNotifyCount(), 0);
}

void tst_ZEMNotificationIcon::settersPaintLater()
{
    ZEMNotificationIcon icon;
    const Stage stage(&icon);
    QVERIFY(stage.isReady());
    const QPixmap picture = flatPixmap({30, 20}, iconColor);
    QCOMPARE(paintedBy(&icon, [&] { icon.setIcon(picture); }), Painted::Later);
    QCOMPARE(paintedBy(&icon, [&] { icon.setDisabledIcon(picture); }), Painted::Later);
    QCOMPARE(paintedBy(&icon, [&] { icon.setNotifyCount(3); }), Painted::Later);
    QCOMPARE(paintedBy(&icon, [&] { icon.setWarning(true); }), Painted::Later);
    QCOMPARE(paintedBy(&icon, [&] { icon.setNotifyCount(-3); }), Painted::Never);
}

void tst_ZEMNotificationIcon::badge_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<bool>("warning");
    QTest::addColumn<NotificationBadge::Content>("content");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QFont>("font");

    const QFont count = boldFont(9);
    const QFont warning = boldFont(10);
    const QFont many = boldFont(8, true);
    const QString mark = QStringLiteral("!");
    const QString more = QStringLiteral("9+");
    const int most = std::numeric_limits<int>::max();
    QTest::newRow("nothing") << 0 << false << Content::Nothing << QString() << QFont();
    QTest::newRow("1") << 1 << false << Content::Count << QStringLiteral("1") << count;
    QTest::newRow("5") << 5 << false << Content::Count << QStringLiteral("5") << count;
    QTest::newRow("9") << 9 << false << Content::Count << QStringLiteral("9") << count;
    QTest::newRow("10") << 10 << false << Content::ManyCount << more << many;
    QTest::newRow("most") << most << false << Content::ManyCount << more << many;
    QTest::newRow("0 warning") << 0 << true << Content::Warning << mark << warning;
    QTest::newRow("5 warning") << 5 << true << Content::Warning << mark << warning;
    QTest::newRow("10 warning") << 10 << true << Content::Warning << mark << warning;
}

void tst_ZEMNotificationIcon::badge()
{
    QFETCH(int, count);
    QFETCH(bool, warning);
    QFETCH(QString, text);
    QFETCH(QFont, font);
    const auto content = NotificationBadge::content(count, warning);
    QTEST(content, "content");
    QCOMPARE(NotificationBadge::text(content, count), text);

    ZEMNotificationIcon icon;
    const QPixmap picture = flatPixmap({35, 31}, iconColor);
    icon.setIcon(picture);
    icon.setNotifyCount(count);
    icon.setWarning(warning);
    QCOMPARE(render(&icon), expectedImage({45, 45}, picture, {5, 7}, text, font));
}

void tst_ZEMNotificationIcon::badgeFont()
{
    const QFont base = boldFont(12);
    QCOMPARE(NotificationBadge::font(base, Content::Count), base);
    QCOMPARE(NotificationBadge::font(base, Content::Nothing), base);

    const QFont warning = NotificationBadge::font(base, Content::Warning);
    QCOMPARE(warning.pointSize(), 13);
    QCOMPARE(warning.letterSpacing(), base.letterSpacing());

    const QFont many = NotificationBadge::font(base, Content::ManyCount);
    QCOMPARE(many.pointSize(), 11);
    QCOMPARE(many.letterSpacingType(), QFont::PercentageSpacing);
    QCOMPARE(many.letterSpacing(), 80.0);
}

void tst_ZEMNotificationIcon::badgeFontInPixelsKeepsItsSize()
{
    QFont pixels;
    pixels.setPixelSize(14);
    QCOMPARE(NotificationBadge::font(pixels, Content::Warning).pixelSize(), 14);
    QCOMPARE(NotificationBadge::font(pixels, Content::ManyCount).pixelSize(), 14);
    const QFont smallest = boldFont(1);
    QCOMPARE(NotificationBadge::font(smallest, Content::ManyCount).pointSize(), 1);
    QCOMPARE(NotificationBadge::font(smallest, Content::Warning).pointSize(), 2);
}

void tst_ZEMNotificationIcon::badgeStandsInTheTopRightCorner_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("x");
    QTest::newRow("design size") << 45 << 22;
    QTest::newRow("wide") << 100 << 77;
    QTest::newRow("just wide enough") << 24 << 1;
    QTest::newRow("badge and edge") << 23 << 0;
    QTest::newRow("badge only") << 22 << 0;
    QTest::newRow("narrow") << 10 << 0;
}

void tst_ZEMNotificationIcon::badgeStandsInTheTopRightCorner()
{
    QFETCH(int, width);
    QFETCH(int, x);
    QCOMPARE(NotificationBadge::place(width, badgeSize), QRect(QPoint(x, 1), badgeSize));

    ZEMNotificationIcon icon;
    icon.resize(width, 40);
    icon.setIcon(flatPixmap({1, 1}, Qt::black)); // is not seen
    icon.setNotifyCount(1);
    const QImage image = render(&icon);
    QCOMPARE(image, expectedImage({width, 40}, QPixmap(), {}, QStringLiteral("1"), boldFont(9)));
    QVERIFY(QRect(x, 1, 22, 22).contains(ZemTest::inkRect(image)));
    QVERIFY(!ZemTest::inkRect(image).isNull());
}

void tst_ZEMNotificationIcon::picture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QRect>("place");
    QTest::newRow("even rest") << QSize(25, 15) << QRect(10, 15, 25, 15);
    QTest::newRow("odd rest") << QSize(30, 44) << QRect(7, 0, 30, 44);
    QTest::newRow("fits") << QSize(45, 45) << QRect(0, 0, 45, 45);
    QTest::newRow("too wide") << QSize(60, 15) << QRect(0, 15, 45, 15);
    QTest::newRow("too high") << QSize(15, 60) << QRect(15, 0, 15, 45);
}

void tst_ZEMNotificationIcon::picture()
{
    QFETCH(QSize, size);
    ZEMNotificationIcon icon;
    icon.setIcon(flatPixmap(size, iconColor));
    QCOMPARE(icon.size(), QSize(45, 45));
    const QImage image = render(&icon);
    QTEST(ZemTest::inkRect(image), "place");
    QCOMPARE(image.pixelColor(22, 22), iconColor);
}

void tst_ZEMNotificationIcon::disabledIconHasItsOwnPicture()
{
    ZEMNotificationIcon icon;
    const QPixmap disabled = flatPixmap({20, 20}, disabledColor);
    icon.setIcon(flatPixmap({45, 45}, iconColor));
    icon.setDisabledIcon(disabled);
    icon.setNotifyCount(4);
    QCOMPARE(render(&icon).pixelColor(22, 40), iconColor);
    icon.setEnabled(false);
    QCOMPARE(render(&icon),
             expectedImage({45, 45}, disabled, {12, 12}, QStringLiteral("4"), boldFont(9)));
}

void tst_ZEMNotificationIcon::withoutPictureThereIsNoBadge()
{
    ZEMNotificationIcon icon;
    icon.setNotifyCount(5);
    icon.setWarning(true);
    QVERIFY(ZemTest::inkRect(render(&icon)).isNull());

    icon.setIcon(flatPixmap({20, 20}, iconColor));
    QVERIFY(ZemTest::inkRect(render(&icon)).contains(35, 12));
    icon.setEnabled(false); // has no picture
    QVERIFY(ZemTest::inkRect(render(&icon)).isNull());
}

void tst_ZEMNotificationIcon::fontOfTheWidgetReachesTheBadge()
{
    ZEMNotificationIcon icon;
    const QPixmap picture = flatPixmap({45, 45}, iconColor);
    icon.setIcon(picture);
    icon.setNotifyCount(2);
    QFont font(QStringLiteral("DejaVu Serif"), 14);
    icon.setFont(font);
    QCOMPARE(render(&icon), expectedImage({45, 45}, picture, {}, QStringLiteral("2"), font));
    icon.setWarning(true);
    font.setPointSize(15);
    QCOMPARE(render(&icon), expectedImage({45, 45}, picture, {}, QStringLiteral("!"), font));
}

QTEST_MAIN(tst_ZEMNotificationIcon)
#include "tst_zemnotificationicon.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemtest.h"

#include <ZEMButton>
#include <ZEMLabel>
#include <ZEMLabeledButton>
#include <ZEMLineEdit>
#include <ZEMLineEditButton>
#include <ZEMNotificationButton>
#include <ZEMNotificationIcon>
#include <ZEMPageBackground>
#include <ZEMPixmap>
#include <ZEMProfileButton>
#include <ZEMRadioButton>
#include <ZEMThreeStars>
#include <ZEMThrobber>

#include <QDirIterator>
#include <QMetaProperty>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

using ZemTest::flatPixmap;

namespace {

const QSize size(40, 20); // of a picture on the screen

/** A picture with @p ratio times as many pixels as it has room for, each way. */
QPixmap sharp(const QColor &color, qreal ratio, const QSize &room = size)
{
    QPixmap picture = flatPixmap(room * ratio, color);
    picture.setDevicePixelRatio(ratio);
    return picture;
}

void ratios()
{
    QTest::addColumn<qreal>("ratio");
    QTest::newRow("1") << 1.0;
    QTest::newRow("1.5") << 1.5;
    QTest::newRow("2") << 2.0;
    QTest::newRow("4") << 4.0;
}

/** The picture of @p path for sharp screens. */
QString sharpPath(QString path)
{
    return path.insert(path.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
}

/** What a picture looks like that is drawn into @p place of a widget of @p room, at @p ratio. */
QImage model(const QString &path, const QSize &room, const QRect &place, qreal ratio)
{
    const QPixmap picture(ratio > 1.0 ? sharpPath(path) : path);
    QImage image(room * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform,
                          QSizeF(picture.size()) != QSizeF(place.size()) * ratio);
    painter.drawPixmap(QRectF(place), picture, QRectF());
    painter.end();
    image.setDevicePixelRatio(1.0);
    return image;
}

/** What @p widget paints by itself at @p ratio, without the ground of its window. */
QImage painted(QWidget *widget, qreal ratio)
{
    QImage image(widget->size() * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::black);
    widget->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    image.setDevicePixelRatio(1.0);
    return image;
}

QImage flatImage(const QSize &pixels, const QColor &color)
{
    QImage image(pixels, QImage::Format_RGB32);
    image.fill(color);
    return image;
}

template <class Widget>
QWidget *make()
{
    return new Widget;
}

using Maker = QWidget *(*)();

/** The classes with pictures of the host. */
const Maker makers[] = {
    make<ZEMButton>,           make<ZEMLabel>,          make<ZEMLabeledButton>,
    make<ZEMLineEdit>,         make<ZEMLineEditButton>, make<ZEMNotificationButton>,
    make<ZEMNotificationIcon>, make<ZEMPageBackground>, make<ZEMPixmap>,
    make<ZEMProfileButton>,    make<ZEMRadioButton>,
};

} // namespace

Q_DECLARE_METATYPE(Maker)

/** Pictures for sharp screens: more pixels, the same place. */
class tst_SharpPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetsAreAsLargeAsTheirPicturesAreSeen_data() { ratios(); }
    void widgetsAreAsLargeAsTheirPicturesAreSeen();
    void marksStandInTheMiddle_data() { ratios(); }
    void marksStandInTheMiddle();
    void propertyCountsBySizeAndRatio_data();
    void propertyCountsBySizeAndRatio();
    void ownPictureIsThatOfTheScreen_data();
    void ownPictureIsThatOfTheScreen();
    void iconIsAsLargeAsItsPlainPicture_data() { ratios(); }
    void iconIsAsLargeAsItsPlainPicture();
    void ownIconIsThatOfTheScreen();
    void starsAreThoseOfTheScreen();
    void frameAtRestGoesToAnotherScreen();
    void framesAreCutFromTheStripOfTheScreen();
    void sharpFrameIsShownAsALabelShowsPictures();
    void pictureOfTheHostStaysOnAThrobber();
    void colorTakesThePlaceOfAPicture();
};

void tst_SharpPictures::widgetsAreAsLargeAsTheirPicturesAreSeen()
{
    QFETCH(qreal, ratio);
    const QPixmap picture = sharp(Qt::red, ratio);

    ZEMButton button;
    button.setBackground(picture);
    QCOMPARE(button.minimumSize(), size);
    QCOMPARE(button.size(), size);

    ZEMRadioButton radio;
    radio.setBackground(picture);
    QCOMPARE(radio.minimumSize(), size);
    QCOMPARE(radio.maximumSize(), size);
    QCOMPARE(radio.size(), size);

    ZEMPixmap pixmap;
    pixmap.setPixmap(picture);
    QCOMPARE(pixmap.minimumSize(), size);
    QCOMPARE(pixmap.maximumSize(), size);
    QCOMPARE(pixmap.size(), size);

    ZEMPageBackground page;
    page.setBackground(picture, false);
    QCOMPARE(page.minimumSize(), size);
}

void tst_SharpPictures::marksStandInTheMiddle()
{
    QFETCH(qreal, ratio);
    const QSize mark(10, 8);
    const QRect middle(QPoint(15, 6), mark);

    ZEMRadioButton radio;
    radio.setBackground(flatPixmap(size, Qt::black));
    radio.setCheckedIcon(sharp(Qt::red, ratio, mark));
    radio.setChecked(true);
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&radio)), middle);

    ZEMNotificationIcon icon;
    icon.resize(size);
    icon.setIcon(sharp(Qt::red, ratio, mark));
    QCOMPARE(ZemTest::inkRect(ZemTest::render(&icon)), middle);
}

void tst_SharpPictures::propertyCountsBySizeAndRatio_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::addColumn<QByteArray>("property");
    for (const Maker &maker : makers) {
        const std::unique_ptr<QWidget> widget(maker());
        const QMetaObject *meta = widget->metaObject();
        for (int i = QWidget::staticMetaObject.propertyCount(); i < meta->propertyCount(); ++i) {
            const QMetaProperty property = meta->property(i);
            if (property.userType() == QMetaType::QPixmap && property.isWritable()) {
                QTest::addRow("%s::%s", meta->className(), property.name())
                    << maker << QByteArray(property.name());
            }
        }
    }
}

void tst_SharpPictures::propertyCountsBySizeAndRatio()
{
    QFETCH(Maker, maker);
    QFETCH(QByteArray, property);
    for (const qreal ratio : {1.5, 2.0, 3.0}) {
        const std::unique_ptr<QWidget> plain(maker());
        QVERIFY(plain->setProperty(property, flatPixmap(size, Qt::red)));
        const QPixmap picture = sharp(Qt::red, ratio);
        const std::unique_ptr<QWidget> widget(maker());
        QVERIFY(widget->setProperty(property, picture));
        QCOMPARE(widget->property(property).value<QPixmap>().cacheKey(), picture.cacheKey());
        QCOMPARE(widget->size(), plain->size());
        QCOMPARE(widget->sizeHint(), plain->sizeHint());
        QCOMPARE(widget->minimumSize(), plain->minimumSize());
        QCOMPARE(widget->maximumSize(), plain->maximumSize());
        for (const qreal screen : {1.0, ratio}) {
            QCOMPARE(painted(widget.get(), screen), painted(plain.get(), screen));
        }
    }
}

void tst_SharpPictures::ownPictureIsThatOfTheScreen_data()
{
    QTest::addColumn<QString>("path");
    for (const char *folder : {":/zem", ":/tango"}) {
        QDirIterator file(QLatin1String(folder), QDir::Files, QDirIterator::Subdirectories);
        while (file.hasNext()) {
            const QString path = file.next();
            if (!path.contains(QLatin1Char('@'))) {
                QTest::newRow(qPrintable(path)) << path;
            }
        }
    }
}

void tst_SharpPictures::ownPictureIsThatOfTheScreen()
{
    QFETCH(QString, path);
    ZEMPixmap widget;
    widget.setPixmap(QPixmap(path));
    const QSize room = QPixmap(path).size();
    QCOMPARE(widget.size(), room);
    // To other screens and back, whatever was kept of the first.
    for (const qreal ratio : {1.0, 2.0, 1.25, 1.5, 2.0, 1.0}) {
        const QImage expected = model(path, room, QRect(QPoint(), room), ratio);
        QCOMPARE(painted(&widget, ratio), expected);
    }
    QCOMPARE(widget.getPixmap().size(), room);
}

void tst_SharpPictures::iconIsAsLargeAsItsPlainPicture()
{
    QFETCH(qreal, ratio);
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("icon.png"));
    QVERIFY(flatPixmap(QSize(10, 8), Qt::red).save(path));
    QVERIFY(flatPixmap(QSize(20, 16), Qt::blue).save(sharpPath(path)));
    // On a sharp screen Qt adds the other one by itself.
    QIcon icon(path);
    icon.addFile(sharpPath(path));

    ZEMButton button;
    button.setFixedSize(size);
    button.setIcon(icon);
    const QImage image = painted(&button, ratio);
    const QRect place(QPoint(15, 6), QSize(10, 8));
    QCOMPARE(ZemTest::inkRect(image),
             QRectF(place.x() * ratio, place.y() * ratio, 10 * ratio, 8 * ratio).toRect());
    QCOMPARE(QColor(image.pixel(image.rect().center())), QColor(ratio > 1.0 ? Qt::blue : Qt::red));
}

void tst_SharpPictures::ownIconIsThatOfTheScreen()
{
    const QString path = QStringLiteral(":/zem/graphics/icons/green-ok-icon_small.png");
    ZEMButton button;
    button.setFixedSize(75, 75);
    button.setIcon(QIcon(path));
    const QRect place(22, 22, 30, 30); // in the middle, as Qt rounds it
    for (const qreal ratio : {1.0, 2.0, 1.25, 1.5, 1.0}) {
        QCOMPARE(painted(&button, ratio), model(path, button.size(), place, ratio));
    }
}

void tst_SharpPictures::starsAreThoseOfTheScreen()
{
    const QString path = QStringLiteral(":/zem/graphics/icons/star_icon.png");
    ZEMThreeStars stars;
    stars.setStars(3);
    stars.resize(43, 39); // one above the other
    for (const qreal ratio : {1.0, 2.0}) {
        QImage expected(stars.size() * ratio, QImage::Format_RGB32);
        expected.fill(Qt::black);
        const QPixmap star = QPixmap(ratio > 1.0 ? sharpPath(path) : path);
        QPainter painter(&expected);
        for (int i = 0; i < 3; ++i) {
            painter.drawPixmap(expected.rect(), star);
        }
        painter.end();
        QCOMPARE(painted(&stars, ratio), expected);
    }
}

void tst_SharpPictures::frameAtRestGoesToAnotherScreen()
{
    const QString path = QStringLiteral(":/zem/graphics/icons/throbber.png");
    ZEMThrobber throbber;
    throbber.resize(32, 32);
    throbber.setImage(path, 12);
    throbber.pause(); // on the second frame
    const QSize hint = throbber.sizeHint();
    for (const qreal ratio : {1.0, 2.0, 1.0}) {
        const int side = int(32 * ratio);
        const QImage strip(ratio > 1.0 ? sharpPath(path) : path);
        QImage expected(side, side, QImage::Format_RGB32);
        expected.fill(Qt::black);
        QImage frame = strip.copy(side, 0, side, side);
        frame.setDevicePixelRatio(1.0);
        QPainter(&expected).drawPixmap(0, 0, QPixmap::fromImage(frame));
        QCOMPARE(painted(&throbber, ratio), expected);
        QCOMPARE(throbber.sizeHint(), hint);
    }
}

void tst_SharpPictures::framesAreCutFromTheStripOfTheScreen()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("strip.png"));
    // Three frames of 10, and 1 that is left over.
    QVERIFY(flatPixmap(QSize(31, 8), Qt::red).save(path));
    QPixmap sharpStrip = flatPixmap(QSize(62, 16), Qt::blue);
    QPainter(&sharpStrip).fillRect(20, 0, 20, 16, Qt::green);
    QVERIFY(sharpStrip.save(sharpPath(path)));

    ZEMThrobber throbber;
    throbber.resize(10, 8);
    throbber.setImage(path, 3);
    throbber.pause();
    QCOMPARE(painted(&throbber, 1.0), flatImage(QSize(10, 8), Qt::red));
    QCOMPARE(painted(&throbber, 2.0), flatImage(QSize(20, 16), Qt::green));
}

void tst_SharpPictures::sharpFrameIsShownAsALabelShowsPictures()
{
    const QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("strip.png"));
    QVERIFY(flatPixmap(size, Qt::red).save(path));
    const QPixmap sharpStrip = flatPixmap(2 * size, Qt::blue);
    QVERIFY(sharpStrip.save(sharpPath(path)));

    ZEMThrobber throbber;
    throbber.resize(size + QSize(12, 12));
    throbber.setImage(path, 1);
    throbber.pause();
    throbber.setAlignment(Qt::AlignRight | Qt::AlignBottom);
    throbber.setMargin(2);
    QImage expected = flatImage(2 * throbber.size(), Qt::black);
    QPainter(&expected).drawPixmap(20, 20, sharpStrip);
    QCOMPARE(painted(&throbber, 2.0), expected);

    throbber.setEnabled(false);
    QStyleOption option;
    option.initFrom(&throbber);
    const QPixmap grey =
        throbber.style()->generatedIconPixmap(QIcon::Disabled, sharpStrip, &option);
    QVERIFY(grey.toImage() != sharpStrip.toImage());
    expected.fill(Qt::black);
    QPainter(&expected).drawPixmap(20, 20, grey);
    QCOMPARE(painted(&throbber, 2.0), expected);

    throbber.setEnabled(true);
    throbber.setScaledContents(true);
    expected.fill(Qt::black);
    QPainter(&expected).fillRect(expected.rect().adjusted(4, 4, -4, -4), Qt::blue);
    QCOMPARE(painted(&throbber, 2.0), expected);
}

void tst_SharpPictures::pictureOfTheHostStaysOnAThrobber()
{
    ZEMThrobber throbber;
    throbber.resize(size);
    throbber.pause();
    throbber.setPixmap(flatPixmap(size, Qt::red));
    QCOMPARE(painted(&throbber, 2.0), flatImage(2 * size, Qt::red));
    throbber.stop();
    QCOMPARE(painted(&throbber, 2.0), flatImage(2 * size, Qt::black));
}

void tst_SharpPictures::colorTakesThePlaceOfAPicture()
{
    ZEMPixmap widget;
    widget.setPixmap(QPixmap(QStringLiteral(":/zem/graphics/icons/icons_14.png")));
    painted(&widget, 2.0);
    widget.setColor(Qt::red);
    QCOMPARE(painted(&widget, 2.0), flatImage(2 * widget.size(), Qt::red));
}

QTEST_MAIN(tst_SharpPictures)
#include "tst_sharppictures.moc"

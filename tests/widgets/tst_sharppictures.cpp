// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "zemtest.h"

#include <ZEMButton>
#include <ZEMNotificationIcon>
#include <ZEMPageBackground>
#include <ZEMPixmap>
#include <ZEMRadioButton>

#include <QTest>

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

} // namespace

/** Pictures for sharp screens: more pixels, the same place. */
class tst_SharpPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void widgetsAreAsLargeAsTheirPicturesAreSeen_data() { ratios(); }
    void widgetsAreAsLargeAsTheirPicturesAreSeen();
    void marksStandInTheMiddle_data() { ratios(); }
    void marksStandInTheMiddle();
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

QTEST_MAIN(tst_SharpPictures)
#include "tst_sharppictures.moc"

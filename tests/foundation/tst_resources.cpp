// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include <ZEMUtils>

#include <QColor>
#include <QDirIterator>
#include <QImage>
#include <QPainter>
#include <QResource>
#include <QSet>
#include <QTest>

struct Picture
{
    const char *path;
    int width;
    int height;
};

static const Picture pictures[] = {
    {":/zem/graphics/gwe/icons/gwe_btn_act.png", 47, 40},
    {":/zem/graphics/gwe/icons/gwe_btn_ina.png", 47, 40},
    {":/zem/graphics/gwe/icons/icon_bg_16x16.png", 16, 16},
    {":/zem/graphics/gwe/icons/icon_bg_25x25.png", 25, 25},
    {":/zem/graphics/gwe/icons/icon_ci_12x16.png", 12, 16},
    {":/zem/graphics/gwe/icons/icon_ci_15x20.png", 15, 20},
    {":/zem/graphics/gwe/icons/icon_el_12x16.png", 12, 16},
    {":/zem/graphics/gwe/icons/icon_el_15x20.png", 15, 20},
    {":/zem/graphics/gwe/icons/icon_fi_12x16.png", 12, 16},
    {":/zem/graphics/gwe/icons/icon_fi_15x20.png", 15, 20},
    {":/zem/graphics/gwe/icons/icon_sp_12x16.png", 12, 16},
    {":/zem/graphics/gwe/icons/icon_sp_15x20.png", 15, 20},
    {":/zem/graphics/gwe/icons/icon_wa_12x16.png", 12, 16},
    {":/zem/graphics/gwe/icons/icon_wa_15x20.png", 15, 20},
    {":/zem/graphics/main/active_overview_bg.png", 493, 242},
    {":/zem/graphics/main/tab_bg.png", 59, 38},
    {":/zem/graphics/main/tab_overview_bg.png", 493, 216},
    {":/zem/graphics/main/tab_selected_bg.png", 59, 38},
    {":/zem/graphics/main/text_bg_medium.png", 127, 27},
    {":/zem/graphics/main/text_bg_small_medium.png", 77, 27},
    {":/zem/graphics/main/buttons/btn_rect_med.png", 322, 152},
    {":/zem/graphics/main/buttons/btn_rect_med_disabled.png", 322, 152},
    {":/zem/graphics/main/buttons/btn_rect_small.png", 152, 75},
    {":/zem/graphics/main/buttons/btn_rect_xs_small.png", 100, 50},
    {":/zem/graphics/main/buttons/btn_rect_xs_small_disabled.png", 100, 50},
    {":/zem/graphics/main/buttons/btn_rect_xs_wide.png", 233, 50},
    {":/zem/graphics/main/buttons/btn_rect_xs_wide_disabled.png", 233, 50},
    {":/zem/graphics/main/buttons/btn_square_small.png", 75, 75},
    {":/zem/graphics/main/buttons/btn_square_small_disabled.png", 75, 75},
    {":/zem/graphics/main/buttons/doel_instellingen_btn_act.png", 492, 50},
    {":/zem/graphics/main/buttons/popup_btn.png", 272, 62},
    {":/zem/graphics/main/buttons/radio_btn_bg.png", 13, 12},
    {":/zem/graphics/main/buttons/radio_btn_selected.png", 6, 6},
    {":/zem/graphics/main/buttons/selector_btn.png", 71, 50},
    {":/zem/graphics/icons/arrow_left.png", 8, 15},
    {":/zem/graphics/icons/arrow_left_small.png", 5, 10},
    {":/zem/graphics/icons/arrow_right.png", 8, 15},
    {":/zem/graphics/icons/arrow_right_small.png", 5, 10},
    {":/zem/graphics/icons/check.png", 28, 25},
    {":/zem/graphics/icons/check_disabled.png", 28, 25},
    {":/zem/graphics/icons/green-ok-icon.png", 50, 50},
    {":/zem/graphics/icons/green-ok-icon_small.png", 30, 30},
    {":/zem/graphics/icons/icon_pencil.png", 25, 25},
    {":/zem/graphics/icons/icons_03.png", 45, 64},
    {":/zem/graphics/icons/icons_11.png", 56, 56},
    {":/zem/graphics/icons/icons_14.png", 64, 64},
    {":/zem/graphics/icons/red-close-icon.png", 50, 50},
    {":/zem/graphics/icons/star_empty_icon.png", 43, 39},
    {":/zem/graphics/icons/star_empty_icon_small.png", 22, 20},
    {":/zem/graphics/icons/star_icon.png", 43, 39},
    {":/zem/graphics/icons/star_icon_small.png", 22, 20},
    {":/zem/graphics/icons/throbber.png", 384, 32},
    {":/zem/graphics/header/header_bg.png", 640, 68},
    {":/zem/graphics/header/header_btn_bg.png", 54, 54},
    {":/zem/graphics/header/header_num_bg_03.png", 22, 22},
    {":/tango/graphics/tango/actions/go-down-icon.png", 30, 30},
    {":/tango/graphics/tango/actions/go-up-icon.png", 30, 30},
    {":/tango/graphics/tango/actions/process-stop-icon.png", 28, 30},
};

extern int qInitResources_Zemkit();
extern int qCleanupResources_Zemkit();

/** The picture of @p path for screens of twice as many pixels each way, named as Qt expects it. */
static QString sharpPath(QString path)
{
    return path.insert(path.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
}

class tst_Resources : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void picture_data();
    void picture();
    void nothingElseIsInTheCollection();
    void sharpPictureShowsTheSame_data();
    void sharpPictureShowsTheSame();
    void headerIsAnOpaqueLightBar();
    void emptyStarIsADarkOutline_data();
    void emptyStarIsADarkOutline();
    void emptyStarIsSeen_data();
    void emptyStarIsSeen();
    void cleanupAndInitAreExported();
};

void tst_Resources::initTestCase()
{
    // A program that names no symbol of the library is not linked with it at all.
    QVERIFY(!ZEMUtils::getVersion().isEmpty());
}

void tst_Resources::picture_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Picture &picture : pictures) {
        const QString path = QString::fromLatin1(picture.path);
        const QSize size(picture.width, picture.height);
        QTest::newRow(picture.path) << path << size;
        QTest::newRow(qPrintable(sharpPath(path))) << sharpPath(path) << 2 * size;
    }
}

void tst_Resources::picture()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);

    const QResource resource(path);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
    const QByteArray bytes(reinterpret_cast<const char *>(resource.data()), int(resource.size()));
    QVERIFY(bytes.startsWith("\x89PNG"));

    const QImage image(path);
    QCOMPARE(image.size(), size);
    bool visible = false;
    for (int y = 0; y < image.height() && !visible; ++y) {
        for (int x = 0; x < image.width() && !visible; ++x) {
            visible = image.pixelColor(x, y).alpha() > 0;
        }
    }
    QVERIFY(visible);
}

void tst_Resources::nothingElseIsInTheCollection()
{
    QSet<QString> expected;
    for (const Picture &picture : pictures) {
        const QString path = QString::fromLatin1(picture.path);
        expected << path << sharpPath(path);
    }
    QSet<QString> found;
    for (const QString &prefix : {QStringLiteral(":/zem"), QStringLiteral(":/tango")}) {
        QDirIterator it(prefix, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            found.insert(it.next());
        }
    }
    QCOMPARE(found, expected);
    QCOMPARE(found.size(), 2 * 58);
}

void tst_Resources::sharpPictureShowsTheSame_data()
{
    QTest::addColumn<QString>("path");
    for (const Picture &picture : pictures) {
        QTest::newRow(picture.path) << QString::fromLatin1(picture.path);
    }
}

/** The largest difference of two pictures in any channel. */
static int difference(const QImage &one, const QImage &other)
{
    const QImage a = one.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = other.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < 4 * a.width(); ++x) {
            largest = qMax(largest, qAbs(a.constScanLine(y)[x] - b.constScanLine(y)[x]));
        }
    }
    return largest;
}

static QImage scaled(const QImage &image, const QSize &size)
{
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

void tst_Resources::sharpPictureShowsTheSame()
{
    QFETCH(QString, path);
    const QImage plain(path);
    const QImage sharp(sharpPath(path));
    constexpr int seen = 36; // of 255 shades
    const int offWhenHalved = difference(scaled(sharp, plain.size()), plain);
    const int offWhenDoubled = difference(scaled(plain, sharp.size()), sharp);
    QVERIFY2(offWhenHalved <= seen, qPrintable(QString::number(offWhenHalved)));
    QVERIFY2(offWhenDoubled > 2 * offWhenHalved, "shows no more than the plain picture");
}

void tst_Resources::headerIsAnOpaqueLightBar()
{
    const QImage bar(QStringLiteral(":/zem/graphics/header/header_bg.png"));
    constexpr int lightGrey = 180;
    for (int y = 0; y < bar.height(); ++y) {
        for (int x = 0; x < bar.width(); ++x) {
            const QColor color = bar.pixelColor(x, y);
            QCOMPARE(color.alpha(), 255);
            QVERIFY(qMin(color.red(), qMin(color.green(), color.blue())) >= lightGrey);
            QVERIFY(color.saturation() < 32);
        }
    }
}

static QImage emptyStar(bool small)
{
    return QImage(QLatin1String(small ? ":/zem/graphics/icons/star_empty_icon_small.png"
                                      : ":/zem/graphics/icons/star_empty_icon.png"));
}

void tst_Resources::emptyStarIsADarkOutline_data()
{
    QTest::addColumn<bool>("small");
    QTest::newRow("normal") << false;
    QTest::newRow("small") << true;
}

void tst_Resources::emptyStarIsADarkOutline()
{
    QFETCH(bool, small);
    const QImage star = emptyStar(small);
    constexpr int lineAlpha = 144;
    int linePixels = 0;
    int shades = 0; // of the line, from black to white
    int sum = 0;
    for (int y = 0; y < star.height(); ++y) {
        for (int x = 0; x < star.width(); ++x) {
            const QColor color = star.pixelColor(x, y);
            sum += color.alpha();
            if (color.alpha() >= lineAlpha) {
                ++linePixels;
                shades += qGray(color.rgb());
            }
        }
    }
    const int allPixels = star.width() * star.height();
    QVERIFY2(linePixels > allPixels / 10, "the line can be seen through");
    QVERIFY2(shades / linePixels < 100, "the line is not dark");
    QVERIFY2(sum / allPixels < 64, "there is more than an outline");
}

void tst_Resources::emptyStarIsSeen_data()
{
    QTest::addColumn<bool>("small");
    QTest::addColumn<QColor>("ground");
    const QColor grounds[] = {Qt::black, QColor(18, 24, 31), QColor(60, 74, 75), Qt::white};
    for (const QColor &ground : grounds) {
        QTest::addRow("normal, %s", qPrintable(ground.name())) << false << ground;
        QTest::addRow("small, %s", qPrintable(ground.name())) << true << ground;
    }
}

void tst_Resources::emptyStarIsSeen()
{
    QFETCH(bool, small);
    QFETCH(QColor, ground);
    const QImage star = emptyStar(small);
    QImage page(star.size(), QImage::Format_RGB32);
    page.fill(ground);
    QPainter(&page).drawImage(0, 0, star);
    constexpr int seen = 32; // of 255 shades
    int pixels = 0;
    for (int y = 0; y < page.height(); ++y) {
        for (int x = 0; x < page.width(); ++x) {
            pixels += qAbs(qGray(page.pixel(x, y)) - qGray(ground.rgb())) >= seen ? 1 : 0;
        }
    }
    QVERIFY2(pixels > 2 * star.width(), qPrintable(QString::number(pixels)));
}

void tst_Resources::cleanupAndInitAreExported()
{
    const QString path = QString::fromLatin1(pictures[0].path);
    QVERIFY(QResource(path).isValid());
    QCOMPARE(qCleanupResources_Zemkit(), 1);
    QVERIFY(!QResource(path).isValid());
    QCOMPARE(qInitResources_Zemkit(), 1);
    QVERIFY(QResource(path).isValid());
}

QTEST_MAIN(tst_Resources)
#include "tst_resources.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "textshadow_p.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMTextLabel>

#include <QFontMetrics>
#include <QPainter>
#include <QRandomGenerator>
#include <QTest>

using namespace WidgetTest;
using ZemTest::inkRect;
using ZemTest::render;

namespace {

const QColor textColor(Qt::white);
const QColor shadowColor(Qt::red);

/** A label in the two colours, with a letter whose stems are several pixels wide. */
void prepare(QLabel *label)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, textColor);
    palette.setColor(QPalette::Shadow, shadowColor);
    label->setPalette(palette);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(40);
    font.setBold(true);
    label->setFont(font);
    label->setText(QStringLiteral("HI"));
    label->resize(200, 100);
}

/** What a label with a shadow must look like when its text stands in @p place. */
QImage shadowed(const QLabel &label, const QRect &place, int flags)
{
    QImage image(label.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setFont(label.font());
    painter.setPen(shadowColor);
    painter.drawText(place.adjusted(1, 1, 1, 1), flags, label.text());
    painter.setPen(textColor);
    painter.drawText(place, flags, label.text());
    return image;
}

QRect inkOf(ZEMTextLabel *label, const QColor &text, const QColor &shadow)
{
    QPalette palette;
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Shadow, shadow);
    label->setPalette(palette);
    return inkRect(render(label));
}

class AlwaysShadowed : public ZEMTextLabel
{
protected:
    void paintEvent(QPaintEvent *event) override { drawShadowLabel(event); }
};

} // namespace

class tst_ZEMTextLabel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newLabel();
    void titleIsTranslated();
    void declaresItsPropertyOnly();
    void propertyReachesTheAccessors();
    void sizeHintHasRoomForTheShadow_data();
    void sizeHintHasRoomForTheShadow();
    void withoutShadowItPaintsAsAQLabel();
    void placeOfTheShadowedText_data();
    void placeOfTheShadowedText();
    void framedLabelIsIndentedByHalfAnX();
    void shadowIsOnePixelRightAndBelow();
    void textIsDrawnOverTheShadow();
    void colorsFollowTheState();
    void foregroundRoleColorsTheText();
    void shadowedLabelShowsRichTextAsItStands();
    void shadowedLabelShowsNoPicture();
    void subclassesMayDrawTheShadow();
    void switchingTheShadowPaintsNothing();
    void effectiveIndent_data();
    void effectiveIndent();
    void textRectMovesTheAlignedEdges();
};

void tst_ZEMTextLabel::newLabel()
{
    ZEMTextLabel label;
    QCOMPARE(label.objectName(), QStringLiteral("ZEMTextLabel"));
    QCOMPARE(label.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(label.text(), QString());
    QVERIFY(!label.getShadow());

    QWidget host;
    QCOMPARE((new ZEMTextLabel(&host))->parentWidget(), &host);
}

void tst_ZEMTextLabel::titleIsTranslated()
{
    ContextTranslator translator;
    QCOMPARE(ZEMTextLabel().windowTitle(), QStringLiteral("ZEMTextLabel/Form"));
}

void tst_ZEMTextLabel::declaresItsPropertyOnly()
{
    const QMetaObject &metaObject = ZEMTextLabel::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), QStringList(QStringLiteral("enableShadow:bool")));
    QCOMPARE(ownMethodCount(metaObject), 0);
}

void tst_ZEMTextLabel::propertyReachesTheAccessors()
{
    ZEMTextLabel label;
    QVERIFY(label.setProperty("enableShadow", true));
    QVERIFY(label.getShadow());
    QVERIFY(label.property("enableShadow").toBool());
    label.setShadow(false);
    QVERIFY(!label.property("enableShadow").toBool());
}

void tst_ZEMTextLabel::sizeHintHasRoomForTheShadow_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("shadow");

    for (bool shadow : {false, true}) {
        QTest::newRow(shadow ? "empty, shadow" : "empty") << QString() << shadow;
        QTest::newRow(shadow ? "word, shadow" : "word") << QStringLiteral("Verbruik") << shadow;
        QTest::newRow(shadow ? "lines, shadow" : "lines") << QStringLiteral("een\ntwee") << shadow;
    }
}

void tst_ZEMTextLabel::sizeHintHasRoomForTheShadow()
{
    QFETCH(QString, text);
    QFETCH(bool, shadow);

    QLabel plain(text);
    ZEMTextLabel label;
    label.setText(text);
    label.setShadow(shadow);
    QCOMPARE(label.sizeHint(), plain.sizeHint() + QSize(1, 1));
}

void tst_ZEMTextLabel::withoutShadowItPaintsAsAQLabel()
{
    for (const QString &text : {QStringLiteral("HI"), QStringLiteral("<i>H</i>I")}) {
        QLabel plain;
        ZEMTextLabel label;
        prepare(&plain);
        prepare(&label);
        plain.setText(text);
        label.setText(text);
        QVERIFY(!inkRect(render(&label)).isNull());
        QCOMPARE(render(&label), render(&plain));
    }
}

void tst_ZEMTextLabel::placeOfTheShadowedText_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("indent");
    QTest::addColumn<bool>("wordWrap");
    QTest::addColumn<QRect>("place");

    const auto row = [](const char *name, Qt::Alignment alignment, int margin, int indent,
                        bool wordWrap, const QRect &place) {
        QTest::newRow(name) << alignment << margin << indent << wordWrap << place;
    };
    const Qt::Alignment left = Qt::AlignLeft | Qt::AlignVCenter;
    row("left", left, 0, -1, false, {0, 0, 200, 100});
    row("left, indent 0", left, 0, 0, false, {0, 0, 200, 100});
    row("left, indent", left, 0, 5, false, {5, 0, 195, 100});
    row("left, margin", left, 7, -1, false, {7, 7, 186, 86});
    row("left, margin and indent", left, 7, 5, false, {12, 7, 181, 86});
    row("right, indent", Qt::AlignRight | Qt::AlignVCenter, 0, 9, false, {0, 0, 191, 100});
    row("top, indent", Qt::AlignHCenter | Qt::AlignTop, 0, 9, false, {0, 9, 200, 91});
    row("bottom, indent", Qt::AlignHCenter | Qt::AlignBottom, 0, 9, false, {0, 0, 200, 91});
    row("right and bottom, indent", Qt::AlignRight | Qt::AlignBottom, 2, 9, false, {2, 2, 187, 87});
    row("left and top, indent", Qt::AlignLeft | Qt::AlignTop, 0, 9, false, {9, 9, 191, 91});
    row("centre, indent", Qt::AlignCenter, 0, 9, false, {0, 0, 200, 100});
    row("wrapped", Qt::AlignCenter, 0, -1, true, {0, 0, 200, 100});
    row("too long a line", Qt::AlignCenter, 0, -1, false, {0, 0, 200, 100});
}

void tst_ZEMTextLabel::placeOfTheShadowedText()
{
    QFETCH(Qt::Alignment, alignment);
    QFETCH(int, margin);
    QFETCH(int, indent);
    QFETCH(bool, wordWrap);
    QFETCH(QRect, place);

    ZEMTextLabel label;
    prepare(&label);
    label.setText(wordWrap || qstrcmp(QTest::currentDataTag(), "too long a line") == 0
                      ? QStringLiteral("HIJK LMNO PQRS")
                      : QStringLiteral("HI"));
    label.setShadow(true);
    label.setAlignment(alignment);
    label.setMargin(margin);
    label.setIndent(indent);
    label.setWordWrap(wordWrap);
    const int flags = int(alignment) | (wordWrap ? Qt::TextWordWrap : 0);
    QCOMPARE(render(&label), shadowed(label, place, flags));

    label.setContentsMargins(3, 4, 5, 6);
    QCOMPARE(render(&label), shadowed(label, place.adjusted(3, 4, -5, -6), flags));
}

void tst_ZEMTextLabel::framedLabelIsIndentedByHalfAnX()
{
    ZEMTextLabel label;
    prepare(&label);
    label.setShadow(true);
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label.setFrameStyle(QFrame::Box | QFrame::Plain);
    label.setLineWidth(2);
    label.setMargin(3);
    const int indent = QFontMetrics(label.font()).horizontalAdvance(QLatin1Char('x')) / 2 - 3;
    QVERIFY(indent > 0);
    const QRect place = label.rect().adjusted(2 + 3 + indent, 2 + 3, -2 - 3, -2 - 3);
    QCOMPARE(render(&label), shadowed(label, place, int(label.alignment())));
}

void tst_ZEMTextLabel::shadowIsOnePixelRightAndBelow()
{
    ZEMTextLabel label;
    prepare(&label);
    label.setShadow(true);
    label.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    label.setIndent(0);
    const QRect atEdge = inkOf(&label, textColor, Qt::transparent);
    QVERIFY(!atEdge.isNull());

    label.setIndent(5);
    const QRect text = inkOf(&label, textColor, Qt::transparent);
    const QRect shadow = inkOf(&label, Qt::transparent, shadowColor);
    QCOMPARE(text, atEdge.translated(5, 0));
    QCOMPARE(shadow, atEdge.translated(6, 1));
}

void tst_ZEMTextLabel::textIsDrawnOverTheShadow()
{
    ZEMTextLabel label;
    prepare(&label);
    label.setShadow(true);
    label.setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const QRect text = inkOf(&label, textColor, Qt::transparent);
    prepare(&label);
    const QImage image = render(&label);
    // The middle of the left stem of the H, where the shadow lies too, and the foot below it.
    QCOMPARE(image.pixelColor(text.left() + 3, text.center().y()), textColor);
    QCOMPARE(image.pixelColor(text.left() + 3, text.bottom() + 1).green(), 0);
    QVERIFY(image.pixelColor(text.left() + 3, text.bottom() + 1).red() > 0);
}

void tst_ZEMTextLabel::colorsFollowTheState()
{
    ZEMTextLabel label;
    prepare(&label);
    label.setShadow(true);
    QPalette palette = label.palette();
    palette.setColor(QPalette::Disabled, QPalette::WindowText, Qt::green);
    palette.setColor(QPalette::Disabled, QPalette::Shadow, Qt::transparent);
    label.setPalette(palette);
    label.setEnabled(false);

    const QImage image = render(&label);
    QVERIFY(!inkRect(image).isNull());
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QCOMPARE(image.pixelColor(x, y).red(), 0);
        }
    }
}

void tst_ZEMTextLabel::foregroundRoleColorsTheText()
{
    ZEMTextLabel label;
    prepare(&label);
    label.setShadow(true);
    label.setForegroundRole(QPalette::Link);
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, Qt::transparent);
    palette.setColor(QPalette::Shadow, Qt::transparent);
    palette.setColor(QPalette::Link, Qt::green);
    label.setPalette(palette);

    const QImage image = render(&label);
    const QRect ink = inkRect(image);
    QVERIFY(!ink.isNull());
    QCOMPARE(image.pixelColor(ink.left() + 3, ink.center().y()), QColor(Qt::green));
}

void tst_ZEMTextLabel::shadowedLabelShowsRichTextAsItStands()
{
    ZEMTextLabel label;
    prepare(&label);
    label.setText(QStringLiteral("<b>H</b>"));
    label.setShadow(true);
    QCOMPARE(render(&label), shadowed(label, label.rect(), int(label.alignment())));
}

void tst_ZEMTextLabel::shadowedLabelShowsNoPicture()
{
    ZEMTextLabel label;
    label.setPixmap(ZemTest::flatPixmap({20, 20}, Qt::blue));
    label.resize(20, 20);
    QVERIFY(!inkRect(render(&label)).isNull());
    label.setShadow(true);
    QVERIFY(inkRect(render(&label)).isNull());
}

void tst_ZEMTextLabel::subclassesMayDrawTheShadow()
{
    AlwaysShadowed label;
    prepare(&label);
    QVERIFY(!label.getShadow());
    QCOMPARE(render(&label), shadowed(label, label.rect(), int(label.alignment())));
}

void tst_ZEMTextLabel::switchingTheShadowPaintsNothing()
{
    ZEMTextLabel label;
    prepare(&label);
    const Stage stage(&label);
    QVERIFY(stage.isReady());
    QCOMPARE(paintedBy(&label, [&] { label.setShadow(true); }), Painted::Never);
    QCOMPARE(paintedBy(&label, [&] { label.setShadow(false); }), Painted::Never);
    // The counter itself sees a paint when there is one.
    QCOMPARE(paintedBy(&label, [&] { label.update(); }), Painted::Later);
}

void tst_ZEMTextLabel::effectiveIndent_data()
{
    QTest::addColumn<int>("indent");
    QTest::addColumn<int>("frameWidth");
    QTest::addColumn<int>("xWidth");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("expected");

    QTest::newRow("default, no frame") << -1 << 0 << 9 << 0 << -1;
    QTest::newRow("default, frame") << -1 << 1 << 9 << 0 << 4;
    QTest::newRow("default, frame, even x") << -1 << 2 << 10 << 0 << 5;
    QTest::newRow("default, frame, margin") << -1 << 1 << 9 << 3 << 1;
    QTest::newRow("default, frame, large margin") << -1 << 1 << 9 << 6 << -2;
    QTest::newRow("other negative, frame") << -7 << 1 << 9 << 0 << 4;
    QTest::newRow("none, frame") << 0 << 1 << 9 << 0 << 0;
    QTest::newRow("given, frame") << 5 << 1 << 9 << 3 << 5;
    QTest::newRow("given, no frame") << 5 << 0 << 9 << 3 << 5;
}

void tst_ZEMTextLabel::effectiveIndent()
{
    QFETCH(int, indent);
    QFETCH(int, frameWidth);
    QFETCH(int, xWidth);
    QFETCH(int, margin);
    QFETCH(int, expected);
    QCOMPARE(TextShadow::effectiveIndent(indent, frameWidth, xWidth, margin), expected);
}

void tst_ZEMTextLabel::textRectMovesTheAlignedEdges()
{
    QRandomGenerator random(2018);
    for (int i = 0; i < 5000; ++i) {
        const QRect contents(random.bounded(-20, 20), random.bounded(-20, 20),
                             random.bounded(0, 90), random.bounded(0, 90));
        const int margin = random.bounded(0, 12);
        const int indent = random.bounded(-5, 20);
        const Qt::Alignment alignment(random.bounded(0, 512));

        int left = contents.x() + margin;
        int top = contents.y() + margin;
        int right = contents.x() + contents.width() - margin;
        int bottom = contents.y() + contents.height() - margin;
        if (indent > 0) {
            left += alignment.testFlag(Qt::AlignLeft) ? indent : 0;
            top += alignment.testFlag(Qt::AlignTop) ? indent : 0;
            right -= alignment.testFlag(Qt::AlignRight) ? indent : 0;
            bottom -= alignment.testFlag(Qt::AlignBottom) ? indent : 0;
        }
        QCOMPARE(TextShadow::textRect(contents, margin, alignment, indent),
                 QRect(left, top, right - left, bottom - top));
    }
}

QTEST_MAIN(tst_ZEMTextLabel)
#include "tst_zemtextlabel.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formtest.h"
#include "widgettest.h"
#include "zemtest.h"

#include <ZEMPageIndicator>
#include <ZEMRadioButton>

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPointer>
#include <QTest>

#include <limits>

using namespace WidgetTest;

class tst_ZEMPageIndicator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newIndicator();
    void declaresItsPropertiesAndSlot();
    void propertiesReachTheAccessors();
    void dots_data();
    void dots();
    void newCountMakesNewDots();
    void refusedCountKeepsTheDots_data();
    void refusedCountKeepsTheDots();
    void currentPage_data();
    void currentPage();
    void currentPageOutlivesItsDot();
    void currentPageWithoutDotsIsRefused();
    void dotsTakeNoTouches();
    void rowIsPainted();
    void diesWithItsDots();
};

/** The dots in the order of the row. */
static QList<ZEMRadioButton *> dotsOf(const ZEMPageIndicator &indicator)
{
    QList<ZEMRadioButton *> dots;
    for (int i = 0; i < indicator.layout()->count(); ++i) {
        dots.append(qobject_cast<ZEMRadioButton *>(indicator.layout()->itemAt(i)->widget()));
    }
    return dots;
}

/** One letter for each dot, 'x' for a marked one. */
static QString marks(const ZEMPageIndicator &indicator)
{
    QString marks;
    for (const ZEMRadioButton *dot : dotsOf(indicator)) {
        marks.append(QLatin1Char(dot->isChecked() ? 'x' : '-'));
    }
    return marks;
}

void tst_ZEMPageIndicator::newIndicator()
{
    ZEMPageIndicator indicator;
    QCOMPARE(indicator.objectName(), QStringLiteral("ZEMPageIndicator"));
    QCOMPARE(indicator.windowTitle(), QString());
    QCOMPARE(indicator.getCurrentPage(), 0);
    QCOMPARE(indicator.getNrPages(), 0);
    const auto *row = qobject_cast<QHBoxLayout *>(indicator.layout());
    QVERIFY(row);
    QCOMPARE(row->spacing(), 3);
    QCOMPARE(row->contentsMargins(), QMargins(3, 3, 3, 3));
    QCOMPARE(row->count(), 0);

    QWidget host;
    QCOMPARE((new ZEMPageIndicator(&host))->parentWidget(), &host);
}

void tst_ZEMPageIndicator::declaresItsPropertiesAndSlot()
{
    const QMetaObject &metaObject = ZEMPageIndicator::staticMetaObject;
    QCOMPARE(metaObject.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownProperties(metaObject), FormTest::strings({"currentPage:int", "pages:int"}));
    QCOMPARE(ownMethodCount(metaObject), 1);
    const int slot = metaObject.indexOfSlot("setCurrentPage(int)");
    QVERIFY(slot >= metaObject.methodOffset());
    QCOMPARE(metaObject.method(slot).access(), QMetaMethod::Public);
}

void tst_ZEMPageIndicator::propertiesReachTheAccessors()
{
    ZEMPageIndicator indicator;
    QVERIFY(indicator.setProperty("pages", 4));
    QVERIFY(indicator.setProperty("currentPage", 3));
    QCOMPARE(indicator.getNrPages(), 4);
    QCOMPARE(indicator.getCurrentPage(), 3);
    QCOMPARE(indicator.property("pages").toInt(), 4);
    QCOMPARE(indicator.property("currentPage").toInt(), 3);
}

void tst_ZEMPageIndicator::dots_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("expected");
    QTest::newRow("0") << 0 << QString();
    QTest::newRow("1") << 1 << QString();
    QTest::newRow("2") << 2 << QStringLiteral("x-");
    QTest::newRow("3") << 3 << QStringLiteral("x--");
    QTest::newRow("8") << 8 << QStringLiteral("x-------");
    QTest::newRow("9") << 9 << QStringLiteral("x--------");
}

void tst_ZEMPageIndicator::dots()
{
    QFETCH(int, count);
    QFETCH(QString, expected);
    ZEMPageIndicator indicator;
    indicator.setNrPages(5);
    indicator.setNrPages(count);
    QCOMPARE(marks(indicator), expected);
    QCOMPARE(indicator.getNrPages(), expected.size());
    QCOMPARE(indicator.findChildren<ZEMRadioButton *>().size(), expected.size());

    const QList<ZEMRadioButton *> dots = dotsOf(indicator);
    for (int page = 0; page < dots.size(); ++page) {
        QVERIFY(!dots.at(page)->isEnabled());
        QVERIFY(dots.at(page)->group()->exclusive());
        QVERIFY(!dots.at(page)->group()->parent());
        QCOMPARE(dots.at(page)->group()->id(dots.at(page)), page);
        QCOMPARE(dots.at(page)->group()->buttons().size(), expected.size());
    }
}

void tst_ZEMPageIndicator::newCountMakesNewDots()
{
    ZEMPageIndicator indicator;
    indicator.setNrPages(3);
    const QPointer<QObject> old = dotsOf(indicator).first();
    indicator.setNrPages(3);
    QVERIFY(old.isNull());
    QCOMPARE(indicator.getNrPages(), 3);
}

void tst_ZEMPageIndicator::refusedCountKeepsTheDots_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("-1") << -1;
    QTest::newRow("10") << 10;
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("most") << std::numeric_limits<int>::max();
}

void tst_ZEMPageIndicator::refusedCountKeepsTheDots()
{
    QFETCH(int, count);
    ZEMPageIndicator indicator;
    indicator.setNrPages(9);
    indicator.setCurrentPage(4);
    const QPointer<QObject> old = dotsOf(indicator).last();
    indicator.setNrPages(count);
    QVERIFY(old);
    QCOMPARE(marks(indicator), QStringLiteral("----x----"));
}

void tst_ZEMPageIndicator::currentPage_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("expected");
    QTest::addColumn<QString>("marked");
    QTest::newRow("first") << 0 << 0 << QStringLiteral("x---");
    QTest::newRow("middle") << 2 << 2 << QStringLiteral("--x-");
    QTest::newRow("last") << 3 << 3 << QStringLiteral("---x");
    QTest::newRow("one too many") << 4 << 1 << QStringLiteral("-x--");
    QTest::newRow("negative") << -1 << 1 << QStringLiteral("-x--");
}

void tst_ZEMPageIndicator::currentPage()
{
    QFETCH(int, page);
    ZEMPageIndicator indicator;
    indicator.setNrPages(4);
    indicator.setCurrentPage(1);
    indicator.setCurrentPage(page);
    QTEST(indicator.getCurrentPage(), "expected");
    QTEST(marks(indicator), "marked");
}

void tst_ZEMPageIndicator::currentPageOutlivesItsDot()
{
    ZEMPageIndicator indicator;
    indicator.setNrPages(3);
    indicator.setCurrentPage(2);
    indicator.setNrPages(2);
    QCOMPARE(indicator.getCurrentPage(), 2);
    QCOMPARE(marks(indicator), QStringLiteral("--"));
    indicator.setNrPages(1);
    QCOMPARE(indicator.getCurrentPage(), 2);
    indicator.setNrPages(4);
    QCOMPARE(marks(indicator), QStringLiteral("--x-"));
}

void tst_ZEMPageIndicator::currentPageWithoutDotsIsRefused()
{
    ZEMPageIndicator indicator;
    indicator.setCurrentPage(1);
    QCOMPARE(indicator.getCurrentPage(), 0);
    indicator.setCurrentPage(0);
    QCOMPARE(indicator.getCurrentPage(), 0);
}

void tst_ZEMPageIndicator::dotsTakeNoTouches()
{
    ZEMPageIndicator indicator;
    indicator.setNrPages(3);
    indicator.resize(indicator.sizeHint());
    const Stage stage(&indicator);
    QVERIFY(stage.isReady());
    QTest::mouseClick(dotsOf(indicator).last(), Qt::LeftButton);
    QCOMPARE(marks(indicator), QStringLiteral("x--"));
}

void tst_ZEMPageIndicator::rowIsPainted()
{
    ZEMPageIndicator indicator;
    indicator.setNrPages(3);
    indicator.setCurrentPage(1);
    // Margins and gaps of 3 around dots of 13 by 12 pixels.
    QCOMPARE(indicator.sizeHint(), QSize(3 + 3 * 13 + 2 * 3 + 3, 3 + 12 + 3));
    indicator.resize(indicator.sizeHint());
    const QImage image = ZemTest::render(&indicator, Qt::white);
    const QColor mark(227, 0, 123);
    for (int page = 0; page < 3; ++page) {
        const QPoint middle(3 + page * (13 + 3) + 6, 3 + 6);
        QCOMPARE(image.pixelColor(middle) == mark, page == 1);
    }
    const QRect inside = indicator.rect().adjusted(3, 3, -3, -3);
    QVERIFY(inside.contains(ZemTest::inkRect(image, Qt::white)));
}

void tst_ZEMPageIndicator::diesWithItsDots()
{
    auto *indicator = new ZEMPageIndicator;
    indicator->setNrPages(3);
    const QPointer<QObject> dot = dotsOf(*indicator).first();
    const QPointer<QObject> group = dotsOf(*indicator).first()->group();
    delete indicator;
    QVERIFY(dot.isNull());
    QVERIFY(group.isNull());
}

QTEST_MAIN(tst_ZEMPageIndicator)
#include "tst_zempageindicator.moc"

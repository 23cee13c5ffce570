// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgettable.h"

#include <QApplication>
#include <QImage>
#include <QStyleFactory>
#include <QTest>
#include <QWidget>
#include <ZEMAnimatedArrows>
#include <ZEMHistogram>
#include <ZEMStyle>
#include <algorithm>
#include <memory>

/** What a layout from right to left does to each widget that a form can hold, and to what is in it.
 */
class tst_LayoutDirection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void directionWithAMeaningStays_data();
    void directionWithAMeaningStays();
    void everyKeeperIsSeen();
    void chartsKeepTheirPlaces_data();
    void chartsKeepTheirPlaces();
    void otherLayoutsAreMirrored_data();
    void otherLayoutsAreMirrored();
};

namespace {

/** Classes that look and lie the same in both directions, wherever they are. */
const QByteArrayList keepers {
    "ZEMVirtualKeyboard", "QwtPlotCanvas",   "ZEMAnimatedArrows", "ZEMCurrentStatusDetailsItem",
    "ZEMEnergyIcon",      "ZEMBarIndicator", "ZEMThreeStars",     "ZEMThrobber"};

/** In the tile of the power: the sun, the house and the grid, with arrows between them. */
const QString powerFlow = QStringLiteral("ZEMCurrentStatusWidget/widget");
/** In the panel of the power: a number and its unit. */
const QString powerValue = QStringLiteral("lblConsumptionValue");

QString keeperIn(const QWidget *part)
{
    for (const QByteArray &name : keepers) {
        if (part->inherits(name.constData())) {
            return QString::fromLatin1(name);
        }
    }
    const QString name = part->objectName();
    if (name == powerValue) {
        return name;
    }
    const QString path = part->parentWidget()
        ? part->parentWidget()->objectName() + QLatin1Char('/') + name
        : QString();
    return path == powerFlow ? path : QString();
}

/** Arrows that move would make a picture differ from the next. */
std::unique_ptr<QWidget> shown(const WidgetEntry &entry, Qt::LayoutDirection direction)
{
    QGuiApplication::setLayoutDirection(direction);
    std::unique_ptr<QWidget> widget(entry.makeAlive(nullptr));
    widget->resize(entry.size);
    widget->show();
    QCoreApplication::processEvents();
    QList<ZEMAnimatedArrows *> moving = widget->findChildren<ZEMAnimatedArrows *>();
    if (auto *arrows = qobject_cast<ZEMAnimatedArrows *>(widget.get())) {
        moving << arrows;
    }
    for (ZEMAnimatedArrows *arrows : std::as_const(moving)) {
        arrows->stop();
    }
    return widget;
}

/** The pictures of all keepers in @p widget, and of itself if it is one, by place in the tree. */
QVector<QPair<QString, QImage>> keepersIn(QWidget *widget)
{
    QVector<QPair<QString, QImage>> pictures;
    QList<QWidget *> parts = widget->findChildren<QWidget *>();
    parts.prepend(widget);
    for (QWidget *part : std::as_const(parts)) {
        const QString name = keeperIn(part);
        if (!name.isEmpty() && part->isVisible()) {
            pictures.append({name, part->grab().toImage()});
        }
    }
    return pictures;
}

const WidgetEntry &entryOf(const char *className)
{
    const auto found =
        std::find_if(allEntries().begin(), allEntries().end(), [&](const WidgetEntry &entry) {
            return qstrcmp(entry.className, className) == 0;
        });
    if (found == allEntries().end()) {
        qFatal("no widget %s", className);
    }
    return *found;
}

} // namespace

void tst_LayoutDirection::initTestCase()
{
    QApplication::setStyle(new ZEMStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    ZEMStyle::setApplicationFonts();
}

void tst_LayoutDirection::cleanup()
{
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
}

void tst_LayoutDirection::directionWithAMeaningStays_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < allEntries().size(); ++i) {
        QTest::newRow(allEntries().at(i).className) << i;
    }
}

void tst_LayoutDirection::directionWithAMeaningStays()
{
    QFETCH(int, row);
    const WidgetEntry &entry = allEntries().at(row);
    const auto usual = keepersIn(shown(entry, Qt::LeftToRight).get());
    const auto reversed = keepersIn(shown(entry, Qt::RightToLeft).get());
    QCOMPARE(reversed.size(), usual.size());
    for (int i = 0; i < usual.size(); ++i) {
        QCOMPARE(reversed[i].first, usual[i].first);
        QVERIFY2(reversed[i].second == usual[i].second, qPrintable(usual[i].first));
    }
}

void tst_LayoutDirection::everyKeeperIsSeen()
{
    QStringList wanted {powerFlow, powerValue};
    for (const QByteArray &name : keepers) {
        wanted << QString::fromLatin1(name);
    }
    for (const WidgetEntry &entry : allEntries()) {
        for (const auto &keeper : keepersIn(shown(entry, Qt::LeftToRight).get())) {
            wanted.removeAll(keeper.first);
        }
    }
    QCOMPARE(wanted, QStringList());
}

void tst_LayoutDirection::chartsKeepTheirPlaces_data()
{
    QTest::addColumn<int>("row");
    for (int i = 0; i < allEntries().size(); ++i) {
        if (allEntries().at(i).metaObject->inherits(&ZEMHistogram::staticMetaObject)) {
            QTest::newRow(allEntries().at(i).className) << i;
        }
    }
}

void tst_LayoutDirection::chartsKeepTheirPlaces()
{
    QFETCH(int, row);
    QVector<QVector<QRect>> places;
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const auto chart = shown(allEntries().at(row), direction);
        places.append(QVector<QRect>());
        for (const QWidget *part : chart->findChildren<QWidget *>()) {
            places.last() << QRect(part->mapTo(chart.get(), QPoint(0, 0)), part->size());
        }
    }
    QVERIFY(!places.first().isEmpty());
    QCOMPARE(places.last(), places.first());
}

void tst_LayoutDirection::otherLayoutsAreMirrored_data()
{
    QTest::addColumn<QByteArray>("className");
    QTest::addColumn<QString>("left");
    QTest::addColumn<QString>("right");
    const auto add = [](const char *className, const char *left, const char *right) {
        QTest::newRow(className) << QByteArray(className) << left << right;
    };
    add("ZEMCurrentStatusDetails", "lblConsumptionTitle", "lblConsumptionValue");
    add("ZEMDialogPopup", "btnRejected", "btnAccepted");
    add("ZEMDialogShowText", "textBrowser", "btnAccepted");
    add("ZEMEnergyTabWidget", "tabElectricity", "tabGas");
    add("ZEMHistogramWidget", "btnYear", "btnDay");
    add("ZEMListView", "listView", "btnSelect");
    add("ZEMPageHeader", "actionButton", "lblTitle");
    add("ZEMProfileButton", "zemPixmap", "iconChecker");
    add("ZEMTotalsTodayWidget", "lblHistogramTop", "iconHistogramTop");
}

void tst_LayoutDirection::otherLayoutsAreMirrored()
{
    QFETCH(QByteArray, className);
    QFETCH(QString, left);
    QFETCH(QString, right);
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const auto widget = shown(entryOf(className.constData()), direction);
        const auto centerOf = [&](const QString &name) {
            const auto *part = widget->findChild<QWidget *>(name);
            return part ? part->mapTo(widget.get(), part->rect().center()).x() : -1;
        };
        QVERIFY2(centerOf(left) >= 0 && centerOf(right) >= 0, className.constData());
        QCOMPARE(centerOf(left) < centerOf(right), direction == Qt::LeftToRight);
    }
}

QTEST_MAIN(tst_LayoutDirection)
#include "tst_layoutdirection.moc"

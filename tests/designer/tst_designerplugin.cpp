// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "designertest.h"

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QLabel>
#include <QPluginLoader>
#include <QUiLoader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>
#include <ZEMStyle>
#include <ZEMVirtualKey>
#include <memory>

/** What the plugin of the build tree gives Qt Designer. */
class tst_DesignerPlugin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void offersTheTable();
    void tellsWhatAWidgetIs_data();
    void tellsWhatAWidgetIs();
    void iconsTellWidgetsApart();
    void widgetsAreOfTheirClassAndPainted_data();
    void widgetsAreOfTheirClassAndPainted();
    void chartsHaveBars_data();
    void chartsHaveBars();
    void textsAreSeen_data();
    void textsAreSeen();
    void keyboardHasKeys();
    void listsHaveItems();
    void formOfEveryWidgetIsPainted();
    void widgetsComeAndGo_data();
    void widgetsComeAndGo();

private:
    QDesignerCustomWidgetInterface *offered(const QString &name) const;
    std::unique_ptr<QWidget> make(const QString &name) const;

    QPluginLoader loader {QStringLiteral(PLUGIN)};
    QList<QDesignerCustomWidgetInterface *> all;
};

void tst_DesignerPlugin::initTestCase()
{
    DesignerTest::silenceTraces();
    const auto *plugin =
        qobject_cast<QDesignerCustomWidgetCollectionInterface *>(loader.instance());
    QVERIFY2(plugin, qPrintable(loader.errorString()));
    all = plugin->customWidgets();
    for (QDesignerCustomWidgetInterface *each : all) {
        QVERIFY(!each->isInitialized());
        each->initialize(nullptr); // as Designer does
        QVERIFY(each->isInitialized());
    }
}

QDesignerCustomWidgetInterface *tst_DesignerPlugin::offered(const QString &name) const
{
    for (QDesignerCustomWidgetInterface *each : all) {
        if (each->name() == name) {
            return each;
        }
    }
    return nullptr;
}

std::unique_ptr<QWidget> tst_DesignerPlugin::make(const QString &name) const
{
    return std::unique_ptr<QWidget>(offered(name)->createWidget(nullptr));
}

void tst_DesignerPlugin::offersTheTable()
{
    QCOMPARE(all.size(), allEntries().size());
    for (const WidgetEntry &entry : allEntries()) {
        QVERIFY2(offered(QLatin1String(entry.className)), entry.className);
    }
}

void tst_DesignerPlugin::tellsWhatAWidgetIs_data()
{
    DesignerTest::addEntries();
}

void tst_DesignerPlugin::tellsWhatAWidgetIs()
{
    QFETCH(int, row);
    const WidgetEntry &entry = allEntries().at(row);
    const QString name = QLatin1String(entry.className);
    const QDesignerCustomWidgetInterface *widget = offered(name);
    QCOMPARE(widget->group(), QLatin1String(entry.group));
    QCOMPARE(widget->toolTip(), QString::fromUtf8(entry.summary));
    QCOMPARE(widget->includeFile(), QStringLiteral("<%1>").arg(name));
    QCOMPARE(widget->isContainer(), entry.children.any);
    QVERIFY(widget->whatsThis().contains(widget->toolTip()));
    QVERIFY(widget->whatsThis().contains(QStringLiteral("&lt;%1&gt;").arg(name)));
    if (entry.children.pages) {
        QVERIFY(widget->whatsThis().contains(QLatin1String(entry.children.pages->name)));
    }
    QCOMPARE(widget->domXml(), dropXml(entry));
}

void tst_DesignerPlugin::iconsTellWidgetsApart()
{
    const QSize size(22, 22); // of the widget box
    QVector<QImage> seen;
    for (const QDesignerCustomWidgetInterface *widget : std::as_const(all)) {
        const QIcon icon = widget->icon();
        QVERIFY2(icon.availableSizes().contains(size), qPrintable(widget->name()));
        const QImage image = icon.pixmap(size).toImage();
        QVERIFY2(!seen.contains(image), qPrintable(widget->name()));
        const QColor ground = image.pixelColor(1, size.height() / 2);
        QVERIFY2(!ZemTest::inkRect(image, ground).isEmpty(), qPrintable(widget->name()));
        seen.append(image);
    }
}

void tst_DesignerPlugin::widgetsAreOfTheirClassAndPainted_data()
{
    DesignerTest::addEntries();
}

void tst_DesignerPlugin::widgetsAreOfTheirClassAndPainted()
{
    QFETCH(int, row);
    const WidgetEntry &entry = allEntries().at(row);
    const std::unique_ptr<QWidget> widget = make(QLatin1String(entry.className));
    QCOMPARE(QLatin1String(widget->metaObject()->className()), QLatin1String(entry.className));
    for (const SampleProperty &property : entry.properties) {
        QVERIFY(widget->setProperty(property.name, valueOf(entry, property)));
    }
    QCOMPARE(DesignerTest::missingProperty(entry, widget.get()), QString());
    widget->resize(entry.size);
    widget->show();
    ZEM_TRY_VERIFY(DesignerTest::isPainted(widget.get())); // arrows come slowly
}

/** How many pixels of @p image have @p color. */
static int count(const QImage &image, const QColor &color)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            pixels += image.pixelColor(x, y) == color ? 1 : 0;
        }
    }
    return pixels;
}

void tst_DesignerPlugin::chartsHaveBars_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"ZEMHistogramButton", "ZEMHistogramWidget", "ZEMMiniDayHistogram",
                             "ZEMSmartDayHistogram", "ZEMSmartMonthHistogram",
                             "ZEMSmartWeekHistogram", "ZEMWeekHistogram", "ZEMTotalsTodayWidget"}) {
        QTest::newRow(name) << name;
    }
}

void tst_DesignerPlugin::chartsHaveBars()
{
    QFETCH(QString, name);
    const std::unique_ptr<QWidget> widget = make(name);
    for (const WidgetEntry &entry : allEntries()) {
        if (QLatin1String(entry.className) == name) {
            widget->resize(entry.size);
        }
    }
    const QColor amber = ZEMStyle(nullptr).color(ZEMStyle::Amber);
    QVERIFY(count(ZemTest::render(widget.get()), amber) > 100);
}

void tst_DesignerPlugin::textsAreSeen_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("production of the status") << "ZEMCurrentStatusWidget"
                                              << "2,1 kW";
    QTest::newRow("an item of the details") << "ZEMCurrentStatusDetails"
                                            << "2,7 kW";
    QTest::newRow("an item") << "ZEMCurrentStatusDetailsItem"
                             << "2,1 kW";
    QTest::newRow("a question") << "ZEMDialogPopup"
                                << "Afsluiten?";
    QTest::newRow("the heading of a list") << "ZEMListView"
                                           << "Kies een plaats";
    QTest::newRow("the title of a letter") << "ZEMDialogShowText"
                                           << "Bericht";
}

void tst_DesignerPlugin::textsAreSeen()
{
    QFETCH(QString, name);
    QFETCH(QString, text);
    const QLocale locale;
    QLocale::setDefault(QLocale(QLocale::Dutch, QLocale::Netherlands));
    const std::unique_ptr<QWidget> widget = make(name);
    QLocale::setDefault(locale);
    QStringList texts;
    for (const QLabel *label : widget->findChildren<QLabel *>()) {
        texts.append(label->text());
    }
    QVERIFY2(texts.contains(text), qPrintable(texts.join(QLatin1Char('|'))));
}

void tst_DesignerPlugin::keyboardHasKeys()
{
    const std::unique_ptr<QWidget> keyboard = make(QStringLiteral("ZEMVirtualKeyboard"));
    QVERIFY(keyboard->findChildren<ZEMVirtualKey *>().size() > 30);
}

void tst_DesignerPlugin::listsHaveItems()
{
    for (const char *name : {"ZEMListView", "ZEMSimpleListView"}) {
        const std::unique_ptr<QWidget> page = make(QLatin1String(name));
        QVERIFY(page->findChild<QAbstractItemView *>()->model()->rowCount() > 1);
    }
}

void tst_DesignerPlugin::formOfEveryWidgetIsPainted()
{
    QUiLoader forms; // which gets the widgets of the very plugin
    forms.clearPluginPaths();
    forms.addPluginPath(QStringLiteral(PLUGINS_DIR "/designer"));
    QFile file(QStringLiteral(ALL_WIDGETS));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const std::unique_ptr<QWidget> form(forms.load(&file));
    QVERIFY(form);
    form->show();
    for (const WidgetEntry &entry : allEntries()) {
        auto *widget = form->findChild<QWidget *>(objectNameOf(entry), Qt::FindDirectChildrenOnly);
        QVERIFY2(widget && widget->isVisible(), entry.className);
        ZEM_TRY_VERIFY(DesignerTest::isPainted(widget)); // arrows come slowly
    }
}

void tst_DesignerPlugin::widgetsComeAndGo_data()
{
    DesignerTest::addEntries();
}

void tst_DesignerPlugin::widgetsComeAndGo()
{
    QFETCH(int, row);
    QDesignerCustomWidgetInterface *entry = offered(QLatin1String(allEntries().at(row).className));
    auto page = std::make_unique<QWidget>();
    QWidget *alone = entry->createWidget(page.get());
    QWidget *withItsPage = entry->createWidget(page.get());
    QCOMPARE(withItsPage->parentWidget(), page.get());
    page->show();
    QCoreApplication::processEvents();
    delete alone;
    QCoreApplication::processEvents();
    page.reset();
    QCoreApplication::processEvents();
    const std::unique_ptr<QWidget> neverShown(entry->createWidget(nullptr));
}

QTEST_MAIN(tst_DesignerPlugin)
#include "tst_designerplugin.moc"

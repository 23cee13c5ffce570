// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "designertest.h"

#include <QAbstractButton>
#include <QDir>
#include <QDomDocument>
#include <QLayout>
#include <QRegularExpression>
#include <QUiLoader>
#include <ZEMPageHeader>
#include <ZEMPageHeaderButton>
#include <ZEMVirtualKeyboard>
#include <memory>

/** Forms that a program loads while it runs, with the plugin of the build tree. */
class tst_DesignerForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void loaderOffersEveryWidget();
    void formOfEveryWidgetLoads();
    void pagesAreWhereTheirMethodPutsThem();
    void widgetsOfAProgramHaveNoSampleData();
    void formsOfTheLibraryLoad_data();
    void formsOfTheLibraryLoad();
    void widgetsMayBeDeletedInAnyOrder();

private:
    std::unique_ptr<QWidget> load(const QString &path);

    std::unique_ptr<QUiLoader> loader;
};

void tst_DesignerForms::init()
{
    DesignerTest::silenceTraces();
    loader = std::make_unique<QUiLoader>();
    loader->clearPluginPaths();
    loader->addPluginPath(QStringLiteral(PLUGINS_DIR "/designer"));
}

std::unique_ptr<QWidget> tst_DesignerForms::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return nullptr;
    }
    return std::unique_ptr<QWidget>(loader->load(&file));
}

void tst_DesignerForms::loaderOffersEveryWidget()
{
    const QStringList offered = loader->availableWidgets();
    for (const WidgetEntry &entry : allEntries()) {
        QVERIFY2(offered.contains(QLatin1String(entry.className)), entry.className);
    }
}

void tst_DesignerForms::formOfEveryWidgetLoads()
{
    const std::unique_ptr<QWidget> form = load(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    for (const WidgetEntry &entry : allEntries()) {
        auto *widget = form->findChild<QWidget *>(objectNameOf(entry), Qt::FindDirectChildrenOnly);
        QVERIFY2(widget, entry.className);
        QCOMPARE(widget->metaObject()->className(), entry.className);
        QCOMPARE(DesignerTest::missingProperty(entry, widget), QString());
    }
}

void tst_DesignerForms::pagesAreWhereTheirMethodPutsThem()
{
    const std::unique_ptr<QWidget> form = load(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    QCOMPARE(form->findChild<ZEMPageHeader *>()->getNrOfButtons(), 1);
    auto *page = form->findChild<QWidget *>(QStringLiteral("pageHeaderPage"));
    QVERIFY(page);
    QVERIFY(qobject_cast<ZEMPageHeaderButton *>(page->parentWidget()));
    auto *tile = form->findChild<QWidget *>(QStringLiteral("pageHeaderButton"));
    page = form->findChild<QWidget *>(QStringLiteral("pageHeaderButtonPage"));
    QVERIFY(tile && page);
    QVERIFY(tile->layout()->indexOf(page) >= 0);
}

void tst_DesignerForms::widgetsOfAProgramHaveNoSampleData()
{
    const std::unique_ptr<QWidget> form = load(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    auto *tile = form->findChild<QWidget *>(QStringLiteral("currentStatusWidget"));
    QCOMPARE(tile->property("production"), QVariant(0.0));
    QVERIFY(form->findChild<ZEMVirtualKeyboard *>()->findChildren<QAbstractButton *>().isEmpty());
    QCOMPARE(form->findChild<QWidget *>(QStringLiteral("threeStars"))->property("stars"),
             QVariant(0));
}

void tst_DesignerForms::formsOfTheLibraryLoad_data()
{
    QTest::addColumn<QString>("path");
    const QDir forms(QStringLiteral(FORMS_DIR));
    const QStringList names = forms.entryList({QStringLiteral("*.ui")});
    QVERIFY(names.size() > 15);
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << forms.filePath(name);
    }
}

/** The names and classes of all widgets of a form, the form itself first. */
static QVector<QPair<QString, QString>> widgetsOf(const QString &path)
{
    QFile file(path);
    QDomDocument form;
    if (!file.open(QIODevice::ReadOnly) || !form.setContent(file.readAll())) {
        return {};
    }
    QVector<QPair<QString, QString>> widgets;
    const QDomNodeList elements = form.elementsByTagName(QStringLiteral("widget"));
    for (int i = 0; i < elements.size(); ++i) {
        const QDomElement element = elements.at(i).toElement();
        widgets.append({element.attribute(QStringLiteral("name")),
                        element.attribute(QStringLiteral("class"))});
    }
    return widgets;
}

/** What stands for @p name in a form: two names are no classes that a form may know. */
static QString loadedAs(const QString &name)
{
    if (name == QLatin1String("Line")) {
        return QStringLiteral("QFrame");
    }
    return name == QLatin1String("TapList") ? QStringLiteral("QListView") : name;
}

void tst_DesignerForms::formsOfTheLibraryLoad()
{
    QFETCH(QString, path);
    const QVector<QPair<QString, QString>> expected = widgetsOf(path);
    QVERIFY(!expected.isEmpty());
    if (path.endsWith(QLatin1String("zemsimplelistview.ui"))) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("'TapList'")));
    }
    const std::unique_ptr<QWidget> form = load(path);
    QVERIFY(form);
    QCOMPARE(form->objectName(), expected.constFirst().first);
    for (const auto &each : expected) {
        const auto *widget =
            each == expected.constFirst() ? form.get() : form->findChild<QWidget *>(each.first);
        QVERIFY2(widget, qPrintable(each.first));
        const QByteArray className = loadedAs(each.second).toLatin1();
        QVERIFY2(widget->inherits(className.constData()), qPrintable(each.first));
    }
    // An item has neither icon nor text before it has a value.
    const bool isEmpty = path.endsWith(QLatin1String("zemcurrentstatusdetailsitem.ui"));
    QCOMPARE(DesignerTest::isPainted(form.get()), !isEmpty);
}

void tst_DesignerForms::widgetsMayBeDeletedInAnyOrder()
{
    std::unique_ptr<QWidget> form = load(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    form->show();
    const auto widgets = form->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(widgets.size(), allEntries().size());
    for (int i = int(widgets.size()) - 1; i >= 0; i -= 2) {
        delete widgets.at(i);
        QCoreApplication::processEvents();
    }
    form.reset();
    QCoreApplication::processEvents();
}

QTEST_MAIN(tst_DesignerForms)
#include "tst_designerforms.moc"

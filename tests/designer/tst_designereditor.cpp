// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "designertest.h"

#include <QAction>
#include <QDesignerComponents>
#include <QDir>
#include <QExtensionManager>
#include <QMenu>
#include <QRegularExpression>
#include <QUndoStack>
#include <QtDesigner/QDesignerActionEditorInterface>
#include <QtDesigner/QDesignerContainerExtension>
#include <QtDesigner/QDesignerFormEditorInterface>
#include <QtDesigner/QDesignerFormWindowInterface>
#include <QtDesigner/QDesignerFormWindowManagerInterface>
#include <QtDesigner/QDesignerIntegration>
#include <QtDesigner/QDesignerObjectInspectorInterface>
#include <QtDesigner/QDesignerPropertyEditorInterface>
#include <QtDesigner/QDesignerPropertySheetExtension>
#include <QtDesigner/QDesignerTaskMenuExtension>
#include <QtDesigner/QDesignerWidgetBoxInterface>
#include <QtDesigner/QDesignerWidgetDataBaseInterface>
#include <QtDesigner/QDesignerWidgetFactoryInterface>
#include <ZEMPageHeader>

/** The plugin in Qt Designer itself, without its windows. */
class tst_DesignerEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void widgetBoxHasEveryWidgetInItsGroup();
    void dataBaseKnowsHeadersAndContainers();
    void everyWidgetIsMade_data();
    void everyWidgetIsMade();
    void formOfEveryWidgetIsSavedAsItWasLoaded();
    void sampleDataIsNotSaved();
    void formsOfTheLibraryAreEdited_data();
    void formsOfTheLibraryAreEdited();
    void pagesOfAHeaderComeAndGo();
    void menuOfAHeaderInsertsAPage();
    void pagesOfAHeaderAreDeletedByItsProperty();
    void tileTakesOnePage();

private:
    QDesignerFormWindowInterface *open(const QString &path);
    QDesignerContainerExtension *pagesOf(QWidget *container) const;

    QDesignerFormEditorInterface *core = nullptr;
};

void tst_DesignerEditor::initTestCase()
{
    DesignerTest::silenceTraces();
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    // Designer makes one of each widget of Qt, to know its properties.
    QTest::ignoreMessage(QtWarningMsg, "QOpenGLWidget is not supported on this platform.");
#endif
    // Not those that are installed on this machine.
    QCoreApplication::setLibraryPaths({QStringLiteral(PLUGINS_DIR)});
    QDesignerComponents::initializeResources();
    core = QDesignerComponents::createFormEditor(this);
    auto *box = QDesignerComponents::createWidgetBox(core, nullptr);
    core->setWidgetBox(box);
    box->setFileName(QStringLiteral(":/qt-project.org/widgetbox/widgetbox.xml"));
    box->load();
    core->setPropertyEditor(QDesignerComponents::createPropertyEditor(core, nullptr));
    core->setObjectInspector(QDesignerComponents::createObjectInspector(core, nullptr));
    core->setActionEditor(QDesignerComponents::createActionEditor(core, nullptr));
    new QDesignerIntegration(core, core);
    QDesignerComponents::createTaskMenu(core, this);
    QDesignerComponents::initializePlugins(core);
}

void tst_DesignerEditor::cleanupTestCase()
{
    const QList<QWidget *> windows {core->widgetBox(), core->propertyEditor(),
                                    core->objectInspector(), core->actionEditor()};
    qDeleteAll(windows);
    delete core;
}

QDesignerFormWindowInterface *tst_DesignerEditor::open(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return nullptr;
    }
    QDesignerFormWindowInterface *form = core->formWindowManager()->createFormWindow();
    form->setFileName(path);
    return form->setContents(&file) ? form : nullptr;
}

QDesignerContainerExtension *tst_DesignerEditor::pagesOf(QWidget *container) const
{
    return qt_extension<QDesignerContainerExtension *>(core->extensionManager(), container);
}

void tst_DesignerEditor::widgetBoxHasEveryWidgetInItsGroup()
{
    QStringList boxed;
    const QDesignerWidgetBoxInterface *box = core->widgetBox();
    for (int i = 0; i < box->categoryCount(); ++i) {
        const auto category = box->category(i);
        for (int j = 0; j < category.widgetCount(); ++j) {
            boxed.append(category.name() + QLatin1Char('/') + category.widget(j).name());
        }
    }
    for (const WidgetEntry &entry : allEntries()) {
        const QString place =
            QStringLiteral("%1/%2").arg(QLatin1String(entry.group), QLatin1String(entry.className));
        QVERIFY2(boxed.contains(place), entry.className);
    }
}

void tst_DesignerEditor::dataBaseKnowsHeadersAndContainers()
{
    for (const WidgetEntry &entry : allEntries()) {
        const int index = core->widgetDataBase()->indexOfClassName(QLatin1String(entry.className));
        QVERIFY2(index >= 0, entry.className);
        const QDesignerWidgetDataBaseItemInterface *item = core->widgetDataBase()->item(index);
        QCOMPARE(item->includeFile(), includeOf(entry));
        QCOMPARE(item->isContainer(), entry.children.any);
        QCOMPARE(item->extends(), qtBaseOf(entry));
    }
}

void tst_DesignerEditor::everyWidgetIsMade_data()
{
    DesignerTest::addEntries();
}

void tst_DesignerEditor::everyWidgetIsMade()
{
    QFETCH(int, row);
    const QString name = QLatin1String(allEntries().at(row).className);
    QWidget parent;
    QWidget *widget = core->widgetFactory()->createWidget(name, &parent);
    QVERIFY(widget);
    QCOMPARE(QLatin1String(widget->metaObject()->className()), name);
}

void tst_DesignerEditor::formOfEveryWidgetIsSavedAsItWasLoaded()
{
    QDesignerFormWindowInterface *form = open(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    const QString saved = form->contents();
    for (const WidgetEntry &entry : allEntries()) {
        const QString name = QLatin1String(entry.className);
        QVERIFY2(
            saved.contains(
                QStringLiteral("<widget class=\"%1\" name=\"%2\"").arg(name, objectNameOf(entry))),
            entry.className);
        QVERIFY2(
            saved.contains(QStringLiteral("<header location=\"global\">%1</header>").arg(name)),
            entry.className);
        for (const SampleProperty &property : entry.properties) {
            QVERIFY2(saved.contains(
                         QStringLiteral("<property name=\"%1\"").arg(QLatin1String(property.name))),
                     property.name);
        }
    }
    QVERIFY(saved.contains(QLatin1String("<addpagemethod>addButton</addpagemethod>")));
    QVERIFY(saved.contains(QLatin1String("name=\"pageHeaderPage\"")));
    delete form;
}

void tst_DesignerEditor::sampleDataIsNotSaved()
{
    QDesignerFormWindowInterface *form = open(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    const QString saved = form->contents();
    for (const char *data : {"production", "stars", "notifyCount", "palette", "activated"}) {
        QVERIFY2(!saved.contains(QStringLiteral("<property name=\"%1\"").arg(QLatin1String(data))),
                 data);
    }
    delete form;
}

void tst_DesignerEditor::formsOfTheLibraryAreEdited_data()
{
    QTest::addColumn<QString>("path");
    const QDir forms(QStringLiteral(FORMS_DIR));
    for (const QString &name : forms.entryList({QStringLiteral("*.ui")})) {
        QTest::newRow(qPrintable(name)) << forms.filePath(name);
    }
}

void tst_DesignerEditor::formsOfTheLibraryAreEdited()
{
    QFETCH(QString, path);
    // Two of them name a class of the library as the base of another, which is as good.
    if (path.endsWith(QLatin1String("zemdialogpopup.ui"))
        || path.endsWith(QLatin1String("zempageheader.ui"))) {
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(QStringLiteral("custom widget .* whose base class")));
    }
    QDesignerFormWindowInterface *form = open(path);
    QVERIFY(form);
    QVERIFY(form->mainContainer());
    QVERIFY(DesignerTest::isPainted(form->mainContainer()));
    delete form;
}

void tst_DesignerEditor::pagesOfAHeaderComeAndGo()
{
    QDesignerFormWindowInterface *form = open(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    auto *header = form->findChild<ZEMPageHeader *>();
    QVERIFY(header);
    QDesignerContainerExtension *pages = pagesOf(header);
    QVERIFY(pages);
    QCOMPARE(pages->count(), 1);
    QWidget *first = pages->widget(0);
    QCOMPARE(first->objectName(), QStringLiteral("pageHeaderPage"));

    for (int count = 2; count <= 5; ++count) {
        QVERIFY(pages->canAddWidget());
        pages->insertWidget(0, new QWidget);
        QCOMPARE(pages->count(), count);
        QCOMPARE(header->getNrOfButtons(), count);
        QCOMPARE(pages->currentIndex(), 0);
    }
    QVERIFY(!pages->canAddWidget());
    QCOMPARE(pages->widget(4), first);
    QVERIFY(header->isAncestorOf(first));

    QWidget *taken = pages->widget(1);
    pages->remove(1);
    QCOMPARE(pages->count(), 4);
    QCOMPARE(header->getNrOfButtons(), 4);
    QVERIFY(!taken->parentWidget());
    pages->addWidget(taken); // as an undone removal does
    QCOMPARE(pages->widget(4), taken);
    pages->setCurrentIndex(2);
    QCOMPARE(pages->currentIndex(), 2);
    delete pages->widget(4);
    QCOMPARE(pages->count(), 4);
    delete form;
}

/** The first of @p actions, or of their menus, that begins with @p text; null if there is none. */
static QAction *actionOf(const QList<QAction *> &actions, const QString &text)
{
    for (QAction *action : actions) {
        if (action->text().startsWith(text) && !action->menu()) {
            return action;
        }
        if (const QMenu *menu = action->menu()) {
            if (QAction *found = actionOf(menu->actions(), text)) {
                return found;
            }
        }
    }
    return nullptr;
}

void tst_DesignerEditor::menuOfAHeaderInsertsAPage()
{
    QDesignerFormWindowInterface *form = open(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    auto *header = form->findChild<ZEMPageHeader *>();
    QVERIFY(header);
    // What Designer itself adds to the context menu goes by a name of its own.
    const auto *menu =
        qobject_cast<QDesignerTaskMenuExtension *>(core->extensionManager()->extension(
            header, QStringLiteral("QDesignerInternalTaskMenuExtension")));
    QVERIFY(menu);
    QAction *insert = actionOf(menu->taskActions(), QStringLiteral("Insert Page After"));
    QVERIFY(insert);
    insert->trigger();
    QCOMPARE(pagesOf(header)->count(), 2);
    QCOMPARE(header->getNrOfButtons(), 2);
    form->commandHistory()->undo();
    QCOMPARE(pagesOf(header)->count(), 1);
    form->commandHistory()->redo();
    QCOMPARE(header->getNrOfButtons(), 2);
    const QString saved = form->contents();
    QCOMPARE(saved.count(QLatin1String("<widget class=\"QWidget\" name=\"page\"")), 1);
    delete form;
}

void tst_DesignerEditor::pagesOfAHeaderAreDeletedByItsProperty()
{
    QDesignerFormWindowInterface *form = open(QStringLiteral(ALL_WIDGETS));
    QVERIFY(form);
    auto *header = form->findChild<ZEMPageHeader *>();
    QVERIFY(header);
    auto *properties =
        qt_extension<QDesignerPropertySheetExtension *>(core->extensionManager(), header);
    QVERIFY(properties);
    const int index = properties->indexOf(QStringLiteral("buttons"));
    properties->setProperty(index, 3);
    properties->setChanged(index, true);
    QCOMPARE(header->getNrOfButtons(), 3);
    QCOMPARE(pagesOf(header)->count(), 0);
    const QString saved = form->contents();
    QVERIFY(saved.contains(QLatin1String("<property name=\"buttons\"")));
    QVERIFY(!saved.contains(QLatin1String("pageHeaderPage")));
    delete form;
}

void tst_DesignerEditor::tileTakesOnePage()
{
    QWidget parent;
    QWidget *tile =
        core->widgetFactory()->createWidget(QStringLiteral("ZEMPageHeaderButton"), &parent);
    QVERIFY(tile);
    QDesignerContainerExtension *pages = pagesOf(tile);
    QVERIFY(pages);
    QWidget *page = new QWidget;
    pages->addWidget(page);
    QCOMPARE(page->parentWidget(), tile);
    QVERIFY(!pages->canAddWidget());
    pages->remove(0);
    QVERIFY(!page->parentWidget());
    QVERIFY(pages->canAddWidget());
    delete page;
    QVERIFY(!pagesOf(&parent)); // which has no method for pages
}

QTEST_MAIN(tst_DesignerEditor)
#include "tst_designereditor.moc"

// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "designertest.h"
#include "ui_allwidgets.h"

#include <QLayout>

/** The code that uic makes of a form with every widget. */
class tst_DesignerCode : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidgetIsMade();
    void pagesAreWhereTheirMethodPutsThem();
};

void tst_DesignerCode::everyWidgetIsMade()
{
    DesignerTest::silenceTraces();
    QWidget form;
    Ui::AllWidgets ui;
    ui.setupUi(&form);
    for (const WidgetEntry &entry : allEntries()) {
        auto *widget = form.findChild<QWidget *>(objectNameOf(entry), Qt::FindDirectChildrenOnly);
        QVERIFY2(widget, entry.className);
        // One class has the meta-object of its base.
        const bool isNamed = qstrcmp(entry.className, "ZEMMiniDayHistogram") != 0;
        QCOMPARE(widget->metaObject()->className(), isNamed ? entry.className : "ZEMHistogram");
        QCOMPARE(DesignerTest::missingProperty(entry, widget), QString());
    }
}

void tst_DesignerCode::pagesAreWhereTheirMethodPutsThem()
{
    DesignerTest::silenceTraces();
    QWidget form;
    Ui::AllWidgets ui;
    ui.setupUi(&form);
    QCOMPARE(ui.pageHeader->getNrOfButtons(), 1);
    QVERIFY(qobject_cast<ZEMPageHeaderButton *>(ui.pageHeaderPage->parentWidget()));
    QCOMPARE(ui.pageHeaderButtonPage->parentWidget(), ui.pageHeaderButton);
    QVERIFY(ui.pageHeaderButton->layout()->indexOf(ui.pageHeaderButtonPage) >= 0);
}

QTEST_MAIN(tst_DesignerCode)
#include "tst_designercode.moc"

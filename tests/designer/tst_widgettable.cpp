// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "formxml.h"
#include "publicclasses.h"
#include "widgettable.h"

#include <QDir>
#include <QDomDocument>
#include <QIcon>
#include <QMetaProperty>
#include <QPixmap>
#include <QTest>
#include <algorithm>

/** What is in the widget box of Qt Designer, as a table. */
class tst_WidgetTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPublicClassThatAFormCanHoldIsListed();
    void rowsAreInGroupsAndOfOneClassEach();
    void summariesAreSentences();
    void propertiesOfSamplesExist_data();
    void propertiesOfSamplesExist();
    void whatTheLibrarysFormsCallAContainerIsOne();
    void baseIsAClassOfQt_data();
    void baseIsAClassOfQt();
};

static QStringList listedClasses()
{
    QStringList names;
    for (const WidgetEntry &entry : allEntries()) {
        names.append(QLatin1String(entry.className));
    }
    return names;
}

void tst_WidgetTable::everyPublicClassThatAFormCanHoldIsListed()
{
    // It is a widget, but never shown: it listens to its parent.
    const QString left = QStringLiteral("QwtPannerBase");
    QStringList expected;
    for (const PublicClass &each : publicClasses) {
        if (each.isOfForms && QLatin1String(each.name) != left) {
            expected.append(QLatin1String(each.name));
        }
    }
    QStringList listed = listedClasses();
    expected.sort();
    listed.sort();
    QCOMPARE(listed, expected);
    QVERIFY(expected.size() > 40);
}

void tst_WidgetTable::rowsAreInGroupsAndOfOneClassEach()
{
    QStringList groups;
    for (const WidgetEntry &entry : allEntries()) {
        const QString group = QLatin1String(entry.group);
        QVERIFY2(group.startsWith(QLatin1String("Zemkit: ")), entry.className);
        if (groups.isEmpty() || groups.constLast() != group) {
            QVERIFY2(!groups.contains(group), entry.className);
            groups.append(group);
        }
    }
    QCOMPARE(groups.size(), 5);
    QCOMPARE(listedClasses().removeDuplicates(), 0);
}

void tst_WidgetTable::summariesAreSentences()
{
    for (const WidgetEntry &entry : allEntries()) {
        const QString summary = QString::fromUtf8(entry.summary);
        QVERIFY2(summary.size() > 20 && summary.endsWith(QLatin1Char('.')), entry.className);
        QVERIFY2(summary.at(0).isUpper(), entry.className);
        QVERIFY2(!summary.contains(QLatin1String(". ")), entry.className);
    }
}

void tst_WidgetTable::propertiesOfSamplesExist_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < allEntries().size(); ++row) {
        QTest::newRow(allEntries().at(row).className) << row;
    }
}

void tst_WidgetTable::propertiesOfSamplesExist()
{
    QFETCH(int, row);
    const WidgetEntry &entry = allEntries().at(row);
    QVERIFY(!entry.size.isEmpty());
    for (const SampleProperty &property : entry.properties) {
        const int place = entry.metaObject->indexOfProperty(property.name);
        QVERIFY2(place >= 0, property.name);
        const QVariant value = valueOf(entry, property);
        switch (property.kind) {
        case SampleProperty::Picture:
            QVERIFY2(!value.value<QPixmap>().isNull(), property.name);
            break;
        case SampleProperty::Icon:
            QVERIFY2(!value.value<QIcon>().availableSizes().isEmpty(), property.name);
            break;
        case SampleProperty::Choice:
            QVERIFY2(value.toInt() >= 0, property.name);
            break;
        default:
            QVERIFY2(value.isValid(), property.name);
        }
    }
}

void tst_WidgetTable::whatTheLibrarysFormsCallAContainerIsOne()
{
    QStringList containers;
    for (const WidgetEntry &entry : allEntries()) {
        if (entry.children.any) {
            containers.append(QLatin1String(entry.className));
        }
    }
    const QDir forms(QStringLiteral(FORMS_DIR));
    int seen = 0;
    for (const QString &path : forms.entryList({QStringLiteral("*.ui")})) {
        QFile file(forms.filePath(path));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QDomDocument form;
        QVERIFY(form.setContent(file.readAll()));
        const QDomNodeList classes = form.elementsByTagName(QStringLiteral("customwidget"));
        for (int i = 0; i < classes.size(); ++i) {
            const QDomElement one = classes.at(i).toElement();
            const QString name = one.firstChildElement(QStringLiteral("class")).text();
            if (one.firstChildElement(QStringLiteral("container")).text() == QLatin1String("1")) {
                QVERIFY2(containers.contains(name), qPrintable(name));
                ++seen;
            }
        }
    }
    QVERIFY(seen > 0);
}

void tst_WidgetTable::baseIsAClassOfQt_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("base");
    QTest::newRow("a widget") << "ZEMBarIndicator"
                              << "QWidget";
    QTest::newRow("a label of a label") << "ZEMThrobber"
                                        << "QLabel";
    QTest::newRow("a button of a button") << "ZEMEnergyTab"
                                          << "QAbstractButton";
    QTest::newRow("beyond one of Qwt") << "ZEMHistogramLegend"
                                       << "QFrame";
    QTest::newRow("without a meta-object") << "ZEMMiniDayHistogram"
                                           << "QWidget";
}

void tst_WidgetTable::baseIsAClassOfQt()
{
    QFETCH(QString, name);
    QFETCH(QString, base);
    const auto entry =
        std::find_if(allEntries().cbegin(), allEntries().cend(), [&](const WidgetEntry &each) {
            return QLatin1String(each.className) == name;
        });
    QVERIFY(entry != allEntries().cend());
    QCOMPARE(qtBaseOf(*entry), base);
}

QTEST_MAIN(tst_WidgetTable)
#include "tst_widgettable.moc"

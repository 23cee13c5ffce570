// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "widgetplugin.h"

#include "formxml.h"
#include "pagecontainer.h"
#include "widgettable.h"

#include <QExtensionManager>
#include <QIcon>
#include <QtDesigner/QDesignerFormEditorInterface>

namespace {

/** What the entry takes, in a sentence. */
QString childrenOf(const WidgetEntry &entry)
{
    if (!entry.children.any) {
        return QStringLiteral("It takes no children.");
    }
    if (!entry.children.pages) {
        return QStringLiteral("It takes children.");
    }
    const QString method = QLatin1String(entry.children.pages->name);
    const int most = entry.children.pages->most;
    return most == 1
        ? QStringLiteral("It takes one page, which is given to %1().").arg(method)
        : QStringLiteral("It takes up to %1 pages, which are given to %2().").arg(most).arg(method);
}

} // namespace

WidgetPlugin::WidgetPlugin(const WidgetEntry &ofClass) : entry(ofClass) { }

QString WidgetPlugin::name() const
{
    return QLatin1String(entry.className);
}

QString WidgetPlugin::group() const
{
    return QLatin1String(entry.group);
}

QString WidgetPlugin::toolTip() const
{
    return QString::fromUtf8(entry.summary);
}

QString WidgetPlugin::whatsThis() const
{
    return QStringLiteral("<b>%1</b>: %2 %3 Its manual is the header %4.")
        .arg(name(), toolTip(), childrenOf(entry), includeFile().toHtmlEscaped());
}

QString WidgetPlugin::includeFile() const
{
    return includeOf(entry);
}

QIcon WidgetPlugin::icon() const
{
    return QIcon(QStringLiteral(":/zemkit/designer/icons/%1.png").arg(name().toLower()));
}

bool WidgetPlugin::isContainer() const
{
    return entry.children.any;
}

QString WidgetPlugin::domXml() const
{
    return dropXml(entry);
}

QWidget *WidgetPlugin::createWidget(QWidget *parent)
{
    return isInDesigner ? entry.makeAlive(parent) : entry.make(parent);
}

bool WidgetPlugin::isInitialized() const
{
    return isInDesigner;
}

void WidgetPlugin::initialize(QDesignerFormEditorInterface *core)
{
    if (isInDesigner) {
        return;
    }
    isInDesigner = true;
    if (core && entry.children.pages) {
        QExtensionManager *manager = core->extensionManager();
        manager->registerExtensions(new PageContainerFactory(entry, manager),
                                    QLatin1String(Q_TYPEID(QDesignerContainerExtension)));
    }
}

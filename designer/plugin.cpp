// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#include "plugin.h"

#include "widgetplugin.h"
#include "widgettable.h"

ZemkitDesignerPlugin::ZemkitDesignerPlugin(QObject *parent) : QObject(parent)
{
    for (const WidgetEntry &entry : allEntries()) {
        widgets.push_back(std::make_unique<WidgetPlugin>(entry));
    }
}

ZemkitDesignerPlugin::~ZemkitDesignerPlugin() = default;

QList<QDesignerCustomWidgetInterface *> ZemkitDesignerPlugin::customWidgets() const
{
    QList<QDesignerCustomWidgetInterface *> all;
    for (const auto &widget : widgets) {
        all.append(widget.get());
    }
    return all;
}

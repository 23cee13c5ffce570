// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef WIDGETPLUGIN_H
#define WIDGETPLUGIN_H

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

struct WidgetEntry;

/**
 * What a Designer or a QUiLoader asks of one class of the library. Only a Designer initializes it:
 * the widgets of all others are as new, and as the code of a form makes them.
 */
class WidgetPlugin final : public QDesignerCustomWidgetInterface
{
public:
    explicit WidgetPlugin(const WidgetEntry &ofClass);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QString domXml() const override;

    QWidget *createWidget(QWidget *parent) override;

    bool isInitialized() const override;
    /** From now on new widgets have sample data. @p core may be null. */
    void initialize(QDesignerFormEditorInterface *core) override;

private:
    const WidgetEntry &entry;
    bool isInDesigner = false;
};

#endif

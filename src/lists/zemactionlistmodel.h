// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef ZEMACTIONLISTMODEL_H
#define ZEMACTIONLISTMODEL_H

#include "zemkit_export.h"

#include <QAbstractListModel>
#include <QList>
#include <QString>

#include <memory>

class QAction;

/**
 * Shows a menu of actions in a list: one row for each action, with its text, icon and font.
 *
 * @code
 * #include <QAction>
 * #include <QApplication>
 * #include <ZEMActionListModel>
 * #include <ZEMSimpleListView>
 * #include <ZEMStyle>
 *
 * QApplication::setStyle(new ZEMStyle(nullptr)); // light texts
 * ZEMSimpleListView page;
 * const QList<QAction *> actions {new QAction(QStringLiteral("Gas"), &page),
 *                                 new QAction(QStringLiteral("Water"), &page)};
 * auto *menu = new ZEMActionListModel(&page);
 * menu->setTitle(QStringLiteral("Energie"));
 * menu->setActionList(actions);
 * page.setModel(menu);
 * QObject::connect(&page, &ZEMSimpleListView::sigSelect,
 *                  [=](int row) { actions.at(row)->trigger(); });
 * page.show();
 * @endcode
 *
 * The actions stay the host's. The model does not watch them: after an action has changed its text,
 * icon or font call setActionList() again, and before deleting one call removeAction(). The row of
 * an action that was deleted all the same is empty and cannot be selected, as is that of a null
 * one.
 */
class ZEM_EXPORT ZEMActionListModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ZEMActionListModel(QObject *parent = nullptr);
    ~ZEMActionListModel() override;

    /**
     * Sets the text of the header, empty by default. Views are not told: set it before the model is
     * given to a view.
     */
    void setTitle(const QString &title);

    /** Replaces all rows and resets the model. */
    void setActionList(const QList<QAction *> &actions);
    /** Adds a row at the end. An action may have any number of rows. */
    void appendAction(QAction *action);
    /** Adds a row before @p row; below 0 that is the first, past the end the last one. */
    void insertAction(int row, QAction *action);
    /** Removes the first row of @p action, if there is one. The action is not deleted. */
    void removeAction(QAction *action);

    QModelIndex index(int row, int column = 0,
                      const QModelIndex &parent = QModelIndex()) const override;
    using QObject::parent;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    /**
     * The text of the action for Qt::DisplayRole, its icon for Qt::DecorationRole and its font for
     * Qt::FontRole.
     */
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    /** The title for Qt::DisplayRole, in every section of both headers. */
    QVariant headerData(int section, Qt::Orientation orientation,
                        int role = Qt::DisplayRole) const override;
    /**
     * Selectable and enabled, be the action enabled or not: ask the action before triggering it.
     * A separator has no flags.
     */
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    Q_DISABLE_COPY(ZEMActionListModel)

    class Private;
    std::unique_ptr<Private> d;
};

#endif

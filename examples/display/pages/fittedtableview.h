// SPDX-FileCopyrightText: 2026 The zemkit developers
// SPDX-License-Identifier: MIT

#ifndef FITTEDTABLEVIEW_H
#define FITTEDTABLEVIEW_H

#include <QTableView>

/**
 * A table that fills its width: each column has the room that its longest text wants, and all share
 * what is left over. Columns are measured anew when the model is reset or the table resized.
 */
class FittedTableView : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;

    /** Whether every column has the room that it wants; if not, all lack some. */
    bool fits() const { return isRoomEnough; }

    void reset() override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitColumns();

    bool isRoomEnough = true;
};

#endif

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

class QTableView;

namespace corva
{

/// Paints a row as one: the selection in one piece, the ring of the keyboard around the row and not the cell.
class RowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

/// Rows of one line, chosen whole, without a grid; the last column takes the room that is left.
void takeTableLook(QTableView *table);

} // namespace corva

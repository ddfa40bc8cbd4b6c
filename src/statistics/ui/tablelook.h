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
    /// Kept together in a window from right to left: "1.2 MB" and not "MB 1.2".
    QString displayText(const QVariant &value, const QLocale &locale) const override;
};

/// Rows of one line, chosen whole, without a grid. To be called with the model in place; `elastic` is the
/// column that takes the room that is left.
void takeTableLook(QTableView *table, int elastic);
/// Makes the other columns as wide as their title and their first rows.
void fitColumns(QTableView *table);

} // namespace corva

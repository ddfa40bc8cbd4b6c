// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/tablelook.h"

#include "widgets/skin.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>

namespace corva
{

void RowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const auto *table = qobject_cast<const QTableView *>(option.widget);
    QStyleOptionViewItem cell = option;
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    cell.state.setFlag(QStyle::State_Selected, false);
    cell.state.setFlag(QStyle::State_MouseOver, false);
    cell.state.setFlag(QStyle::State_HasFocus, false);
    if (isSelected) {
        painter->fillRect(option.rect, skinColor(SkinRole::Selection));
        cell.palette.setColor(QPalette::Text, skinColor(SkinRole::OnSelection));
    }
    QStyledItemDelegate::paint(painter, cell, index);
    if (!table || !table->hasFocus() || table->currentIndex().row() != index.row())
        return;
    const QRect &rect = option.rect;
    const QColor ring = skinColor(SkinRole::Focus);
    painter->fillRect(QRect(rect.left(), rect.top(), rect.width(), metrics::FocusWidth), ring);
    painter->fillRect(
        QRect(rect.left(), rect.bottom() - metrics::FocusWidth + 1, rect.width(), metrics::FocusWidth), ring);
}

QString RowDelegate::displayText(const QVariant &value, const QLocale &locale) const
{
    constexpr QChar firstStrongIsolate(0x2068);
    constexpr QChar popIsolate(0x2069);
    const QString text = QStyledItemDelegate::displayText(value, locale);
    return text.isEmpty() || !QGuiApplication::isRightToLeft() ? text
                                                               : firstStrongIsolate + text + popIsolate;
}

void fitColumns(QTableView *table)
{
    constexpr int rows = 50; // the others are as wide
    const QAbstractItemModel *model = table->model();
    const QFontMetrics font = table->fontMetrics();
    for (int column = 0; column < model->columnCount(); ++column) {
        int widest = font.horizontalAdvance(model->headerData(column, Qt::Horizontal).toString());
        for (int row = 0; row < qMin(rows, model->rowCount()); ++row)
            widest = qMax(widest, font.horizontalAdvance(model->index(row, column).data().toString()));
        if (table->horizontalHeader()->sectionResizeMode(column) != QHeaderView::Stretch)
            table->setColumnWidth(column, widest + 2 * metrics::Grid + metrics::HalfGrid);
    }
}

void takeTableLook(QTableView *table, int elastic)
{
    table->setItemDelegate(new RowDelegate(table));
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->setCornerButtonEnabled(false);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    const int line = table->fontMetrics().height() + metrics::Grid;
    table->verticalHeader()->setDefaultSectionSize(qMax(metrics::RowHeight, line));
    QHeaderView *header = table->horizontalHeader();
    header->setHighlightSections(false);
    header->setMinimumSectionSize(8 * metrics::Grid);
    header->setSectionResizeMode(elastic, QHeaderView::Stretch);
    fitColumns(table);
}

} // namespace corva

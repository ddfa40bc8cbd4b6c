// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/monthsmodel.h"

#include "statistics/traffictexts.h"

#include <algorithm>
#include <iterator>

namespace corva
{

namespace
{

struct ColumnSpec {
    const char *title;
    QString (*text)(const MonthTotal &);
};

// In the order of the columns.
const ColumnSpec columnSpecs[] = {
    {QT_TRANSLATE_NOOP("corva::MonthsModel", "Month"),
     [](const MonthTotal &row) { return monthText(row.month); }},
    {QT_TRANSLATE_NOOP("corva::MonthsModel", "Received"),
     [](const MonthTotal &row) { return volumeText(row.volumes.both().received); }},
    {QT_TRANSLATE_NOOP("corva::MonthsModel", "Sent"),
     [](const MonthTotal &row) { return volumeText(row.volumes.both().sent); }},
    {QT_TRANSLATE_NOOP("corva::MonthsModel", "Roaming"),
     [](const MonthTotal &row) { return volumeText(row.volumes.roaming.total()); }},
    {QT_TRANSLATE_NOOP("corva::MonthsModel", "In all"),
     [](const MonthTotal &row) { return volumeText(row.volumes.total()); }},
};
static_assert(std::size(columnSpecs) == MonthsModel::columnCountOfAll);

} // namespace

void MonthsModel::setMonths(std::vector<MonthTotal> oldestFirst)
{
    std::reverse(oldestFirst.begin(), oldestFirst.end());
    // While a link is up only the numbers of the newest month move: the chosen row stays chosen.
    if (oldestFirst.size() == m_months.size()) {
        m_months = std::move(oldestFirst);
        if (!m_months.empty())
            Q_EMIT dataChanged(index(0, 0), index(int(m_months.size()) - 1, columnCountOfAll - 1));
        return;
    }
    beginResetModel();
    m_months = std::move(oldestFirst);
    endResetModel();
}

int MonthsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_months.size());
}

int MonthsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columnCountOfAll;
}

QVariant MonthsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    if (role == Qt::TextAlignmentRole)
        return int((index.column() == Month ? Qt::AlignLeading : Qt::AlignTrailing) | Qt::AlignVCenter);
    if (role == Qt::DisplayRole)
        return columnSpecs[index.column()].text(m_months[std::size_t(index.row())]);
    return {};
}

QVariant MonthsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCountOfAll)
        return {};
    if (role == Qt::TextAlignmentRole)
        return int((section == Month ? Qt::AlignLeading : Qt::AlignTrailing) | Qt::AlignVCenter);
    return role == Qt::DisplayRole ? tr(columnSpecs[section].title) : QVariant();
}

} // namespace corva

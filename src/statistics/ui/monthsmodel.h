// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/traffictotals.h"

#include <QAbstractTableModel>

namespace corva
{

/// The months with traffic, the newest first.
class MonthsModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Month, Received, Sent, Roaming, All, columnCountOfAll };

    using QAbstractTableModel::QAbstractTableModel;
    void setMonths(std::vector<MonthTotal> oldestFirst);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<MonthTotal> m_months;
};

} // namespace corva

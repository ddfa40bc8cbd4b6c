// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/historyrecord.h"

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <vector>

namespace corva
{

/// The connections that are over, one a row.
class HistoryModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { Started, Duration, Profile, Received, Sent, Roaming, Ended, columnCountOfAll };
    static constexpr int SortRole = Qt::UserRole; ///< what a column is sorted by

    using QAbstractTableModel::QAbstractTableModel;
    /// `now` decides how times are said.
    void setRecords(std::vector<HistoryRecord> records, const QDateTime &now);
    const HistoryRecord &record(int row) const { return m_records[std::size_t(row)]; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    std::vector<HistoryRecord> m_records;
    QDateTime m_now;
};

/// Sorts by what stands behind the texts, and finds rows by any of their texts.
class HistoryFilter final : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit HistoryFilter(QObject *parent);
    /// Every word has to occur, in any column.
    void setWords(const QString &words);

protected:
    bool filterAcceptsRow(int row, const QModelIndex &parent) const override;

private:
    QStringList m_words;
};

} // namespace corva

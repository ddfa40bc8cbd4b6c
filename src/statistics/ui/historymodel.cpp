// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/historymodel.h"

#include "statistics/traffictexts.h"

#include <QLocale>
#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct ColumnSpec {
    const char *title;
    bool isNumber;
    QString (*text)(const HistoryRecord &, const QDateTime &now);
    QVariant (*key)(const HistoryRecord &);
};

QString roamingText(const HistoryRecord &record)
{
    if (!record.isRoaming)
        return {};
    const quint64 roamed = record.volumes.roaming.total();
    return roamed == record.volumes.total() ? HistoryModel::tr("Yes") : volumeText(roamed);
}

// In the order of the columns.
const ColumnSpec columnSpecs[] = {
    {QT_TRANSLATE_NOOP("corva::HistoryModel", "Started"), false,
     [](const HistoryRecord &r, const QDateTime &now) { return whenText(r.start, now); },
     [](const HistoryRecord &r) { return QVariant(r.start); }},
    {QT_TRANSLATE_NOOP("corva::HistoryModel", "Duration"), true,
     [](const HistoryRecord &r, const QDateTime &) { return durationText(r.duration); },
     [](const HistoryRecord &r) { return QVariant(qlonglong(r.duration.count())); }},
    {QT_TRANSLATE_NOOP("corva::HistoryModel", "Profile"), false,
     [](const HistoryRecord &r, const QDateTime &) { return r.profileName.simplified(); },
     [](const HistoryRecord &r) { return QVariant(r.profileName); }},
    {QT_TRANSLATE_NOOP("corva::HistoryModel", "Received"), true,
     [](const HistoryRecord &r, const QDateTime &) { return volumeText(r.volumes.both().received); },
     [](const HistoryRecord &r) { return QVariant(r.volumes.both().received); }},
    {QT_TRANSLATE_NOOP("corva::HistoryModel", "Sent"), true,
     [](const HistoryRecord &r, const QDateTime &) { return volumeText(r.volumes.both().sent); },
     [](const HistoryRecord &r) { return QVariant(r.volumes.both().sent); }},
    {QT_TRANSLATE_NOOP("corva::HistoryModel", "Roaming"), true,
     [](const HistoryRecord &r, const QDateTime &) { return roamingText(r); },
     [](const HistoryRecord &r) { return QVariant(r.volumes.roaming.total()); }},
    {QT_TRANSLATE_NOOP("corva::HistoryModel", "Ended"), false,
     [](const HistoryRecord &r, const QDateTime &) { return historyEndText(r.ended); },
     [](const HistoryRecord &r) { return QVariant(historyEndText(r.ended)); }},
};
static_assert(std::size(columnSpecs) == HistoryModel::columnCountOfAll);

int alignment(int column)
{
    return int((columnSpecs[column].isNumber ? Qt::AlignTrailing : Qt::AlignLeading) | Qt::AlignVCenter);
}

QString fullTimes(const HistoryRecord &record)
{
    const auto text = [](const QDateTime &time) {
        return QLocale().toString(time.toLocalTime(), QLocale::LongFormat);
    };
    return HistoryModel::tr("From %1\nto %2").arg(text(record.start), text(record.end));
}

} // namespace

void HistoryModel::setRecords(std::vector<HistoryRecord> records, const QDateTime &now)
{
    beginResetModel();
    m_records = std::move(records);
    m_now = now;
    endResetModel();
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_records.size());
}

int HistoryModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : columnCountOfAll;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const HistoryRecord &of = record(index.row());
    const ColumnSpec &column = columnSpecs[index.column()];
    switch (role) {
    case Qt::DisplayRole: return column.text(of, m_now);
    case Qt::ToolTipRole: return index.column() == Started ? fullTimes(of) : QVariant();
    case Qt::TextAlignmentRole: return alignment(index.column());
    case SortRole: return column.key(of);
    default: return {};
    }
}

QVariant HistoryModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCountOfAll)
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    return role == Qt::DisplayRole ? tr(columnSpecs[section].title) : QVariant();
}

HistoryFilter::HistoryFilter(QObject *parent) : QSortFilterProxyModel(parent)
{
    setSortRole(HistoryModel::SortRole);
    setSortLocaleAware(true);
}

void HistoryFilter::setWords(const QString &words)
{
    m_words = words.simplified().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

bool HistoryFilter::filterAcceptsRow(int row, const QModelIndex &parent) const
{
    if (m_words.isEmpty())
        return true;
    QStringList texts;
    for (int column = 0; column < HistoryModel::columnCountOfAll; ++column)
        texts += sourceModel()->index(row, column, parent).data().toString();
    return std::all_of(m_words.begin(), m_words.end(), [&](const QString &word) {
        return texts.join(u'\n').contains(word, Qt::CaseInsensitive);
    });
}

} // namespace corva

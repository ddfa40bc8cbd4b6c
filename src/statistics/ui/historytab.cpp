// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/historytab.h"

#include "statistics/trafficservice.h"
#include "statistics/ui/historymodel.h"
#include "statistics/ui/tablelook.h"
#include "widgets/buttonkind.h"
#include "widgets/noticebar.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableView>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

HistoryTab::HistoryTab(TrafficService *service, QWidget *parent)
    : QWidget(parent), m_service(service), m_model(new HistoryModel(this)), m_filter(new HistoryFilter(this)),
      m_search(new QLineEdit(this)), m_delete(new QPushButton(this)),
      m_deleteAll(new QPushButton(tr("Delete &all"), this)), m_notice(new NoticeBar(this)),
      m_stack(new QStackedWidget(this)), m_table(new QTableView(this)),
      m_empty(new TextLabel(TextRole::Text, this))
{
    m_search->setObjectName(u"historySearch"_s);
    m_search->setAccessibleName(tr("Search the history"));
    m_search->setPlaceholderText(
        tr("Search (%1)").arg(QKeySequence(QKeySequence::Find).toString(QKeySequence::NativeText)));
    m_search->setClearButtonEnabled(true);
    m_search->setTextMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    m_delete->setObjectName(u"historyDelete"_s);
    m_deleteAll->setObjectName(u"historyDeleteAll"_s);
    setButtonKind(m_deleteAll, ButtonKind::Dangerous);
    connect(m_search, &QLineEdit::textChanged, m_filter, &HistoryFilter::setWords);
    connect(m_search, &QLineEdit::textChanged, this, &HistoryTab::showCounts);
    connect(m_delete, &QPushButton::clicked, this, &HistoryTab::deleteChosen);
    connect(m_deleteAll, &QPushButton::clicked, this, &HistoryTab::deleteAll);
    connect(m_notice, &NoticeBar::sigAction, this, &HistoryTab::undo);

    auto *head = new QHBoxLayout;
    head->setContentsMargins(metrics::HalfGrid, metrics::HalfGrid, metrics::HalfGrid, 0);
    head->setSpacing(metrics::Grid);
    head->addWidget(m_search, 1);
    head->addWidget(m_delete);
    head->addWidget(m_deleteAll);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, metrics::HalfGrid, 0, 0);
    layout->setSpacing(metrics::Grid);
    layout->addLayout(head);
    layout->addWidget(m_notice);
    layout->addWidget(buildTable(), 1);
    addShortcuts();
    load();
    connect(service, &TrafficService::sigHistoryChanged, this, &HistoryTab::load);
}

QWidget *HistoryTab::buildTable()
{
    m_table->setObjectName(u"historyTable"_s);
    m_table->setAccessibleName(tr("Connections that are over"));
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_filter->setSourceModel(m_model);
    m_table->setModel(m_filter);
    takeTableLook(m_table, HistoryModel::Profile);
    m_table->setSortingEnabled(true);
    m_table->sortByColumn(HistoryModel::Started, Qt::DescendingOrder);
    connect(m_table->selectionModel(), &QItemSelectionModel::selectionChanged, this, &HistoryTab::showCounts);

    m_empty->setObjectName(u"historyEmpty"_s);
    m_empty->setMuted(true);
    m_empty->setWordWrap(true);
    m_empty->setPlace(Qt::AlignCenter);
    auto *framed = new QWidget(this);
    auto *layout = new QVBoxLayout(framed);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    layout->addWidget(m_table);
    m_stack->addWidget(framed);
    m_stack->addWidget(m_empty);
    return m_stack;
}

void HistoryTab::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, QWidget *where, auto &&action) {
        auto *shortcut = new QShortcut(keys, where);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, this, action);
    };
    auto *find = new QShortcut(QKeySequence::Find, this); // from anywhere in the window
    connect(find, &QShortcut::activated, this, [this] { m_search->setFocus(Qt::ShortcutFocusReason); });
    add(QKeySequence::Delete, m_table, &HistoryTab::deleteChosen);
    add(QKeySequence::Undo, m_table, &HistoryTab::undo);
    add(Qt::Key_Escape, m_search, [this] {
        m_search->clear();
        m_table->setFocus(Qt::ShortcutFocusReason);
    });
}

void HistoryTab::load()
{
    m_isLoading = true;
    m_model->setRecords(m_service->history(), m_service->now());
    m_isLoading = false;
    const auto &records = m_service->history();
    const bool hasRoamed =
        std::any_of(records.begin(), records.end(), [](const auto &r) { return r.isRoaming; });
    fitColumns(m_table);
    m_table->setColumnHidden(HistoryModel::Roaming, !hasRoamed);
    showCounts();
}

void HistoryTab::showCounts()
{
    if (m_isLoading)
        return;
    const int all = m_model->rowCount();
    const auto chosen = int(m_table->selectionModel()->selectedRows().size());
    m_delete->setText(chosen > 1 ? tr("&Delete %n entries", nullptr, chosen) : tr("&Delete entry"));
    m_delete->setEnabled(chosen > 0);
    m_deleteAll->setEnabled(all > 0);
    m_search->setEnabled(all > 0);
    m_empty->setText(all == 0 ? tr("No connection was made yet. Each one is listed here once it is over.")
                              : tr("No entry has all of these words."));
    m_stack->setCurrentIndex(m_filter->rowCount() > 0 ? 0 : 1);
}

void HistoryTab::deleteChosen()
{
    std::vector<HistoryRecord> records;
    const QModelIndexList rows = m_table->selectionModel()->selectedRows();
    for (const QModelIndex &row : rows)
        records.push_back(m_model->record(m_filter->mapToSource(row).row()));
    const int place = rows.isEmpty() ? 0 : rows.front().row();
    remove(records);
    m_table->selectRow(qMin(place, m_filter->rowCount() - 1));
}

void HistoryTab::deleteAll()
{
    remove(m_service->history());
}

void HistoryTab::remove(const std::vector<HistoryRecord> &records)
{
    if (records.empty())
        return;
    QSet<QString> ids;
    for (const HistoryRecord &record : records)
        ids += record.id;
    m_removed = m_service->removeRecords(ids);
    m_notice->say(tr("%n entries were deleted.", nullptr, int(m_removed.size())), tr("&Undo"));
}

void HistoryTab::undo()
{
    const std::vector<HistoryRecord> removed = std::exchange(m_removed, {});
    m_notice->clear();
    m_service->restoreRecords(removed);
    m_table->setFocus(Qt::OtherFocusReason);
}

} // namespace corva

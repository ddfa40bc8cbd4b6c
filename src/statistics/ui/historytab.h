// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/historyrecord.h"

#include <QWidget>
#include <vector>

class QLineEdit;
class QPushButton;
class QStackedWidget;
class QTableView;

namespace corva
{

class HistoryFilter;
class HistoryModel;
class NoticeBar;
class TextLabel;
class TrafficService;

/// The connections that are over: found, sorted, deleted, and brought back.
class HistoryTab final : public QWidget
{
    Q_OBJECT

public:
    HistoryTab(TrafficService *service, QWidget *parent);

private:
    QWidget *buildTable();
    void addShortcuts();
    void load();
    void showCounts();
    void deleteChosen();
    void deleteAll();
    void remove(const std::vector<HistoryRecord> &records);
    void undo();

    TrafficService *m_service;
    HistoryModel *m_model;
    HistoryFilter *m_filter;
    QLineEdit *m_search;
    QPushButton *m_delete;
    QPushButton *m_deleteAll;
    NoticeBar *m_notice;
    QStackedWidget *m_stack;
    QTableView *m_table;
    TextLabel *m_empty;
    std::vector<HistoryRecord> m_removed; ///< what "Undo" brings back
    bool m_isLoading = false;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "window/pageregistry.h"

class QPushButton;
class QStackedWidget;

namespace corva
{

class NoticeBar;
class TabStrip;

/// What was carried: now, by day, by month, and the history of connections.
class TrafficPage final : public Page
{
    Q_OBJECT

public:
    TrafficPage(const PageInfo &info, const PageContext &context, QWidget *parent);

    void refresh() override;

private:
    QWidget *buildMonths();
    void showProblems();
    void exportTable();
    void exported(const QString &path, const QString &error);

    TrafficService *m_service;
    QPushButton *m_export;
    QStackedWidget *m_stack;
    TabStrip *m_tabs;
    NoticeBar *m_problems;
    NoticeBar *m_said;
};

PageEntry trafficPageEntry();

} // namespace corva

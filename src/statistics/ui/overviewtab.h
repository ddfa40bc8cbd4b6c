// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>
#include <array>

class QBoxLayout;
class QComboBox;

namespace corva
{

class Figure;
class QuotaBar;
class RateGraph;
class TextLabel;
class TrafficService;
struct PeriodUse;
struct TrafficSettings;

/// The connection, today, the billing period and its quota, and the rates of the last minutes.
class OverviewTab final : public QScrollArea
{
    Q_OBJECT

public:
    OverviewTab(TrafficService *service, QWidget *parent);
    void showNow();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Allowance {
        QWidget *row;
        TextLabel *text;
        QuotaBar *bar;
    };

    QWidget *buildFigures();
    void arrange();
    Allowance buildAllowance(std::size_t number, QWidget *parent);
    QWidget *buildQuota();
    QWidget *buildGraph();
    void showSession();
    void showRates();
    QString outlook(const PeriodUse &use, const TrafficSettings &settings) const;

    TrafficService *m_service;
    QBoxLayout *m_figures = nullptr;
    Figure *m_session;
    Figure *m_today;
    Figure *m_period;
    std::array<Allowance, 2> m_allowances{};
    TextLabel *m_forecast;
    TextLabel *m_rates = nullptr;
    RateGraph *m_graph = nullptr; ///< none where the configuration turns it off
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/traffictotals.h"
#include "statistics/ui/chartbase.h"

class QBarSet;
class QStackedBarSeries;

namespace corva
{

/// A bar for each day, foreign networks on top. The arrow keys and the pointer choose a day.
class DaysChart final : public ChartBase
{
    Q_OBJECT

public:
    explicit DaysChart(QWidget *parent);

    void setDays(std::vector<DayTotal> days);
    const std::vector<DayTotal> &days() const { return m_days; }
    /// -1: none.
    int chosen() const { return m_chosen; }
    void choose(int index);

    QSize sizeHint() const override { return {320, 200}; }
    QSize minimumSizeHint() const override { return {200, 120}; }

Q_SIGNALS:
    void sigChosen(int index);

protected:
    void paintSeries() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    std::vector<DayTotal> m_days;
    QBarSet *m_home;
    QBarSet *m_roaming;
    QStackedBarSeries *m_bars;
    int m_chosen = -1;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/ratetrace.h"
#include "statistics/ui/chartbase.h"

class QAreaSeries;
class QLineSeries;

namespace corva
{

/// The rates of the last minute or ten minutes: down as a filled line, up as a dashed one.
class RateGraph final : public ChartBase
{
    Q_OBJECT

public:
    explicit RateGraph(QWidget *parent);

    void setSpan(int seconds);
    int span() const { return m_span; }
    void setRates(const RateTrace &trace);

    QSize sizeHint() const override { return minimumSizeHint(); } ///< takes what is left
    QSize minimumSizeHint() const override { return {200, 96}; }

protected:
    void paintSeries() override;

private:
    QLineSeries *m_downEdge;
    QAreaSeries *m_filling;
    QLineSeries *m_down;
    QLineSeries *m_up;
    int m_span = 0;
};

} // namespace corva

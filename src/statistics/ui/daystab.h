// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/billingperiod.h"

#include <QWidget>

class QToolButton;

namespace corva
{

class DaysChart;
class TextLabel;
class TrafficService;

/// A billing period day by day.
class DaysTab final : public QWidget
{
    Q_OBJECT

public:
    DaysTab(TrafficService *service, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void showPeriod(const BillingPeriod &period);
    void showDays();
    void showSentence();

    TrafficService *m_service;
    BillingPeriod m_period;
    QToolButton *m_earlier;
    QToolButton *m_later;
    TextLabel *m_title;
    DaysChart *m_chart;
    TextLabel *m_sentence;
};

} // namespace corva

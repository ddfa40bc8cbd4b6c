// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/skin.h"

#include <QCategoryAxis>
#include <QChart>
#include <QChartView>
#include <functional>
#include <vector>

namespace corva
{

/// A step of 1, 2 or 5 times a power of ten, of which at most four reach `most` bytes.
quint64 niceStep(quint64 most);
/// "2 MB", "500 kB": a round number without decimals that say nothing.
QString roundVolumeText(quint64 bytes);

/// A chart in the skin's colours and the layout's direction: time runs as one reads, the scale stands where
/// the reading begins. It does not move by itself and does not take the mouse wheel.
class ChartBase : public QChartView
{
    Q_OBJECT

public:
    explicit ChartBase(QWidget *parent);

protected:
    /// The scale reaches a little over `most`; `text` names its steps.
    void setScale(quint64 most, const std::function<QString(quint64)> &text);
    /// Names of places along the time axis, which runs from `first` to `last`.
    void setPlaces(qreal first, qreal last, const std::vector<std::pair<qreal, QString>> &places);
    /// Gives the series their colours.
    virtual void paintSeries() = 0;
    void addSeries(QAbstractSeries *series);
    /// To be called at the end of the constructor.
    void takeLooks();

    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QCategoryAxis *m_time;
    QCategoryAxis *m_scale;
    quint64 m_scaleTop = 0;
};

} // namespace corva

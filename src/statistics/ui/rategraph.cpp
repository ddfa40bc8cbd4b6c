// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/rategraph.h"

#include <QAreaSeries>
#include <QLineSeries>
#include <QLocale>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

RateGraph::RateGraph(QWidget *parent)
    : ChartBase(parent), m_downEdge(new QLineSeries(this)), m_filling(new QAreaSeries(m_downEdge)),
      m_down(new QLineSeries(this)), m_up(new QLineSeries(this))
{
    setObjectName(u"rateGraph"_s);
    setAccessibleName(tr("Graph of the rates"));
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    addSeries(m_filling);
    addSeries(m_down);
    addSeries(m_up);
    setSpan(60);
    setRates({});
    takeLooks();
}

void RateGraph::setSpan(int seconds)
{
    if (std::exchange(m_span, seconds) == seconds)
        return;
    const auto name = [](int before) {
        return before < 60 ? tr("%1 s").arg(QLocale().toString(before))
                           : tr("%1 min").arg(QLocale().toString(before / 60));
    };
    // Some room behind: a name at the very end is left out in a window from right to left.
    setPlaces(-seconds, seconds / 30.0,
              {{-seconds, name(seconds)}, {-seconds / 2, name(seconds / 2)}, {0, tr("now")}});
}

void RateGraph::setRates(const RateTrace &trace)
{
    const auto &rates = trace.rates();
    const qsizetype count = std::min<qsizetype>(qsizetype(rates.size()), m_span + 1);
    QList<QPointF> down;
    QList<QPointF> up;
    quint64 most = 0;
    for (qsizetype i = count; i > 0; --i) {
        const TrafficVolume &rate = rates[rates.size() - std::size_t(i)];
        down.append({qreal(1 - i), qreal(rate.received)});
        up.append({qreal(1 - i), qreal(rate.sent)});
        most = std::max({most, rate.received, rate.sent});
    }
    setScale(most, [](quint64 bytes) { return tr("%1/s").arg(roundVolumeText(bytes)); });
    m_downEdge->replace(down);
    m_down->replace(down);
    m_up->replace(up);
}

void RateGraph::paintSeries()
{
    const QColor accent = skinColor(SkinRole::Accent);
    QColor filling = accent;
    filling.setAlphaF(0.18F);
    m_filling->setBrush(filling);
    m_filling->setPen(Qt::NoPen); // else it has an edge at its sides, too
    m_down->setPen(QPen(accent, 1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    m_up->setPen(QPen(skinColor(SkinRole::Warning), 1.75, Qt::DashLine, Qt::FlatCap, Qt::RoundJoin));
}

} // namespace corva

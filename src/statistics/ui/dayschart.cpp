// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/dayschart.h"

#include <QBarSet>
#include <QKeyEvent>
#include <QLocale>
#include <QStackedBarSeries>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

DaysChart::DaysChart(QWidget *parent)
    : ChartBase(parent), m_home(new QBarSet(QString(), this)), m_roaming(new QBarSet(QString(), this)),
      m_bars(new QStackedBarSeries(this))
{
    setObjectName(u"daysChart"_s);
    setAccessibleName(tr("Volume of each day"));
    setFocusPolicy(Qt::StrongFocus);
    m_bars->append(m_home);
    m_bars->append(m_roaming);
    m_bars->setBarWidth(0.7);
    addSeries(m_bars);
    connect(m_bars, &QAbstractBarSeries::hovered, this, [this](bool isOver, int index) {
        if (isOver)
            choose(index);
    });
    setScale(0, roundVolumeText);
    takeLooks();
}

void DaysChart::setDays(std::vector<DayTotal> days)
{
    const bool isSamePeriod =
        days.size() == m_days.size() && !days.empty() && days.front().day == m_days.front().day;
    m_days = std::move(days);
    quint64 most = 0;
    QList<qreal> home;
    QList<qreal> roaming;
    for (const DayTotal &row : m_days) {
        home += qreal(row.volumes.home.total());
        roaming += qreal(row.volumes.roaming.total());
        most = std::max(most, row.volumes.total());
    }
    setScale(most, roundVolumeText);
    if (isSamePeriod) {
        for (int i = 0; i < home.size(); ++i) {
            m_home->replace(i, home.at(i));
            m_roaming->replace(i, roaming.at(i));
        }
        return;
    }
    m_home->remove(0, m_home->count());
    m_roaming->remove(0, m_roaming->count());
    m_home->append(home);
    m_roaming->append(roaming);
    std::vector<std::pair<qreal, QString>> places;
    for (int i = 0; i < int(m_days.size()); i += 5)
        places.emplace_back(i, QLocale().toString(m_days[std::size_t(i)].day.day()));
    setPlaces(-0.5, double(m_days.size()) - 0.5, places);
    choose(-1);
}

void DaysChart::choose(int index)
{
    const int chosen = m_days.empty() ? -1 : std::clamp(index, -1, int(m_days.size()) - 1);
    m_chosen = chosen;
    for (QBarSet *set : {m_home, m_roaming}) {
        set->deselectAllBars();
        if (chosen >= 0)
            set->selectBar(chosen);
    }
    Q_EMIT sigChosen(chosen);
}

void DaysChart::paintSeries()
{
    const auto paint = [](QBarSet *set, SkinRole role) {
        set->setColor(skinColor(role));
        set->setPen(Qt::NoPen);
        set->setSelectedColor(blend(skinColor(role), skinColor(SkinRole::Text), 0.45));
    };
    paint(m_home, SkinRole::Accent);
    paint(m_roaming, SkinRole::Warning);
}

void DaysChart::keyPressEvent(QKeyEvent *event)
{
    const int forward = layoutDirection() == Qt::RightToLeft ? -1 : 1;
    const int last = int(m_days.size()) - 1;
    switch (event->key()) {
    case Qt::Key_Left: return choose(m_chosen < 0 ? last : std::clamp(m_chosen - forward, 0, last));
    case Qt::Key_Right: return choose(m_chosen < 0 ? 0 : std::clamp(m_chosen + forward, 0, last));
    case Qt::Key_Home: return choose(0);
    case Qt::Key_End: return choose(last);
    default: event->ignore();
    }
}

} // namespace corva

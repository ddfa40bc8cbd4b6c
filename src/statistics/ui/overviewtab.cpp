// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/overviewtab.h"

#include "shell/commoncfg.h"
#include "statistics/trafficservice.h"
#include "statistics/traffictexts.h"
#include "statistics/ui/figure.h"
#include "statistics/ui/quotabar.h"
#include "statistics/ui/rategraph.h"
#include "statistics/ui/usagesentences.h"
#include "widgets/factrow.h"
#include "widgets/textlabel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int minute = 60;

QString periodText(const BillingPeriod &period)
{
    return OverviewTab::tr("%1 – %2").arg(dayText(period.first), dayText(period.last));
}

} // namespace

OverviewTab::OverviewTab(TrafficService *service, QWidget *parent)
    : QScrollArea(parent), m_service(service), m_session(new Figure(u"session"_s, this)),
      m_today(new Figure(u"today"_s, this)), m_period(new Figure(u"period"_s, this)),
      m_forecast(new TextLabel(TextRole::Text, this))
{
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(metrics::HalfGrid, metrics::Grid, metrics::HalfGrid, metrics::HalfGrid);
    layout->setSpacing(metrics::Grid + metrics::HalfGrid);
    layout->addWidget(buildFigures());
    layout->addWidget(buildQuota());
    if (cmcfg.getNumber(u"statistics_widget"_s, u"graphic_enabled"_s) == 1)
        layout->addWidget(buildGraph(), 1);
    else
        layout->addStretch(1);

    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    content->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    connect(service, &TrafficService::sigChanged, this, [this] {
        if (isVisible())
            showNow();
    });
    showNow();
}

QWidget *OverviewTab::buildFigures()
{
    auto *row = new QWidget(this);
    m_figures = new QHBoxLayout(row);
    m_figures->setContentsMargins(0, 0, 0, 0);
    m_figures->setSpacing(metrics::GroupGap);
    for (Figure *figure : {m_session, m_today, m_period})
        m_figures->addWidget(figure, 1);
    return row;
}

/// Below each other where large letters leave no room side by side.
void OverviewTab::arrange()
{
    int needed = 2 * (m_figures->spacing() + metrics::HalfGrid);
    for (const Figure *figure : {m_session, m_today, m_period})
        needed += figure->minimumSizeHint().width();
    m_figures->setDirection(needed > viewport()->width() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

void OverviewTab::resizeEvent(QResizeEvent *event)
{
    QScrollArea::resizeEvent(event);
    arrange();
}

OverviewTab::Allowance OverviewTab::buildAllowance(std::size_t number, QWidget *parent)
{
    Allowance allowance{};
    allowance.row = new QWidget(parent);
    allowance.text = new TextLabel(TextRole::Strong, allowance.row);
    allowance.text->setObjectName(u"quota%1"_s.arg(number));
    allowance.text->setWordWrap(true);
    allowance.bar = new QuotaBar(allowance.row);
    auto *layout = new QVBoxLayout(allowance.row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::HalfGrid);
    layout->addWidget(allowance.text, 1);
    layout->addWidget(allowance.bar);
    return allowance;
}

QWidget *OverviewTab::buildQuota()
{
    auto *group = new QWidget(this);
    auto *side = new QHBoxLayout;
    side->setSpacing(metrics::GroupGap);
    for (std::size_t i = 0; i < m_allowances.size(); ++i) {
        m_allowances[i] = buildAllowance(i, group);
        side->addWidget(m_allowances[i].row, 1);
    }
    m_forecast->setObjectName(u"forecast"_s);
    m_forecast->setWordWrap(true);
    m_forecast->setMuted(true);
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::Grid);
    layout->addLayout(side);
    layout->addWidget(m_forecast);
    return group;
}

QWidget *OverviewTab::buildGraph()
{
    auto *group = new QWidget(this);
    m_graph = new RateGraph(group);
    m_rates = new TextLabel(TextRole::Text, group);
    m_rates->setObjectName(u"rates"_s);
    m_rates->setWordWrap(true);
    auto *span = new QComboBox(group);
    span->setObjectName(u"graphSpan"_s);
    span->setAccessibleName(tr("What the graph shows"));
    span->setToolTip(span->accessibleName());
    span->addItem(tr("The last minute"), minute);
    span->addItem(tr("The last 10 minutes"), 10 * minute);
    const int chosen = span->findData(cmcfg.getNumber(u"statistics"_s, u"graph_seconds"_s));
    span->setCurrentIndex(qMax(chosen, 0));
    m_graph->setSpan(span->currentData().toInt());
    connect(span, &QComboBox::activated, this, [this, span] {
        const int seconds = span->currentData().toInt();
        m_graph->setSpan(seconds);
        cmcfg.setValue(u"statistics"_s, u"graph_seconds"_s, QString::number(seconds));
        showRates();
    });

    auto *head = new QHBoxLayout;
    head->setSpacing(metrics::Grid);
    head->addWidget(m_rates, 1);
    head->addWidget(span);
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::Grid);
    layout->addLayout(head);
    layout->addWidget(m_graph, 1);
    return group;
}

void OverviewTab::showNow()
{
    const TrafficSettings settings = m_service->settings();
    const QDate today = m_service->now().date();
    showSession();
    const TrafficVolumes now = m_service->carriedBetween(today, today);
    m_today->setTexts(tr("Today"), volumeText(now.total()), volumesSentence(now));
    const PeriodUse use = m_service->periodUse();
    m_period->setTexts(periodText(use.period), volumeText(use.carried.total()), volumesSentence(use.carried));
    for (std::size_t i = 0; i < m_allowances.size(); ++i) {
        const bool isThere = i < use.allowances.size() && use.allowances[i].quota > 0;
        m_allowances[i].row->setVisible(isThere);
        if (!isThere)
            continue;
        const QString sentence = allowanceSentence(use.allowances[i]);
        m_allowances[i].text->setText(inLayoutDirection(sentence));
        m_allowances[i].bar->setAccessibleName(sentence);
        m_allowances[i].bar->setUse(use.allowances[i].percent(), settings.warningShare);
    }
    m_forecast->setText(outlook(use, settings));
    showRates();
    arrange();
}

void OverviewTab::showSession()
{
    const auto &history = m_service->history();
    if (m_service->isSessionUp()) {
        const TrafficVolumes carried = m_service->sessionVolumes();
        m_session->setTexts(tr("This connection, %1").arg(durationText(m_service->sessionDuration())),
                            volumeText(carried.total()), volumesSentence(carried));
    } else if (!history.empty()) {
        const HistoryRecord &last = history.back();
        m_session->setTexts(tr("Last connection, %1").arg(whenText(last.start, m_service->now())),
                            volumeText(last.volumes.total()), volumesSentence(last.volumes));
    } else {
        m_session->setTexts(tr("Connection"), u"–"_s, tr("None was made yet."));
    }
}

QString OverviewTab::outlook(const PeriodUse &use, const TrafficSettings &settings) const
{
    if (!settings.countsUsage)
        return tr("Days and months are not counted: the configuration turns it off.");
    const QString forecast = forecastSentence(use, settings);
    return settings.quota > 0
               ? forecast
               : tr("%1 Say in the settings, Traffic, what volume you have, to be warned in time.")
                     .arg(forecast);
}

void OverviewTab::showRates()
{
    if (!m_graph)
        return;
    m_graph->setRates(m_service->rates());
    const auto &rates = m_service->rates().rates();
    const TrafficVolume now = rates.empty() ? TrafficVolume() : rates.back();
    m_rates->setText(
        m_service->isSessionUp()
            ? tr("Down %1 (filled), up %2 (dashed)").arg(rateText(now.received), rateText(now.sent))
            : tr("The graph runs while a connection is up."));
    m_rates->setMuted(!m_service->isSessionUp());
    m_graph->setAccessibleDescription(m_rates->text());
}

void OverviewTab::showEvent(QShowEvent *event)
{
    QScrollArea::showEvent(event);
    showNow();
}

} // namespace corva

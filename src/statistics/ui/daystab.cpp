// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/daystab.h"

#include "statistics/trafficservice.h"
#include "statistics/traffictexts.h"
#include "statistics/ui/dayschart.h"
#include "statistics/ui/usagesentences.h"
#include "widgets/iconbutton.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QLocale>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace corva
{

DaysTab::DaysTab(TrafficService *service, QWidget *parent)
    : QWidget(parent), m_service(service), m_earlier(new IconButton({}, {}, this)),
      m_later(new IconButton({}, {}, this)), m_title(new TextLabel(TextRole::Strong, this)),
      m_chart(new DaysChart(this)), m_sentence(new TextLabel(TextRole::Text, this))
{
    m_earlier->setObjectName(u"earlier"_s);
    m_later->setObjectName(u"later"_s);
    m_earlier->setArrowType(Qt::LeftArrow);
    m_later->setArrowType(Qt::RightArrow);
    m_earlier->setName(tr("Earlier period"), QKeySequence(Qt::Key_PageUp).toString(QKeySequence::NativeText));
    m_later->setName(tr("Later period"), QKeySequence(Qt::Key_PageDown).toString(QKeySequence::NativeText));
    m_title->setObjectName(u"periodTitle"_s);
    m_sentence->setObjectName(u"daySentence"_s);
    m_sentence->setWordWrap(true);

    const auto step = [this](int days) {
        const QDate day = days < 0 ? m_period.first.addDays(-1) : m_period.last.addDays(1);
        showPeriod(billingPeriodOf(day, m_service->settings().billingDay));
    };
    connect(m_earlier, &QAbstractButton::clicked, this, [step] { step(-1); });
    connect(m_later, &QAbstractButton::clicked, this, [step] { step(1); });
    const auto key = [this](Qt::Key which, IconButton *button) {
        auto *shortcut = new QShortcut(which, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
    };
    key(Qt::Key_PageUp, m_earlier);
    key(Qt::Key_PageDown, m_later);
    connect(m_chart, &DaysChart::sigChosen, this, &DaysTab::showSentence);
    connect(service, &TrafficService::sigChanged, this, [this] {
        if (isVisible())
            showDays();
    });

    auto *head = new QHBoxLayout;
    head->setSpacing(metrics::Grid);
    head->addWidget(m_earlier);
    head->addWidget(m_title);
    head->addWidget(m_later);
    head->addStretch(1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, metrics::Grid, metrics::HalfGrid, metrics::HalfGrid);
    layout->setSpacing(metrics::Grid);
    layout->addLayout(head);
    layout->addWidget(m_chart, 1);
    layout->addWidget(m_sentence);
    showPeriod(billingPeriodOf(service->now().date(), service->settings().billingDay));
}

void DaysTab::showPeriod(const BillingPeriod &period)
{
    m_period = period;
    m_title->setText(tr("%1 – %2").arg(QLocale().toString(period.first, QLocale::ShortFormat),
                                       QLocale().toString(period.last, QLocale::ShortFormat)));
    m_later->setEnabled(period.last < m_service->now().date());
    const QDate first = m_service->totals().firstDay();
    m_earlier->setEnabled(first.isValid() && first < period.first);
    showDays();
}

void DaysTab::showDays()
{
    m_chart->setDays(m_service->totals().everyDay(m_period.first, m_period.last));
    showSentence();
}

void DaysTab::showSentence()
{
    const int chosen = m_chart->chosen();
    const TrafficVolumes all = m_service->carriedBetween(m_period.first, m_period.last);
    QString sentence;
    if (chosen >= 0) {
        const DayTotal &row = m_chart->days()[std::size_t(chosen)];
        sentence = tr("%1: %2").arg(dayText(row.day), volumesSentence(row.volumes));
    } else if (all.total() == 0) {
        sentence = tr("Nothing was carried in this period.");
    } else {
        sentence = tr("In all: %1").arg(volumesSentence(all));
    }
    m_sentence->setText(inLayoutDirection(sentence));
    m_chart->setAccessibleDescription(sentence);
}

void DaysTab::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    showPeriod(m_period);
}

} // namespace corva

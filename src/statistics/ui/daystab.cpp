// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/daystab.h"

#include "statistics/trafficservice.h"
#include "statistics/traffictexts.h"
#include "statistics/ui/dayschart.h"
#include "statistics/ui/usagesentences.h"
#include "widgets/textlabel.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLocale>
#include <QShortcut>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace corva
{

DaysTab::DaysTab(TrafficService *service, QWidget *parent)
    : QWidget(parent), m_service(service), m_earlier(new QToolButton(this)), m_later(new QToolButton(this)),
      m_title(new TextLabel(TextRole::Strong, this)), m_chart(new DaysChart(this)),
      m_sentence(new TextLabel(TextRole::Text, this))
{
    const bool isReversed = QGuiApplication::isRightToLeft();
    const auto arm = [this](QToolButton *button, const QString &id, const QString &name, Qt::ArrowType arrow,
                            Qt::Key key) {
        button->setObjectName(id);
        button->setAccessibleName(name);
        button->setArrowType(arrow);
        button->setFixedSize(metrics::ControlHeight, metrics::ControlHeight);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setToolTip(tr("%1 (%2)").arg(name, QKeySequence(key).toString(QKeySequence::NativeText)));
        auto *shortcut = new QShortcut(key, this);
        shortcut->setContext(Qt::WidgetWithChildrenShortcut);
        connect(shortcut, &QShortcut::activated, button, &QAbstractButton::click);
    };
    arm(m_earlier, u"earlier"_s, tr("Earlier period"), isReversed ? Qt::RightArrow : Qt::LeftArrow,
        Qt::Key_PageUp);
    arm(m_later, u"later"_s, tr("Later period"), isReversed ? Qt::LeftArrow : Qt::RightArrow,
        Qt::Key_PageDown);
    m_title->setObjectName(u"periodTitle"_s);
    m_sentence->setObjectName(u"daySentence"_s);
    m_sentence->setWordWrap(true);

    const auto step = [this](int days) {
        const QDate day = days < 0 ? m_period.first.addDays(-1) : m_period.last.addDays(1);
        showPeriod(billingPeriodOf(day, m_service->settings().billingDay));
    };
    connect(m_earlier, &QAbstractButton::clicked, this, [step] { step(-1); });
    connect(m_later, &QAbstractButton::clicked, this, [step] { step(1); });
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/offlinepanel.h"

#include "connection/connectiondiagnosis.h"
#include "connection/connectionservice.h"
#include "connection/profilestore.h"
#include "connection/simprofile.h"
#include "device/cardmonitor.h"
#include "widgets/buttonkind.h"
#include "widgets/cdepaint.h"
#include "widgets/contentscroll.h"
#include "widgets/skinicon.h"
#include "widgets/textlabel.h"
#include "window/mender.h"
#include "window/pageregistry.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct SignRow {
    StepStatus status;
    SkinRole role;
    QLatin1StringView icon;
    const char *name; ///< what the screen reader says for the sign
};

constexpr SignRow signRows[] = {
    {StepStatus::Ok, SkinRole::Good, "ok"_L1, QT_TRANSLATE_NOOP("corva::DiagnosisRow", "in order")},
    {StepStatus::Failed, SkinRole::Bad, "problem"_L1, QT_TRANSLATE_NOOP("corva::DiagnosisRow", "problem")},
    {StepStatus::Running, SkinRole::Warning, "running"_L1,
     QT_TRANSLATE_NOOP("corva::DiagnosisRow", "under way")},
    {StepStatus::NotReached, SkinRole::MutedText, "pending"_L1,
     QT_TRANSLATE_NOOP("corva::DiagnosisRow", "not known yet")},
};

const SignRow &signOf(StepStatus status)
{
    return signRows[static_cast<int>(status)];
}

} // namespace

DiagnosisRow::DiagnosisRow(DiagnosisStepId id, QWidget *parent)
    : QWidget(parent), m_sign(new QLabel(this)), m_title(new TextLabel(TextRole::Text, this)),
      m_found(new TextLabel(TextRole::Text, this)), m_sentence(new TextLabel(TextRole::Text, this)),
      m_mend(new QPushButton(this))
{
    setObjectName(u"step%1"_s.arg(int(id)));
    m_title->setObjectName(u"title"_s);
    m_found->setObjectName(u"found"_s);
    m_sentence->setObjectName(u"sentence"_s);
    m_mend->setObjectName(u"mend"_s);
    m_found->setMuted(true);
    m_found->setPlace(Qt::AlignTrailing | Qt::AlignVCenter);
    m_found->setWordWrap(true);
    m_sentence->setWordWrap(true);
    setButtonKind(m_mend, ButtonKind::Primary);

    auto *head = new QHBoxLayout;
    head->setSpacing(metrics::Grid + metrics::HalfGrid);
    head->addWidget(m_sign);
    head->addWidget(m_title);
    head->addWidget(m_found, 1);
    auto *advice = new QVBoxLayout;
    advice->setContentsMargins(metrics::IconSize + metrics::Grid + metrics::HalfGrid, 0, 0, 0);
    advice->setSpacing(metrics::Grid);
    advice->addWidget(m_sentence);
    advice->addWidget(m_mend, 0, Qt::AlignLeading);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::Grid + metrics::HalfGrid, 5, metrics::Grid + metrics::HalfGrid, 5);
    layout->setSpacing(metrics::HalfGrid);
    layout->addLayout(head);
    layout->addLayout(advice);
    connect(m_mend, &QPushButton::clicked, this, [this] { Q_EMIT sigMend(m_step.action); });
}

void DiagnosisRow::setStep(const DiagnosisStep &step)
{
    m_step = step;
    const bool isProblem = step.status == StepStatus::Failed || step.status == StepStatus::Running;
    m_title->setText(step.title);
    m_title->setMuted(step.status == StepStatus::NotReached);
    QFont font = skinFont(isProblem ? TextRole::Strong : TextRole::Text);
    m_title->setFont(font);
    m_found->setText(step.headline);
    m_sentence->setText(step.sentence);
    m_sentence->setVisible(isProblem);
    m_mend->setText(step.actionText);
    m_mend->setVisible(step.action != MendAction::None);
    m_mend->setAccessibleDescription(step.sentence);
    const SignRow &sign = signOf(step.status);
    m_sign->setAccessibleName(tr(sign.name));
    setAccessibleName(tr("%1: %2").arg(step.title, tr(sign.name)));
    drawSign();
    update();
}

void DiagnosisRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        setStep(m_step);
}

void DiagnosisRow::drawSign()
{
    const SignRow &sign = signOf(m_step.status);
    m_sign->setPixmap(skinPixmap(sign.icon, skinColor(sign.role), metrics::IconSize, devicePixelRatioF()));
}

void DiagnosisRow::paintEvent(QPaintEvent *)
{
    if (m_step.status != StepStatus::Failed && m_step.status != StepStatus::Running)
        return;
    QPainter painter(this);
    paint::box(painter, rect(), skinColor(SkinRole::Surface),
               blend(skinColor(SkinRole::Window), skinColor(SkinRole::Line), 0.45));
}

OfflinePanel::OfflinePanel(const PageContext &context, QWidget *parent)
    : QWidget(parent), m_monitor(context.monitor), m_connection(context.connection),
      m_profiles(context.profiles), m_conclusion(new TextLabel(TextRole::Text, this)),
      m_back(new QPushButton(tr("&Back"), this))
{
    setObjectName(u"offlinePanel"_s);
    m_back->setObjectName(u"back"_s);
    m_back->setToolTip(tr("%1 (%2)").arg(tr("Back"), u"Esc"_s));
    m_conclusion->setObjectName(u"conclusion"_s);
    m_conclusion->setMuted(true);
    m_conclusion->setWordWrap(true);

    auto *titleRow = new QHBoxLayout;
    titleRow->addWidget(new TextLabel(tr("Why am I offline?"), TextRole::Title, this), 1);
    titleRow->addWidget(m_back);

    auto *list = new QWidget(this);
    auto *rows = new QVBoxLayout(list);
    rows->setContentsMargins(0, 0, metrics::HalfGrid, 0);
    rows->setSpacing(0);
    const auto all = steps();
    for (const DiagnosisStep &step : all) {
        m_rows.push_back(new DiagnosisRow(step.id, list));
        rows->addWidget(m_rows.back());
        connect(m_rows.back(), &DiagnosisRow::sigMend, context.mender, &Mender::mend);
    }
    rows->addStretch(1);
    m_scroll = scrollAreaFor(list, this);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::PageMargin, metrics::PageMargin - metrics::Grid, metrics::PageMargin,
                               metrics::PageMargin - metrics::Grid);
    layout->setSpacing(metrics::Grid);
    layout->addLayout(titleRow);
    layout->addWidget(m_conclusion);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_scroll, 1);

    connect(m_back, &QPushButton::clicked, this, &OfflinePanel::sigBack);
    connect(m_monitor, &CardMonitor::sigStateChanged, this, &OfflinePanel::update);
    connect(m_connection, &ConnectionService::sigStatusChanged, this, &OfflinePanel::update);
    connect(m_profiles, &ProfileStore::sigChanged, this, &OfflinePanel::update);
    update();
}

std::vector<DiagnosisStep> OfflinePanel::steps() const
{
    const CardState &card = m_monitor->state();
    return diagnose(card, m_connection->status(), profileForSim(*m_profiles, card.identity.imsi));
}

void OfflinePanel::update()
{
    const auto found = steps();
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        m_rows[i]->setStep(found[i]);
    const DiagnosisStep *problem = firstProblem(found);
    if (!problem)
        m_conclusion->setText(tr("Everything from the socket to the internet is in order."));
    else if (problem->status == StepStatus::Running)
        m_conclusion->setText(tr("Nothing is wrong so far; the card is at it."));
    else
        m_conclusion->setText(tr("One step is not in order. The steps after it follow by themselves."));
    if (isVisible())
        showProblem();
}

void OfflinePanel::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    m_back->setFocus(Qt::OtherFocusReason);
    m_shownProblem.reset();
    showProblem();
}

void OfflinePanel::showProblem()
{
    const auto found = steps();
    const DiagnosisStep *problem = firstProblem(found);
    const auto id = problem ? std::optional(problem->id) : std::nullopt;
    if (std::exchange(m_shownProblem, id) == id || !problem)
        return; // the person may be reading elsewhere
    m_scroll->widget()->layout()->activate();
    m_scroll->ensureWidgetVisible(m_rows.at(std::size_t(problem - found.data())), 0, metrics::GroupGap);
}

} // namespace corva

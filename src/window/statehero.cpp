// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/statehero.h"

#include "widgets/buttonkind.h"
#include "widgets/signalbars.h"
#include "widgets/skinicon.h"
#include "widgets/textlabel.h"
#include "window/statustexts.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QStackedWidget>
#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int pictureSize = 48;
constexpr int sentenceWidth = 440;

struct PictureRow {
    DiagnosisStepId step;
    QLatin1StringView icon;
};

constexpr PictureRow pictureRows[] = {
    {DiagnosisStepId::UsbMode, "card-off"_L1},   {DiagnosisStepId::Port, "card-off"_L1},
    {DiagnosisStepId::Rights, "lock"_L1},        {DiagnosisStepId::PortFree, "busy"_L1},
    {DiagnosisStepId::Answer, "silent"_L1},      {DiagnosisStepId::Sim, "sim-off"_L1},
    {DiagnosisStepId::Pin, "lock"_L1},           {DiagnosisStepId::Radio, "radio-off"_L1},
    {DiagnosisStepId::Registration, "radio"_L1}, {DiagnosisStepId::Network, "radio-off"_L1},
};

QString pictureOf(const DiagnosisStep &problem)
{
    if (problem.action == MendAction::SwitchMode)
        return u"disk"_s;
    const auto *row = std::find_if(std::begin(pictureRows), std::end(pictureRows),
                                   [&](const PictureRow &candidate) { return candidate.step == problem.id; });
    return row == std::end(pictureRows) ? u"card"_s : QString(row->icon);
}

} // namespace

StateHero::StateHero(Form form, QWidget *parent)
    : QWidget(parent), m_picture(new QStackedWidget(this)), m_icon(new QLabel(this)),
      m_bars(new SignalBars(pictureSize, this)), m_headline(new TextLabel(TextRole::Title, this)),
      m_sentence(new TextLabel(TextRole::Text, this)), m_mend(new QPushButton(this)),
      m_why(new QPushButton(tr("&Why am I offline?"), this))
{
    setObjectName(form == Form::Wide ? u"hero"_s : u"emptyState"_s);
    m_headline->setObjectName(u"headline"_s);
    m_sentence->setObjectName(u"sentence"_s);
    m_mend->setObjectName(u"mend"_s);
    m_why->setObjectName(u"whyOffline"_s);
    m_headline->setWordWrap(true);
    m_sentence->setWordWrap(true);
    m_sentence->setMuted(true);
    setButtonKind(m_mend, ButtonKind::Primary);
    setButtonKind(m_why, ButtonKind::Flat);
    m_picture->addWidget(m_icon);
    m_picture->addWidget(m_bars);
    m_picture->setFixedSize(pictureSize, pictureSize);
    if (form == Form::Wide)
        buildWide();
    else
        buildCentred();
    connect(m_mend, &QPushButton::clicked, this, [this] { Q_EMIT sigMend(m_problem.action); });
    connect(m_why, &QPushButton::clicked, this, &StateHero::sigWhy);
}

void StateHero::buildWide()
{
    auto *words = new QVBoxLayout;
    words->setSpacing(metrics::HalfGrid);
    words->addStretch(1);
    words->addWidget(m_headline);
    words->addWidget(m_sentence);
    words->addStretch(1);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2 * metrics::Grid);
    layout->addWidget(m_picture);
    layout->addLayout(words, 1);
    layout->addWidget(m_mend);
    m_why->hide();
    setMinimumHeight(72);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

void StateHero::buildCentred()
{
    m_headline->setPlace(Qt::AlignCenter);
    m_sentence->setPlace(Qt::AlignCenter);
    auto *middle = new QVBoxLayout;
    middle->setSpacing(metrics::Grid);
    middle->addStretch(1);
    middle->addWidget(m_picture, 0, Qt::AlignHCenter);
    middle->addSpacing(metrics::Grid);
    middle->addWidget(m_headline);
    middle->addWidget(m_sentence);
    middle->addSpacing(metrics::Grid);
    middle->addWidget(m_mend, 0, Qt::AlignHCenter);
    middle->addWidget(m_why, 0, Qt::AlignHCenter);
    middle->addStretch(1);
    m_sentence->setMinimumWidth(sentenceWidth);
    m_sentence->setMaximumWidth(sentenceWidth);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, metrics::GroupGap);
    layout->addStretch(1);
    layout->addLayout(middle);
    layout->addStretch(1);
}

void StateHero::showNetwork(const CardState &state)
{
    m_problem = {};
    m_bars->setLevel(state.signalBars());
    m_picture->setCurrentWidget(m_bars);
    const QString name = operatorText(state);
    m_headline->setText(name.isEmpty() ? tr("In the network") : name);
    QStringList parts{networkTypeName(state.networkType), registrationText(state.registration),
                      signalText(state)};
    parts.removeAll(QString());
    m_sentence->setText(inLayoutDirection(parts.join(tr("  ·  ", "between facts"))));
    m_mend->hide();
}

void StateHero::showProblem(const DiagnosisStep &problem)
{
    m_problem = problem;
    drawPicture();
    m_picture->setCurrentWidget(m_icon);
    m_headline->setText(problem.headline);
    m_sentence->setText(problem.sentence);
    m_mend->setText(problem.actionText);
    m_mend->setVisible(problem.action != MendAction::None);
    m_mend->setAccessibleDescription(problem.sentence);
}

void StateHero::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        drawPicture();
}

void StateHero::drawPicture()
{
    const bool failed = m_problem.status == StepStatus::Failed;
    m_icon->setPixmap(skinPixmap(pictureOf(m_problem),
                                 skinColor(failed ? SkinRole::Warning : SkinRole::MutedText), pictureSize,
                                 devicePixelRatioF()));
}

} // namespace corva

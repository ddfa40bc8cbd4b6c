// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/statusstrip.h"

#include "device/offlinediagnosis.h"
#include "widgets/buttonkind.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"
#include "window/statustexts.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

StatusStrip::StatusStrip(QWidget *parent)
    : SkinAreaWidget(&CommonConfig::statusStrip, parent), m_text(new ElidedLabel(TextRole::Text, this)),
      m_why(new QPushButton(tr("&Why?"), this))
{
    setObjectName(u"statusStrip"_s);
    m_text->setObjectName(u"statusText"_s);
    m_text->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_why->setObjectName(u"why"_s);
    m_why->setAccessibleName(tr("Why am I offline?"));
    m_why->setToolTip(tr("%1 (%2)").arg(m_why->accessibleName(), u"F1"_s));
    m_why->setFixedHeight(qMax(metrics::StripHeight - metrics::HalfGrid, m_why->fontMetrics().height() + 4));
    setButtonKind(m_why, ButtonKind::Flat);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(2 * metrics::Grid, 0, metrics::Grid, 0);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_why);
    setMinimumHeight(metrics::StripHeight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    connect(m_why, &QPushButton::clicked, this, &StatusStrip::sigWhy);
    m_saidTimer.setSingleShot(true);
    m_saidTimer.setInterval(6s);
    connect(&m_saidTimer, &QTimer::timeout, this, [this] {
        m_said.clear();
        update();
    });
    setState({});
}

void StatusStrip::setState(const CardState &state)
{
    m_state = summaryText(state);
    const auto steps = diagnose(state);
    m_why->setVisible(firstProblem(steps) != nullptr);
    update();
}

void StatusStrip::setActivity(const QString &sentence)
{
    m_activity = sentence;
    update();
}

void StatusStrip::say(const QString &sentence)
{
    m_said = sentence;
    m_saidTimer.start();
    update();
}

void StatusStrip::update()
{
    m_text->setFullText(!m_said.isEmpty() ? m_said : !m_activity.isEmpty() ? m_activity : m_state);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/noticebar.h"

#include "widgets/buttonkind.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace corva
{

NoticeBar::NoticeBar(QWidget *parent)
    : QWidget(parent), m_text(new TextLabel(TextRole::Text, this)), m_action(new QPushButton(this))
{
    m_text->setObjectName(u"notice"_s);
    m_text->setWordWrap(true);
    m_action->setObjectName(u"noticeAction"_s);
    setButtonKind(m_action, ButtonKind::Flat);
    connect(m_action, &QPushButton::clicked, this, &NoticeBar::sigAction);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_action);
    hide();
}

void NoticeBar::say(const QString &sentence, const QString &action)
{
    m_text->setText(sentence);
    m_action->setText(action);
    m_action->setVisible(!action.isEmpty());
    setVisible(!sentence.isEmpty());
}

} // namespace corva

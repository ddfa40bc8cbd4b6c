// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/figure.h"

#include "widgets/textlabel.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

Figure::Figure(const QString &id, QWidget *parent)
    : QWidget(parent), m_caption(new TextLabel(TextRole::Caption, this)),
      m_value(new TextLabel(TextRole::Title, this)), m_detail(new TextLabel(TextRole::Caption, this))
{
    setObjectName(id);
    m_value->setObjectName(id + u"Value"_s);
    m_detail->setObjectName(id + u"Detail"_s);
    m_caption->setMuted(true);
    m_detail->setMuted(true);
    m_detail->setWordWrap(true);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (TextLabel *label : {m_caption, m_value, m_detail})
        layout->addWidget(label);
    layout->addStretch(1);
}

void Figure::setTexts(const QString &caption, const QString &value, const QString &detail)
{
    m_caption->setText(inLayoutDirection(caption));
    m_value->setText(inLayoutDirection(value));
    m_value->setAccessibleDescription(caption);
    m_detail->setText(inLayoutDirection(detail));
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/flagchoice.h"

#include "widgets/skin.h"

#include <QHBoxLayout>
#include <QRadioButton>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

FlagChoice::FlagChoice(const QString &name, const std::vector<Option> &options, QWidget *parent)
    : QWidget(parent)
{
    setAccessibleName(name);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::GroupGap);
    for (const Option &option : options) {
        auto *button = new QRadioButton(option.text, this);
        button->setObjectName(u"field%1"_s.arg(int(option.field)));
        button->setMinimumHeight(metrics::ControlHeight);
        button->setAccessibleName(u"%1: %2"_s.arg(name, QString(option.text).remove(u'&')));
        layout->addWidget(button);
        connect(button, &QRadioButton::toggled, this, &FlagChoice::sigChosen);
        m_fields.push_back(option.field);
        m_buttons.push_back(button);
    }
    layout->addStretch(1);
}

void FlagChoice::load(const ConnectionProfile &profile)
{
    const auto field = std::find_if(m_fields.begin(), m_fields.end(),
                                    [&](ProfileField candidate) { return profile.isOn(candidate); });
    m_buttons.at(field == m_fields.end() ? 0 : std::size_t(field - m_fields.begin()))->setChecked(true);
}

void FlagChoice::store(ConnectionProfile &profile) const
{
    for (const ProfileField field : m_fields)
        if (profile.isOn(field) != (field == chosen()))
            profile.setOn(field, field == chosen());
}

ProfileField FlagChoice::chosen() const
{
    for (std::size_t i = 0; i < m_buttons.size(); ++i)
        if (m_buttons[i]->isChecked())
            return m_fields[i];
    return m_fields.front();
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/actionbutton.h"

#include <QAction>

namespace corva
{

ActionButton::ActionButton(QAction *action, const QString &objectName, QWidget *parent)
    : QPushButton(parent), m_action(action)
{
    setObjectName(objectName);
    setAutoDefault(false);
    connect(this, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, this, &ActionButton::follow);
    follow();
}

void ActionButton::follow()
{
    const QString keys = m_action->shortcut().toString(QKeySequence::NativeText);
    setText(m_action->text());
    setToolTip(keys.isEmpty() ? QString() : tr("%1 (%2)").arg(m_action->text().remove(u'&'), keys));
    setEnabled(m_action->isEnabled());
    setVisible(m_action->isVisible());
}

} // namespace corva

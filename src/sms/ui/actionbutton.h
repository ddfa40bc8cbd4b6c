// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPushButton>

class QAction;

namespace corva
{

/// A button that does what an action does, and is shown, named and enabled as it is.
class ActionButton final : public QPushButton
{
    Q_OBJECT

public:
    ActionButton(QAction *action, const QString &objectName, QWidget *parent);

private:
    void follow();

    QAction *m_action;
};

} // namespace corva

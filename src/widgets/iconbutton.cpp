// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/iconbutton.h"

#include "widgets/skinicon.h"

namespace corva
{

IconButton::IconButton(const QString &icon, const QString &name, QWidget *parent, SkinRole role)
    : QToolButton(parent)
{
    setIcon(skinIcon(icon, role));
    setIconSize({metrics::IconSize, metrics::IconSize});
    setToolButtonStyle(Qt::ToolButtonIconOnly);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setName(name);
}

void IconButton::setName(const QString &name, const QString &shortcut)
{
    setAccessibleName(name);
    setToolTip(shortcut.isEmpty() ? name : tr("%1 (%2)").arg(name, shortcut));
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttonkind.h"

#include <QAbstractButton>
#include <QVariant>

namespace corva
{

namespace
{
constexpr char kindProperty[] = "corvaButtonKind";
}

void setButtonKind(QAbstractButton *button, ButtonKind kind)
{
    button->setProperty(kindProperty, QVariant::fromValue(kind));
    button->update();
}

ButtonKind buttonKind(const QWidget *button)
{
    return button ? button->property(kindProperty).value<ButtonKind>() : ButtonKind::Plain;
}

} // namespace corva

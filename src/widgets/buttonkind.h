// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QAbstractButton;
class QWidget;

namespace corva
{

Q_NAMESPACE

/// How a button is painted. One `Primary` on a page; `Dangerous` says in its text what it does; `Flat` has no
/// box until the pointer or the focus is on it.
enum class ButtonKind { Plain, Primary, Dangerous, Flat };
Q_ENUM_NS(ButtonKind)

void setButtonKind(QAbstractButton *button, ButtonKind kind);
ButtonKind buttonKind(const QWidget *button);

} // namespace corva

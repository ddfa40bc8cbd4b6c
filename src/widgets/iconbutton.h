// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/skin.h"

#include <QToolButton>

namespace corva
{

/// A button that is only an icon: its name is the tool tip and what the screen reader says.
class IconButton final : public QToolButton
{
    Q_OBJECT

public:
    IconButton(const QString &icon, const QString &name, QWidget *parent = nullptr,
               SkinRole role = SkinRole::Text);

    /// Changes the name and, with it, the tool tip; `shortcut` is shown behind the name.
    void setName(const QString &name, const QString &shortcut = {});

    QSize sizeHint() const override { return {metrics::ControlHeight, metrics::ControlHeight}; }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace corva

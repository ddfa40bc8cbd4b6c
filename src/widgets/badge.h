// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/textlabel.h"

namespace corva
{

/// A short text in a thin round frame: the network type, "R" for roaming, the number of what is new.
class Badge final : public TextLabel
{
    Q_OBJECT

public:
    explicit Badge(QWidget *parent = nullptr);

    /// An empty text hides the badge. `name` is what the screen reader and the tool tip say.
    void setBadge(const QString &text, const QString &name);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace corva

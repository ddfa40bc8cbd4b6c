// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProgressBar>

namespace corva
{

/// How much of a volume is used: a bar with a mark at the share of the warning. Its colour says whether that
/// is reached, as do the words beside it.
class QuotaBar final : public QProgressBar
{
    Q_OBJECT

public:
    explicit QuotaBar(QWidget *parent);
    /// Both in percent; 0 shows no mark.
    void setUse(int percent, int warningShare);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_percent = 0;
    int m_warningShare = 0;
};

} // namespace corva

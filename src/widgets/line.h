// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace corva
{

/// A one-pixel line in the skin's line colour.
class Line final : public QWidget
{
    Q_OBJECT

public:
    explicit Line(Qt::Orientation orientation, QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace corva

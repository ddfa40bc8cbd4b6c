// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace corva
{

/// Shows the application's tool tips so many pixels below their usual place, or above it, for as long as it
/// lives.
class ToolTipMover final : public QObject
{
    Q_OBJECT

public:
    ToolTipMover(int pixelsDown, QObject *parent);

    bool eventFilter(QObject *receiver, QEvent *event) override;

private:
    int m_pixelsDown;
    bool m_isMoving = false;
};

} // namespace corva

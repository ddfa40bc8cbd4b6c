// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/tooltipmover.h"

#include <QCoreApplication>
#include <QHelpEvent>
#include <QScopedValueRollback>

namespace corva
{

ToolTipMover::ToolTipMover(int pixelsDown, QObject *parent) : QObject(parent), m_pixelsDown(pixelsDown)
{
    QCoreApplication::instance()->installEventFilter(this);
}

/// The tip stands where its event says: the receiver gets one with another place instead.
bool ToolTipMover::eventFilter(QObject *receiver, QEvent *event)
{
    if (event->type() != QEvent::ToolTip || m_isMoving)
        return false;
    const QScopedValueRollback moving(m_isMoving, true);
    const auto *asked = static_cast<QHelpEvent *>(event);
    QHelpEvent moved(QEvent::ToolTip, asked->pos(), asked->globalPos() + QPoint(0, m_pixelsDown));
    const bool isTaken = QCoreApplication::sendEvent(receiver, &moved);
    event->setAccepted(moved.isAccepted());
    return isTaken;
}

} // namespace corva

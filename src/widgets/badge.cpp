// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/badge.h"

#include <QPainter>

namespace corva
{

Badge::Badge(QWidget *parent) : TextLabel(TextRole::Caption, parent)
{
    setContentsMargins(6, 2, 6, 2);
    setPlace(Qt::AlignCenter);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    hide();
}

void Badge::setBadge(const QString &text, const QString &name)
{
    setText(text);
    setAccessibleName(name);
    setToolTip(name);
    setVisible(!text.isEmpty());
}

void Badge::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor text = palette().color(QPalette::WindowText);
    painter.setPen(QPen(blend(palette().color(QPalette::Window), text, 0.45), 1));
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(frame, frame.height() / 2, frame.height() / 2);
    painter.end();
    TextLabel::paintEvent(event);
}

} // namespace corva

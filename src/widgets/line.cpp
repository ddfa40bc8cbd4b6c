// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/line.h"

#include "widgets/skin.h"

#include <QPainter>

namespace corva
{

Line::Line(Qt::Orientation orientation, QWidget *parent) : QWidget(parent)
{
    if (orientation == Qt::Horizontal)
        setFixedHeight(1);
    else
        setFixedWidth(1);
}

void Line::paintEvent(QPaintEvent *)
{
    // Lines that only separate are lighter than those that carry meaning.
    QPainter painter(this);
    painter.fillRect(rect(), blend(palette().color(QPalette::Window), skinColor(SkinRole::Line), 0.45));
}

} // namespace corva

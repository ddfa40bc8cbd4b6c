// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/contentscroll.h"

#include <QScrollArea>

namespace corva
{

QScrollArea *scrollAreaFor(QWidget *content, QWidget *parent)
{
    auto *scroll = new QScrollArea(parent);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(content);
    content->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    return scroll;
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/skinareawidget.h"

#include "shell/globals.h"
#include "widgets/skin.h"

#include <QEvent>
#include <QPainter>

namespace corva
{

SkinAreaWidget::SkinAreaWidget(Area area, QWidget *parent) : QWidget(parent), m_area(area)
{
    takeSkin();
}

void SkinAreaWidget::takeSkin()
{
    const SkinArea &area = comcfg.*m_area;
    setPalette(skinPalette(area));
    m_picture =
        area.background.picture.isEmpty() ? QPixmap() : QPixmap(basePath + u'/' + area.background.picture);
}

void SkinAreaWidget::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        takeSkin();
}

void SkinAreaWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Window));
    if (!m_picture.isNull())
        painter.drawPixmap(rect(), m_picture);
}

} // namespace corva

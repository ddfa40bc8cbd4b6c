// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/signalbars.h"

#include "widgets/skin.h"

#include <QPainter>

namespace corva
{

namespace
{

constexpr int barCount = 5;
constexpr qreal grid = 24;
constexpr qreal barStroke = 2.25;
constexpr qreal crossStroke = 1.75;

void paintBars(QPainter &painter, int level, const QColor &on, const QColor &off)
{
    constexpr qreal foot = 20;
    constexpr qreal firstX = 3.5;
    constexpr qreal step = 4.25;
    for (int bar = 0; bar < barCount; ++bar) {
        painter.setPen(QPen(bar < level ? on : off, barStroke, Qt::SolidLine, Qt::RoundCap));
        const qreal x = firstX + bar * step;
        painter.drawLine(QPointF(x, foot), QPointF(x, foot - 2 - 3.25 * bar));
    }
}

} // namespace

void paintSignalBars(QPainter &painter, const QRectF &rect, std::optional<int> level, const QColor &on,
                     const QColor &off)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rect.topLeft());
    painter.scale(rect.width() / grid, rect.height() / grid);
    paintBars(painter, level.value_or(0), on, off);
    if (!level) {
        painter.setPen(QPen(on, crossStroke, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(3.5, 3.5), QPointF(20.5, 20.5));
    }
    painter.restore();
}

SignalBars::SignalBars(int size, QWidget *parent) : QWidget(parent), m_size(size)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setLevel(std::nullopt);
}

void SignalBars::setLevel(std::optional<int> level)
{
    m_level = level;
    const QString name = level ? tr("Signal: %1 of %2 bars").arg(*level).arg(barCount) : tr("No signal");
    setAccessibleName(name);
    setToolTip(name);
    update();
}

void SignalBars::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QColor on = palette().color(QPalette::WindowText);
    paintSignalBars(painter, rect(), m_level, on, blend(palette().color(QPalette::Window), on, 0.28));
}

} // namespace corva

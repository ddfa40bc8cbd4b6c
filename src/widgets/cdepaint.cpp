// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/cdepaint.h"

#include "widgets/skin.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionSlider>

namespace corva::paint
{

namespace
{

constexpr qreal stroke = 1.75;

class Antialiased
{
public:
    explicit Antialiased(QPainter &painter) : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Antialiased() { m_painter.restore(); }
    Antialiased(const Antialiased &) = delete;
    Antialiased &operator=(const Antialiased &) = delete;

private:
    QPainter &m_painter;
};

bool has(const QStyleOption &option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

} // namespace

void box(QPainter &painter, const QRect &rect, const QColor &fill, const QColor &line)
{
    const Antialiased guard(painter);
    painter.setBrush(fill.isValid() ? QBrush(fill) : Qt::NoBrush);
    painter.setPen(line.isValid() ? QPen(line, 1) : Qt::NoPen);
    const qreal inset = line.isValid() ? 0.5 : 0;
    painter.drawRoundedRect(QRectF(rect).adjusted(inset, inset, -inset, -inset), comcfg.cornerRadius,
                            comcfg.cornerRadius);
}

void chevron(QPainter &painter, const QRect &rect, Qt::ArrowType direction, const QColor &color)
{
    static constexpr int degrees[] = {0, 180, 0, 90, 270}; // none, up, down, left, right
    const Antialiased guard(painter);
    painter.setPen(QPen(color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(rect).center());
    painter.rotate(degrees[direction]);
    constexpr qreal half = 4;
    painter.drawPolyline(QPolygonF{{-half, -half / 2}, {0, half / 2}, {half, -half / 2}});
}

void nothing(const QStyleOption &, QPainter &, const QWidget *) {}

bool isFilled(const QWidget *widget)
{
    return widget->inherits("QAbstractItemView") || widget->inherits("QPlainTextEdit");
}

void frame(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    // What pops up is a window of its own: its corners are square.
    if (widget && widget->window()->windowType() == Qt::Popup) {
        menuPanel(option, painter, widget);
        return;
    }
    box(painter, option.rect, widget && isFilled(widget) ? option.palette.color(QPalette::Base) : QColor(),
        skinColor(SkinRole::Line));
}

void fieldPanel(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const bool inner = widget && widget->parentWidget() &&
                       (widget->parentWidget()->inherits("QComboBox") ||
                        widget->parentWidget()->inherits("QAbstractSpinBox"));
    if (inner)
        return;
    const QColor line =
        has(option, QStyle::State_HasFocus) ? skinColor(SkinRole::Accent) : skinColor(SkinRole::Line);
    box(painter, option.rect, option.palette.color(QPalette::Base), line);
}

void menuPanel(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    painter.fillRect(option.rect, skinColor(SkinRole::Raised));
    painter.setPen(skinColor(SkinRole::Line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
}

void checkBox(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    const bool filled = has(option, QStyle::State_On) || has(option, QStyle::State_NoChange);
    const bool enabled = has(option, QStyle::State_Enabled);
    QColor fill = filled ? skinColor(SkinRole::Accent) : skinColor(SkinRole::Surface);
    if (!enabled)
        fill = filled ? skinColor(SkinRole::DisabledText) : skinColor(SkinRole::Window);
    else if (has(option, QStyle::State_MouseOver))
        fill = blend(fill, skinColor(SkinRole::Text), 0.08);
    box(painter, option.rect, fill, filled ? QColor() : skinColor(SkinRole::Line));
    if (!filled)
        return;

    const Antialiased guard(painter);
    painter.setPen(QPen(skinColor(SkinRole::OnAccent), stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.translate(QRectF(option.rect).center());
    if (has(option, QStyle::State_NoChange))
        painter.drawLine(QPointF(-4, 0), QPointF(4, 0));
    else
        painter.drawPolyline(QPolygonF{{-4, 0.5}, {-1.25, 3.25}, {4.25, -3}});
}

void radioButton(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    const bool on = has(option, QStyle::State_On);
    const QColor mark =
        has(option, QStyle::State_Enabled) ? skinColor(SkinRole::Accent) : skinColor(SkinRole::DisabledText);
    const Antialiased guard(painter);
    const QRectF circle = QRectF(option.rect).adjusted(1, 1, -1, -1);
    painter.setBrush(skinColor(SkinRole::Surface));
    painter.setPen(on ? QPen(mark, 5) : QPen(skinColor(SkinRole::Line), 1));
    const qreal inset = on ? 2.5 : 0;
    painter.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
}

void itemPanel(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    QColor fill;
    if (has(option, QStyle::State_Selected))
        fill = skinColor(SkinRole::Selection);
    else if (has(option, QStyle::State_MouseOver) && has(option, QStyle::State_Enabled))
        fill = blend(option.palette.color(QPalette::Base), skinColor(SkinRole::Text), 0.06);
    if (fill.isValid())
        box(painter, option.rect, fill, QColor());
}

void itemFocus(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    // Everything but a row has the ring outside of itself, painted by the focus frame.
    if (!widget || !widget->inherits("QAbstractItemView"))
        return;
    focusRing(option, painter, widget);
}

void arrowDown(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    chevron(painter, option.rect, Qt::DownArrow, option.palette.color(QPalette::ButtonText));
}

void arrowUp(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    chevron(painter, option.rect, Qt::UpArrow, option.palette.color(QPalette::ButtonText));
}

void arrowLeft(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    chevron(painter, option.rect, Qt::LeftArrow, option.palette.color(QPalette::ButtonText));
}

void arrowRight(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    chevron(painter, option.rect, Qt::RightArrow, option.palette.color(QPalette::ButtonText));
}

void focusRing(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    const Antialiased guard(painter);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(skinColor(SkinRole::Focus), metrics::FocusWidth));
    const qreal inset = metrics::FocusWidth / 2.0;
    const qreal radius = comcfg.cornerRadius + metrics::FocusGap;
    painter.drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset), radius, radius);
}

void headerSection(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    painter.fillRect(option.rect, skinColor(SkinRole::Surface));
    painter.fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                     skinColor(SkinRole::Line));
}

void progressGroove(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    box(painter, option.rect, blend(skinColor(SkinRole::Window), skinColor(SkinRole::Line), 0.5), QColor());
}

void progressContents(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    const auto *bar = qstyleoption_cast<const QStyleOptionProgressBar *>(&option);
    if (!bar || bar->maximum <= bar->minimum)
        return;
    const qreal part = qreal(bar->progress - bar->minimum) / (qreal(bar->maximum) - bar->minimum);
    QRect done = option.rect;
    done.setWidth(qRound(done.width() * qBound(0.0, part, 1.0)));
    box(painter, QStyle::visualRect(option.direction, option.rect, done), skinColor(SkinRole::Accent),
        QColor());
}

void scrollBar(const QStyleOptionSlider &option, QPainter &painter)
{
    const QRect slider = option.rect;
    const bool active = has(option, QStyle::State_MouseOver) || has(option, QStyle::State_Sunken);
    const qreal side = active ? 2 : 3;
    const Antialiased guard(painter);
    painter.setPen(Qt::NoPen);
    painter.setBrush(active ? skinColor(SkinRole::MutedText) : skinColor(SkinRole::Line));
    const QRectF handle = QRectF(slider).adjusted(side, side, -side, -side);
    const qreal radius = std::min(handle.width(), handle.height()) / 2;
    painter.drawRoundedRect(handle, radius, radius);
}

void comboBox(const QStyleOptionComboBox &option, QPainter &painter, const QRect &arrow)
{
    const bool enabled = has(option, QStyle::State_Enabled);
    QColor fill = option.editable ? skinColor(SkinRole::Surface) : skinColor(SkinRole::Raised);
    if (enabled && !option.editable && has(option, QStyle::State_MouseOver))
        fill = blend(fill, skinColor(SkinRole::Text), 0.06);
    box(painter, option.rect, fill, skinColor(SkinRole::Line));
    chevron(painter, arrow, Qt::DownArrow,
            enabled ? skinColor(SkinRole::Text) : skinColor(SkinRole::DisabledText));
}

void spinBox(const QStyleOptionSpinBox &option, QPainter &painter, const QRect &up, const QRect &down)
{
    const bool isFocused = has(option, QStyle::State_HasFocus);
    box(painter, option.rect, option.palette.color(QPalette::Base),
        skinColor(isFocused ? SkinRole::Accent : SkinRole::Line));
    const auto arrow = [&](const QRect &rect, QAbstractSpinBox::StepEnabledFlag step, QStyle::SubControl part,
                           Qt::ArrowType direction) {
        const bool mayStep = has(option, QStyle::State_Enabled) && option.stepEnabled.testFlag(step);
        const bool isUnderMouse =
            has(option, QStyle::State_MouseOver) && option.activeSubControls.testFlag(part);
        chevron(painter, rect, direction,
                skinColor(!mayStep       ? SkinRole::DisabledText
                          : isUnderMouse ? SkinRole::Accent
                                         : SkinRole::Text));
    };
    arrow(up, QAbstractSpinBox::StepUpEnabled, QStyle::SC_SpinBoxUp, Qt::UpArrow);
    arrow(down, QAbstractSpinBox::StepDownEnabled, QStyle::SC_SpinBoxDown, Qt::DownArrow);
}

} // namespace corva::paint

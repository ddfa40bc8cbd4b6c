// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyleOption>

class QPainter;
class QWidget;

/// What the style "cde" paints, one function for each part of a control. The style only looks them up.
namespace corva::paint
{

using Function = void (*)(const QStyleOption &, QPainter &, const QWidget *);

/// A filled box with a one-pixel line and the skin's corners; an invalid colour leaves its part out.
void box(QPainter &painter, const QRect &rect, const QColor &fill, const QColor &line);
/// An arrow head of the icon family's stroke, centred in `rect`.
void chevron(QPainter &painter, const QRect &rect, Qt::ArrowType direction, const QColor &color);

/// Whether the frame of a widget fills it, too: lists and fields of text.
bool isFilled(const QWidget *widget);

void nothing(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void buttonPanel(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void toolButtonPanel(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void fieldPanel(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void frame(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void menuPanel(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void checkBox(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void radioButton(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void itemPanel(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void itemFocus(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void arrowDown(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void arrowUp(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void arrowLeft(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void arrowRight(const QStyleOption &option, QPainter &painter, const QWidget *widget);

void focusRing(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void headerSection(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void progressGroove(const QStyleOption &option, QPainter &painter, const QWidget *widget);
void progressContents(const QStyleOption &option, QPainter &painter, const QWidget *widget);

void scrollBar(const QStyleOptionSlider &option, QPainter &painter);
void comboBox(const QStyleOptionComboBox &option, QPainter &painter, const QRect &arrow);
void spinBox(const QStyleOptionSpinBox &option, QPainter &painter, const QRect &up, const QRect &down);

} // namespace corva::paint

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/buttonkind.h"
#include "widgets/cdepaint.h"
#include "widgets/skin.h"

#include <QPainter>

namespace corva::paint
{

namespace
{

/// How strongly the pointer and the pressed state show.
qreal emphasis(const QStyleOption &option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return 0;
    if (option.state.testFlag(QStyle::State_Sunken) || option.state.testFlag(QStyle::State_On))
        return 0.14;
    return option.state.testFlag(QStyle::State_MouseOver) ? 0.07 : 0;
}

} // namespace

void buttonPanel(const QStyleOption &option, QPainter &painter, const QWidget *widget)
{
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const qreal amount = emphasis(option);
    switch (enabled ? buttonKind(widget) : ButtonKind::Plain) {
    case ButtonKind::Primary:
        box(painter, option.rect, blend(skinColor(SkinRole::Accent), skinColor(SkinRole::OnAccent), amount),
            QColor());
        return;
    case ButtonKind::Dangerous:
        box(painter, option.rect, blend(skinColor(SkinRole::Raised), skinColor(SkinRole::Bad), amount),
            skinColor(SkinRole::Bad));
        return;
    case ButtonKind::Flat: toolButtonPanel(option, painter, widget); return;
    case ButtonKind::Plain: break;
    }
    box(painter, option.rect, blend(skinColor(SkinRole::Raised), skinColor(SkinRole::Text), amount),
        skinColor(SkinRole::Line));
}

void toolButtonPanel(const QStyleOption &option, QPainter &painter, const QWidget *)
{
    const qreal amount = emphasis(option);
    if (amount > 0)
        box(painter, option.rect,
            blend(option.palette.color(QPalette::Window), option.palette.color(QPalette::WindowText), amount),
            QColor());
}

} // namespace corva::paint

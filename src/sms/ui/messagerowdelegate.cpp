// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messagerowdelegate.h"

#include "sms/ui/messagetexts.h"
#include "widgets/cdepaint.h"
#include "widgets/skinicon.h"

#include <QListView>
#include <QPainter>

namespace corva
{

namespace
{

constexpr int dotRoom = 2 * metrics::Grid; ///< where the dot of what is unread stands
constexpr int dotSize = 8;
constexpr int smallIcon = 16;
constexpr int smallestHeight = 44;

/// Paints from both ends of a line towards its middle, mirrored in a window from right to left.
class Line
{
public:
    Line(QPainter &painter, const QRect &rect, Qt::LayoutDirection direction)
        : m_painter(painter), m_whole(rect), m_rest(rect), m_direction(direction)
    {
    }

    void textAtEnd(const QString &text)
    {
        if (text.isEmpty())
            return;
        const int width = m_painter.fontMetrics().horizontalAdvance(text) + 1;
        m_painter.setLayoutDirection(directionOf(text));
        m_painter.drawText(takeEnd(width), Qt::AlignCenter, text);
    }

    void noteAtEnd(const QString &text)
    {
        if (text.isEmpty())
            return;
        const int width = m_painter.fontMetrics().horizontalAdvance(text) + metrics::Grid;
        const QRect place = takeEnd(width);
        paint::box(m_painter, place.adjusted(0, 1, 0, -1), QColor(), m_painter.pen().color());
        m_painter.setLayoutDirection(directionOf(text));
        m_painter.drawText(place, Qt::AlignCenter, text);
    }

    void iconAtEnd(const QString &name, const QColor &color, qreal pixelRatio)
    {
        if (name.isEmpty())
            return;
        QRect place = takeEnd(smallIcon);
        place.setTop(place.center().y() - smallIcon / 2);
        m_painter.drawPixmap(place.topLeft(), skinPixmap(name, color, smallIcon, pixelRatio));
    }

    /// The rest of the line: the text reads in its own direction, and stands where the line begins.
    void text(const QString &text)
    {
        QTextOption option;
        option.setTextDirection(directionOf(text));
        option.setWrapMode(QTextOption::NoWrap);
        option.setAlignment(QStyle::visualAlignment(m_direction, Qt::AlignLeft) | Qt::AlignVCenter |
                            Qt::AlignAbsolute);
        const QString shown =
            m_painter.fontMetrics().elidedText(text, Qt::ElideRight, m_rest.width(), Qt::TextSingleLine);
        m_painter.drawText(QRectF(QStyle::visualRect(m_direction, m_whole, m_rest)), shown, option);
    }

private:
    QRect takeEnd(int width)
    {
        QRect place = m_rest;
        place.setLeft(m_rest.right() - width + 1);
        m_rest.setRight(place.left() - metrics::Grid);
        return QStyle::visualRect(m_direction, m_whole, place);
    }

    QPainter &m_painter;
    QRect m_whole;
    QRect m_rest;
    Qt::LayoutDirection m_direction;
};

void paintGround(QPainter &painter, const QStyleOptionViewItem &option)
{
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isUnderMouse = option.state.testFlag(QStyle::State_MouseOver);
    if (isSelected)
        paint::box(painter, option.rect, skinColor(SkinRole::Selection), QColor());
    else if (isUnderMouse)
        paint::box(painter, option.rect, blend(skinColor(SkinRole::Surface), skinColor(SkinRole::Text), 0.06),
                   QColor());
    if (option.state.testFlag(QStyle::State_HasFocus))
        paint::focusRing(option, painter, option.widget);
}

void paintDot(QPainter &painter, const QStyleOptionViewItem &option, int height)
{
    const QRect dot(option.rect.left() + (dotRoom - dotSize) / 2 + 1,
                    option.rect.top() + metrics::HalfGrid + (height - dotSize) / 2, dotSize, dotSize);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(skinColor(SkinRole::Accent));
    painter.drawEllipse(QStyle::visualRect(option.direction, option.rect, dot));
    painter.restore();
}

} // namespace

void MessageRowDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    painter->save();
    paintGround(*painter, option);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const bool isUnread = index.data(UnreadRole).toBool();
    const QColor ink = skinColor(isSelected ? SkinRole::OnSelection : SkinRole::Text);
    const QColor muted = isSelected ? ink : skinColor(SkinRole::MutedText);
    const QFont nameFont = skinFont(isUnread ? TextRole::Strong : TextRole::Text);
    const int nameHeight = QFontMetrics(nameFont).height();
    if (isUnread)
        paintDot(*painter, option, nameHeight);

    QRect room = option.rect.adjusted(0, metrics::HalfGrid, 0, -metrics::HalfGrid);
    room = QStyle::visualRect(option.direction, option.rect, room.adjusted(dotRoom, 0, -metrics::Grid, 0));
    QRect upper = room;
    upper.setHeight(nameHeight);
    QRect lower = room;
    lower.setTop(upper.bottom() + 1);

    Line first(*painter, upper, option.direction);
    painter->setFont(skinFont(TextRole::Caption));
    painter->setPen(muted);
    first.textAtEnd(index.data(WhenRole).toString());
    painter->setFont(nameFont);
    painter->setPen(ink);
    first.text(index.data(Qt::DisplayRole).toString());

    Line second(*painter, lower, option.direction);
    painter->setFont(skinFont(TextRole::Caption));
    painter->setPen(muted);
    second.iconAtEnd(index.data(IconRole).toString(), muted,
                     option.widget ? option.widget->devicePixelRatioF() : 1);
    second.noteAtEnd(index.data(NoteRole).toString());
    painter->setFont(skinFont(TextRole::Text));
    second.text(index.data(PreviewRole).toString());
    painter->restore();
}

QSize MessageRowDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    const int lines =
        QFontMetrics(skinFont(TextRole::Strong)).height() + QFontMetrics(skinFont(TextRole::Text)).height();
    return {0, qMax(smallestHeight, lines + metrics::Grid + metrics::HalfGrid)};
}

} // namespace corva

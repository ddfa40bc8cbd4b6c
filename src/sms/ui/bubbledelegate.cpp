// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/bubbledelegate.h"

#include "sms/ui/messagetexts.h"
#include "sms/ui/threadmodel.h"
#include "widgets/cdepaint.h"
#include "widgets/skin.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QTextLayout>
#include <cmath>

namespace corva
{

namespace
{

constexpr int padding = metrics::Grid;
constexpr int gap = metrics::HalfGrid; ///< above and below
constexpr int widestShare = 82;        ///< of the view's width, in percent

/// Addresses as the reading pane has them; in the bubble of what was written here in the colour of its text.
QList<QTextLayout::FormatRange> linkFormats(const QString &text, bool isOwn)
{
    QTextCharFormat format;
    format.setFontUnderline(true);
    if (!isOwn)
        format.setForeground(skinColor(SkinRole::Accent));
    QList<QTextLayout::FormatRange> formats;
    for (const LinkPlace &place : linkPlaces(text))
        formats += {place.start, place.length, format};
    return formats;
}

/// The text in lines, and what stands below it, as large as they are in a view of this width.
class Bubble
{
public:
    Bubble(const QModelIndex &index, int viewWidth)
        : m_text(index.data().toString()), m_about(index.data(ThreadModel::AboutRole).toString()),
          m_layout(QString(m_text).replace(u'\n', QChar::LineSeparator), skinFont(TextRole::Text))
    {
        m_layout.setTextOption(optionFor(m_text));
        m_layout.setFormats(linkFormats(m_text, index.data(ThreadModel::OwnRole).toBool()));
        const QFontMetrics caption(skinFont(TextRole::Caption));
        const int room = viewWidth * widestShare / 100 - 2 * padding;
        m_aboutHeight = caption.height();
        const int aboutWidth = qMin(caption.horizontalAdvance(m_about) + 1, room);
        layOut(room);
        layOut(qMax(int(std::ceil(m_natural)), aboutWidth));
    }

    QSize size() const
    {
        return {m_width + 2 * padding, int(std::ceil(m_height)) + m_aboutHeight + 2 * padding};
    }

    void paint(QPainter &painter, const QRect &rect, const QColor &ink, const QColor &muted) const
    {
        painter.setPen(ink);
        m_layout.draw(&painter, rect.topLeft() + QPointF(padding, padding));
        painter.setPen(muted);
        painter.setFont(skinFont(TextRole::Caption));
        const QRect place(rect.left() + padding, rect.bottom() - padding - m_aboutHeight + 1, m_width,
                          m_aboutHeight);
        const auto shown = painter.fontMetrics().elidedText(m_about, Qt::ElideRight, m_width);
        const Qt::Alignment end = QStyle::visualAlignment(painter.layoutDirection(), Qt::AlignRight);
        painter.setLayoutDirection(directionOf(m_about));
        painter.drawText(place, int(end | Qt::AlignAbsolute | Qt::AlignVCenter), shown);
    }

private:
    void layOut(int width)
    {
        m_width = width;
        m_height = 0;
        m_natural = 0;
        m_layout.beginLayout();
        for (QTextLine line = m_layout.createLine(); line.isValid(); line = m_layout.createLine()) {
            line.setLineWidth(width);
            line.setPosition({0, m_height});
            m_height += line.height();
            m_natural = qMax(m_natural, line.naturalTextWidth());
        }
        m_layout.endLayout();
    }

    QString m_text;
    QString m_about;
    QTextLayout m_layout;
    int m_width = 0;
    int m_aboutHeight = 0;
    qreal m_height = 0;
    qreal m_natural = 0; ///< of the widest line
};

int viewWidth(const QStyleOptionViewItem &option)
{
    const auto *view = qobject_cast<const QAbstractItemView *>(option.widget);
    return view ? view->viewport()->width() : option.rect.width();
}

} // namespace

void BubbleDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                           const QModelIndex &index) const
{
    const Bubble bubble(index, viewWidth(option));
    const bool isOwn = index.data(ThreadModel::OwnRole).toBool();
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    QRect place(option.rect.topLeft() + QPoint(gap, gap), bubble.size());
    if (isOwn)
        place.moveRight(option.rect.right() - gap);
    place = QStyle::visualRect(option.direction, option.rect, place);

    painter->save();
    const QColor line = index.data(ThreadModel::FailedRole).toBool() ? skinColor(SkinRole::Bad)
                        : isSelected                                 ? skinColor(SkinRole::Accent)
                        : isOwn                                      ? QColor()
                                                                     : skinColor(SkinRole::Line);
    paint::box(*painter, place, skinColor(isOwn ? SkinRole::Selection : SkinRole::Surface), line);
    const QColor ink = skinColor(isOwn ? SkinRole::OnSelection : SkinRole::Text);
    bubble.paint(*painter, place, ink, isOwn ? ink : skinColor(SkinRole::MutedText));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOption ring;
        ring.rect = place.adjusted(-metrics::FocusWidth, -metrics::FocusWidth, metrics::FocusWidth,
                                   metrics::FocusWidth);
        paint::focusRing(ring, *painter, option.widget);
    }
    painter->restore();
}

QSize BubbleDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const int width = viewWidth(option);
    return {width, Bubble(index, width).size().height() + 2 * gap};
}

} // namespace corva

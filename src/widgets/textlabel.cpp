// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/textlabel.h"

#include <QEvent>
#include <QGuiApplication>
#include <QStyle>
#include <QTextDocument>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

TextLabel::TextLabel(const QString &text, TextRole role, QWidget *parent) : QLabel(text, parent), m_role(role)
{
    setTextFormat(Qt::PlainText);
    setFont(skinFont(role));
    align();
}

void TextLabel::setPlace(Qt::Alignment place)
{
    m_place = place;
    align();
}

void TextLabel::align()
{
    setAlignment(QStyle::visualAlignment(layoutDirection(), m_place) | Qt::AlignAbsolute);
}

void TextLabel::setMuted(bool muted)
{
    setForegroundRole(muted ? QPalette::PlaceholderText : QPalette::WindowText);
}

void TextLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::ParentChange)
        align();
    if (event->type() == QEvent::StyleChange && font() != skinFont(m_role))
        setFont(skinFont(m_role));
}

QString plainToolTip(const QString &text)
{
    constexpr qsizetype longest = 1000;
    const bool isLonger = text.size() > longest;
    return text.isEmpty() ? text : Qt::convertFromPlainText(isLonger ? text.left(longest) + u'…' : text);
}

QString inLayoutDirection(const QString &text)
{
    constexpr QChar rightToLeftMark(0x200F);
    const auto isRightToLeft = [](QChar letter) {
        return letter.direction() == QChar::DirR || letter.direction() == QChar::DirAL;
    };
    const bool isMixed = std::any_of(text.begin(), text.end(), isRightToLeft) && !isRightToLeft(text.front());
    return isMixed && QGuiApplication::isRightToLeft() ? rightToLeftMark + text : text;
}

ElidedLabel::ElidedLabel(TextRole role, QWidget *parent) : TextLabel(role, parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
}

void ElidedLabel::setFullText(const QString &text)
{
    m_fullText = text.simplified();
    elide();
    updateGeometry();
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(m_fullText) + 1, TextLabel::sizeHint().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    const int shortest = fontMetrics().horizontalAdvance(m_fullText.left(4) + u'…');
    return {qMin(shortest, sizeHint().width()), TextLabel::minimumSizeHint().height()};
}

void ElidedLabel::resizeEvent(QResizeEvent *event)
{
    TextLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent *event)
{
    TextLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        elide();
}

void ElidedLabel::elide()
{
    const QString shown = fontMetrics().elidedText(m_fullText, Qt::ElideRight, width());
    setText(inLayoutDirection(shown));
    setToolTip(shown == m_fullText ? QString() : plainToolTip(m_fullText));
    setAccessibleName(m_fullText);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/statuschip.h"

#include "widgets/skinicon.h"
#include "widgets/textlabel.h"

#include <QEvent>
#include <QHBoxLayout>

namespace corva
{

StatusChip::StatusChip(QWidget *parent)
    : QWidget(parent), m_icon(new QLabel(this)), m_words(new ElidedLabel(TextRole::Text, this))
{
    m_words->setMuted(true);
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::HalfGrid + 2);
    layout->addWidget(m_icon);
    layout->addWidget(m_words);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void StatusChip::setChip(const QString &icon, const QString &words, const QString &name)
{
    m_iconName = icon;
    m_words->setFullText(words);
    m_words->setVisible(!words.isEmpty());
    m_icon->setAccessibleName(name);
    setAccessibleName(name);
    setToolTip(name);
    drawIcon();
}

void StatusChip::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange)
        drawIcon();
}

void StatusChip::drawIcon()
{
    if (!m_iconName.isEmpty())
        m_icon->setPixmap(skinPixmap(m_iconName, palette().color(QPalette::PlaceholderText),
                                     metrics::IconSize, devicePixelRatioF()));
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/tabstrip.h"

#include "widgets/skin.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QStackedWidget>
#include <QStyle>
#include <utility>

namespace corva
{

namespace
{
constexpr int underline = 2;
}

QSize TabButton::sizeHint() const
{
    // In the bold of the chosen one, so that nothing moves.
    const QFontMetrics metrics(skinFont(TextRole::Strong));
    const int width = metrics.size(Qt::TextShowMnemonic, text()).width();
    return {width + 2 * metrics::Grid, qMax(metrics::ControlHeight, metrics.height() + metrics::Grid)};
}

void TabButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(skinFont(isChecked() ? TextRole::Strong : TextRole::Text));
    const bool isLit = isChecked() || underMouse();
    painter.setPen(skinColor(isLit ? SkinRole::Text : SkinRole::MutedText));
    const bool hint = style()->styleHint(QStyle::SH_UnderlineShortcut, nullptr, this);
    painter.drawText(rect(), Qt::AlignCenter | (hint ? Qt::TextShowMnemonic : Qt::TextHideMnemonic), text());
    if (isChecked())
        painter.fillRect(QRect(metrics::Grid, height() - underline, width() - 2 * metrics::Grid, underline),
                         skinColor(SkinRole::Accent));
}

TabStrip::TabStrip(QStackedWidget *stack, QWidget *parent)
    : QWidget(parent), m_stack(stack), m_layout(new QHBoxLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(metrics::Grid);
    m_layout->addStretch(1);
}

TabButton *TabStrip::addTab(const QString &id, const QString &title, std::function<QWidget *()> build)
{
    const int index = int(m_tabs.size());
    auto *tab = new TabButton(title, this);
    tab->setObjectName(id);
    tab->setAccessibleName(QString(title).remove(u'&'));
    tab->setAttribute(Qt::WA_Hover);
    connect(tab, &QAbstractButton::toggled, this, [this, index](bool isOn) {
        if (isOn)
            open(index);
    });
    m_layout->insertWidget(index, tab);
    m_tabs.push_back(tab);
    m_builders.push_back(std::move(build));
    m_stack->addWidget(new QWidget(m_stack)); // its place, until it is built
    if (index == 0)
        tab->setChecked(true);
    return tab;
}

int TabStrip::current() const
{
    return m_stack->currentIndex();
}

void TabStrip::open(int index)
{
    if (const auto build = std::exchange(m_builders[std::size_t(index)], nullptr)) {
        QWidget *place = m_stack->widget(index);
        m_stack->insertWidget(index, build());
        m_stack->removeWidget(place);
        delete place;
    }
    m_stack->setCurrentIndex(index);
    Q_EMIT sigOpened(index);
}

} // namespace corva

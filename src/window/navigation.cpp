// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/navigation.h"

#include "widgets/cdepaint.h"
#include "widgets/skin.h"
#include "widgets/skinicon.h"

#include <QButtonGroup>
#include <QPainter>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int inset = metrics::Grid + metrics::HalfGrid;
}

NavigationButton::NavigationButton(const PageInfo &info, QWidget *parent)
    : QAbstractButton(parent), m_pageId(info.id), m_iconName(info.icon)
{
    setObjectName(info.id + u"Navigation"_s);
    setText(info.title);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    name();
}

void NavigationButton::setFolded(bool folded)
{
    m_isFolded = folded;
    name();
    updateGeometry();
    update();
}

void NavigationButton::setBadge(const QString &badge)
{
    m_badge = badge;
    name();
    update();
}

void NavigationButton::setShortcutHint(const QString &shortcut)
{
    m_shortcut = shortcut;
    name();
}

void NavigationButton::name()
{
    setAccessibleName(m_badge.isEmpty() ? text() : tr("%1, %2 new").arg(text(), m_badge));
    const QString hint = m_shortcut.isEmpty() ? text() : tr("%1 (%2)").arg(text(), m_shortcut);
    setToolTip(m_isFolded || !m_shortcut.isEmpty() ? hint : QString());
}

QSize NavigationButton::sizeHint() const
{
    const int height = qMax(metrics::RowHeight + metrics::HalfGrid, fontMetrics().height() + metrics::Grid);
    if (m_isFolded)
        return {metrics::IconSize + 2 * metrics::Grid, height};
    return {metrics::IconSize + 3 * inset +
                QFontMetrics(skinFont(TextRole::Strong)).horizontalAdvance(text()),
            height};
}

QColor NavigationButton::inkColor() const
{
    if (isChecked())
        return skinColor(SkinRole::OnSelection);
    return palette().color(QPalette::WindowText);
}

void NavigationButton::paintBackground(QPainter &painter) const
{
    if (isChecked())
        paint::box(painter, rect(), skinColor(SkinRole::Selection), QColor());
    else if (underMouse())
        paint::box(painter, rect(),
                   blend(palette().color(QPalette::Window), palette().color(QPalette::WindowText), 0.06),
                   QColor());
}

void NavigationButton::paintBadge(QPainter &painter, QRect &room) const
{
    if (m_badge.isEmpty())
        return;
    painter.setFont(skinFont(TextRole::Caption));
    const int width = painter.fontMetrics().horizontalAdvance(m_badge);
    QRect place(room.right() - width + 1, room.top(), width, room.height());
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), place), Qt::AlignCenter, m_badge);
    room.setRight(place.left() - metrics::Grid);
}

void NavigationButton::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBackground(painter);
    painter.setPen(inkColor());

    QRect icon(inset, (height() - metrics::IconSize) / 2, metrics::IconSize, metrics::IconSize);
    if (m_isFolded)
        icon.moveLeft((width() - metrics::IconSize) / 2);
    painter.drawPixmap(QStyle::visualRect(layoutDirection(), rect(), icon).topLeft(),
                       skinPixmap(m_iconName, inkColor(), metrics::IconSize, devicePixelRatioF()));
    if (m_isFolded) {
        if (!m_badge.isEmpty()) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setBrush(skinColor(SkinRole::Accent));
            painter.setPen(Qt::NoPen);
            painter.drawEllipse(QStyle::visualRect(layoutDirection(), rect(), icon).topRight(), 4, 4);
        }
        return;
    }
    QRect room(icon.right() + 1 + inset, 0, width() - icon.right() - 1 - 2 * inset, height());
    paintBadge(painter, room);
    painter.setFont(skinFont(isChecked() ? TextRole::Strong : TextRole::Text));
    const QString shown = painter.fontMetrics().elidedText(text(), Qt::ElideRight, room.width());
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), room),
                     int(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter),
                     shown);
}

void NavigationButton::enterEvent(QEnterEvent *event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void NavigationButton::leaveEvent(QEvent *event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

Navigation::Navigation(QWidget *parent)
    : SkinAreaWidget(&CommonConfig::navigation, parent), m_group(new QButtonGroup(this)),
      m_top(new QVBoxLayout), m_foot(new QVBoxLayout)
{
    setObjectName(u"navigation"_s);
    setAccessibleName(tr("Pages"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::Grid, 2 * metrics::Grid, metrics::Grid, metrics::Grid);
    layout->setSpacing(0);
    m_top->setSpacing(metrics::HalfGrid);
    m_foot->setSpacing(metrics::HalfGrid);
    layout->addLayout(m_top);
    layout->addStretch(1);
    layout->addLayout(m_foot);
    setFolded(false);
}

void Navigation::addPage(const PageInfo &info)
{
    auto *page = new NavigationButton(info, this);
    (info.isAtFoot ? m_foot : m_top)->addWidget(page);
    m_group->addButton(page);
    m_buttons.push_back(page);
    const auto number = m_buttons.size();
    if (number <= 9)
        page->setShortcutHint(u"Ctrl+%1"_s.arg(number));
    connect(page, &QAbstractButton::toggled, this, [this, page](bool checked) {
        if (checked)
            Q_EMIT sigChosen(page->pageId());
    });
}

void Navigation::setCurrent(const QString &pageId)
{
    if (NavigationButton *page = button(pageId)) {
        page->setChecked(true);
    } else if (QAbstractButton *checked = m_group->checkedButton()) {
        m_group->setExclusive(false);
        checked->setChecked(false);
        m_group->setExclusive(true);
    }
}

void Navigation::setBadge(const QString &pageId, const QString &badge)
{
    if (NavigationButton *page = button(pageId))
        page->setBadge(badge);
}

void Navigation::setFolded(bool folded)
{
    setFixedWidth(folded ? metrics::NavigationFoldedWidth : metrics::NavigationWidth);
    for (NavigationButton *page : m_buttons)
        page->setFolded(folded);
}

QStringList Navigation::pageIds() const
{
    QStringList ids;
    for (const NavigationButton *page : m_buttons)
        ids += page->pageId();
    return ids;
}

void Navigation::takeFocus()
{
    if (QAbstractButton *page = m_group->checkedButton())
        page->setFocus(Qt::OtherFocusReason);
}

NavigationButton *Navigation::button(const QString &pageId) const
{
    for (NavigationButton *page : m_buttons)
        if (page->pageId() == pageId)
            return page;
    return nullptr;
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/quotabar.h"

#include "widgets/skin.h"

#include <QPainter>
#include <QStyle>

namespace corva
{

QuotaBar::QuotaBar(QWidget *parent) : QProgressBar(parent)
{
    setRange(0, 100);
    setTextVisible(false);
    setFixedHeight(metrics::Grid);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void QuotaBar::setUse(int percent, int warningShare)
{
    m_percent = percent;
    m_warningShare = warningShare;
    setValue(qMin(percent, 100));
    update();
}

void QuotaBar::paintEvent(QPaintEvent *)
{
    const bool isWarned = m_warningShare > 0 && m_percent >= m_warningShare;
    const SkinRole role = m_percent >= 100 ? SkinRole::Bad : isWarned ? SkinRole::Warning : SkinRole::Accent;
    const qreal radius = height() / 2.0;
    const auto part = [this](int from, int to) {
        const int start = width() * from / 100;
        return QStyle::visualRect(layoutDirection(), rect(),
                                  QRect(start, 0, width() * to / 100 - start, height()));
    };
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(blend(skinColor(SkinRole::Window), skinColor(SkinRole::Line), 0.5));
    painter.drawRoundedRect(rect(), radius, radius);
    QRect used = part(0, value());
    if (value() > 0 && used.width() < height())
        used = QStyle::visualRect(layoutDirection(), rect(), QRect(0, 0, height(), height()));
    painter.setBrush(skinColor(role));
    painter.drawRoundedRect(used, radius, radius);
    if (m_warningShare > 0 && m_warningShare < 100) {
        QRect mark = part(m_warningShare, m_warningShare);
        mark.setWidth(metrics::FocusWidth);
        painter.fillRect(mark, skinColor(isWarned ? SkinRole::Window : SkinRole::Text));
    }
}

} // namespace corva

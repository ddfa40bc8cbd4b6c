// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/chartbase.h"

#include "statistics/traffictexts.h"

#include <QEvent>
#include <QGraphicsLayout>
#include <QLocale>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr quint64 smallestScale = 10'000; ///< bytes: an idle link shows as a flat line
constexpr quint64 largestScale = 1'000'000'000'000'000'000;

void clearLabels(QCategoryAxis *axis)
{
    const QStringList labels = axis->categoriesLabels();
    for (const QString &label : labels)
        axis->remove(label);
}

} // namespace

quint64 niceStep(quint64 most)
{
    constexpr quint64 steps = 4;
    const quint64 least = std::max<quint64>(most / steps + (most % steps ? 1 : 0), 1);
    quint64 power = 1;
    while (power <= least / 10)
        power *= 10;
    for (const quint64 factor : {1, 2, 5})
        if (power * factor >= least)
            return power * factor;
    return power * 10;
}

QString roundVolumeText(quint64 bytes)
{
    quint64 unit = 1;
    while (bytes / unit >= 1000)
        unit *= 1000;
    const int decimals = bytes % unit == 0 ? 0 : 1;
    return QLocale().formattedDataSize(qint64(bytes), decimals, QLocale::DataSizeSIFormat);
}

ChartBase::ChartBase(QWidget *parent)
    : QChartView(parent), m_time(new QCategoryAxis(this)), m_scale(new QCategoryAxis(this))
{
    setFrameShape(QFrame::NoFrame);
    setBackgroundRole(QPalette::NoRole);
    setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    setRenderHint(QPainter::Antialiasing);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    chart()->setBackgroundVisible(false);
    chart()->layout()->setContentsMargins(0, 0, 0, 0);
    chart()->legend()->hide();
    for (QCategoryAxis *axis : {m_time, m_scale})
        axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    m_time->setGridLineVisible(false);
    m_scale->setLineVisible(false);
    chart()->addAxis(m_time, Qt::AlignBottom);
    chart()->addAxis(m_scale, Qt::AlignLeft);
}

void ChartBase::addSeries(QAbstractSeries *series)
{
    chart()->addSeries(series);
    series->attachAxis(m_time);
    series->attachAxis(m_scale);
}

void ChartBase::setScale(quint64 most, const std::function<QString(quint64)> &text)
{
    most = std::clamp(most, smallestScale, largestScale);
    const quint64 step = niceStep(most);
    const quint64 top = (most + step - 1) / step * step;
    if (std::exchange(m_scaleTop, top) == top)
        return;
    clearLabels(m_scale);
    m_scale->setStartValue(-1);
    for (quint64 value = 0; value <= top; value += step)
        m_scale->append(value == 0 ? QLocale().toString(0) : text(value), double(value));
    m_scale->setRange(0, double(top));
}

void ChartBase::setPlaces(qreal first, qreal last, const std::vector<std::pair<qreal, QString>> &places)
{
    clearLabels(m_time);
    m_time->setStartValue(first - 1);
    for (const auto &[place, name] : places)
        m_time->append(name, place);
    m_time->setRange(first, last);
}

void ChartBase::takeLooks()
{
    const bool isReversed = layoutDirection() == Qt::RightToLeft;
    const Qt::Alignment side = isReversed ? Qt::AlignRight : Qt::AlignLeft;
    if (m_scale->alignment() != side) {
        const auto all = chart()->series();
        chart()->removeAxis(m_scale);
        chart()->addAxis(m_scale, side);
        for (QAbstractSeries *series : all)
            series->attachAxis(m_scale);
    }
    m_time->setReverse(isReversed);
    // The outermost names reach over the ends of their axes.
    constexpr int reach = 2 * metrics::Grid;
    chart()->setMargins({isReversed ? reach : 0, metrics::Grid, isReversed ? 0 : reach, 0});

    const QColor line = blend(skinColor(SkinRole::Window), skinColor(SkinRole::Line), 0.45);
    for (QCategoryAxis *axis : {m_time, m_scale}) {
        axis->setLabelsFont(skinFont(TextRole::Caption));
        axis->setLabelsColor(skinColor(SkinRole::MutedText));
        axis->setGridLinePen(QPen(line, 1));
        axis->setLinePen(QPen(line, 1));
    }
    paintSeries();
}

void ChartBase::changeEvent(QEvent *event)
{
    QChartView::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::LayoutDirectionChange)
        takeLooks();
}

void ChartBase::focusInEvent(QFocusEvent *event)
{
    QChartView::focusInEvent(event);
    viewport()->update();
}

void ChartBase::focusOutEvent(QFocusEvent *event)
{
    QChartView::focusOutEvent(event);
    viewport()->update();
}

void ChartBase::paintEvent(QPaintEvent *event)
{
    QChartView::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(skinColor(SkinRole::Focus), metrics::FocusWidth));
    painter.drawRoundedRect(QRectF(viewport()->rect()).adjusted(1, 1, -1, -1), comcfg.cornerRadius,
                            comcfg.cornerRadius);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <optional>

class QPainter;

namespace corva
{

/// Five rising bars on a 24 grid in the stroke of the icon family, `level` of them in `on`. Without a level
/// they are all `off` and crossed out.
void paintSignalBars(QPainter &painter, const QRectF &rect, std::optional<int> level, const QColor &on,
                     const QColor &off);

/// The signal as bars. Looks the same in both writing directions.
class SignalBars final : public QWidget
{
    Q_OBJECT

public:
    explicit SignalBars(int size, QWidget *parent = nullptr);

    /// 0..5 bars; std::nullopt when there is nothing that could receive.
    void setLevel(std::optional<int> level);
    std::optional<int> level() const { return m_level; }

    QSize sizeHint() const override { return {m_size, m_size}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_size;
    std::optional<int> m_level;
};

} // namespace corva

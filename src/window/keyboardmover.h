// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QRect>

class QKeyEvent;
class QWidget;

namespace corva
{

/// Moves and resizes a frameless window with the arrow keys: Enter keeps the new place, Esc brings the old
/// one back. With Ctrl the steps are single pixels.
class KeyboardMover final : public QObject
{
    Q_OBJECT

public:
    explicit KeyboardMover(QWidget *window);

    void startMove();
    void startResize();

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    /// What the keys do now, for the status strip.
    void sigSaid(const QString &sentence);

private:
    enum class Mode { Off, Move, Resize };
    void start(Mode mode, const QString &sentence);
    void finish(const QString &sentence);
    bool takeKey(const QKeyEvent &event);

    QWidget *m_window;
    Mode m_mode = Mode::Off;
    QRect m_before;
};

} // namespace corva

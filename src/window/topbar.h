// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "link/cardstate.h"
#include "widgets/skinareawidget.h"

#include <QTimer>

class QMenu;
class QToolButton;

namespace corva
{

class Badge;
class ElidedLabel;
class IconButton;
class SignalBars;
class StatusChip;
class TextLabel;

/// What the data connection does, in a word or two.
QString connectionText(ConnectionState connection);

/// The window's own title bar: the program's menu, what the card's radio does, the SIM, the connection, the
/// clock, and the buttons of the window. Dragging it moves the window; a double click fills the screen with
/// it.
class TopBar final : public SkinAreaWidget
{
    Q_OBJECT

public:
    TopBar(QMenu *menu, QWidget *parent);

    void setState(const CardState &state);
    void setConnection(ConnectionState connection);
    void openMenu();

Q_SIGNALS:
    void sigMinimize();
    void sigClose();
    void sigFillScreen();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void build();
    void showSim(const CardState &state);
    void showTime();
    void measureName();
    void fitName();

    QMenu *m_menu;
    QToolButton *m_menuButton;
    SignalBars *m_bars;
    ElidedLabel *m_operator;
    Badge *m_networkType;
    Badge *m_roaming;
    ElidedLabel *m_service;
    StatusChip *m_sim;
    StatusChip *m_connection;
    TextLabel *m_clock;
    IconButton *m_minimize;
    IconButton *m_close;
    QTimer m_minute;
    QPoint m_pressedAt;
    int m_nameWidth = 0; ///< what the program's name adds to its button
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "link/cardstate.h"

#include <QMenu>
#include <QSystemTrayIcon>

namespace corva
{

/// The program in the desktop's tray: the signal as bars, the state in the tool tip, and a menu.
class TrayIcon final : public QObject
{
    Q_OBJECT

public:
    explicit TrayIcon(QObject *parent);

    /// Whether the desktop shows it, so that the window may hide there.
    bool isShown() const;
    void setState(const CardState &state);
    void setConnection(const ConnectionStatus &connection);
    void setWindowShown(bool shown);
    void notify(const QString &title, const QString &body);

Q_SIGNALS:
    void sigShowOrHide();
    /// Connect, cancel or disconnect, as the state of the connection is.
    void sigConnect();
    void sigWhy();
    void sigAbout();
    void sigQuit();

private:
    void draw(const CardState &state);
    void showToolTip();

    QMenu m_menu;
    QString m_summary;    ///< of the card
    QString m_connection; ///< what the data connection does
    QAction *m_showOrHide;
    QAction *m_connect;
    QSystemTrayIcon m_icon;
};

} // namespace corva

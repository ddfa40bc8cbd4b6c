// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

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
    void setWindowShown(bool shown);
    void notify(const QString &title, const QString &body);

Q_SIGNALS:
    void sigShowOrHide();
    void sigWhy();
    void sigAbout();
    void sigQuit();

private:
    void draw(const CardState &state);

    QMenu m_menu;
    QAction *m_showOrHide;
    QSystemTrayIcon m_icon;
};

} // namespace corva

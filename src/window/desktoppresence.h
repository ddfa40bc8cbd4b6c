// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "window/desktopnotifier.h"
#include "window/linkreport.h"
#include "window/trayicon.h"

namespace corva
{

/// What the program shows outside of its window: the tray icon, and notifications about what the card
/// reports.
class DesktopPresence final : public QObject
{
    Q_OBJECT

public:
    explicit DesktopPresence(QObject *parent);

    TrayIcon &tray() { return m_tray; }
    /// Whether closing the window may hide it: the settings ask for it, and there is a tray to bring it back
    /// from.
    bool keepsWindow() const;
    /// Notifies, or takes a notification back, as far as the settings want notifications.
    void report(LinkReport report, const QString &text);
    /// Notifies of something that is the program's own.
    void tell(const QString &sentence);
    /// One of the same key takes the place of the one before.
    void notify(const QString &key, const QString &title, const QString &body, const QString &action = {});
    void withdraw(const QString &key) { m_notifier.withdraw(key); }

Q_SIGNALS:
    /// The person clicked on a notification that has an action.
    void sigActivated(const QString &key);

private:
    TrayIcon m_tray;
    DesktopNotifier m_notifier;
};

} // namespace corva

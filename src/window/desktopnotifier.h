// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <functional>

class QDBusPendingCallWatcher;

namespace corva
{

/// Notifications of the desktop (service "org.freedesktop.Notifications" on the session bus). Where nothing
/// answers there, the fallback shows them. Nothing waits: the bus is asked in the background. Source:
/// freedesktop.org, Desktop Notifications 1.2.
class DesktopNotifier final : public QObject
{
    Q_OBJECT

public:
    using Fallback = std::function<void(const QString &title, const QString &body)>;

    explicit DesktopNotifier(Fallback fallback, QObject *parent = nullptr);

    /// A notification under the same `key` replaces the one before. Both texts are plain.
    void notify(const QString &key, const QString &title, const QString &body);
    /// Takes the notification of that key back, if it is still shown.
    void withdraw(const QString &key);

private:
    void takeAnswer(QDBusPendingCallWatcher *call, const QString &key, const QString &title,
                    const QString &body);

    Fallback m_fallback;
    QHash<QString, uint> m_ids; ///< what the server called the notification of a key
};

} // namespace corva

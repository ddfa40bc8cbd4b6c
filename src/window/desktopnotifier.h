// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <functional>
#include <optional>

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

    /// A notification under the same `key` replaces the one before. All texts are plain. `action`: what a
    /// click on it does, in a word; empty where it does nothing.
    void notify(const QString &key, const QString &title, const QString &body, const QString &action = {});
    /// Takes the notification of that key back, if it is still shown.
    void withdraw(const QString &key);

Q_SIGNALS:
    /// The person clicked on one that has an action.
    void sigActivated(const QString &key);

private Q_SLOTS:
    void takeAction(uint id, const QString &action);

private:
    struct Text {
        QString title;
        QString body;
        QString action;
    };
    /// One notification. Until the server has told its number it can be neither replaced nor taken back: what
    /// is wanted meanwhile waits here.
    struct Entry {
        uint id = 0; ///< the server's number; 0 while there is none
        bool isAsked = false;
        bool isUnwanted = false;
        std::optional<Text> next;
    };

    void send(const QString &key, const Text &text);
    void takeAnswer(const QString &key, std::optional<uint> id, const Text &text);
    void listen();
    static void close(uint id);

    Fallback m_fallback;
    QHash<QString, Entry> m_entries;
    bool m_isListening = false; ///< to what the server says of clicks
};

} // namespace corva

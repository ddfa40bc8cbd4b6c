// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/desktopnotifier.h"

#include "shell/commonconfig.h"
#include "shell/globals.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QVariantMap>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString serverPath = u"/org/freedesktop/Notifications"_s;
const QString serverInterface = u"org.freedesktop.Notifications"_s;
const QString clicked = u"default"_s; ///< the action that servers show no button for

QDBusMessage call(const QString &method)
{
    return QDBusMessage::createMethodCall(serverInterface, serverPath, serverInterface, method);
}

constexpr int serverDecidesTime = -1;

} // namespace

DesktopNotifier::DesktopNotifier(Fallback fallback, QObject *parent)
    : QObject(parent), m_fallback(std::move(fallback))
{
}

void DesktopNotifier::notify(const QString &key, const QString &title, const QString &body,
                             const QString &action)
{
    Entry &entry = m_entries[key];
    entry.isUnwanted = false;
    if (entry.isAsked)
        entry.next = Text{title, body, action};
    else
        send(key, {title, body, action});
}

void DesktopNotifier::send(const QString &key, const Text &text)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        m_fallback(text.title, text.body);
        return;
    }
    if (!text.action.isEmpty())
        listen();
    Entry &entry = m_entries[key];
    entry.isAsked = true;
    const QStringList actions = text.action.isEmpty() ? QStringList() : QStringList{clicked, text.action};
    QDBusMessage message = call(u"Notify"_s);
    // Servers may read the body as markup.
    message << comcfg.softwareName << entry.id << basePath + u"/res/icons/corva.svg"_s << text.title
            << text.body.toHtmlEscaped() << actions << QVariantMap() << serverDecidesTime;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, key, text] {
        const QDBusPendingReply<uint> reply = *watcher;
        watcher->deleteLater();
        takeAnswer(key, reply.isError() ? std::nullopt : std::optional(reply.value()), text);
    });
}

void DesktopNotifier::takeAnswer(const QString &key, std::optional<uint> id, const Text &text)
{
    Entry &entry = m_entries[key];
    entry.isAsked = false;
    entry.id = id.value_or(0);
    if (!id)
        m_fallback(text.title, text.body);
    if (entry.isUnwanted)
        close(m_entries.take(key).id);
    else if (const auto next = std::exchange(entry.next, std::nullopt))
        send(key, *next);
}

void DesktopNotifier::withdraw(const QString &key)
{
    const auto entry = m_entries.find(key);
    if (entry == m_entries.end())
        return;
    entry->next.reset();
    entry->isUnwanted = true;
    if (!entry->isAsked)
        close(m_entries.take(key).id);
}

/// From whatever service: to ask who owns the name would have to wait for the bus.
void DesktopNotifier::listen()
{
    if (!std::exchange(m_isListening, true))
        QDBusConnection::sessionBus().connect(QString(), serverPath, serverInterface, u"ActionInvoked"_s,
                                              this, SLOT(takeAction(uint, QString)));
}

void DesktopNotifier::takeAction(uint id, const QString &action)
{
    if (id == 0 || action != clicked)
        return;
    for (const auto &[key, entry] : m_entries.asKeyValueRange())
        if (entry.id == id) {
            Q_EMIT sigActivated(QString(key)); // which may withdraw it
            return;
        }
}

void DesktopNotifier::close(uint id)
{
    if (id == 0)
        return;
    QDBusMessage message = call(u"CloseNotification"_s);
    message << id;
    QDBusConnection::sessionBus().call(message, QDBus::NoBlock);
}

} // namespace corva

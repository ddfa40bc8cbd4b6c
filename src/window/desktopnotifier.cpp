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

QDBusMessage call(const QString &method)
{
    return QDBusMessage::createMethodCall(u"org.freedesktop.Notifications"_s,
                                          u"/org/freedesktop/Notifications"_s,
                                          u"org.freedesktop.Notifications"_s, method);
}

constexpr int serverDecidesTime = -1;

} // namespace

DesktopNotifier::DesktopNotifier(Fallback fallback, QObject *parent)
    : QObject(parent), m_fallback(std::move(fallback))
{
}

void DesktopNotifier::notify(const QString &key, const QString &title, const QString &body)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        m_fallback(title, body);
        return;
    }
    QDBusMessage message = call(u"Notify"_s);
    // Servers may read the body as markup.
    message << comcfg.softwareName << m_ids.value(key) << basePath + u"/res/icons/corva.svg"_s << title
            << body.toHtmlEscaped() << QStringList() << QVariantMap() << serverDecidesTime;
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, key, title, body](QDBusPendingCallWatcher *done) { takeAnswer(done, key, title, body); });
}

void DesktopNotifier::takeAnswer(QDBusPendingCallWatcher *done, const QString &key, const QString &title,
                                 const QString &body)
{
    const QDBusPendingReply<uint> reply = *done;
    done->deleteLater();
    if (reply.isError())
        m_fallback(title, body);
    else
        m_ids.insert(key, reply.value());
}

void DesktopNotifier::withdraw(const QString &key)
{
    const uint id = m_ids.take(key);
    if (id == 0)
        return;
    QDBusMessage message = call(u"CloseNotification"_s);
    message << id;
    QDBusConnection::sessionBus().call(message, QDBus::NoBlock);
}

} // namespace corva

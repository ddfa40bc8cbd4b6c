// SPDX-License-Identifier: GPL-3.0-or-later
#include "privatebus.h"

using namespace Qt::StringLiterals;

PrivateBus::PrivateBus()
{
    m_daemon.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address=1"_s});
    if (!m_daemon.waitForStarted() || !m_daemon.waitForReadyRead())
        qFatal("dbus-daemon does not start: %s", qPrintable(m_daemon.errorString()));
    m_address = QString::fromUtf8(m_daemon.readLine().trimmed());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", m_address.toUtf8());
}

PrivateBus::~PrivateBus()
{
    m_daemon.terminate();
    m_daemon.waitForFinished();
}

QDBusConnection PrivateBus::connection(const QString &name) const
{
    return QDBusConnection::connectToBus(m_address, name);
}

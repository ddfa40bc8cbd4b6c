// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dhcpclient.h"

#include "connection/cleanchild.h"
#include "shell/logging.h"

#include <QRegularExpression>
#include <QStandardPaths>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto longestStep = 60s;
constexpr auto longestStepAtTheEnd = 3s;

/// How a client is told to get an address once and go on renewing it, and to give it back. "%1" is the
/// interface.
struct ClientForm {
    const char *program;
    const char *lease;
    const char *releaseProgram;
    const char *release;
};
constexpr ClientForm clients[] = {
    {"dhclient", "-4 -1 -pf /run/dhclient.%1.pid -lf /var/lib/dhcp/dhclient.%1.leases %1", "dhclient",
     "-4 -r -pf /run/dhclient.%1.pid -lf /var/lib/dhcp/dhclient.%1.leases %1"},
    {"udhcpc", "-n -R -p /run/udhcpc.%1.pid -i %1", "pkill", "-F /run/udhcpc.%1.pid -x udhcpc"},
    {"dhcpcd", "-4 -w %1", "dhcpcd", "-4 -k %1"},
};

/// The caller's own search path says nothing to a program with an administrator's rights.
QString systemProgram(const QString &name)
{
    return QStandardPaths::findExecutable(name, {u"/usr/sbin"_s, u"/usr/bin"_s, u"/sbin"_s, u"/bin"_s});
}

const ClientForm *installedClient()
{
    for (const ClientForm &client : clients)
        if (!systemProgram(QString::fromLatin1(client.program)).isEmpty())
            return &client;
    return nullptr;
}

QStringList arguments(const char *form, const QString &interfaceName)
{
    QStringList words = QString::fromLatin1(form).split(u' ');
    words.replaceInStrings(u"%1"_s, interfaceName);
    return words;
}

} // namespace

DhcpClient::DhcpClient(QObject *parent) : QObject(parent), m_process(this), m_limit(this)
{
    prepareSystemChild(m_process);
    m_limit.setSingleShot(true);
    m_limit.setInterval(longestStep);
    connect(&m_limit, &QTimer::timeout, &m_process, &QProcess::kill);
    connect(&m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        finished(status == QProcess::NormalExit && code == 0);
    });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finished(false);
    });
}

bool DhcpClient::isInterfaceName(const QString &name)
{
    static const QRegularExpression form(u"\\A[A-Za-z0-9][A-Za-z0-9._-]{0,14}\\z"_s);
    return form.match(name).hasMatch();
}

void DhcpClient::lease(const QString &interfaceName)
{
    const ClientForm *client = installedClient();
    if (!client || !isInterfaceName(interfaceName)) {
        Q_EMIT sigDone(client ? tr("There is no such network interface.")
                              : tr("There is no DHCP client. Please install isc-dhcp-client."));
        return;
    }
    m_steps = {
        {systemProgram(u"ip"_s), {u"link"_s, u"set"_s, u"dev"_s, interfaceName, u"up"_s}, true},
        {systemProgram(QString::fromLatin1(client->program)), arguments(client->lease, interfaceName)}};
    runNext();
}

void DhcpClient::release(const QString &interfaceName)
{
    const ClientForm *client = installedClient();
    m_steps.clear();
    if (client && isInterfaceName(interfaceName))
        m_steps = {{systemProgram(QString::fromLatin1(client->releaseProgram)),
                    arguments(client->release, interfaceName), true},
                   {systemProgram(u"ip"_s),
                    {u"address"_s, u"flush"_s, u"dev"_s, interfaceName, u"scope"_s, u"global"_s},
                    true}};
    if (isWorking()) {
        m_mayFail = true;
        m_process.terminate(); // the steps of the release follow when it has ended
    } else {
        runNext();
    }
}

void DhcpClient::hurry()
{
    m_limit.setInterval(longestStepAtTheEnd); // begins anew for a step that runs
}

void DhcpClient::runNext()
{
    if (m_steps.isEmpty()) {
        Q_EMIT sigDone({});
        return;
    }
    const Step step = m_steps.takeFirst();
    m_mayFail = step.mayFail;
    qCDebug(lcConnection).noquote() << logTime() + step.program << step.arguments.join(u' ');
    m_limit.start();
    m_process.start(step.program, step.arguments);
}

void DhcpClient::finished(bool hasWorked)
{
    m_limit.stop();
    if (hasWorked || m_mayFail) {
        runNext();
        return;
    }
    m_steps.clear();
    Q_EMIT sigDone(tr("The network gave no address."));
}

} // namespace corva

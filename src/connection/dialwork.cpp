// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialwork.h"

#include "connection/cleanchild.h"
#include "connection/processsession.h"
#include "connection/rootowned.h"
#include "shell/logging.h"
#include "shell/safefile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto longestRouteHelper = 10s;
constexpr auto longestScripts = 5s;
constexpr auto scriptsLook = 100ms;
constexpr qint64 longestInterfaceName = 15;

bool endsALink(DialVerb verb)
{
    return verb == DialVerb::HangUp || verb == DialVerb::Release || verb == DialVerb::Recover;
}

} // namespace

DialWork::DialWork(const SystemFiles &files, std::function<void()> onRun, Check check, QObject *parent)
    : QObject(parent), m_check(std::move(check)), m_files(files), m_wvdial(m_files, std::move(onRun), this),
      m_dhcp(this)
{
    connect(&m_wvdial, &WvdialProcess::sigOutput, this, &DialWork::sigOutput);
    connect(&m_wvdial, &WvdialProcess::sigStarted, this, [this](bool isRunning) {
        m_isLinked = isRunning;
        answer(isRunning, tr("The dialler could not be started."));
    });
    connect(&m_wvdial, &WvdialProcess::sigGone, this, &DialWork::slotWaitWvdialCloseReconnect);
    connect(&m_dhcp, &DhcpClient::sigDone, this, &DialWork::leaseDone);
}

bool DialWork::isAskingForLease() const
{
    return m_isBusy && m_requests.front().verb == DialVerb::Lease;
}

bool DialWork::isEndWaiting() const
{
    return m_isShuttingDown || std::ranges::any_of(m_requests, endsALink, &DialRequest::verb);
}

void DialWork::ask(const DialRequest &request)
{
    if (m_isShuttingDown)
        return;
    const bool endsLease = isAskingForLease() && endsALink(request.verb) && !isEndWaiting();
    m_requests.push_back(request);
    if (endsLease)
        m_dhcp.release(m_leased);
    else
        carryOutNext();
}

void DialWork::shutDown()
{
    if (m_isShuttingDown)
        return;
    const bool endsLease = isAskingForLease() && !isEndWaiting();
    const bool hasLease = !m_leased.isEmpty() && !isAskingForLease();
    m_isShuttingDown = true;
    m_dhcp.hurry();
    m_requests.resize(m_isBusy ? 1 : 0);
    if (hasLease)
        m_requests.push_back({.verb = DialVerb::Release, .interfaceName = m_leased});
    m_requests.push_back({.verb = DialVerb::Recover});
    if (endsLease)
        m_dhcp.release(m_leased);
    else
        carryOutNext();
}

void DialWork::carryOutNext()
{
    if (m_isBusy)
        return;
    if (!m_requests.empty()) {
        m_isBusy = true;
        carryOut(m_requests.front());
    } else if (m_isShuttingDown) {
        Q_EMIT sigShutDown();
    }
}

void DialWork::carryOut(DialRequest request)
{
    if (const DialResult result = m_check ? m_check(request) : DialResult(); !result.isDone()) {
        answer(result);
        return;
    }
    QString error;
    switch (request.verb) {
    case DialVerb::Save:
        if (m_wvdial.isPresent())
            answer(false, tr("The dialler is running already."));
        else
            killWvdialReconnect();
        break;
    case DialVerb::Write:
        m_hasDialled = false;
        m_isWritten =
            m_files.readDeafaultConfigData(request.profile, request.modemPort, request.options, &error);
        answer(m_isWritten, error);
        break;
    case DialVerb::Dial: dial(); break;
    case DialVerb::NameServers:
        m_scriptsEnd.setRemainingTime(longestScripts);
        setNameServers(0);
        break;
    case DialVerb::RouteHelper: runRouteHelper(); break;
    case DialVerb::HangUp: m_wvdial.slotKillWvdial(); break;
    case DialVerb::Recover: killWvdialReconnect(); break;
    case DialVerb::Lease:
        if (isEndWaiting()) {
            answer(false, tr("The connection was cancelled."));
            break;
        }
        m_leased = request.interfaceName;
        if (QString why; !writeFileSafely(leaseNote(), m_leased.toUtf8(), &why))
            qCWarning(lcConnection).noquote() << logTime() + why;
        m_dhcp.lease(request.interfaceName);
        break;
    case DialVerb::Release:
        m_leased.clear();
        m_isLinked = false;
        m_dhcp.release(request.interfaceName);
        break;
    }
}

/// The dialler reads whatever stands in its files: nothing but what was written and checked here.
void DialWork::dial()
{
    QString error = QCoreApplication::translate("DiallerFiles", "Read default wvdial config data failed!");
    if (!m_isWritten || !m_wvdial.slotStartWvdial(m_hasDialled, &error))
        answer(false, error);
    else
        m_hasDialled = true;
}

/// Which interface has its address from here, for the next start should this program be killed. The next boot
/// knows nothing of it, and need not.
QString DialWork::leaseNote() const
{
    return QFileInfo(m_files.files().lock).path() + u"/corva-dialler.lease"_s;
}

/// A dialler that outlived the program which started it still uses the files, and a DHCP client renews its
/// lease. `slotWaitWvdialCloseReconnect` follows.
void DialWork::killWvdialReconnect()
{
    m_isWritten = false;
    QString leftLease;
    if (m_files.hasLeftovers()) { // nobody who lives has them in hand
        m_wvdial.adoptLeftover();
        leftLease = QString::fromUtf8(readAtMost(leaseNote(), longestInterfaceName));
    }
    if (leftLease.isEmpty())
        m_wvdial.slotKillWvdial();
    else
        m_dhcp.release(leftLease);
}

void DialWork::slotWaitWvdialCloseReconnect()
{
    m_isLinked = false;
    Q_EMIT sigDiallerGone();
    if (!m_isBusy)
        return;
    switch (m_requests.front().verb) {
    case DialVerb::HangUp: answer(true, {}); break;
    case DialVerb::Save: saveFiles(); break;
    case DialVerb::Recover: recoverFiles(); break;
    default: break; // it ended by itself meanwhile
    }
}

void DialWork::leaseDone(const QString &error)
{
    if (!m_isBusy)
        return;
    const bool isLease = isAskingForLease();
    const bool isCancelled = isLease && isEndWaiting(); // and given back at once
    if (!isLease || isCancelled)
        QFile::remove(leaseNote());
    if (!isLease && m_requests.front().verb != DialVerb::Release) { // an earlier run's
        m_wvdial.slotKillWvdial();
        return;
    }
    // The resolver file that stands there now is this link's, and goes with it.
    if (isLease && error.isEmpty() && m_hasSaved)
        m_files.noteResolver();
    m_isLinked = isLease && error.isEmpty() && !isCancelled;
    answer(error.isEmpty() && !isCancelled, isCancelled ? tr("The connection was cancelled.") : error);
}

void DialWork::saveFiles()
{
    QString error;
    m_hasSaved = m_files.saveConfigData(&error);
    answer(m_hasSaved, error);
}

void DialWork::recoverFiles()
{
    QString error;
    const bool isDone = m_hasSaved ? m_files.recoverConfigData(&error) : m_files.recoverLeftovers(&error);
    m_hasSaved = false;
    m_files.deleteTmpFile();
    answer(isDone, error);
}

/// Behind pppd's script, which would put those of the network over them. The script comes a moment after the
/// address: nobody is there only when two looks in a row say so.
void DialWork::setNameServers(int quietLooks)
{
    if (!m_isLinked || isEndWaiting()) {
        answer(false, tr("The network interface has no address from here."));
        return;
    }
    const int quiet = arePppScriptsRunning() ? 0 : quietLooks + 1;
    if (quiet < 2 && !m_scriptsEnd.hasExpired()) {
        QTimer::singleShot(scriptsLook, this, [this, quiet] { setNameServers(quiet); });
        return;
    }
    const QStringList servers = m_requests.front().nameServers;
    QString error;
    answer(m_files.saveManualDNS(servers.value(0), servers.value(1), &error), error);
}

void DialWork::runRouteHelper()
{
    const QString &program = m_files.files().routeHelper;
    if (!QFileInfo(program).isExecutable() || !isAdministratorsOwn(program)) {
        answer(!QFileInfo(program).isExecutable(), tr("The route helper is not run: others may write it."));
        return;
    }
    auto *helper = new QProcess(this);
    prepareSystemChild(*helper);
    connect(helper, &QProcess::finished, helper, &QObject::deleteLater);
    connect(helper, &QProcess::errorOccurred, helper, [helper](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            helper->deleteLater();
    });
    QTimer::singleShot(longestRouteHelper, helper, &QProcess::kill);
    helper->start(program, QStringList());
    answer(true, {}); // what it does is its own affair: the link does not wait for it
}

void DialWork::answer(bool isDone, const QString &error)
{
    if (isDone)
        answer({});
    else
        answer({DialResult::Kind::Failed, error});
}

void DialWork::answer(const DialResult &result)
{
    m_requests.pop_front();
    m_isBusy = false;
    if (!result.error.isEmpty())
        qCWarning(lcConnection).noquote() << logTime() + result.error << m_files.detail();
    if (!m_isShuttingDown)
        Q_EMIT sigDone(result);
    // Not from within the answer: a row of requests would grow the stack.
    QMetaObject::invokeMethod(this, &DialWork::carryOutNext, Qt::QueuedConnection);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialwork.h"

#include "shell/logging.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto longestRouteHelper = 10s;

/// Whether nobody but the administrator can have put this program here: neither it nor a folder above it may
/// be written by others, and none is a link.
bool isAdministratorsOwn(QString path)
{
    while (true) {
        struct stat status = {};
        if (lstat(QFile::encodeName(path).constData(), &status) != 0 || S_ISLNK(status.st_mode) ||
            status.st_uid != 0 || (status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
            return false;
        if (path == "/"_L1)
            return true;
        path = QFileInfo(path).path();
    }
}

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
    connect(&m_wvdial, &WvdialProcess::sigStarted, this,
            [this](bool isRunning) { answer(isRunning, tr("The dialler could not be started.")); });
    connect(&m_wvdial, &WvdialProcess::sigGone, this, &DialWork::diallerGone);
    connect(&m_dhcp, &DhcpClient::sigDone, this, &DialWork::leaseDone);
}

void DialWork::ask(const DialRequest &request)
{
    if (m_isShuttingDown)
        return;
    const bool isAskingForLease = !m_requests.empty() && m_requests.front().verb == DialVerb::Lease;
    m_requests.push_back(request);
    if (m_requests.size() == 1)
        carryOutNext();
    else if (isAskingForLease && endsALink(request.verb))
        m_dhcp.release(m_leased);
}

void DialWork::shutDown()
{
    if (m_isShuttingDown)
        return;
    const bool isIdle = m_requests.empty();
    const bool isAskingForLease = !isIdle && m_requests.front().verb == DialVerb::Lease;
    if (!isIdle)
        m_requests.resize(1);
    if (!m_leased.isEmpty() && !isAskingForLease)
        m_requests.push_back({.verb = DialVerb::Release, .interfaceName = m_leased});
    m_requests.push_back({.verb = DialVerb::Recover});
    m_isShuttingDown = true;
    if (isAskingForLease)
        m_dhcp.release(m_leased);
    else if (isIdle)
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
    QString error = m_check ? m_check(request) : QString();
    if (!error.isEmpty()) {
        answer(false, error);
        return;
    }
    switch (request.verb) {
    case DialVerb::Save:
        if (m_wvdial.isPresent())
            answer(false, tr("The dialler is running already."));
        else
            endLeftDialler();
        break;
    case DialVerb::Write:
        answer(m_files.readDeafaultConfigData(request.profile, request.modemPort, request.options, &error),
               error);
        break;
    case DialVerb::Dial:
        if (!m_wvdial.slotStartWvdial(&error))
            answer(false, error);
        break;
    case DialVerb::NameServers:
        answer(m_files.saveManualDNS(request.nameServers.value(0), request.nameServers.value(1), &error),
               error);
        break;
    case DialVerb::RouteHelper: runRouteHelper(); break;
    case DialVerb::HangUp: m_wvdial.slotKillWvdial(); break;
    case DialVerb::Recover: endLeftDialler(); break;
    case DialVerb::Lease:
        m_leased = request.interfaceName;
        m_dhcp.lease(request.interfaceName);
        break;
    case DialVerb::Release:
        m_leased.clear();
        m_dhcp.release(request.interfaceName);
        break;
    }
}

/// A dialler that outlived the program which started it still uses the files. `diallerGone` follows.
void DialWork::endLeftDialler()
{
    if (m_files.hasLeftovers()) // nobody who lives has them in hand
        m_wvdial.adoptLeftover();
    m_wvdial.slotKillWvdial();
}

void DialWork::diallerGone()
{
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
    const bool isCancelled =
        m_requests.front().verb == DialVerb::Lease &&
        (m_isShuttingDown || std::ranges::any_of(m_requests, endsALink, &DialRequest::verb));
    // The resolver file that stands there now is this link's, and goes with it.
    const bool isLeased = m_requests.front().verb == DialVerb::Lease && error.isEmpty();
    if (isLeased && m_hasSaved)
        m_files.noteResolver();
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

void DialWork::runRouteHelper()
{
    const QString &program = m_files.files().routeHelper;
    if (!QFileInfo(program).isExecutable() || !isAdministratorsOwn(program)) {
        answer(!QFileInfo::exists(program), tr("The route helper is not run: others may write it."));
        return;
    }
    auto *helper = new QProcess(this);
    QProcessEnvironment environment;
    environment.insert(u"PATH"_s, u"/usr/sbin:/usr/bin:/sbin:/bin"_s);
    helper->setProcessEnvironment(environment);
    helper->setStandardInputFile(QProcess::nullDevice());
    helper->setStandardOutputFile(QProcess::nullDevice());
    helper->setStandardErrorFile(QProcess::nullDevice());
    connect(helper, &QProcess::finished, helper, &QObject::deleteLater);
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

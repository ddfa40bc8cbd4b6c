// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/wvdialprocess.h"

#include "connection/processsession.h"
#include "connection/wvdiaconfigthread.h"
#include "shell/logging.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <csignal>
#include <sys/wait.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto pollPeriod = 100ms;
/// How long output is waited for that nobody can write any more.
constexpr int mostEmptyPolls = 10;
/// How long pppd's scripts are waited for that outlive it. They write the system's resolver file.
constexpr int mostScriptPolls = 50;

/// What is sent, and to whom, at which poll after the kill was asked for. wvdial hangs up and ends pppd by
/// itself when it is asked to, which takes it up to 7 s; killed outright it leaves pppd and the link behind.
struct KillStep {
    int poll;
    int signal;
    const char *name; ///< "" for everybody
};
constexpr KillStep killSteps[] = {
    {0, SIGTERM, "wvdial"}, {90, SIGTERM, "pppd"}, {120, SIGTERM, ""}, {140, SIGKILL, ""}};
/// For how many polls wvdial may go on without pppd. It is hanging up then, mostly for half a second and at
/// times for 7; the port that closes when it is killed hangs up too.
constexpr int mostPartingPolls = 5;
/// The kernel may hold a process for ever, in a driver that waits for the card.
constexpr int givenUpPoll = 170;

QString sessionFile(const SystemFiles &files)
{
    return QFileInfo(files.lock).path() + u"/corva-dialler.session"_s;
}

void log(const QString &line)
{
    qCDebug(lcConnection).noquote() << logTime() + line;
}

} // namespace

WvdialProcess::WvdialProcess(DiallerFiles &files, std::function<void()> onRun, QObject *parent)
    : QObject(parent), m_files(files), m_onRun(std::move(onRun)), m_poll(this)
{
    m_poll.setInterval(pollPeriod);
    connect(&m_poll, &QTimer::timeout, this, &WvdialProcess::slotWaitWvdialClose);
}

WvdialProcess::~WvdialProcess() = default;

bool WvdialProcess::slotStartWvdial(bool isAgain, QString *error)
{
    if (isPresent()) {
        log(u"======= exit startwvdial false ======"_s);
        *error = QCoreApplication::translate("WvdialProcess", "The dialler is running already.");
        return false;
    }
    const SystemFiles &files = m_files.files();
    if (!QFileInfo(files.wvdialProgram).isExecutable()) {
        *error =
            QCoreApplication::translate("WvdialProcess", "The program wvdial is missing. Please install it.");
        return false;
    }
    const bool isAppended = isAgain && m_files.keepsConnectInfo();
    if (!isAppended && !m_files.makeConnectInfo(error))
        return false;

    log(u"****** call /usr/bin/wvdial:"_s);
    m_thread = std::make_unique<WvdiaConfigThread>(
        (isAppended ? "wvdial 2>&1 | tee -a " : "wvdial 2>&1 | tee ") + QFile::encodeName(files.connectInfo),
        [path = sessionFile(files), onRun = m_onRun](pid_t pid) {
            if (!noteSession(path, pid))
                return false;
            if (onRun)
                onRun();
            return true;
        });
    // What an earlier thread said may still be on its way.
    const int run = ++m_run;
    connect(m_thread.get(), &WvdiaConfigThread::sigOutput, this, [this, run](const QByteArray &chunk) {
        if (run == m_run)
            Q_EMIT sigOutput(chunk);
    });
    connect(m_thread.get(), &WvdiaConfigThread::sigOutputEnded, this, [this, run] {
        if (run != m_run || !isPresent())
            return;
        m_isOutputEnded = true;
        m_poll.start();
    });
    connect(m_thread.get(), &WvdiaConfigThread::sigStarted, this, [this](qint64 pid) {
        m_child = pid_t(std::max<qint64>(pid, 0));
        Q_EMIT sigStarted(m_child > 0);
    });
    m_isReaped = false;
    m_isOutputEnded = false;
    m_emptyPolls = 0;
    m_isKilling = false;
    m_thread->start();
    return true;
}

void WvdialProcess::slotKillWvdial()
{
    if (!isPresent()) {
        Q_EMIT sigGone();
        return;
    }
    if (m_isKilling)
        return;
    m_isKilling = true;
    safeKillWvdail();
}

void WvdialProcess::adoptLeftover()
{
    if (isPresent())
        return;
    m_child = notedSession(sessionFile(m_files.files()));
    m_isReaped = true; // not this program's child
    m_isOutputEnded = true;
    m_isKilling = false;
}

void WvdialProcess::safeKillWvdail()
{
    m_killWvdialCount = 0;
    m_killStep = 0;
    m_partingPolls = 0;
    slotWaitWvdialClose();
    if (isPresent())
        m_poll.start();
}

void WvdialProcess::slotWaitWvdialClose()
{
    const bool isOver = isGone();
    if (!isOver && m_isKilling)
        takeKillStep();
    const bool isGivenUp = !isOver && m_isKilling && m_killWvdialCount > givenUpPoll;
    if (!isOver && !isGivenUp)
        return;
    m_poll.stop();
    if (isOver)
        QFile::remove(sessionFile(m_files.files()));
    else // the next start finds it noted
        qCWarning(lcConnection).noquote() << logTime() + u"the dialler cannot be killed: %1"_s.arg(m_child);
    m_child = 0;
    m_isKilling = false;
    ++m_run;
    m_thread.reset();
    Q_EMIT sigGone();
}

/// Takes the step that is due, and the next one at once when this one met nobody.
void WvdialProcess::takeKillStep()
{
    constexpr std::size_t count = std::size(killSteps);
    if (m_killStep < count && killSteps[m_killStep].poll <= m_killWvdialCount) {
        while (m_killStep < count &&
               signalSession(m_child, killSteps[m_killStep].signal, killSteps[m_killStep].name) == 0)
            ++m_killStep;
        ++m_killStep;
    }
    const auto members = membersOfSession(m_child);
    const bool hasPppd = std::ranges::find(members, "pppd", &ProcessStat::name) != members.end();
    m_partingPolls = hasPppd ? 0 : m_partingPolls + 1;
    if (m_partingPolls == mostPartingPolls)
        signalSession(m_child, SIGKILL, "wvdial");
    ++m_killWvdialCount;
}

bool WvdialProcess::isGone()
{
    int stat = 0;
    if (!m_isReaped)
        m_isReaped = waitpid(m_child, &stat, WNOHANG) != 0 || defunctWvdial();
    log(u"****** waitpid, killWvdialConut = %1, subpid = %2 ,stat = %3"_s.arg(m_killWvdialCount)
            .arg(m_child)
            .arg(stat));
    if (!m_isReaped || !membersOfSession(m_child).empty())
        return false;
    ++m_emptyPolls;
    return (m_isOutputEnded || m_emptyPolls > mostEmptyPolls) &&
           (m_emptyPolls > mostScriptPolls || !arePppScriptsRunning());
}

bool WvdialProcess::defunctWvdial() const
{
    QFile status(u"/proc/%1/status"_s.arg(m_child));
    const bool isDefunct = !status.open(QIODevice::ReadOnly) || status.readAll().contains("(zombie)");
    if (isDefunct)
        log(u"___ defunctWvdial true ___"_s);
    return isDefunct;
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "serialthread.h"

#include "linkowner.h"
#include "replyreader.h"
#include "secretmask.h"
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/logging.h"

#include <QCoreApplication>
#include <QFile>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono;

std::atomic<bool> foundPortFlag = false;
std::atomic<bool> receive_flag = false;
std::atomic<int> send_atcommand_timer = 3;
std::atomic<int> send_nullatcommand_timer_s = 0;
std::atomic<int> send_nullatcommand_timer_100ms = 1;
std::atomic<int> gManualSearch = 0;
std::atomic<int> gManualSelect = 0;
std::atomic<int> gWaitSearchOrSelectEnd = 0;
std::atomic<int> gManualSearchResult = 0;
std::atomic<int> gManualSelectResult = 0;
char gSearchStr[1024] = "";
QString gAct;
QString gOpt;
QString gFormat;
QString gMode;

namespace
{

constexpr auto firstPoll = 5ms;
constexpr auto round100ms = 100ms;
constexpr auto drainSilence = 2ms;
constexpr auto halfLineSilence = 50ms;
constexpr int lockRounds = 30;

void logLine(const QString &text)
{
    qCDebug(lcLink).noquote().nospace() << corva::logTime() << text;
}

QString readable(const QByteArray &bytes)
{
    return QString::fromLatin1(corva::maskSecrets(bytes));
}

int settingIn(const char *key, int lowest, int highest, int otherwise)
{
    const int value = cmcfg.getNumber(u"network_dialer_setting"_s, QString::fromLatin1(key));
    return value >= lowest && value <= highest ? value : otherwise;
}

bool isOn(const QString &section, const QString &key)
{
    return cmcfg.getNumber(section, key) != 0;
}

/// A line that begins so says that a message follows: handed over directly, it is nowhere else.
constexpr QByteArrayView pduMarks[] = {"+CMT:", "+CBM:", "+JCLAS:"};

/// Where the last line begins that is not blank.
qsizetype lastLine(const QByteArray &text)
{
    const QByteArrayView shown = QByteArrayView(text).trimmed();
    return shown.isEmpty() ? text.size() : text.lastIndexOf('\n', shown.end() - text.cbegin() - 1) + 1;
}

/// Whether the last line says that a message follows.
bool announcesPdu(const QByteArray &text)
{
    const QByteArrayView line = QByteArrayView(text).sliced(lastLine(text));
    return std::ranges::any_of(pduMarks, [&](QByteArrayView mark) { return line.startsWith(mark); });
}

/// Where a message begins that has not come to its end; the text's size when there is none.
qsizetype tornPdu(const QByteArray &text)
{
    const qsizetype begun = text.lastIndexOf('\n') + 1;
    if (const QByteArray whole = text.first(begun); announcesPdu(whole))
        return lastLine(whole);
    const QByteArrayView line = QByteArrayView(text).sliced(begun);
    const bool mayAnnounce = std::ranges::any_of(pduMarks, [&](QByteArrayView mark) {
        return line.startsWith(mark) || (!line.isEmpty() && mark.startsWith(line));
    });
    return mayAnnounce ? begun : text.size();
}

void readTimeouts()
{
    const int seconds = settingIn("send_nullatcommand_timer_s", 0, 15, 0);
    const int tenths = cmcfg.getNumber(u"network_dialer_setting"_s, u"send_nullatcommand_timer_100ms"_s);
    send_nullatcommand_timer_s = seconds;
    send_nullatcommand_timer_100ms = seconds == 0 && (tenths < 1 || tenths > 15) ? 1 : tenths;
    send_atcommand_timer = settingIn("send_atcommand_timer", 1, 60, 3);
}

} // namespace

SerialThread::SerialThread(LinkOwner *owner)
    : m_owner(owner), m_family(corva::familyFromText(comcfg.cardFamily)),
      m_stopEvent(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    readTimeouts();
}

SerialThread::~SerialThread()
{
    requestStop();
    wait();
    ::close(m_stopEvent);
}

void SerialThread::requestStop()
{
    m_stop = true;
    eventfd_write(m_stopEvent, 1);
}

// --- Writing
// -------------------------------------------------------------------------------------------------------

/// The gates: before the port is known only the probe passes, and a network search or a manual selection
/// keeps every other command off the port, because the card answers nothing else meanwhile.
bool SerialThread::mayWrite(const char *cmd)
{
    if (!foundPortFlag && !m_probing)
        return false;
    const bool searchBlocks = isOn(u"function"_s, u"cancelManualSearch_enabled"_s) ||
                              !isOn(u"network"_s, u"serchNetworkAlowSentAt_enabled"_s);
    if (searchBlocks && m_searching && std::strcmp(cmd, "AT+COPS=?\r\n") != 0)
        return false;
    return m_selectionGate;
}

bool SerialThread::excuteAtStr(const char *cmd)
{
    if (!mayWrite(cmd))
        return false;
    constexpr char selection[] = "AT+COPS=1,2";
    if (std::strncmp(cmd, selection, sizeof selection - 1) == 0)
        m_selectionGate = false;
    if (receive_flag || m_locked)
        return waitForLockAndWrite(cmd);
    if (isOn(u"function"_s, u"findAtAndModemNewWay"_s) && !QFile::exists(u"/dev/at"_s))
        return false;
    return writeCommand(cmd, true);
}

/// The first round in which the lock is free writes; a reply may still be collected then.
bool SerialThread::waitForLockAndWrite(const char *cmd)
{
    for (int i = 0; i < lockRounds && !m_stop; ++i) {
        QThread::msleep(round100ms.count());
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1000);
        if (!m_locked)
            return writeCommand(cmd, false);
    }
    return false;
}

bool SerialThread::writeCommand(const char *cmd, bool isLogged)
{
    atLock();
    int left = int(std::strlen(cmd));
    const QByteArray line(cmd, left);
    const char *next = cmd;
    while (left > 0) { // a command cut short would be glued to the next one
        const int written = writePort(m_fd, next, left);
        if (written <= 0)
            break;
        next += written;
        left -= written;
    }
    if (left == 0 && isLogged)
        logLine(u"sent cmd: %1"_s.arg(readable(line)));
    atUnlock();
    return left == 0;
}

// --- Reading
// -------------------------------------------------------------------------------------------------------

int SerialThread::resAtStr(int fd, char *reply, int seconds, int microseconds)
{
    std::memset(reply, 0, replyBufferSize);
    QByteArray text;
    const int result =
        collectReply(fd, text, std::chrono::seconds(seconds), std::chrono::microseconds(microseconds));
    std::memcpy(reply, text.constData(), std::size_t(text.size()));
    return result;
}

int SerialThread::collectReply(int fd, QByteArray &reply, seconds whole, microseconds rest)
{
    return collectReply(fd, reply, whole, rest, corva::ReplyReader());
}

int SerialThread::collectReply(int fd, QByteArray &reply, seconds whole, microseconds rest,
                               corva::ReplyReader reader)
{
    reply.clear();
    if (receive_flag.exchange(true))
        return 0;

    const std::chrono::microseconds timeout = whole + rest;
    Budget budget{std::max<qint64>(timeout / round100ms, 0),
                  steady_clock::now() +
                      std::max<std::chrono::microseconds>(timeout * ceilingFactor, lowestCeiling)};
    const QString failure = readReply(fd, reader, budget);
    dispatchLeftOver(reader.leftOver(), !failure.isEmpty());
    if (!failure.isEmpty()) {
        logLine(failure);
        receive_flag = false;
        return -1;
    }
    reply = reader.reply();
    findUpReportAtCmd(QString::fromLatin1(reply));
    logLine(u"****** in resAtStr, timer_sec=%1, timer_usec=%2, con=%3"_s.arg(whole.count())
                .arg(rest.count())
                .arg(budget.rounds));
    logLine(u"****** in resAtStr, pResStr = %1"_s.arg(readable(reply)));
    receive_flag = false;
    return 1;
}

/// The reports in what no reply carries: a message that came is not in the card any more. One that is torn
/// waits for its rest.
void SerialThread::dispatchLeftOver(QByteArray text, bool mayGoOn)
{
    const qsizetype end = mayGoOn ? tornPdu(text) : text.size();
    m_ahead.prepend(text.sliced(end));
    text.truncate(end);
    findUpReportAtCmd(QString::fromLatin1(text));
}

/// Feeds the reader until its reply is complete. Returns why it is not; empty when it is.
QString SerialThread::readReply(int fd, corva::ReplyReader &reader, Budget &budget)
{
    std::size_t notesLogged = 0;
    for (;;) {
        QString failure = waitForBytes(fd, budget);
        if (!failure.isEmpty())
            return failure;
        const auto progress = reader.feed(m_ahead);
        m_ahead.remove(0, progress.consumed);
        for (; notesLogged < reader.notes().size(); ++notesLogged)
            logLine(QString::fromLatin1(reader.notes()[notesLogged]));
        if (progress.status == corva::ReplyReader::Status::TooLong) {
            m_ahead.clear();
            return u"****** SerialThread::resAtStr: the reply is too long"_s;
        }
        if (progress.status == corva::ReplyReader::Status::Complete)
            return {};
    }
}

/// Until bytes wait in the buffer. A round is spent only when its 100 ms were silent to the end. Returns why
/// none came; empty when some did.
QString SerialThread::waitForBytes(int fd, Budget &budget)
{
    while (m_ahead.isEmpty()) {
        if (steady_clock::now() >= budget.end)
            return u"****** SerialThread::resAtStr: the card goes on without an end of its reply"_s;
        Wait wait = waitFor(fd, POLLIN, int(firstPoll.count()));
        if (wait == Wait::Silent) {
            if (budget.rounds == 0)
                return u"****** select of SerialThread::resAtStr is timerout"_s;
            wait = waitFor(fd, POLLIN, int(round100ms.count()));
        }
        if (wait == Wait::Failed)
            return u"select of SerialThread::resAtStr is ko,errno = %1!"_s.arg(errno);
        if (wait == Wait::Silent)
            --budget.rounds;
        else if (!fillBuffer(fd))
            return u"SerialThread::resAtStr() ===> no data to read!"_s;
    }
    return {};
}

/// What the card sent since the last transaction, until it is silent for 2 ms. Half a line is waited for a
/// little longer, so that a report is not torn. Empty when the port is closed, nullopt when a transaction
/// runs.
std::optional<QByteArray> SerialThread::drain()
{
    QByteArray text;
    const int fd = m_fd;
    if (fd < 0)
        return text;
    while (text.size() < replyBufferSize) { // a card that never stops is read on at the next drain
        if (receive_flag || m_locked)
            return std::nullopt;
        if (m_ahead.isEmpty()) {
            const bool isWhole =
                text.isEmpty() || (text.endsWith('\n') && !announcesPdu(text)) || text.endsWith("> ");
            const Wait wait = waitFor(fd, POLLIN, int((isWhole ? drainSilence : halfLineSilence).count()));
            if (wait != Wait::Ready || !fillBuffer(fd))
                break;
        }
        text += m_ahead;
        m_ahead.clear();
    }
    return text.replace('\0', QByteArrayView());
}

void SerialThread::purgeComData()
{
    const auto text = drain();
    if (!text)
        return;
    logLine(u"purgeComData:: %1"_s.arg(readable(*text)));
    if (m_owner->isReadyForReports())
        findUpReportAtCmd(QString::fromLatin1(*text));
}

// --- Whole transactions
// ----------------------------------------------------------------------------------------------

std::optional<QByteArray> SerialThread::transact(const QByteArray &cmd, std::chrono::microseconds timeout)
{
    return writeAndCollect(cmd, timeout, corva::ReplyReader());
}

std::optional<QByteArray> SerialThread::transactMessage(const QByteArray &cmd,
                                                        std::chrono::microseconds timeout)
{
    return writeAndCollect(cmd, timeout, corva::ReplyReader(corva::ReplyReader::Also::CmsError));
}

std::optional<QByteArray> SerialThread::writeAndCollect(const QByteArray &cmd,
                                                        std::chrono::microseconds timeout,
                                                        corva::ReplyReader reader)
{
    m_lastReply.clear();
    purgeComData();
    const auto whole = floor<seconds>(timeout);
    m_wasWritten = excuteAtStr(cmd.constData());
    if (!m_wasWritten || collectReply(m_fd, m_lastReply, whole, timeout - whole, std::move(reader)) == -1)
        return std::nullopt;
    return m_lastReply;
}

int SerialThread::sendCmdAndRec(const char *cmd, int wholeSeconds, int microseconds)
{
    m_lastReply.clear();
    purgeComData();
    if (!excuteAtStr(cmd))
        return corva::NotWritten;
    const int configured = send_atcommand_timer;
    const seconds whole(configured >= 4 ? configured : wholeSeconds);
    if (collectReply(m_fd, m_lastReply, whole, std::chrono::microseconds(microseconds)) == -1)
        return corva::NoReply;
    return corva::classifyReply(m_lastReply, cmd);
}

int SerialThread::sendNULL_ATCmd()
{
    m_probing = true;
    purgeComData();
    const bool isWritten = excuteAtStr("AT\r\n");
    m_probing = false;
    if (!isWritten)
        return -1;
    const seconds whole(send_nullatcommand_timer_s);
    QByteArray reply;
    if (collectReply(m_fd, reply, whole, send_nullatcommand_timer_100ms.load() * 100ms) == -1)
        return -1;
    logLine(u"AT_CMD_RES_STATE state is %1"_s.arg(corva::classifyReply(reply, "AT\r\n")));
    return 1;
}

// --- The thread
// ------------------------------------------------------------------------------------------------------

void SerialThread::run()
{
    logLine(u"enter run......"_s);
    if (!gWaitSearchOrSelectEnd)
        runStartJobs();
    while (!m_stop) {
        if (!foundPortFlag) {
            logLine(u"SerialThread: need to findPortName!"_s);
            if (isOn(u"function"_s, u"findAtAndModemNewWay"_s))
                m_owner->findPortNamesNew();
            else
                m_owner->findPortNames();
        }
        if (!sleepTwoSeconds())
            logLine(u"****there are some error with select()****"_s);
    }
}

/// The search and the selection that were asked for before the thread started. No port is known yet as a
/// rule, so that they are refused; whoever asked reads the results.
void SerialThread::runStartJobs()
{
    if (gManualSearch) {
        QByteArray list(replyBufferSize, '\0');
        gManualSearchResult = getNetworkList(list.data());
        if (gManualSearchResult == 1) {
            std::memset(gSearchStr, 0, sizeof gSearchStr);
            std::strncpy(gSearchStr, list.constData(), sizeof gSearchStr - 1);
            logLine(u"=========>copy = %1"_s.arg(QString::fromLatin1(gSearchStr)));
        }
        gManualSearch = 0;
    }
    if (gManualSelect) {
        gManualSelectResult = setManualNetworkMode(gAct, gOpt, gFormat, gMode);
        gManualSelect = 0;
    }
    gWaitSearchOrSelectEnd = 1;
}

bool SerialThread::sleepTwoSeconds()
{
    pollfd stop{m_stopEvent, POLLIN, 0};
    return poll(&stop, 1, 2000) >= 0 || errno == EINTR;
}

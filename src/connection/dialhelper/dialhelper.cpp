// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialhelper/dialhelper.h"

#include "connection/networkcard.h"
#include "connection/profilechecks.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>
#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int notUnderstood = 2;
constexpr std::size_t mostWaiting = 32;

} // namespace

DialHelper::DialHelper(uid_t caller, int input, int output, int stop)
    : m_caller(caller), m_output(output),
      m_work(SystemFiles(), {}, [this](DialRequest &request) { return check(request); }),
      m_input(input, QSocketNotifier::Read), m_stop(stop, QSocketNotifier::Read)
{
    using Kind = DialEvent::Kind;
    connect(&m_work, &DialWork::sigDone, this, [this](const DialResult &result) {
        say({Kind::Done, result, {}});
    });
    connect(&m_work, &DialWork::sigOutput, this, [this](const QByteArray &chunk) {
        say({Kind::Output, {}, chunk});
    });
    connect(&m_work, &DialWork::sigDiallerGone, this, [this] {
        if (!m_work.isWritten()) // one that has died may be started again
            m_port.release();
        say({Kind::DiallerGone, {}, {}});
    });
    connect(&m_work, &DialWork::sigShutDown, this, [this] { QCoreApplication::exit(m_exitStatus); });
    connect(&m_input, &QSocketNotifier::activated, this, &DialHelper::readInput);
    connect(&m_stop, &QSocketNotifier::activated, this, [this] { end(0); });
}

void DialHelper::start()
{
    say({DialEvent::Kind::Ready, {}, {}});
}

/// The caller has no more rights here than to what is his: his port, and the network interface of the same
/// stick.
DialResult DialHelper::check(DialRequest &request)
{
    using enum DialResult::Kind;
    const DialResult notYours{NoRights, DialWork::tr("You may not use this card's data port.")};
    if (request.verb == DialVerb::Dial)
        return m_port.isSame() ? DialResult() : notYours;
    HeldPort asked;
    HeldPort &port = request.verb == DialVerb::Write ? m_port : asked;
    if (request.verb == DialVerb::Write || request.verb == DialVerb::Lease) {
        if (!port.take(request.modemPort, m_caller))
            return notYours;
        request.modemPort = port.path();
    }
    if (request.verb == DialVerb::Lease && request.interfaceName != networkCardOf(request.modemPort))
        return {NoRights, DialWork::tr("The network interface does not belong to the card.")};
    if (request.verb == DialVerb::Release && request.interfaceName != m_work.leasedInterface())
        return {NoRights, DialWork::tr("The network interface has no address from here.")};
    if (request.verb == DialVerb::Write) {
        const QString refusal = dialRefusal(request.profile, request.modemPort);
        return refusal.isEmpty() ? DialResult() : DialResult{Failed, refusal};
    }
    if (!std::ranges::all_of(request.nameServers, isHostAddress))
        return {Failed, DialWork::tr("The DNS is invalid !")};
    return {};
}

void DialHelper::readInput()
{
    std::array<char, 4096> chunk;
    const ssize_t count = read(int(m_input.socket()), chunk.data(), chunk.size());
    if (count < 0 && (errno == EINTR || errno == EAGAIN))
        return;
    if (count <= 0) {
        end(0);
        return;
    }
    for (const QByteArray &line : m_lines.feed(QByteArray(chunk.data(), count))) {
        const auto request = requestFromLine(line);
        if (!request || m_work.waitingCount() >= mostWaiting) {
            end(notUnderstood);
            return;
        }
        m_work.ask(*request);
    }
    if (m_lines.isBroken())
        end(notUnderstood);
}

/// A window that is gone takes nothing: its end is seen on the other descriptor.
void DialHelper::say(const DialEvent &event)
{
    const QByteArray line = toLine(event);
    for (qsizetype begin = 0; begin < line.size();) {
        const ssize_t count = write(m_output, line.constData() + begin, std::size_t(line.size() - begin));
        if (count < 0 && errno != EINTR)
            return;
        begin += std::max<ssize_t>(count, 0);
    }
}

void DialHelper::end(int exitStatus)
{
    m_exitStatus = exitStatus;
    m_input.setEnabled(false);
    m_stop.setEnabled(false);
    m_work.shutDown();
}

} // namespace corva

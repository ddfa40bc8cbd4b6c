// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialuplink.h"

#include "connection/ppperrors.h"
#include "connection/profilechecks.h"
#include "device/cardmonitor.h"
#include "link/serialthread.h"
#include "shell/logging.h"

#include <QFile>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

/// A card that answers without a pause must not keep the link up: the kill waits so often and no longer.
constexpr int mostKillRounds = 5;
constexpr auto killRound = 100ms;

// Exit statuses of pppd. Source: pppd(8).
constexpr int peerFailedToAuthenticate = 11;
constexpr int idleTimeout = 12;
constexpr int connectTimeLimit = 13;
constexpr int noEchoReplies = 15;
constexpr int modemHungUp = 16;
constexpr int failedToAuthenticate = 19;

struct EndByCode {
    int exitCode;
    ConnectionEnd end;
};
constexpr EndByCode endOfDial[] = {{peerFailedToAuthenticate, ConnectionEnd::Refused},
                                   {failedToAuthenticate, ConnectionEnd::Refused}};
constexpr EndByCode endOfLink[] = {{0, ConnectionEnd::ByPeer},
                                   {idleTimeout, ConnectionEnd::Idle},
                                   {connectTimeLimit, ConnectionEnd::ByPeer},
                                   {noEchoReplies, ConnectionEnd::LinkLost},
                                   {modemHungUp, ConnectionEnd::ByPeer}};

template <std::size_t count> ConnectionEnd endFor(const EndByCode (&rows)[count], int exitCode)
{
    const auto *row = std::ranges::find(rows, exitCode, &EndByCode::exitCode);
    return row == std::end(rows) ? ConnectionEnd::DiallerFailed : row->end;
}

} // namespace

/// Said before anything is changed, and in the profile's terms; the dialler's side looks again itself.
QString DialUpLink::refusal() const
{
    return dialRefusal(m_plan.profile, m_plan.modemPort);
}

void DialUpLink::make()
{
    connect(&m_backend, &DiallerBackend::sigOutput, this, &DialUpLink::takeOutput);
    connect(&m_backend, &DiallerBackend::sigDiallerGone, this, &DialUpLink::endedByItself);
    DialRequest request{.verb = DialVerb::Write};
    request.profile = m_plan.profile;
    request.modemPort = m_plan.modemPort;
    request.options = m_plan.options;
    m_backend.ask(request, [this, guard = QPointer(this)](const DialResult &result) {
        if (!guard || !isMaking())
            return;
        if (!result.isDone()) {
            explain(result);
            return;
        }
        armLimit(); // once: a dialler that is started again has what is left of it
        slotStartWvdial();
    });
}

void DialUpLink::slotStartWvdial()
{
    m_isDialled = true;
    m_dialledAt = QDateTime::currentDateTime();
    m_backend.ask({.verb = DialVerb::Dial}, [this, guard = QPointer(this)](const DialResult &result) {
        if (guard && isMaking() && !result.isDone())
            explain(ConnectionEnd::DiallerFailed, result.error);
    });
}

void DialUpLink::takeDown()
{
    if (m_isDialled)
        slotKillWvdial();
    else
        takenDown();
}

/// The dialler's end takes the data port away from under the card: not in the middle of a reply.
void DialUpLink::slotKillWvdial()
{
    if (receive_flag && m_killRounds < mostKillRounds) {
        ++m_killRounds;
        qCDebug(lcConnection).noquote()
            << logTime() + u"can't close wvdial, receive_flag=%1"_s.arg(int(receive_flag));
        QTimer::singleShot(killRound, this, &DialUpLink::slotKillWvdial);
        return;
    }
    m_backend.ask({.verb = DialVerb::HangUp}, [this, guard = QPointer(this)](const DialResult &) {
        if (guard)
            takenDown();
    });
}

void DialUpLink::takeOutput(const QByteArray &chunk)
{
    qCDebug(lcConnection).noquote() << logTime() + QString::fromUtf8(chunk).trimmed();
    if (!isMaking() && !isUp())
        return;
    for (const WvdialEvent &event : m_output.feed(chunk))
        take(event);
    look();
}

void DialUpLink::take(const WvdialEvent &event)
{
    using Kind = WvdialEvent::Kind;
    switch (event.kind) {
    case Kind::Interface: m_interface = event.text; break;
    case Kind::LocalAddress: m_said.localAddress = event.text; break;
    case Kind::PeerAddress: m_said.peerAddress = event.text; break;
    case Kind::NameServer: m_said.nameServers += event.text; break;
    case Kind::Refused: m_wasRefused = true; break;
    case Kind::PppEnded: pppEnded(event.number); break;
    case Kind::PortFailed: m_reason = tr("The card's data port cannot be opened: %1").arg(event.text); break;
    case Kind::ModemSilent: m_reason = tr("The card does not answer on its data port."); break;
    case Kind::BadInit: m_reason = tr("The card refused a command on its data port."); break;
    case Kind::Busy: // the dialler would go on dialling for ever
        fail(ConnectionEnd::Busy, failureMessage(-1));
        break;
    case Kind::NoCarrier:
    case Kind::NoAnswer:
    case Kind::NoDialTone:
    case Kind::CommandRefused: fail(ConnectionEnd::NoCarrier, failureMessage(-1)); break;
    default: break; // what else it says is for the log
    }
}

void DialUpLink::pppEnded(int exitCode)
{
    if (!isUp()) {
        fail(m_wasRefused ? ConnectionEnd::Refused : endFor(endOfDial, exitCode), failureMessage(exitCode),
             exitCode);
        return;
    }
    const bool isPortGone = !QFile::exists(m_plan.modemPort);
    fail(isPortGone ? ConnectionEnd::CardGone : endFor(endOfLink, exitCode), {}, exitCode);
}

void DialUpLink::endedByItself()
{
    if (!isMaking() && !isUp())
        return;
    for (const WvdialEvent &event : m_output.finish())
        take(event);
    if (!isMaking() && !isUp())
        return; // its last words said why
    const bool isPortGone = !QFile::exists(m_plan.modemPort);
    const bool isCrash = isMaking() && m_reason.isEmpty() && !isPortGone;
    if (isCrash && !m_isRestarted) { // wvdial crashes now and then; it deserves another go
        m_isRestarted = true;
        m_output = {};
        m_said = {};
        m_wasRefused = false;
        m_interface.clear();
        slotStartWvdial();
        return;
    }
    end({isPortGone ? ConnectionEnd::CardGone : ConnectionEnd::DiallerFailed, -1,
         isUp() ? QString() : failureMessage(-1), m_reason});
}

void DialUpLink::look()
{
    if (isMaking() && isBuilt())
        setUp();
}

/// A link without an IPv4 address is one too, which shows only when no such address came in all that time.
void DialUpLink::slotDelayMessageBox()
{
    if (isMaking() && m_facts(m_interface).isUp)
        setUp();
    else
        DataLink::slotDelayMessageBox();
}

/// pppd's own file, or an interface, comes before the addresses are agreed: alone they carry nothing yet.
bool DialUpLink::isBuilt() const
{
    const LinkFacts now = m_facts(m_interface);
    const bool hasAddress = !m_said.localAddress.isEmpty() || !now.localAddress.isEmpty();
    return (hasAddress && (now.isUp || hasLinkFile(m_linkFiles))) || hasLinkMark(m_linkFiles, m_dialledAt);
}

LinkFacts DialUpLink::facts() const
{
    LinkFacts now = m_facts(m_interface);
    if (now.localAddress.isEmpty())
        now.localAddress = m_said.localAddress;
    if (!m_said.peerAddress.isEmpty())
        now.peerAddress = m_said.peerAddress;
    if (now.nameServers.isEmpty())
        now.nameServers = m_said.nameServers;
    return now;
}

QString DialUpLink::failureMessage(int exitCode) const
{
    if (exitCode < 0 || !m_plan.showsExitCode)
        return tr("Connection is failed!");
    const QString message = tr("Fail to connect! exit code is") + u' ' + QString::number(exitCode);
    const QString text = getPppErrorInfo(exitCode);
    return text.isEmpty() ? message : message + u'\n' + text;
}

} // namespace corva

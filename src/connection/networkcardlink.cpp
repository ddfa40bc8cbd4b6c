// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/networkcardlink.h"

#include "device/cardmonitor.h"
#include "link/cardworker.h"
#include "link/serialthread.h"
#include "shell/whendone.h"

#include <future>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

// "+JPDPACT: <context>,<state>".
enum DataCallState { Down, Up, BeingMade, Refused };

constexpr int accepted = 1;
constexpr int refusedPlainly = 0;

/// By the command that made the call. Of a call that is still being made that is not known: then by the one
/// that would have come first, and by the other where the card does not know that.
void endDataCall(SerialThread &link, bool isByContext, int cid)
{
    if (isByContext || link.setDataCall(cid, false) == refusedPlainly)
        link.activatePdpContext(cid, false);
}

} // namespace

/// The maker's command where the card knows it, the standard's otherwise.
void NetworkCardLink::make()
{
    m_interface = m_plan.interfaceName;
    const auto future = m_monitor.worker().submit([cid = m_plan.contextId](SerialThread &link) {
        const int result = link.setDataCall(cid, true);
        if (result != refusedPlainly)
            return std::pair(Activation::DataCall, result);
        return std::pair(Activation::Context, link.activatePdpContext(cid, true));
    });
    m_isActivating = true;
    whenDone(future, this, [this](const std::optional<std::pair<Activation, int>> &done) {
        activated(done ? done->first : Activation::None, done ? done->second : -1);
    });
}

void NetworkCardLink::activated(Activation by, int result)
{
    m_isActivating = false;
    m_activation = by;
    if (!isMaking()) {
        deactivate(); // it was cancelled meanwhile
        return;
    }
    if (result != accepted) {
        refused();
        return;
    }
    look();
}

void NetworkCardLink::slotDelayMessageBox()
{
    fail(ConnectionEnd::TimeOut, tr("Connection is failed!"));
}

void NetworkCardLink::refused()
{
    fail(ConnectionEnd::NoCarrier, tr("Connection is failed!"));
}

void NetworkCardLink::look()
{
    const int state = m_activation == Activation::DataCall ? m_monitor.link().latestDataCallState() : Up;
    if (isMaking() && !m_isActivating && m_activation != Activation::None && !m_isLeased) {
        if (state == Up)
            lease();
        else if (state != BeingMade)
            refused();
    } else if (isUp()) {
        const LinkFacts now = facts();
        if (state == Down || state == Refused)
            fail(ConnectionEnd::ByPeer, {});
        else if (now.localAddress.isEmpty() && !now.isUp)
            fail(ConnectionEnd::LinkLost, {});
    }
}

void NetworkCardLink::lease()
{
    m_isLeased = true;
    DialRequest request{.verb = DialVerb::Lease};
    request.modemPort = m_plan.modemPort;
    request.interfaceName = m_interface;
    m_backend.ask(request, [this, guard = QPointer(this)](const DialResult &result) {
        if (!guard || !isMaking())
            return;
        if (result.isDone())
            setUp();
        else
            explain(ConnectionEnd::DiallerFailed, result.error);
    });
}

void NetworkCardLink::takeDown()
{
    if (!m_isLeased) {
        if (!m_isActivating) // its answer goes on from here
            deactivate();
        return;
    }
    DialRequest request{.verb = DialVerb::Release};
    request.modemPort = m_plan.modemPort;
    request.interfaceName = m_interface;
    m_backend.ask(request, [this, guard = QPointer(this)](const DialResult &) {
        if (guard)
            deactivate();
    });
}

void NetworkCardLink::deactivate()
{
    if (m_activation == Activation::None) {
        takenDown();
        return;
    }
    const auto future = m_monitor.worker().submit(
        [by = std::exchange(m_activation, Activation::None), cid = m_plan.contextId](SerialThread &link) {
            endDataCall(link, by == Activation::Context, cid);
            return true;
        });
    whenDone(future, this, [this](std::optional<bool>) { takenDown(); });
}

/// Asks the card to end the data call and does not wait for its answer longer than a person would.
void NetworkCardLink::abandon()
{
    if (m_activation == Activation::None && !m_isActivating)
        return;
    const auto patience = m_isActivating ? 5s : 2s; // first the card has to be done with making the call
    auto ended = std::make_shared<std::promise<void>>();
    std::future<void> end = ended->get_future();
    m_monitor.worker().submit([by = std::exchange(m_activation, Activation::None), cid = m_plan.contextId,
                               ended](SerialThread &link) {
        endDataCall(link, by == Activation::Context, cid);
        ended->set_value();
    });
    end.wait_for(patience);
}

} // namespace corva

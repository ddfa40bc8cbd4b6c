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

} // namespace

NetworkCardLink::~NetworkCardLink()
{
    if (m_isActivating && !m_call->abandon())
        m_monitor.worker().submit([](SerialThread &link) { DataCall::end(link, Activation::None); });
}

void NetworkCardLink::make()
{
    m_interface = m_plan.interfaceName;
    m_call = std::make_shared<DataCall>(m_monitor.state().identity.imei);
    const auto future =
        m_monitor.worker().submit([call = m_call](SerialThread &link) { return call->make(link); });
    m_isActivating = true;
    whenDone(future, this, [this](const std::optional<DataCall::Answer> &answer) {
        activated(answer.value_or(DataCall::Answer()));
    });
}

void NetworkCardLink::activated(const DataCall::Answer &answer)
{
    m_isActivating = false;
    m_activation = answer.by;
    if (!isMaking()) {
        deactivate(); // it was cancelled meanwhile
        return;
    }
    if (answer.result != accepted) {
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
    const int state = m_activation == Activation::Maker ? m_monitor.link().latestDataCallState() : Up;
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
        if (!m_isActivating)
            deactivate();
        else
            m_call->abandon(); // its answer goes on from here
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
    const auto future =
        m_monitor.worker().submit([by = std::exchange(m_activation, Activation::None)](SerialThread &link) {
            DataCall::end(link, by);
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
    const bool endsItself = std::exchange(m_isActivating, false) && m_call->abandon();
    auto ended = std::make_shared<std::promise<void>>();
    std::future<void> end = ended->get_future();
    m_monitor.worker().submit(
        [by = std::exchange(m_activation, Activation::None), endsItself, ended](SerialThread &link) {
            if (!endsItself)
                DataCall::end(link, by);
            ended->set_value();
        });
    end.wait_for(patience);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/datalink.h"

#include "device/cardmonitor.h"
#include "link/cardworker.h"
#include "link/serialthread.h"
#include "shell/logging.h"
#include "shell/whendone.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

// While it is made, the window wants to know at once; later a second is soon enough.
constexpr auto makingPeriod = 100ms;
constexpr auto upPeriod = 1000ms;

} // namespace

DataLink::DataLink(CardMonitor &monitor, DiallerBackend &backend, Facts facts, const LinkPlan &plan,
                   QObject *parent)
    : QObject(parent), m_monitor(monitor), m_backend(backend), m_facts(std::move(facts)), m_plan(plan)
{
    m_limit.setSingleShot(true);
    connect(&m_limit, &QTimer::timeout, this, &DataLink::timeIsUp);
    connect(&m_watch, &QTimer::timeout, this, [this] { look(); });
    connect(&m_backend, &DiallerBackend::sigLost, this, [this](const QString &sentence) {
        if (isMaking() || isUp())
            explain(ConnectionEnd::DiallerFailed, sentence);
    });
}

DataLink::~DataLink()
{
    *m_isContextWanted = false;
}

LinkFacts DataLink::facts() const
{
    return m_facts(m_interface);
}

void DataLink::start()
{
    m_stage = Stage::Context;
    m_limit.start(m_plan.contextLimit);
    if (const QString refused = refusal(); !refused.isEmpty())
        explain(ConnectionEnd::ProfileRefused, refused);
    else if (m_plan.hasContexts)
        setContext();
    else
        save();
}

void DataLink::armLimit()
{
    m_limit.start(m_plan.limit);
}

void DataLink::timeIsUp()
{
    if (m_stage == Stage::Context) {
        fail(ConnectionEnd::TimeOut,
             QCoreApplication::translate("corva::DialUpLink", "Connection is failed!"));
        return;
    }
    if (m_stage != Stage::Ending) {
        slotDelayMessageBox();
        return;
    }
    qCWarning(lcConnection).noquote()
        << logTime() + u"the link was not taken down in time, and counts as gone"_s;
    // What is still being done is done before this. What cannot be put back, the next start says.
    if (m_isSaved || m_isSavePending)
        m_backend.ask({.verb = DialVerb::Recover}, [](const DialResult &) {});
    over();
}

void DataLink::slotDelayMessageBox()
{
    fail(ConnectionEnd::TimeOut, tr("Fail to connect! Link ppp0 wasn't built !"));
}

/// Empty: the network chooses it.
QString DataLink::apn() const
{
    const ConnectionProfile &profile = m_plan.profile;
    return profile.isOn(ProfileField::UsesApn) ? profile.text(ProfileField::Apn).trimmed() : QString();
}

void DataLink::setContext()
{
    const auto text = [this](ProfileField field) { return m_plan.profile.text(field).trimmed(); };
    const QString type = text(ProfileField::IpMode).isEmpty() ? u"IP"_s : text(ProfileField::IpMode);
    const QString address = m_plan.profile.isOn(ProfileField::UsesPdp) ? text(ProfileField::Pdp) : QString();
    Q_EMIT sigPDPSetCommand(type, apn());
    const auto future = m_monitor.worker().submit([type, address, apn = apn(), cid = m_plan.contextId,
                                                   isWanted = m_isContextWanted](SerialThread &link) {
        return *isWanted ? link.setPdpContext(cid, type, apn, address) : -1;
    });
    whenDone(future, this, [this](const std::optional<int> &result) { contextSet(result); });
}

void DataLink::contextSet(std::optional<int> result)
{
    qCDebug(lcConnection).noquote() << logTime() + u"*****sigPDPSetCommand_result is %1*****"_s.arg(
                                                       result.value_or(-1));
    if (m_stage != Stage::Context)
        return;
    // With an access point of the network's choice there is nothing that could be dialled wrongly.
    const bool isRefused = result.value_or(-1) != 1 && m_plan.profile.isOn(ProfileField::UsesApn);
    if (!result)
        fail(ConnectionEnd::CardGone, tr("The device has been disconnected or is unavailable."));
    else if (isRefused)
        explain(ConnectionEnd::ProfileRefused,
                tr("The card did not accept the access point \"%1\". Please check the APN of the profile.")
                    .arg(m_plan.profile.text(ProfileField::Apn)));
    else
        save();
}

void DataLink::save()
{
    m_stage = Stage::Saving;
    m_isSavePending = true;
    m_limit.stop(); // a person may be typing a password
    m_backend.ask({.verb = DialVerb::Save}, [this, guard = QPointer(this)](const DialResult &result) {
        if (!guard)
            return;
        m_isSaved = result.isDone();
        m_isSavePending = false;
        if (m_stage != Stage::Saving) {
            takenDown(); // it was cancelled meanwhile
        } else if (!result.isDone()) {
            explain(result);
        } else {
            m_stage = Stage::Making;
            armLimit();
            m_watch.start(makingPeriod);
            make();
        }
    });
}

void DataLink::setUp()
{
    if (m_stage != Stage::Making)
        return;
    m_stage = Stage::Up;
    m_limit.stop();
    m_watch.start(upPeriod);
    if (m_plan.profile.isOn(ProfileField::UsesDns))
        useOwnNameServers();
    m_backend.ask({.verb = DialVerb::RouteHelper}, [this, guard = QPointer(this)](const DialResult &result) {
        if (guard && isUp() && !result.isDone())
            Q_EMIT sigMessage(result.error);
    });
    Q_EMIT sigUp();
}

void DataLink::useOwnNameServers()
{
    DialRequest request{.verb = DialVerb::NameServers};
    for (const ProfileField field : {ProfileField::PreferredDns, ProfileField::AlternativeDns})
        if (const QString server = m_plan.profile.text(field).trimmed(); !server.isEmpty())
            request.nameServers += server;
    if (request.nameServers.isEmpty()) {
        Q_EMIT sigMessage(QCoreApplication::translate("DiallerFiles", "The DNS is invalid !"));
        return;
    }
    m_backend.ask(request, [this, guard = QPointer(this)](const DialResult &result) {
        if (guard && isUp() && !result.isDone())
            Q_EMIT sigMessage(result.error);
    });
}

void DataLink::explain(ConnectionEnd end, const QString &sentence)
{
    this->end({end, -1, sentence, sentence});
}

void DataLink::explain(const DialResult &result)
{
    const bool isRefused = result.kind == DialResult::Kind::NoRights;
    explain(isRefused ? ConnectionEnd::NoRights : ConnectionEnd::FilesFailed, result.error);
}

void DataLink::fail(ConnectionEnd end, const QString &sentence, int exitCode)
{
    this->end({end, exitCode, sentence, {}});
}

void DataLink::end(const LinkOutcome &why)
{
    if (m_stage == Stage::Ending || m_stage == Stage::Over)
        return;
    const Stage before = m_stage;
    m_outcome = why;
    m_stage = Stage::Ending;
    *m_isContextWanted = false;
    m_limit.start(m_plan.endLimit);
    m_watch.stop();
    Q_EMIT sigEnding();
    if (before == Stage::Making || before == Stage::Up)
        takeDown();
    else if (m_isSavePending) // its answer goes on from here
        m_backend.giveUpAsking();
    else
        takenDown();
}

/// The system's files go back to their places last.
void DataLink::takenDown()
{
    if (m_stage != Stage::Ending)
        return;
    if (!m_isSaved) {
        QMetaObject::invokeMethod(this, &DataLink::over, Qt::QueuedConnection);
        return;
    }
    m_backend.ask({.verb = DialVerb::Recover}, [this, guard = QPointer(this)](const DialResult &result) {
        if (!guard || m_stage != Stage::Ending)
            return;
        m_outcome.notPutBack = result.error;
        over();
    });
}

void DataLink::over()
{
    if (std::exchange(m_stage, Stage::Over) == Stage::Over)
        return;
    m_limit.stop();
    Q_EMIT sigOver(m_outcome);
}

} // namespace corva

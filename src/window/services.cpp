// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/services.h"

#include "connection/connectionservice.h"
#include "connection/profilestore.h"
#include "device/cardmonitor.h"
#include "shell/globals.h"
#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "statistics/trafficservice.h"
#include "statistics/traffictexts.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct HistoryRow {
    ConnectionEnd end;
    QLatin1StringView word;
};

/// Ends that a link cannot have, since it never came up, are missing.
constexpr HistoryRow historyRows[] = {
    {ConnectionEnd::ByPerson, historyend::Person},   {ConnectionEnd::ByPeer, historyend::Peer},
    {ConnectionEnd::LinkLost, historyend::LinkLost}, {ConnectionEnd::CardGone, historyend::CardGone},
    {ConnectionEnd::Idle, historyend::Idle},         {ConnectionEnd::Quota, historyend::Quota},
    {ConnectionEnd::ByProgram, historyend::Program},
};

QString historyWord(ConnectionEnd end)
{
    const auto *row = std::find_if(std::begin(historyRows), std::end(historyRows),
                                   [&](const HistoryRow &candidate) { return candidate.end == end; });
    return row == std::end(historyRows) ? historyend::Dialler : row->word;
}

} // namespace

Services::Services(CardMonitor *monitor, QObject *parent)
    : Services(
          monitor,
          [](CardMonitor *card, ProfileStore *profiles) {
              return std::make_unique<ConnectionService>(card, profiles);
          },
          parent)
{
}

Services::Services(CardMonitor *monitor, const MakeConnection &makeConnection, QObject *parent)
    : QObject(parent), m_profiles(std::make_unique<ProfileStore>(basePath + u"/Data"_s)),
      m_traffic(std::make_unique<TrafficService>()), m_connection(makeConnection(monitor, m_profiles.get())),
      m_messageStore(std::make_unique<MessageStore>(basePath + u"/Data"_s)),
      m_messageService(std::make_unique<MessageService>(monitor, m_messageStore.get()))
{
    connectParts();
    m_messageStore->load();
    connect(monitor, &CardMonitor::sigStateChanged, this, [this](const CardState &state) {
        if (m_isCounting && state.roaming)
            m_traffic->setRoaming(*state.roaming);
    });
}

Services::~Services()
{
    m_connection->shutDown(); // while everybody who hears of it is there
}

void Services::connectParts()
{
    connect(m_connection.get(), &ConnectionService::sigStatusChanged, this, &Services::takeStatus);
    m_connection->setByteCounter(
        [this] { return m_isCounting ? std::optional(m_traffic->sessionVolumes().total()) : std::nullopt; });
    connect(m_traffic.get(), &TrafficService::sigRate, this, [this](const TrafficVolume &perSecond) {
        const TrafficVolume carried = m_traffic->sessionVolumes().both();
        m_meter.setTraffic({rateText(perSecond.received), rateText(perSecond.sent),
                            volumeText(carried.received), volumeText(carried.sent)});
    });
    connect(m_traffic.get(), &TrafficService::sigQuotaWarning, this, &Services::sigVolume);
    connect(m_traffic.get(), &TrafficService::sigQuotaReached, this, [this](const QString &sentence) {
        // Not from within the status that the counting was begun by: it would be told out of order.
        QMetaObject::invokeMethod(
            this, [this] { m_connection->disconnectNow(ConnectionEnd::Quota); }, Qt::QueuedConnection);
        Q_EMIT sigVolume(sentence);
    });
}

void Services::takeStatus(const ConnectionStatus &status)
{
    const bool isUp = status.state == ConnectionState::Connected;
    if (isUp && !m_isCounting) {
        m_isCounting = true;
        m_meter.setTraffic({});
        m_traffic->sessionStarted({status.profileName, status.interfaceName, status.isRoaming});
    } else if (m_isCounting && status.state == ConnectionState::Disconnecting) {
        m_traffic->readNow(); // the last moment at which the interface is there for certain
    } else if (m_isCounting && !isUp) {
        m_isCounting = false;
        m_traffic->sessionEnded(historyWord(status.end));
    }
}

} // namespace corva

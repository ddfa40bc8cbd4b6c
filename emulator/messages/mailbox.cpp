// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/mailbox.h"

#include "card/card.h"
#include "messages/tpdu.h"

#include <array>
#include <utility>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

// The numbers of "+CNMI". 3GPP TS 27.005 3.4.1.
enum Indication { Mode, MessageRouting, PageRouting, ReportRouting, BufferTreatment };

constexpr int simClass = 2;

int classOf(const QByteArray &pdu)
{
    const auto octets = fromHexDigits(pdu);
    const auto coding = octets ? deliverCoding(*octets) : std::nullopt;
    return coding ? messageClass(*coding) : -1;
}

qsizetype lengthOf(const QByteArray &pdu)
{
    return tpduLength(QByteArray::fromHex(pdu));
}

bool isOneOf(int channel, const QString &list)
{
    for (const QString &range : list.split(u',', Qt::SkipEmptyParts)) {
        const int first = range.section(u'-', 0, 0).toInt();
        const int last = range.section(u'-', -1).toInt();
        if (first <= channel && channel <= last)
            return true;
    }
    return false;
}

} // namespace

Mailbox::Mailbox(Card &card)
    : m_card(card), m_indicationsAtPowerUp(card.state().messages.indications), m_patience(card.scheduler())
{
}

void Mailbox::powerUp()
{
    m_reachable = true;
    m_held.clear();
    m_card.state().messages.indications = m_indicationsAtPowerUp;
    m_card.state().messages.service = 0;
    m_patience.stop();
    if (const auto incoming = std::exchange(m_unacknowledged, {}))
        m_waiting.prepend(*incoming);
}

std::optional<int> Mailbox::store(const QString &store, const StoredMessage &message)
{
    MessageStore &target = m_card.state().messages.stores[store];
    if (target.full || target.entries.size() >= target.capacity)
        return std::nullopt;
    int index = 1;
    while (target.entries.contains(index))
        ++index;
    target.entries[index] = message;
    return index;
}

void Mailbox::receive(const Incoming &incoming)
{
    m_waiting += incoming;
    deliverWaiting();
}

// A full store does not keep those back that go elsewhere.
void Mailbox::deliverWaiting()
{
    if (!m_reachable || !m_card.isRegistered())
        return;
    QList<Incoming> waiting = std::exchange(m_waiting, {});
    waiting.removeIf([this](const Incoming &incoming) { return deliver(incoming); });
    m_waiting = waiting + m_waiting;
}

void Mailbox::setReachable(bool reachable)
{
    m_reachable = reachable;
    deliverWaiting();
}

QList<Arrival> Mailbox::takeArrivals(const std::vector<Command> &commands)
{
    QList<Arrival> arrivals;
    m_arrivals.removeIf([&](const Arrival &arrival) {
        const bool comesNow = std::ranges::any_of(
            commands, [&arrival](const Command &command) { return beginsWith(command, arrival.match); });
        if (comesNow)
            arrivals += arrival;
        return comesNow;
    });
    return arrivals;
}

bool Mailbox::deliver(const Incoming &incoming)
{
    switch (routeOf(incoming)) {
    case Route::Keep: return keep(incoming, false);
    case Route::Announce: return keep(incoming, true);
    case Route::HandOver: return handOver(incoming);
    case Route::Show: show("+JCLAS: ,", lengthOf(incoming.pdu), incoming.pdu);
    }
    return true;
}

Mailbox::Route Mailbox::routeOf(const Incoming &incoming) const
{
    const Messages &messages = m_card.state().messages;
    if (incoming.kind == Incoming::Kind::StatusReport) {
        constexpr std::array routes = {Route::Keep, Route::HandOver, Route::Announce};
        return routes[static_cast<size_t>(messages.indications[ReportRouting])];
    }
    const int messageClass = classOf(incoming.pdu);
    if (messageClass == 0 && m_card.state().makerCommands)
        return Route::Show;
    constexpr int onlyClass3 = 3;
    const int routing = messages.indications[MessageRouting];
    const bool isHandedOver =
        routing == onlyClass3 ? messageClass == 3 : routing == 2 && messageClass != simClass;
    if (isHandedOver)
        return Route::HandOver;
    return routing == 0 ? Route::Keep : Route::Announce;
}

QString Mailbox::storeFor(const Incoming &incoming) const
{
    const Messages &messages = m_card.state().messages;
    if (incoming.kind == Incoming::Kind::StatusReport)
        return u"SR"_s;
    if (!incoming.store.isEmpty())
        return incoming.store;
    if (classOf(incoming.pdu) == simClass)
        return u"SM"_s;
    if (messages.preferred == 0)
        return messages.receiveStore;
    return messages.preferred == 1 ? u"SM"_s : u"ME"_s;
}

bool Mailbox::keep(const Incoming &incoming, bool announced)
{
    // Nobody wants reports that are neither announced nor handed over.
    const bool isReport = incoming.kind == Incoming::Kind::StatusReport;
    if (isReport && !announced)
        return true;
    const QString name = storeFor(incoming);
    const auto index = store(name, {0, incoming.pdu});
    if (index && announced)
        indicate((isReport ? "+CDSI: \"" : "+CMTI: \"") + name.toLatin1() + "\"," +
                 QByteArray::number(*index));
    return index.has_value();
}

// With service 1 the next one comes when this one was acknowledged. 3GPP TS 27.005 3.4.4.
bool Mailbox::handOver(const Incoming &incoming)
{
    if (m_unacknowledged)
        return false;
    const bool isReport = incoming.kind == Incoming::Kind::StatusReport;
    show(isReport ? "+CDS: " : "+CMT: ,", lengthOf(incoming.pdu), incoming.pdu);
    if (m_card.state().messages.service == 1) {
        m_unacknowledged = incoming;
        m_patience.start(patience(), [this] { acknowledgementMissing(); });
    }
    return true;
}

std::chrono::milliseconds Mailbox::patience() const
{
    return std::chrono::milliseconds(m_card.state().messages.network.patience);
}

bool Mailbox::acknowledge(bool taken)
{
    if (!m_unacknowledged)
        return false;
    const Incoming incoming = *std::exchange(m_unacknowledged, {});
    m_patience.stop();
    if (taken) {
        deliverWaiting();
    } else {
        m_waiting.prepend(incoming);
        m_patience.start(patience(), [this] { deliverWaiting(); });
    }
    return true;
}

// The card hands nothing over any more, and the network sends it again. 3GPP TS 27.005 3.4.4.
void Mailbox::acknowledgementMissing()
{
    const Incoming incoming = *std::exchange(m_unacknowledged, {});
    m_card.state().messages.indications[MessageRouting] = 0;
    m_card.state().messages.indications[ReportRouting] = 0;
    m_waiting.prepend(incoming);
    deliverWaiting();
}

bool Mailbox::receivePage(const QByteArray &page)
{
    const Messages &messages = m_card.state().messages;
    const QByteArray octets = QByteArray::fromHex(page);
    if (messages.indications[PageRouting] != 2 || octets.size() < 4)
        return false;
    const int channel = static_cast<unsigned char>(octets[2]) << 8 | static_cast<unsigned char>(octets[3]);
    if (isOneOf(channel, messages.broadcast.channels) == messages.broadcast.except)
        return false;
    show("+CBM: ", octets.size(), page);
    return true;
}

void Mailbox::show(const QByteArray &report, qsizetype length, const QByteArray &pdu)
{
    indicate(report + QByteArray::number(length) + "\r\n" + pdu +
             (m_card.state().messages.blankLine ? "\r\n" : ""));
}

void Mailbox::indicate(const QByteArray &line)
{
    if (m_card.state().messages.indications[Mode] == 0)
        m_held += line;
    else
        m_card.indicate(line);
}

void Mailbox::indicationsChanged()
{
    const QList<int> &indications = m_card.state().messages.indications;
    if (indications[Mode] == 0)
        return;
    for (const QByteArray &line : std::exchange(m_held, {})) {
        if (indications[BufferTreatment] == 0)
            m_card.indicate(line);
    }
}

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/commandline.h"
#include "card/fields.h"
#include "card/scheduler.h"
#include "card/state.h"

#include <optional>

namespace cardemu
{

class Card;

/// What comes from the network.
struct Incoming {
    enum class Kind { Message, StatusReport };
    Kind kind = Kind::Message;
    QByteArray pdu; ///< as it stands on the wire
    QString store;  ///< empty: where the card puts new messages
};

/// Messages that come in at the moment in which a command is answered.
struct Arrival {
    QString match; ///< beginning of the command
    int at = -1;   ///< the byte of the reply; -1: the line in its middle
    QList<Incoming> messages;
};

/// The card's end of the message service: its stores, and what becomes of messages that come in, as "+CNMI",
/// "+CPMS", "+CSMS" and "+JSMSD" say. What the card cannot take now stays with the network until it can.
class Mailbox
{
public:
    explicit Mailbox(Card &card);

    /// As after power-up: the routing is as the profile has it, what waits for "+CNMA" comes again.
    void powerUp();

    /// Puts a message into a store; its index, or nothing when there is no room.
    std::optional<int> store(const QString &store, const StoredMessage &message);
    void receive(const Incoming &incoming);
    /// A page of a cell broadcast: shown where "+CNMI" and "+CSCB" want it. False when it was not.
    bool receivePage(const QByteArray &page);
    /// Tries again what the network holds: after room was made, or the card has come back.
    void deliverWaiting();
    qsizetype waiting() const { return m_waiting.size(); }
    /// Without power nothing comes in.
    void setReachable(bool reachable);

    void schedule(const Arrival &arrival) { m_arrivals += arrival; }
    /// What comes in while one of these commands is answered, used up by this call.
    QList<Arrival> takeArrivals(const std::vector<Command> &commands);

    /// "+CNMI=..." was carried out: what was held back is sent or forgotten, as <bfr> says.
    void indicationsChanged();
    /// "+CNMA": taken, or the network sends it again later. False when nothing waits for it.
    bool acknowledge(bool taken);

private:
    enum class Route { Keep, Announce, HandOver, Show };

    bool deliver(const Incoming &incoming);
    Route routeOf(const Incoming &incoming) const;
    QString storeFor(const Incoming &incoming) const;
    bool keep(const Incoming &incoming, bool announced);
    bool handOver(const Incoming &incoming);
    /// A report with a PDU in the line behind it.
    void show(const QByteArray &report, qsizetype length, const QByteArray &pdu);
    void indicate(const QByteArray &line);
    std::chrono::milliseconds patience() const;
    void acknowledgementMissing();

    Card &m_card;
    QList<int> m_indicationsAtPowerUp;
    QList<Incoming> m_waiting;
    QList<Arrival> m_arrivals;
    bool m_reachable = true;
    QByteArrayList m_held; ///< reports that "+CNMI" <mode> 0 keeps back
    std::optional<Incoming> m_unacknowledged;
    CardTimer m_patience;
};

} // namespace cardemu

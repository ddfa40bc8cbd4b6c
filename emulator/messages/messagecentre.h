// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "messages/mailbox.h"
#include "messages/segments.h"

#include <QJsonArray>

namespace cardemu
{

/// What the network says to a message: its reference, or a "+CMS ERROR" number.
struct SubmitResult {
    int reference = 0;
    int error = 0; ///< 0: it was taken
};

/// A text that somebody sends to the card.
struct Letter {
    QString text = QStringLiteral("Hello");
    QString sender = QStringLiteral("+12025550177");
    TextForm form;
    QList<int> order; ///< of the parts, from 1; parts may be left out and repeated. Empty: one after another
    QString store;    ///< as Incoming has it
    std::optional<QDateTime> time; ///< otherwise now
};

/// The network's end of the message service: takes messages or refuses them, brings those to the card's own
/// number back, and makes delivery reports.
class MessageCentre
{
public:
    explicit MessageCentre(Card &card) : m_card(card) {}

    /// `recipient` takes the place of the one in the PDU, where it is given.
    SubmitResult submit(const QByteArray &pdu, const QString &recipient = {});
    /// What waits to come in backwards comes now.
    void release();
    /// A delivery report on the message sent last, or on another one.
    Complaint report(std::optional<int> reference, std::optional<int> status, const QString &recipient);
    /// The PDUs of a letter in the order in which they come; empty, with a complaint, when it cannot be sent.
    QByteArrayList pdusOf(const Letter &letter, Complaint *complaint);
    /// The newest `count` messages that were taken: {"reference", "to", "pdu", "time"}.
    QJsonArray sent(qsizetype count) const;
    void forgetSent() { m_sent.clear(); }

private:
    struct Sent {
        int reference;
        Submit message;
        QByteArray pdu;
        QDateTime time;
    };

    int refusal();
    void bringBack(const Sent &sent);
    void reorder(const Incoming &incoming);
    void report(const Sent &sent, int status);
    QByteArray timestamp(const std::optional<QDateTime> &time = {}) const;
    QString centreOf(const Submit &message) const;

    Card &m_card;
    QList<Sent> m_sent;
    int m_lastReference = 0; ///< of a letter in parts
    QList<Incoming> m_held;  ///< messages that come in backwards
};

} // namespace cardemu

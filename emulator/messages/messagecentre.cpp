// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/messagecentre.h"

#include "at/errors.h"
#include "card/card.h"

#include <algorithm>

namespace cardemu
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

SubmitResult MessageCentre::submit(const QByteArray &pdu, const QString &recipient)
{
    const auto octets = fromHexDigits(pdu);
    auto message = octets ? Submit::parse(*octets) : std::nullopt;
    if (!message)
        return {0, cms::invalidPduParameter};
    if (!recipient.isEmpty())
        message->destination = addressOctets(recipient);
    if (!m_card.isRegistered())
        return {0, cms::noNetworkService};
    if (centreOf(*message).isEmpty())
        return {0, cms::centreUnknown};
    if (const int error = refusal(); error != 0)
        return {0, error};
    int &reference = m_card.state().messages.lastReference;
    reference = (reference + 1) & 0xFF;
    constexpr qsizetype mostKept = 5000;
    if (m_sent.size() == mostKept)
        m_sent.removeFirst();
    m_sent += {reference, *message, pdu.toUpper(), m_card.scheduler().now()};
    const Sent sent = m_sent.last();
    bringBack(sent);
    if (message->wantsReport)
        m_card.scheduler().after(milliseconds(m_card.state().messages.network.reportDelay), [this, sent] {
            report(sent, m_card.state().messages.network.reportStatus);
        });
    return {reference, 0};
}

// Counts down to the message that is refused, and then how many are.
int MessageCentre::refusal()
{
    MessageNetwork &network = m_card.state().messages.network;
    const int error = network.refuse;
    if (error == 0)
        return 0;
    if (network.nth > 1) {
        --network.nth;
        return 0;
    }
    if (network.count == 1)
        network.refuse = 0;
    else if (network.count > 1)
        --network.count;
    return error;
}

void MessageCentre::bringBack(const Sent &sent)
{
    const QString own = m_card.state().sim.number;
    if (!isSameNumber(addressNumber(sent.message.destination), own))
        return;
    const Submit &message = sent.message;
    const Deliver deliver{centreOf(message), addressOctets(own), message.protocol, timestamp(), message.data};
    const Incoming incoming{Incoming::Kind::Message, toHexDigits(deliver.octets()), {}};
    const int transit = m_card.state().messages.network.transit;
    if (transit == 0)
        reorder(incoming);
    else
        m_card.scheduler().after(milliseconds(transit), [this, incoming] { reorder(incoming); });
}

void MessageCentre::reorder(const Incoming &incoming)
{
    m_held.prepend(incoming);
    if (m_held.size() >= m_card.state().messages.network.reorder)
        release();
}

void MessageCentre::release()
{
    for (const Incoming &message : std::exchange(m_held, {}))
        m_card.mailbox().receive(message);
}

void MessageCentre::report(const Sent &sent, int status)
{
    const int zone = m_card.state().network.timeZone;
    const StatusReport report{centreOf(sent.message),           sent.reference, sent.message.destination,
                              timestampOctets(sent.time, zone), timestamp(),    status};
    m_card.mailbox().receive({Incoming::Kind::StatusReport, toHexDigits(report.octets()), {}});
}

Complaint MessageCentre::report(std::optional<int> reference, std::optional<int> status,
                                const QString &recipient)
{
    const auto isMeant = [reference](const Sent &sent) { return sent.reference == reference; };
    const auto found = reference ? std::find_if(m_sent.crbegin(), m_sent.crend(), isMeant) : m_sent.crbegin();
    const bool wasSent = found != m_sent.crend();
    if (!wasSent && (!reference || recipient.isEmpty()))
        return u"no such message was sent; a report on another one needs reference and to"_s;
    Sent sent = wasSent ? *found : Sent{*reference, {}, {}, m_card.scheduler().now()};
    if (!recipient.isEmpty())
        sent.message.destination = addressOctets(recipient);
    report(sent, status.value_or(m_card.state().messages.network.reportStatus));
    return {};
}

QByteArrayList MessageCentre::pdusOf(const Letter &letter, Complaint *complaint)
{
    TextForm form = letter.form;
    if (form.reference < 0)
        form.reference = ++m_lastReference;
    const std::vector<UserData> parts = segmentText(letter.text, form);
    if (parts.empty()) {
        *complaint = u"text: does not fit into the alphabet, or into 255 parts"_s;
        return {};
    }
    QByteArrayList pdus;
    for (const UserData &part : parts) {
        const Deliver deliver{m_card.state().messages.serviceCentre, addressOctets(letter.sender), 0,
                              timestamp(letter.time), part};
        pdus += toHexDigits(deliver.octets());
    }
    if (letter.order.isEmpty())
        return pdus;
    QByteArrayList ordered;
    for (const int number : letter.order) {
        if (number < 1 || number > pdus.size()) {
            *complaint = u"order: the text has %1 parts"_s.arg(pdus.size());
            return {};
        }
        ordered += pdus[number - 1];
    }
    return ordered;
}

QByteArray MessageCentre::timestamp(const std::optional<QDateTime> &time) const
{
    return timestampOctets(time.value_or(m_card.scheduler().now()), m_card.state().network.timeZone);
}

QString MessageCentre::centreOf(const Submit &message) const
{
    // <type> and <digits> behind the length; as an address it counts digits instead of octets.
    if (message.serviceCentre.size() < 2)
        return m_card.state().messages.serviceCentre;
    const auto digits = static_cast<char>((message.serviceCentre.size() - 2) * 2);
    return addressNumber(digits + message.serviceCentre.mid(1));
}

QJsonArray MessageCentre::sent(qsizetype count) const
{
    QJsonArray array;
    for (qsizetype i = std::max<qsizetype>(0, m_sent.size() - count); i < m_sent.size(); ++i)
        array += QJsonObject{{u"reference"_s, m_sent[i].reference},
                             {u"to"_s, addressNumber(m_sent[i].message.destination)},
                             {u"pdu"_s, QString::fromLatin1(m_sent[i].pdu)},
                             {u"time"_s, m_sent[i].time.toString(Qt::ISODateWithMs)}};
    return array;
}

} // namespace cardemu

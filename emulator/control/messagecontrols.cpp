// SPDX-License-Identifier: GPL-3.0-or-later
#include "card/card.h"
#include "control/outcomes.h"
#include "emulatedcard.h"
#include "messages/broadcast.h"

#include <array>
#include <limits>

namespace cardemu
{

using namespace Qt::StringLiterals;

namespace
{

constexpr std::array alphabets = {
    Choice<Alphabet>{Alphabet::Automatic, u"auto"}, Choice<Alphabet>{Alphabet::Gsm7, u"gsm7"},
    Choice<Alphabet>{Alphabet::EightBit, u"8bit"}, Choice<Alphabet>{Alphabet::Ucs2, u"ucs2"}};

Field<Letter> orderField()
{
    return {u"order"_s,
            [](Letter &letter, const QJsonValue &value) -> Complaint {
                for (const QString &number : value.toVariant().toString().split(u',')) {
                    bool isNumber = false;
                    letter.order += number.toInt(&isNumber);
                    if (!isNumber)
                        return u"must be numbers of parts: \"2,1,3\""_s;
                }
                return {};
            },
            [](const Letter &) { return QJsonValue(); }};
}

Field<Letter> timeField()
{
    return {u"time"_s,
            [](Letter &letter, const QJsonValue &value) -> Complaint {
                letter.time = QDateTime::fromString(value.toString(), Qt::ISODate);
                return letter.time->isValid() ? Complaint() : u"must be like 2026-02-28T12:00:00Z"_s;
            },
            [](const Letter &) { return QJsonValue(); }};
}

Complaint senderText(const QString &text)
{
    return fitsAddress(text) ? Complaint()
                             : u"must be up to 20 digits, or 11 letters of the default alphabet"_s;
}

const Fields<TextForm> &formFields()
{
    static const Fields<TextForm> fields{
        choiceField<TextForm, Alphabet>(u"alphabet"_s, &TextForm::alphabet, alphabets),
        numberField(u"class"_s, &TextForm::messageClass, -1, 3),
        numberField(u"reference"_s, &TextForm::reference, -1, 0xFFFF),
        flagField(u"wide"_s, &TextForm::wideReference),
    };
    return fields;
}

const Fields<Letter> &letterFields()
{
    static const Fields<Letter> fields = [] {
        Fields<Letter> all{textField(u"text"_s, &Letter::text),
                           textField(u"from"_s, &Letter::sender, senderText), orderField(), timeField()};
        for (const Field<TextForm> &field : formFields())
            all.push_back(
                {field.key,
                 [&field](Letter &letter, const QJsonValue &value) { return field.read(letter.form, value); },
                 [](const Letter &) { return QJsonValue(); }});
        return all;
    }();
    return fields;
}

const QStringList otherKeys{u"pdu"_s, u"store"_s, u"unchecked"_s, u"during"_s,
                            u"at"_s,  u"name"_s,  u"count"_s,     u"status"_s};

QByteArrayList writtenPdus(EmulatedCard &emulated, const QJsonObject &values, Complaint *complaint)
{
    Letter letter;
    *complaint = readFields(letter, without(values, otherKeys), letterFields());
    return complaint->isEmpty() ? emulated.card().messageCentre().pdusOf(letter, complaint)
                                : QByteArrayList();
}

// A PDU given as it is, or those of a text.
QByteArrayList pdusOf(EmulatedCard &emulated, const QJsonObject &values, Complaint *complaint)
{
    if (!values.contains(u"pdu"_s))
        return writtenPdus(emulated, values, complaint);
    const QByteArray pdu = values[u"pdu"_s].toString().toLatin1();
    if (values[u"unchecked"_s].toBool())
        return {pdu};
    if (!fromHexDigits(pdu))
        *complaint = u"the PDU must be hex digits, two for each octet"_s;
    return {pdu.toUpper()};
}

Outcome receiveMessages(EmulatedCard &emulated, const QJsonObject &values)
{
    Card &card = emulated.card();
    const QString store = values[u"store"_s].toString();
    if (!store.isEmpty() && !card.state().messages.stores.contains(store))
        return refused(u"there is no store \"%1\""_s.arg(store));
    Complaint complaint;
    const QByteArrayList pdus = pdusOf(emulated, values, &complaint);
    if (!complaint.isEmpty())
        return refused(complaint);
    Arrival arrival{values[u"during"_s].toString(), values[u"at"_s].toInt(-1), {}};
    for (const QByteArray &pdu : pdus)
        arrival.messages += {Incoming::Kind::Message, pdu, store};
    if (values.contains(u"during"_s))
        card.mailbox().schedule(arrival);
    else
        std::ranges::for_each(arrival.messages, [&card](const auto &one) { card.mailbox().receive(one); });
    return done({{u"parts"_s, pdus.size()}, {u"waiting"_s, card.mailbox().waiting()}});
}

Outcome changeStore(EmulatedCard &emulated, const QJsonObject &values)
{
    const QJsonObject store{{values[u"name"_s].toString(), without(values, {u"name"_s, u"clear"_s})}};
    const Complaint complaint = setState(emulated, u"messages"_s, {{u"stores"_s, store}});
    if (complaint.isEmpty() && values[u"clear"_s].toBool()) {
        emulated.card().state().messages.stores[values[u"name"_s].toString()].entries.clear();
        emulated.card().mailbox().deliverWaiting();
    }
    return outcome(complaint);
}

// The texts are numbered, so that no two messages are alike.
Outcome fillStore(EmulatedCard &emulated, const QJsonObject &values)
{
    const QString name = values[u"name"_s].toString();
    const int status = values[u"status"_s].toInt(1);
    if (!emulated.card().state().messages.stores.contains(name))
        return refused(u"there is no store \"%1\""_s.arg(name));
    if (status < 0 || status > 1)
        return refused(u"status: must be 0 or 1"_s);
    for (int i = 1; i <= values[u"count"_s].toInt(); ++i) {
        QJsonObject one = values;
        one[u"text"_s] = values[u"text"_s].toString(u"Message"_s) + u" %1"_s.arg(i);
        Complaint complaint;
        for (const QByteArray &pdu : writtenPdus(emulated, one, &complaint)) {
            if (!emulated.card().mailbox().store(name, {status, pdu}))
                return refused(u"the store is full"_s);
        }
        if (!complaint.isEmpty())
            return refused(complaint);
    }
    return done();
}

Outcome changeNetwork(EmulatedCard &emulated, const QJsonObject &values)
{
    const Complaint complaint = setState(emulated, u"messages"_s, {{u"network"_s, values}});
    if (complaint.isEmpty() && values.contains(u"reorder"_s))
        emulated.card().messageCentre().release();
    return outcome(complaint);
}

const Fields<Broadcast> &broadcastFields()
{
    static const Fields<Broadcast> fields{
        textField(u"text"_s, &Broadcast::text),
        choiceField<Broadcast, Alphabet>(u"alphabet"_s, &Broadcast::alphabet, alphabets),
        numberField(u"channel"_s, &Broadcast::channel, 0, 0xFFFF),
        numberField(u"serial"_s, &Broadcast::serial, 0, 0xFFFF),
    };
    return fields;
}

QByteArrayList pagesOf(const QJsonObject &values, Complaint *complaint)
{
    if (values.contains(u"pdu"_s))
        return {values[u"pdu"_s].toString().toLatin1()};
    Broadcast broadcast;
    *complaint = readFields(broadcast, values, broadcastFields());
    QByteArrayList pages = broadcastPages(broadcast);
    std::ranges::for_each(pages, [](QByteArray &page) { page = toHexDigits(page); });
    if (pages.isEmpty())
        *complaint = u"text: does not fit into the alphabet, or into 15 pages"_s;
    return pages;
}

Outcome broadcastText(EmulatedCard &emulated, const QJsonObject &values)
{
    Complaint complaint;
    const QByteArrayList pages = pagesOf(values, &complaint);
    if (!complaint.isEmpty())
        return refused(complaint);
    const auto shown = std::ranges::count_if(
        pages, [&emulated](const QByteArray &page) { return emulated.card().mailbox().receivePage(page); });
    return done({{u"pages"_s, pages.size()}, {u"shown"_s, qint64(shown)}});
}

Outcome reportDelivery(EmulatedCard &emulated, const QJsonObject &values)
{
    if (values.contains(u"pdu"_s)) {
        const QByteArray pdu = values[u"pdu"_s].toString().toLatin1();
        emulated.card().mailbox().receive({Incoming::Kind::StatusReport, pdu, {}});
        return done();
    }
    if (const Complaint complaint = senderText(values[u"to"_s].toString()); !complaint.isEmpty())
        return refused(u"to: "_s + complaint);
    const auto number = [&values](const QString &key) {
        return values.contains(key) ? std::optional(values[key].toInt() & 0xFF) : std::nullopt;
    };
    return outcome(emulated.card().messageCentre().report(number(u"reference"_s), number(u"status"_s),
                                                          values[u"to"_s].toString()));
}

Outcome showSent(EmulatedCard &emulated, const QJsonObject &values)
{
    MessageCentre &centre = emulated.card().messageCentre();
    const QJsonArray sent = centre.sent(values[u"last"_s].toInt(std::numeric_limits<int>::max()));
    if (values[u"clear"_s].toBool())
        centre.forgetSent();
    return done({{u"sent"_s, sent}});
}

} // namespace

const std::vector<ControlRow> &messageControls()
{
    using enum ValueType;
    static const std::vector<ControlRow> table{
        {u"store"_s,
         {{u"name"_s, Text, true}, {u"full"_s, Free}, {u"capacity"_s, Free}, {u"clear"_s, Flag}},
         u"a message store (SM, ME, SR) is full, has another size, or is emptied"_s,
         changeStore},
        {u"fill"_s,
         {{u"name"_s, Text, true},
          {u"count"_s, Number, true},
          {u"status"_s, Number},
          {u"text"_s, Text},
          {u"from"_s, Text},
          {u"alphabet"_s, Free}},
         u"so many received messages into a store, without reports"_s,
         fillStore},
        {u"sms"_s,
         {{u"pdu"_s, Text},
          {u"store"_s, Text},
          {u"unchecked"_s, Flag},
          {u"text"_s, Text},
          {u"from"_s, Text},
          {u"alphabet"_s, Free},
          {u"class"_s, Free},
          {u"order"_s, Free},
          {u"reference"_s, Free},
          {u"wide"_s, Free},
          {u"time"_s, Text},
          {u"during"_s, Text},
          {u"at"_s, Number}},
         u"a message comes in: hex digits, or a text, in parts where it is long"_s,
         receiveMessages},
        {u"sms-network"_s,
         {{u"delay"_s, Free},
          {u"transit"_s, Free},
          {u"reportDelay"_s, Free},
          {u"reportStatus"_s, Free},
          {u"refuse"_s, Free},
          {u"nth"_s, Free},
          {u"count"_s, Free},
          {u"reorder"_s, Free},
          {u"patience"_s, Free}},
         u"how the network treats messages: times in ms, refusals, order"_s,
         changeNetwork},
        {u"sms-report"_s,
         {{u"status"_s, Number}, {u"reference"_s, Number}, {u"to"_s, Text}, {u"pdu"_s, Text}},
         u"a delivery report comes in, on the message sent last or another, or as it is given"_s,
         reportDelivery},
        {u"broadcast"_s,
         {{u"text"_s, Text},
          {u"channel"_s, Free},
          {u"serial"_s, Free},
          {u"alphabet"_s, Free},
          {u"pdu"_s, Text}},
         u"the cell broadcasts a text, in pages, or one page as hex digits"_s,
         broadcastText},
        {u"sent"_s,
         {{u"last"_s, Number}, {u"clear"_s, Flag}},
         u"the messages that the network has taken"_s,
         showSent},
    };
    return table;
}

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagefields.h"

#include "sms/isotime.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <type_traits>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int octet = 0xFF;
constexpr int twoOctets = 0xFFFF;
constexpr int mostRecipients = 10'000;

constexpr MessageField ofMessage[] = {
    {"id"_L1, &Message::id},
    {"box"_L1, &Message::box},
    {"place"_L1, &Message::place},
    {"time"_L1, &Message::time},
    {"arrived"_L1, &Message::arrived},
    {"read"_L1, &Message::isRead},
    {"total"_L1, &Message::total, 1, octet},
    {"reference"_L1, &Message::concatReference, -1, twoOctets},
    {"wide"_L1, &Message::is16Bit},
    {"centre"_L1, &Message::serviceCentre},
    {"asks-report"_L1, &Message::asksReport},
    {"broadcast"_L1, &Message::isBroadcast},
    {"channel"_L1, &Message::channel, -1, twoOctets},
    {"fault"_L1, &Message::error},
    {"deleted-from"_L1, &Message::deletedFrom},
    {"about"_L1, &Message::about},
    {"subscriber"_L1, &Message::subscriber},
};

constexpr PartField ofPart[] = {
    {"sequence"_L1, &MessagePart::sequence, 0, octet},
    {"to"_L1, &MessagePart::recipient, 0, mostRecipients},
    {"state"_L1, &MessagePart::state},
    {"report-reference"_L1, &MessagePart::reference, -1, octet},
    {"report-asked"_L1, &MessagePart::asksReport},
    {"sent"_L1, &MessagePart::sent},
    {"reported"_L1, &MessagePart::reported},
    {"status"_L1, &MessagePart::statusOctet, -1, octet},
    {"error-code"_L1, &MessagePart::errorCode, -1, twoOctets},
    {"reason"_L1, &MessagePart::fault},
    {"index"_L1, &MessagePart::storageIndex, -1, twoOctets},
    {"pdu"_L1, &MessagePart::pdu},
};

template <typename Enum> struct Word {
    Enum value;
    QLatin1StringView word;
};

template <typename Enum> constexpr Word<Enum> wordsOf[1] = {};
template <>
constexpr Word<MessageBox> wordsOf<MessageBox>[] = {
    {MessageBox::Inbox, "inbox"_L1},     {MessageBox::Outbox, "outbox"_L1},
    {MessageBox::Sent, "sent"_L1},       {MessageBox::Drafts, "drafts"_L1},
    {MessageBox::Deleted, "deleted"_L1}, {MessageBox::Reports, "reports"_L1},
};
template <>
constexpr Word<MessagePlace> wordsOf<MessagePlace>[] = {
    {MessagePlace::Computer, "computer"_L1},
    {MessagePlace::Sim, "sim"_L1},
    {MessagePlace::Card, "card"_L1},
};
template <>
constexpr Word<DeliveryState> wordsOf<DeliveryState>[] = {
    {DeliveryState::None, "none"_L1},           {DeliveryState::Queued, "queued"_L1},
    {DeliveryState::Sending, "sending"_L1},     {DeliveryState::Sent, "sent"_L1},
    {DeliveryState::Delivered, "delivered"_L1}, {DeliveryState::StillTrying, "still-trying"_L1},
    {DeliveryState::Failed, "failed"_L1},       {DeliveryState::Unsure, "unsure"_L1},
};

QString toText(const QString &value)
{
    return value;
}
QString toText(int value)
{
    return QString::number(value);
}
QString toText(bool value)
{
    return value ? u"1"_s : u"0"_s;
}
QString toText(const QDateTime &value)
{
    return isoText(value);
}
template <typename Enum>
requires std::is_enum_v<Enum> QString toText(Enum value)
{
    return std::ranges::find(wordsOf<Enum>, value, &Word<Enum>::value)->word;
}

bool fromText(const QString &text, QString &value)
{
    value = text;
    return true;
}
bool fromText(const QString &text, int &value)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (isNumber)
        value = number;
    return isNumber;
}
bool fromText(const QString &text, bool &value)
{
    if (text != "0"_L1 && text != "1"_L1)
        return false;
    value = text == "1"_L1;
    return true;
}
bool fromText(const QString &text, QDateTime &value)
{
    const QDateTime time = fromIsoText(text);
    if (time.isValid() || text.isEmpty())
        value = time;
    return time.isValid() || text.isEmpty();
}
template <typename Enum>
requires std::is_enum_v<Enum>
bool fromText(const QString &text, Enum &value)
{
    for (const Word<Enum> &row : wordsOf<Enum>) {
        if (row.word == text) {
            value = row.value;
            return true;
        }
    }
    return false;
}

bool isHeld(QStringView text, qsizetype i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate())
        return i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
    if (c.isLowSurrogate())
        return i > 0 && text.at(i - 1).isHighSurrogate();
    return c.unicode() >= 0x20 ? c.unicode() < 0xFFFE : (c == u'\t' || c == u'\n');
}

/// The character of "\u0007" or "\\" at the beginning, and how long that is.
struct Escape {
    QChar character;
    qsizetype length = 0;
};
Escape escapeAt(QStringView text)
{
    constexpr qsizetype length = 6;
    if (text.startsWith("\\\\"_L1))
        return {u'\\', 2};
    bool isHex = false;
    const ushort code =
        text.sliced(std::min<qsizetype>(2, text.size())).left(length - 2).toUShort(&isHex, 16);
    if (!text.startsWith("\\u"_L1) || text.size() < length || !isHex)
        return {};
    return {QChar(code), length};
}

} // namespace

template <typename Record> bool RecordField<Record>::isDefault(const Record &record) const
{
    static const Record fresh;
    return std::visit([&](auto pointer) { return record.*pointer == fresh.*pointer; }, member);
}

template <typename Record> QString RecordField<Record>::text(const Record &record) const
{
    return std::visit([&](auto pointer) { return toText(record.*pointer); }, member);
}

template <typename Record> bool RecordField<Record>::setText(Record &record, const QString &text) const
{
    const auto set = [&](auto pointer) {
        auto value = record.*pointer;
        if (!fromText(text, value))
            return false;
        if constexpr (std::is_same_v<decltype(value), int>) {
            if (value < least || value > most)
                return false;
        }
        record.*pointer = value;
        return true;
    };
    return std::visit(set, member);
}

template <typename Record> QJsonValue RecordField<Record>::json(const Record &record) const
{
    if (const auto *number = std::get_if<int Record::*>(&member))
        return record.*(*number);
    if (const auto *flag = std::get_if<bool Record::*>(&member))
        return record.*(*flag);
    return text(record);
}

template <typename Record> bool RecordField<Record>::setJson(Record &record, const QJsonValue &value) const
{
    if (std::holds_alternative<int Record::*>(member)) {
        const double number = value.toDouble(least - 1);
        return number >= least && number <= most && setText(record, QString::number(int(number)));
    }
    if (std::holds_alternative<bool Record::*>(member))
        return value.isBool() && setText(record, toText(value.toBool()));
    return value.isString() && setText(record, value.toString());
}

template struct RecordField<Message>;
template struct RecordField<MessagePart>;

std::span<const MessageField> messageFields()
{
    return ofMessage;
}

std::span<const PartField> partFields()
{
    return ofPart;
}

QString escapedText(const QString &text)
{
    QString escaped;
    qsizetype done = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isBackslash = text.at(i) == u'\\';
        if (!isBackslash && isHeld(text, i))
            continue;
        escaped += QStringView(text).sliced(done, i - done);
        escaped += isBackslash ? u"\\\\"_s : u"\\u%1"_s.arg(text.at(i).unicode(), 4, 16, QChar(u'0'));
        done = i + 1;
    }
    return done == 0 ? text : escaped.append(QStringView(text).sliced(done));
}

QString unescapedText(const QString &text)
{
    QString plain;
    qsizetype done = 0;
    for (qsizetype i = text.indexOf(u'\\'); i >= 0; i = text.indexOf(u'\\', i)) {
        const Escape escape = escapeAt(QStringView(text).sliced(i));
        plain += QStringView(text).sliced(done, i - done);
        if (escape.length > 0)
            plain += escape.character;
        else
            plain += u'\\';
        i += std::max<qsizetype>(1, escape.length);
        done = i;
    }
    return done == 0 ? text : plain.append(QStringView(text).sliced(done));
}

} // namespace corva

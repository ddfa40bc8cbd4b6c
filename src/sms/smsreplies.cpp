// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/smsreplies.h"

#include "link/atfields.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace corva
{

namespace
{

constexpr int anyNumber = std::numeric_limits<int>::max();
/// What a message is filed with; no card has so many places.
constexpr int mostIndex = 0xFFFF;

bool isPduLine(const QByteArray &line)
{
    return !line.isEmpty() &&
           std::ranges::all_of(line, [](char c) { return isxdigit(static_cast<unsigned char>(c)) != 0; });
}

/// Whether the line can only be a PDU that was damaged on its way, by its place behind the line that
/// announces one: mostly digits, which no result and no other report is.
bool isDamagedPduLine(const QByteArray &line)
{
    const auto digits =
        std::ranges::count_if(line, [](char c) { return isxdigit(static_cast<unsigned char>(c)) != 0; });
    return !line.startsWith('+') && digits * 2 > line.size();
}

/// Whether the line begins a report whose PDU follows on a line of its own.
bool announcesPdu(const QByteArray &line)
{
    static constexpr const char *marks[] = {"+CMT:", "+CDS:", "+CBM:", "+JCLAS:"};
    return std::ranges::any_of(marks, [&](const char *mark) { return line.startsWith(mark); });
}

std::optional<int> statusOf(const AtFields &fields, qsizetype at)
{
    return fields.number(at, 0, anyNumber);
}

int lengthOf(const AtFields &fields, qsizetype at)
{
    return fields.number(at, 0, anyNumber).value_or(-1);
}

/// What a line of the list tells; the third field is a name or nothing.
ListedSms listedLine(const QByteArray &line, const QByteArray &pdu)
{
    const AtFields fields(QByteArrayView(line).sliced(qsizetype(sizeof "+CMGL:" - 1)));
    const auto index = fields.number(0, 0, mostIndex);
    const auto status = statusOf(fields, 1);
    if (!index || !status)
        return {-1, -1, -1, pdu};
    return {*index, *status, lengthOf(fields, fields.count() > 3 ? 3 : 2), pdu};
}

ListedSms readLine(const QByteArray &line, const QByteArray &pdu)
{
    const AtFields fields(QByteArrayView(line).sliced(qsizetype(sizeof "+CMGR:" - 1)));
    return {-1, statusOf(fields, 0).value_or(-1), lengthOf(fields, fields.count() > 2 ? 2 : 1), pdu};
}

/// Goes through the lines of a reply and hands each PDU to the line that announced it, nothing to a line that
/// has none.
template <typename Take> void forEachPdu(const QByteArray &text, Take take)
{
    QByteArrayList waiting; // a report may come between a message's line and its PDU
    bool isDirectlyBehind = false;
    for (const QByteArray &line : replyLines(text)) {
        const bool announces = line.startsWith("+CMGL:") || line.startsWith("+CMGR:") || announcesPdu(line);
        if (announces)
            waiting.append(line);
        else if (!waiting.isEmpty() && (isPduLine(line) || (isDirectlyBehind && isDamagedPduLine(line))))
            take(waiting.takeLast(), line);
        isDirectlyBehind = announces;
    }
    for (const QByteArray &line : waiting)
        take(line, QByteArray());
}

/// One store of "+CPMS:"; without a name where the card leaves them out.
struct NamedFill {
    QByteArray name;
    StoreFill fill;
};

std::vector<NamedFill> storeFills(const QByteArray &reply)
{
    std::vector<NamedFill> fills;
    const auto fields = AtFields::find(reply, "+CPMS:");
    if (!fields)
        return fills;
    const bool hasNames = fields->isQuoted(0);
    for (qsizetype i = 0; i < fields->count(); i += hasNames ? 3 : 2) {
        const qsizetype figures = hasNames ? i + 1 : i;
        const auto used = fields->number(figures, 0, anyNumber);
        const auto total = fields->number(figures + 1, 0, anyNumber);
        if (used && total)
            fills.push_back({hasNames ? fields->text(i) : QByteArray(), {*used, *total}});
    }
    return fills;
}

std::optional<StoreFill> fillOf(const QByteArray &reply, const QByteArray &name)
{
    for (const NamedFill &each : storeFills(reply)) {
        if (each.name == name)
            return each.fill;
    }
    return {};
}

bool isNumber(const QString &text)
{
    const QString digits = text.startsWith(u'+') ? text.sliced(1) : text;
    return !digits.isEmpty() && std::ranges::all_of(digits, [](QChar c) { return c >= u'0' && c <= u'9'; });
}

/// Text in which every four hexadecimal digits are a character.
QString fromUcs2Hex(const QByteArray &hex)
{
    QString text;
    for (qsizetype i = 0; i + 4 <= hex.size(); i += 4)
        text += QChar(hex.mid(i, 4).toUShort(nullptr, 16));
    return text;
}

/// The numbers of "(0-2)", "(0,2)" or "(0-1,3)".
std::vector<int> offeredValues(const QByteArray &group)
{
    std::vector<int> values;
    for (const QByteArray &range : group.split(',')) {
        const QByteArrayList ends = range.trimmed().split('-');
        bool isFirst = false;
        bool isLast = false;
        const int first = ends.first().toInt(&isFirst);
        const int last = ends.last().toInt(&isLast);
        for (int value = first; isFirst && isLast && value <= std::min(last, 9); ++value)
            values.push_back(value);
    }
    return values;
}

std::vector<std::vector<int>> offeredModes(const QByteArray &reply)
{
    std::vector<std::vector<int>> modes;
    const qsizetype at = reply.indexOf("+CNMI:");
    for (qsizetype open = at < 0 ? -1 : reply.indexOf('(', at); open >= 0; open = reply.indexOf('(', open)) {
        const qsizetype close = reply.indexOf(')', open);
        if (close < 0)
            break;
        modes.push_back(offeredValues(reply.sliced(open + 1, close - open - 1)));
        open = close;
    }
    return modes;
}

/// The offered value nearest below the wanted one, or else the lowest.
int nearest(int wanted, const std::vector<int> &offered)
{
    int best = *std::ranges::min_element(offered);
    for (const int value : offered) {
        if (value <= wanted)
            best = std::max(best, value);
    }
    return best;
}

} // namespace

std::vector<ListedSms> parseSmsList(const QByteArray &reply)
{
    std::vector<ListedSms> messages;
    forEachPdu(reply, [&](const QByteArray &line, const QByteArray &pdu) {
        if (line.startsWith("+CMGL:"))
            messages.push_back(listedLine(line, pdu));
    });
    std::ranges::stable_sort(messages, {}, &ListedSms::index);
    return messages;
}

std::optional<ListedSms> parseReadSms(const QByteArray &reply)
{
    std::optional<ListedSms> message;
    forEachPdu(reply, [&](const QByteArray &line, const QByteArray &pdu) {
        if (!message && line.startsWith("+CMGR:"))
            message = readLine(line, pdu);
    });
    return message;
}

std::vector<ReportedPdu> parseReportedPdus(const QByteArray &text, const QByteArray &mark)
{
    std::vector<ReportedPdu> reports;
    forEachPdu(text, [&](const QByteArray &line, const QByteArray &pdu) {
        if (!line.startsWith(mark))
            return;
        const AtFields fields(QByteArrayView(line).sliced(mark.size()));
        reports.push_back({lengthOf(fields, fields.count() - 1), pdu});
    });
    return reports;
}

std::vector<StoredReport> parseStoredReports(const QByteArray &text, const QByteArray &mark)
{
    std::vector<StoredReport> reports;
    for (const QByteArray &line : replyLines(text)) {
        if (!line.startsWith(mark))
            continue;
        const AtFields fields(QByteArrayView(line).sliced(mark.size()));
        reports.push_back({QString::fromLatin1(fields.text(0)), fields.number(1, 0, mostIndex).value_or(-1)});
    }
    return reports;
}

std::optional<StoreFill> parseNamedFill(const QByteArray &reply, const QByteArray &name)
{
    return fillOf(reply, name);
}

std::optional<StoreFill> parseFill(const QByteArray &reply, const QByteArray &name)
{
    const auto named = fillOf(reply, name);
    return named ? named : fillOf(reply, QByteArray());
}

QString parseServiceCentre(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CSCA:");
    if (!fields)
        return {};
    constexpr int international = 145;
    QString number = QString::fromLatin1(fields->text(0));
    const bool maybeHex = number.size() % 4 == 0 && number.startsWith(QLatin1StringView("00"));
    if (const QString plain = fromUcs2Hex(fields->text(0)); maybeHex && isNumber(plain))
        number = plain;
    if (!isNumber(number))
        return {};
    const bool lacksPlus = fields->number(1, 0, 255) == international && !number.startsWith(u'+');
    return lacksPlus ? u'+' + number : number;
}

int parseMessageReference(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CMGS:");
    return fields ? fields->number(0, 0, 255).value_or(-1) : -1;
}

int parseWrittenIndex(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CMGW:");
    return fields ? fields->number(0, 0, anyNumber).value_or(-1) : -1;
}

QByteArray nearestNoticeModes(const QByteArray &wanted, const QByteArray &testReply)
{
    const auto offered = offeredModes(testReply);
    QByteArrayList values = wanted.split(',');
    for (qsizetype i = 0; i < values.size() && std::size_t(i) < offered.size(); ++i) {
        const auto &choices = offered[std::size_t(i)];
        if (!choices.empty())
            values[i] = QByteArray::number(nearest(values[i].toInt(), choices));
    }
    constexpr qsizetype reports = 3;
    if (values.value(reports) == "1") // handed over directly, which nobody takes; kept, they are read later
        values[reports] = "0";
    return values.join(',');
}

} // namespace corva

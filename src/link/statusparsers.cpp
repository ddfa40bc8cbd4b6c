// SPDX-License-Identifier: GPL-3.0-or-later
#include "statusparsers.h"

#include <QTimeZone>
#include <algorithm>
#include <array>

namespace corva
{

namespace
{

ReplyError badField(const char *name)
{
    return ReplyError{ReplyError::BadField, name};
}

bool isHexText(const QByteArray &text)
{
    return std::ranges::all_of(text, [](char c) { return isxdigit(static_cast<unsigned char>(c)) != 0; });
}

bool isDigits(const QByteArray &text)
{
    return !text.isEmpty() && std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

/// What people can read of it: letters, digits, marks, punctuation; no controls or format characters, no
/// private or unassigned ones, no half pairs.
QString readablePart(const QString &text)
{
    QString part;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = i + 1 < text.size() && text[i].isHighSurrogate() && text[i + 1].isLowSurrogate();
        const char32_t c = isPair ? QChar::surrogateToUcs4(text[i], text[i + 1]) : text[i].unicode();
        if (QChar::isPrint(c) && QChar::category(c) != QChar::Other_NotAssigned)
            part += QStringView(text).sliced(i, isPair ? 2 : 1);
        i += isPair ? 1 : 0;
    }
    return part.trimmed();
}

/// <AcT> of 3GPP TS 27.007 7.3, in its order.
NetworkType networkTypeOfAct(std::optional<int> act)
{
    static constexpr auto types = std::to_array<NetworkType>(
        {NetworkType::Gsm, NetworkType::Gsm, NetworkType::Umts, NetworkType::Edge, NetworkType::Hsdpa,
         NetworkType::Hsupa, NetworkType::Hspa, NetworkType::Lte});
    return act && *act >= 0 && *act < int(types.size()) ? types[std::size_t(*act)] : NetworkType::Unknown;
}

/// The mode of "^SYSINFO:" and "+JPAS:", refined by its submode where that names a technology.
NetworkType networkTypeOfMode(std::optional<int> mode, std::optional<int> submode)
{
    static constexpr auto submodes = std::to_array<NetworkType>(
        {NetworkType::Unknown, NetworkType::Gsm, NetworkType::Gprs, NetworkType::Edge, NetworkType::Umts,
         NetworkType::Hsdpa, NetworkType::Hsupa, NetworkType::Hspa, NetworkType::TdScdma,
         NetworkType::HspaPlus});
    if (submode && *submode > 0 && *submode < int(submodes.size()))
        return submodes[std::size_t(*submode)];
    switch (mode.value_or(-1)) {
    case 0: return NetworkType::None;
    case 2: return NetworkType::Cdma1x;
    case 3: return NetworkType::Gsm;
    case 4: return NetworkType::Evdo;
    case 5:
    case 7: return NetworkType::Umts; // 7: GSM and WCDMA
    case 8: return NetworkType::Hybrid;
    case 15: return NetworkType::TdScdma;
    default: return NetworkType::Unknown;
    }
}

ServiceState serviceOf(std::optional<int> field)
{
    return field && *field >= 0 && *field <= 4 ? static_cast<ServiceState>(*field) : ServiceState::Unknown;
}

/// <stat>, with the later values folded onto those that a person distinguishes.
std::optional<Registration> registrationOf(std::optional<int> stat)
{
    if (!stat)
        return std::nullopt;
    switch (*stat) {
    case 6:
    case 9: return Registration::Home; // SMS only, CSFB not preferred
    case 7:
    case 10: return Registration::Roaming;
    case 8: return Registration::Denied; // emergency bearer only
    default: return static_cast<Registration>(*stat);
    }
}

/// Lines that may stand in any reply and belong to none.
bool isEchoOrReport(const QByteArray &line)
{
    static constexpr auto reports =
        std::to_array({"OK", "RING", "STOPRING", "RINGBACK", "RINGBACKLOCAL", "ANSWER", "NO ANSWER",
                       "NO CARRIER", "VOICE NO CARRIER", "BUSY", "CONNECT"});
    return line.startsWith("AT+") || line.startsWith('+') || line.startsWith('^') ||
           line.startsWith("HANGUP:") ||
           std::ranges::any_of(reports, [&](const char *report) { return line == report; });
}

} // namespace

QString decodeCardText(const QByteArray &text)
{
    QString plain = QString::fromLatin1(text).trimmed();
    const bool mayBeUcs2 = text.size() >= 4 && text.size() % 4 == 0 && isHexText(text) &&
                           (text.size() >= 8 || text.startsWith("00"));
    if (!mayBeUcs2)
        return plain;
    QString decoded;
    for (qsizetype i = 0; i < text.size(); i += 4)
        decoded.append(QChar(char16_t(text.sliced(i, 4).toUShort(nullptr, 16))));
    const QString name = readablePart(decoded.remove(QChar::Null)); // some cards pad with it
    // A name of the letters A to F decodes, too, but to little that makes sense.
    return name.size() * 2 > decoded.size() ? name : plain;
}

ReplyResult<SignalQuality> parseSignalQuality(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CSQ:");
    if (!fields)
        return fields.error();
    const auto rssi = fields->number(0, 0, 255);
    if (!rssi)
        return badField("rssi");
    return SignalQuality{*rssi <= 31 ? std::optional(-113 + 2 * *rssi) : std::nullopt, *rssi};
}

ReplyResult<RadioQuality> parseRadioQuality(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+JRSSI:");
    if (!fields)
        return fields.error();
    const auto rssi = fields->number(0, -999, 999);
    const auto ecio = fields->number(1, -999, 999);
    const auto rscp = fields->number(2, -999, 999);
    if (!rssi || !ecio || !rscp)
        return badField(!rssi ? "rssi" : !ecio ? "ecio" : "rscp");
    return RadioQuality{*rssi, *ecio, *rscp};
}

ReplyResult<OperatorSelection> parseOperator(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+COPS:");
    if (!fields)
        return fields.error();
    const auto mode = fields->number(0, 0, 4);
    if (!mode)
        return badField("mode");
    OperatorSelection selection;
    selection.mode = *mode;
    const QByteArray name = fields->text(2);
    if (fields->number(1, 0, 2) == 2 || ((name.size() == 5 || name.size() == 6) && isDigits(name)))
        selection.code = isDigits(name) ? QString::fromLatin1(name) : QString();
    else
        selection.name = decodeCardText(name);
    selection.networkType = networkTypeOfAct(fields->number(3, 0, 15));
    return selection;
}

ReplyResult<RegistrationState> parseRegistration(const QByteArray &reply, QByteArrayView prefix)
{
    const auto fields = AtFields::find(reply, prefix);
    if (!fields)
        return fields.error();
    // The report has no <n>: its second field, where there is one, is the area code. Some cards leave out its
    // quotes, but not one of its four digits.
    const bool isReport = fields->count() == 1 || fields->isQuoted(1) || fields->text(1).size() == 4;
    const qsizetype at = isReport ? 0 : 1;
    const auto stat = registrationOf(fields->number(at, 0, 10));
    if (!stat)
        return badField("stat");
    RegistrationState state;
    state.stat = *stat;
    state.lac = fields->number(at + 1, 0, 0xffff, 16);
    state.cellId = fields->number(at + 2, 0, 0xfffffff, 16);
    state.networkType = networkTypeOfAct(fields->number(at + 3, 0, 15));
    return state;
}

ReplyResult<SystemInformation> parseSysInfo(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "^SYSINFO:");
    if (!fields)
        return fields.error();
    const auto service = fields->number(0, 0, 255);
    if (!service)
        return badField("service");
    SystemInformation information;
    information.service = serviceOf(service);
    if (const auto roaming = fields->number(2, 0, 1))
        information.roaming = *roaming == 1;
    information.networkType = networkTypeOfMode(fields->number(3, 0, 255), fields->number(6, 0, 255));
    return information;
}

ReplyResult<SystemInformation> parseJpas(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+JPAS:");
    if (!fields)
        return fields.error();
    const auto mode = fields->number(0, 0, 255);
    if (!mode)
        return badField("mode");
    SystemInformation information;
    information.networkType = networkTypeOfMode(mode, fields->number(2, 0, 255));
    information.service = serviceOf(fields->number(1, 0, 255));
    return information;
}

ReplyResult<QDateTime> parseNetworkTime(const QByteArray &reply, QByteArrayView prefix)
{
    const auto fields = AtFields::find(reply, prefix);
    if (!fields)
        return fields.error();
    // One quoted field; cards that leave out the quotes give two.
    QByteArray text = fields->text(0);
    if (!fields->isQuoted(0) && fields->has(1))
        text += ',' + fields->text(1);
    constexpr qsizetype length = 17; // yy/MM/dd,hh:mm:ss
    const QString stamp = QString::fromLatin1(text.first(std::min(length, text.size())));
    const QDate date = QDate::fromString(QStringLiteral("20") + stamp.left(8), QStringLiteral("yyyy/MM/dd"));
    const QTime time = QTime::fromString(stamp.mid(9), QStringLiteral("hh:mm:ss"));
    if (stamp.size() != length || stamp[8] != u',' || !date.isValid() || !time.isValid())
        return badField("time");
    const QByteArray zone = text.sliced(length).split(',').first(); // summer time may follow
    bool hasZone = false;
    const int quarters = zone.toInt(&hasZone);
    if (!hasZone || std::abs(quarters) > 56)
        return QDateTime(date, time);
    return QDateTime(date, time, QTimeZone(quarters * 15 * 60));
}

ReplyResult<int> parseFunctionality(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CFUN:");
    if (!fields)
        return fields.error();
    const auto level = fields->number(0, 0, 127);
    return level ? ReplyResult<int>(*level) : badField("fun");
}

ReplyResult<bool> parseAntenna(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+JANT:");
    if (!fields)
        return fields.error();
    const auto state = fields->number(0, 0, 1);
    return state ? ReplyResult<bool>(*state == 1) : badField("antenna");
}

ReplyResult<AttemptsLeft> parseAttempts(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+JPINPUK:");
    if (!fields)
        return fields.error();
    const auto pin = fields->number(0, 0, 10);
    const auto puk = fields->number(1, 0, 10);
    if (!pin || !puk)
        return badField(pin ? "puk" : "pin");
    return AttemptsLeft{*pin, *puk};
}

ReplyResult<SimState> parseSimState(const QByteArray &reply)
{
    struct Row {
        const char *text; ///< the code of "+CPIN:", or the words or number of "+CME ERROR:"
        SimState state;
    };
    static constexpr auto codes = std::to_array<Row>({{"READY", SimState::Ready},
                                                      {"SIM PIN", SimState::PinNeeded},
                                                      {"SIM PUK", SimState::PukNeeded},
                                                      {"SIM PIN2", SimState::Ready},
                                                      {"SIM PUK2", SimState::Ready}});
    static constexpr auto errors = std::to_array<Row>({{"10", SimState::Absent},
                                                       {"SIM not inserted", SimState::Absent},
                                                       {"11", SimState::PinNeeded},
                                                       {"SIM PIN required", SimState::PinNeeded},
                                                       {"12", SimState::PukNeeded},
                                                       {"SIM PUK required", SimState::PukNeeded},
                                                       {"13", SimState::Failure},
                                                       {"SIM failure", SimState::Failure},
                                                       {"14", SimState::Busy},
                                                       {"SIM busy", SimState::Busy},
                                                       {"15", SimState::Failure},
                                                       {"SIM wrong", SimState::Failure}});
    const auto find = [](const auto &rows, const QByteArray &text) -> std::optional<SimState> {
        const auto row = std::ranges::find_if(rows, [&](const Row &r) { return text == r.text; });
        return row == rows.end() ? std::nullopt : std::optional(row->state);
    };
    const char *prefixes[] = {"+CPIN:", "^CPIN:"};
    for (const char *prefix : prefixes) {
        if (const auto fields = AtFields::find(reply, prefix)) {
            const auto state = find(codes, fields->text(0));
            return state ? ReplyResult<SimState>(*state) : badField("code");
        }
    }
    const auto refused = refusal(reply);
    if (!refused)
        return ReplyError{reply.isEmpty() ? ReplyError::Silent : ReplyError::NoLine, "+CPIN:"};
    const auto state = find(errors, refused->detail);
    return state ? ReplyResult<SimState>(*state) : *refused;
}

ReplyResult<QString> parseIdentity(const QByteArray &reply, QByteArrayView prefix)
{
    if (const auto refused = refusal(reply))
        return *refused;
    for (const QByteArray &line : replyLines(reply)) {
        if (line.startsWith(prefix))
            return QString::fromLatin1(AtFields(QByteArrayView(line).sliced(prefix.size())).text(0))
                .trimmed();
        if (!isEchoOrReport(line))
            return QString::fromLatin1(line).remove(u'"').trimmed();
    }
    return ReplyError{reply.isEmpty() ? ReplyError::Silent : ReplyError::NoLine, prefix.toByteArray()};
}

ReplyResult<QString> parseImsi(const QByteArray &reply)
{
    const auto text = parseIdentity(reply, "+CIMI:");
    if (!text)
        return text.error();
    const QByteArray digits = text->toLatin1();
    return isDigits(digits) && digits.size() >= 6 && digits.size() <= 15 ? text : badField("IMSI");
}

ReplyResult<QString> parseIccid(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CRSM:");
    if (!fields)
        return fields.error();
    if (fields->number(0, 0, 255) != 144)
        return ReplyError{ReplyError::Refused, fields->text(0)};
    const QByteArray hex = fields->text(2);
    if (hex.size() != 20 || !isHexText(hex))
        return badField("ICCID");
    QByteArray digits;
    for (qsizetype i = 0; i < hex.size(); i += 2)
        digits.append(hex[i + 1]).append(hex[i]);
    while (digits.endsWith('F') || digits.endsWith('f'))
        digits.chop(1);
    return isDigits(digits) ? ReplyResult<QString>(QString::fromLatin1(digits)) : badField("ICCID");
}

ReplyResult<QString> parseOwnNumber(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CNUM:");
    if (!fields)
        return fields.error();
    QByteArray number = fields->text(1);
    const bool isDialable =
        !number.isEmpty() && number.size() <= 40 &&
        std::ranges::all_of(number, [](char c) { return (c >= '0' && c <= '9') || strchr("+*#", c); });
    if (!isDialable)
        return badField("number");
    if (fields->number(2, 0, 255) == 145 && !number.startsWith('+'))
        number.prepend('+');
    return QString::fromLatin1(number);
}

ReplyResult<int> parsePhonebookCapacity(const QByteArray &reply)
{
    const auto fields = AtFields::find(reply, "+CPBR:");
    if (!fields)
        return fields.error();
    const QByteArray range = fields->text(0);
    const qsizetype dash = range.indexOf('-');
    const qsizetype end = range.indexOf(')', dash);
    bool isNumber = false;
    const int last =
        dash >= 0 && end > dash ? range.sliced(dash + 1, end - dash - 1).trimmed().toInt(&isNumber) : 0;
    return isNumber && last >= 0 && last <= 65535 ? ReplyResult<int>(last) : badField("range");
}

} // namespace corva

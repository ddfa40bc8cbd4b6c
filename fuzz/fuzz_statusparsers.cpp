// SPDX-License-Identifier: GPL-3.0-or-later
// Every status parser: a value in its documented range or an error with a reason, and no change by a line
// that has nothing to do with it.
#include "link/simprovider.h"
#include "link/statusparsers.h"
#include "require.h"

using namespace corva;

namespace
{

bool isWithin(const std::optional<int> &number, int lowest, int highest)
{
    return !number || (*number >= lowest && *number <= highest);
}

bool isSound(const SignalQuality &quality)
{
    return isWithin(quality.dbm, -113, -51) && isWithin(quality.rssi, 0, 255);
}
bool isSound(const RadioQuality &quality)
{
    return isWithin(quality.rssi, -999, 999) && isWithin(quality.rscp, -999, 999);
}
bool isSound(const OperatorSelection &selection)
{
    return isWithin(selection.mode, 0, 4) && (selection.name.isEmpty() || selection.code.isEmpty());
}
bool isSound(const RegistrationState &state)
{
    return isWithin(int(state.stat), 0, 5) && isWithin(state.lac, 0, 0xffff) &&
           isWithin(state.cellId, 0, 0xfffffff);
}
bool isSound(const SystemInformation &information)
{
    const int service = int(information.service);
    return (service >= 0 && service <= 4) || service == 255;
}
bool isSound(const QDateTime &time)
{
    return time.isValid() && time.date().year() >= 2000 && time.date().year() < 2100;
}
bool isSound(const AttemptsLeft &left)
{
    return isWithin(left.pin, 0, 10) && isWithin(left.puk, 0, 10);
}
bool isSound(SimState state)
{
    return state != SimState::Unknown;
}
bool isSound(const QString &text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c < u' '; });
}
bool isSound(const SimProvider &provider)
{
    return isSound(provider.name);
}
bool isSound(int number)
{
    return isWithin(number, 0, 65535);
}

template <typename Parse> void check(Parse parse, const QByteArray &reply)
{
    const auto result = parse(reply);
    if (!result) {
        REQUIRE(result.error().kind >= ReplyError::Silent && result.error().kind <= ReplyError::BadField);
        return;
    }
    REQUIRE(isSound(*result));
    const auto again = parse(reply + "\r\n+XYZ: 1\r\n\r\n");
    REQUIRE(again && *again == *result);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray reply(reinterpret_cast<const char *>(data), qsizetype(size));
    check(&parseSignalQuality, reply);
    check(&parseRadioQuality, reply);
    check(&parseOperator, reply);
    check([](const QByteArray &text) { return parseRegistration(text, "+CREG:"); }, reply);
    check(&parseSysInfo, reply);
    check(&parseJpas, reply);
    check([](const QByteArray &text) { return parseNetworkTime(text, "+JTIME:"); }, reply);
    check(&parseFunctionality, reply);
    check([](const QByteArray &text) { return parseAntenna(text); }, reply);
    check(&parseAttempts, reply);
    check(&parseSimState, reply);
    check([](const QByteArray &text) { return parseIdentity(text, "+CGMM:"); }, reply);
    check(&parseImsi, reply);
    check(&parseIccid, reply);
    check(&parseProvider, reply);
    check(&parseOwnNumber, reply);
    check(&parsePhonebookCapacity, reply);
    decodeCardText(reply);
    return 0;
}

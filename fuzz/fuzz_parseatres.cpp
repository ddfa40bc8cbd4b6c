// SPDX-License-Identifier: GPL-3.0-or-later
// The classifier. The first byte picks the command; its code must not depend on the echo.
#include "link/parseatres.h"
#include "require.h"

#include <iterator>

static const char *const commands[] = {
    "AT",
    "ATD*99#",
    "AT+CPIN?",
    "AT^CPIN?",
    "AT+CPIN=\"1234\"",
    "AT+CLCK=\"SC\",2",
    "AT+CLCK=\"SC\",1,\"1234\"",
    "AT+CLCK=\"SC\",0,\"1234\"",
    "AT+CPWD=\"SC\",\"1234\",\"4711\"",
    "AT+CMGS=20",
    "AT+CMGW=20",
    "AT+CGMR",
    "AT+CPBS=\"SM\"",
    "AT+CPMS=\"SM\"",
    "AT+CPMS?",
    "AT+CSQ",
    "AT^HDRCSQ",
    "AT+CFUN=1",
    "AT+CFUN?",
    "AT+CCWA=1,1",
    "AT+CGDCONT=1,\"IP\"",
    "AT+JOPRT?",
    "AT+JOPRT=5",
    "AT+JSEC?",
    "AT+JUSIM=?",
    "AT+CRSM=176,1,0,0,1",
    "AT+JTAG=1",
    "AT+CMGF=0",
};

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    const QByteArray command = commands[data[0] % std::size(commands)];
    const QByteArray reply =
        "\r\n" + QByteArray(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    const int code = corva::classifyReply(reply, command + "\r\n");
    REQUIRE(code >= 0 && code < 256);
    REQUIRE(corva::classifyReply(command + '\r' + reply, command + "\r\n") == code);

    QByteArray text = reply;
    REQUIRE(Parse_At_Res(text.data()) < 256);
    REQUIRE(text == reply);
    return 0;
}

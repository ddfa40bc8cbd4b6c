// SPDX-License-Identifier: GPL-3.0-or-later
// Masking for the log: a secret never gets through, wherever it stands, and nothing else changes its place.
#include "link/secretmask.h"
#include "require.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    const QByteArray masked = corva::maskSecrets(text);
    REQUIRE(masked.size() == text.size());
    for (qsizetype i = 0; i < text.size(); ++i)
        REQUIRE(masked[i] == text[i] || masked[i] == '*');
    REQUIRE(corva::maskSecrets(masked) == masked);

    for (const char *command :
         {"AT+CPIN=\"", "AT^CPIN=\"1\",\"", "at+clck=\"SC\",1,\"", "AT+CPWD=\"SC\",\""}) {
        const QByteArray secret = "4711";
        const QByteArray whole = corva::maskSecrets(text + command + secret + "\"\r\n" + text);
        REQUIRE(whole.mid(text.size() + qsizetype(qstrlen(command)), secret.size()) == "****");
    }
    return 0;
}

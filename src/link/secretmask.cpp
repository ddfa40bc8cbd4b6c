// SPDX-License-Identifier: GPL-3.0-or-later
#include "secretmask.h"

#include <array>

namespace corva
{

namespace
{

/// Commands that carry a secret, and how many arguments stand before the first one.
struct SecretCommand {
    const char *command;
    int plainArguments;
};

constexpr auto secretCommands = std::to_array<SecretCommand>({
    {"+CPIN=", 0}, // PIN, or PUK and new PIN
    {"^CPIN=", 0},
    {"+CPIN2=", 0},
    {"+CLCK=", 2},     // facility, mode, then the password
    {"+CPWD=", 1},     // facility, then the old and the new password
    {"+APWIFIW=", 2},  // mode, cipher, then the key
    {"+APWIFISH=", 2}, // mode, key index, then the keys
});

void maskArguments(QByteArray &text, qsizetype from, int plainArguments)
{
    int argument = 0;
    bool quoted = false;
    for (qsizetype i = from; i < text.size() && text[i] != '\r' && text[i] != '\n'; ++i) {
        const char c = text[i];
        if (c == '"')
            quoted = !quoted;
        else if (c == ',' && !quoted)
            ++argument;
        else if (argument >= plainArguments)
            text[i] = '*';
    }
}

} // namespace

QByteArray maskSecrets(const QByteArray &text)
{
    QByteArray masked = text;
    const QByteArray upper = text.toUpper();
    for (const auto &[command, plainArguments] : secretCommands) {
        const qsizetype length = qsizetype(qstrlen(command));
        for (qsizetype at = upper.indexOf(command); at >= 0; at = upper.indexOf(command, at + length))
            maskArguments(masked, at + length, plainArguments);
    }
    return masked;
}

} // namespace corva

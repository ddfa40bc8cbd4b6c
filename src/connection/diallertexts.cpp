// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/diallertexts.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

using F = ProfileField;

QByteArray withLineEnds(const QStringList &lines)
{
    return (lines.join("\r\n"_L1) + "\r\n"_L1).toUtf8();
}

/// wvdial does not dial without a user name and a password.
QString orNull(const QString &text)
{
    return text.isEmpty() ? u"null"_s : text;
}

/// A way in which pppd can prove who we are, and the profile's choice that allows it.
struct Method {
    QLatin1StringView refusal;
    F choice;
    bool hasChoice;
};

constexpr Method methods[] = {
    {"refuse-pap"_L1, F::Pap, true},      {"refuse-chap"_L1, F::Chap, true},
    {"refuse-mschap"_L1, F::Chap, false}, {"refuse-mschap-v2"_L1, F::Chap, false},
    {"refuse-eap"_L1, F::Chap, false},
};

/// The chosen method alone is left to pppd; all are where nothing was chosen.
QStringList authenticationLines(const ConnectionProfile &profile)
{
    const bool isChosen = profile.isOn(F::Pap) || profile.isOn(F::Chap) || profile.isOn(F::NoAuthentication);
    QStringList lines;
    for (const Method &method : methods) {
        const bool isAllowed = !isChosen || (method.hasChoice && profile.isOn(method.choice));
        lines += isAllowed ? u'#' + method.refusal : QString(method.refusal);
    }
    // One word in pppd's quotes. An option without its value would swallow the next line.
    const QString &user = profile.text(F::UserName);
    const bool hasName = !user.isEmpty() && !profile.isOn(F::NoAuthentication);
    const bool isWord = std::all_of(user.begin(), user.end(), [](QChar c) {
        return c.unicode() < 128 && (c.isLetterOrNumber() || u"._@-"_s.contains(c));
    });
    lines += !hasName ? u"#name"_s : isWord ? "name "_L1 + user : "name \""_L1 + user + u'"';
    // Plain, it would put the password into the system's log.
    lines += u"#show-password"_s;
    return lines;
}

} // namespace

QByteArray wvdialConfText(const ConnectionProfile &profile, const QString &modemPort)
{
    return withLineEnds({u"[Dialer Defaults]"_s, "Phone = "_L1 + profile.text(F::Phone),
                         "Username = "_L1 + orNull(profile.text(F::UserName)),
                         "Password = "_L1 + orNull(profile.text(F::Password)), u"Stupid Mode = 1"_s,
                         u"Dial Command = ATDT"_s, "Modem = "_L1 + modemPort, u"Baud = 115200"_s,
                         u"ISDN = 0"_s, u"Auto Reconnect = off"_s, u"Check DNS = off"_s,
                         u"Dial Attempts = 1"_s, u"Modem Type = Analog Modem"_s});
}

QByteArray pppOptionsText(const ConnectionProfile &profile, const PppOptions &options)
{
    QStringList lines = {u"debug"_s,
                         u"noauth"_s,
                         u"noipdefault"_s,
                         u"defaultroute"_s,
                         profile.isOn(F::UsesDns) ? u"#usepeerdns"_s : u"usepeerdns"_s,
                         u"crtscts"_s,
                         u"lock"_s,
                         u"kdebug 7 "_s,
                         u"-detach "_s};
    for (std::size_t i = 0; i < pppNumberOptions.size(); ++i) {
        if (options.values[i])
            lines += pppNumberOptions[i].name + u' ' + QString::number(*options.values[i]);
    }
    return withLineEnds(lines + authenticationLines(profile));
}

QByteArray peerText(bool isSuse)
{
    QStringList lines = {u"ipcp-accept-local"_s, u"ipcp-accept-remote"_s, u"#lcp-echo-failure 0"_s,
                         u"#lcp-echo-interval 0"_s};
    if (isSuse)
        lines += u"plugin passwordfd.so"_s;
    return withLineEnds(lines);
}

QByteArray dialledUser(const ConnectionProfile &profile)
{
    return orNull(profile.text(F::UserName)).toUtf8();
}

QByteArray dialledPassword(const ConnectionProfile &profile)
{
    return orNull(profile.text(F::Password)).toUtf8();
}

QByteArray resolverText(const QByteArray &old, const QStringList &nameServers)
{
    QByteArray text;
    for (const QString &server : nameServers)
        text += "nameserver " + server.toUtf8() + '\n';
    for (const QByteArray &line : old.split('\n')) {
        const QByteArray words = line.simplified();
        if (!words.isEmpty() && !words.startsWith("nameserver "))
            text += line + '\n';
    }
    return text;
}

} // namespace corva

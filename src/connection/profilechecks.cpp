// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/profilechecks.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>
#include <QUrl>

#include <algorithm>
#include <span>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

using F = ProfileField;
using Form = bool (*)(const QString &);

QString say(const char *sentence)
{
    return QCoreApplication::translate("ProfileChecks", sentence);
}

bool isOneOf(const QString &text, QStringView allowed)
{
    const auto isAllowed = [allowed](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') ||
               allowed.contains(c);
    };
    return std::all_of(text.begin(), text.end(), isAllowed);
}

/// What a record file and the card's commands can hold at all.
bool isPlain(const QString &text)
{
    const auto isControl = [](QChar c) {
        return c.category() == QChar::Other_Control || c.category() == QChar::Separator_Line ||
               c.category() == QChar::Separator_Paragraph;
    };
    return std::none_of(text.begin(), text.end(), isControl) && text.isValidUtf16() &&
           !text.contains("-|-"_L1);
}

/// A number as it follows "ATD". A semicolon would make a voice call of it, a quote a phonebook entry.
/// Source: 3GPP TS 27.007 6.2 and 10.2.1.1 ("*99*...#").
bool isDialNumber(const QString &text)
{
    return isOneOf(text, u"*#+,.()- ") && text == text.trimmed();
}

/// As it stands between the quotes of "AT+CGDCONT". Source: 3GPP TS 23.003 9.1, and what operators use
/// beyond.
bool isApn(const QString &text)
{
    return isOneOf(text, u".-_@:/");
}

/// wvdial takes quotes, backslashes and an opening brace for its own, and drops blanks at the ends.
bool isDiallerText(const QString &text)
{
    return !text.contains(u'"') && !text.contains(u'\\') && !text.startsWith(u'{') && text == text.trimmed();
}

/// pppd takes "*" for everybody.
bool isUserName(const QString &text)
{
    return isDiallerText(text) && text != u'*';
}

/// pppd takes "@/path" for the first word of that file, which would go to the network.
bool isPassword(const QString &text)
{
    return isDiallerText(text) && !text.startsWith("@/"_L1);
}

bool isImsiPrefix(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

struct FieldRule {
    F field;
    int longest; ///< octets of UTF-8
    Form form;
    const char *sentence;
};

// What goes into the dialler's files. 255: what a PAP packet can carry (RFC 1334, 2.2.1).
constexpr FieldRule diallerRules[] = {
    {F::Phone, 80, isDialNumber,
     QT_TRANSLATE_NOOP("ProfileChecks",
                       "The dial number may hold letters, digits and * # + , . - ( ), 80 at most.")},
    {F::UserName, 255, isUserName,
     QT_TRANSLATE_NOOP(
         "ProfileChecks",
         "The user name must not hold quotes, backslashes, a brace at its beginning or blanks at "
         "its ends, not be a single asterisk, and be 255 bytes long at most.")},
    {F::Password, 255, isPassword,
     QT_TRANSLATE_NOOP(
         "ProfileChecks",
         "The password must not hold quotes, backslashes, a brace or \"@/\" at its beginning or "
         "blanks at its ends, and be 255 bytes long at most.")},
};

constexpr FieldRule otherRules[] = {
    {F::Name, 255, nullptr, QT_TRANSLATE_NOOP("ProfileChecks", "The name of the profile is too long.")},
    {F::Apn, 100, isApn,
     QT_TRANSLATE_NOOP("ProfileChecks", "The APN may hold letters, digits and . - _ @ : /, 100 at most.")},
    {F::IpMode, 16, [](const QString &text) { return isOneOf(text, u""); },
     QT_TRANSLATE_NOOP("ProfileChecks", "The address mode may hold letters and digits only.")},
    {F::Imsi, 15, isImsiPrefix,
     QT_TRANSLATE_NOOP("ProfileChecks", "The beginning of the IMSI may hold 15 digits at most.")},
    {F::DefaultOpenUrl, 2000, isWebAddress,
     QT_TRANSLATE_NOOP("ProfileChecks", "The page to open must be an address of the web.")},
};

/// Empty fields keep every rule.
QString firstBroken(const ConnectionProfile &profile, std::span<const FieldRule> rules)
{
    for (const FieldRule &rule : rules) {
        const QString &text = profile.text(rule.field);
        const bool isRight =
            text.isEmpty() || (text.toUtf8().size() <= rule.longest && (!rule.form || rule.form(text)));
        if (!isRight)
            return say(rule.sentence);
    }
    return {};
}

QString firstNotPlain(const ConnectionProfile &profile)
{
    for (int i = 0; i < profileFieldCount; ++i) {
        if (!isPlain(profile.text(F(i))))
            return say(QT_TRANSLATE_NOOP("ProfileChecks", "A value holds a line break or another control "
                                                          "character, or the text \"-|-\"."));
    }
    return {};
}

struct Requirement {
    bool (*isBroken)(const ConnectionProfile &);
    const char *sentence;
};

constexpr Requirement requirements[] = {
    {[](const ConnectionProfile &p) { return p.name().trimmed().isEmpty(); },
     QT_TRANSLATE_NOOP("ProfileChecks", "The Config Filename must be filled.")},
    {[](const ConnectionProfile &p) {
         return p.text(F::Phone).trimmed().isEmpty() && p.linkKind() != LinkKind::NetworkCard;
     },
     QT_TRANSLATE_NOOP("ProfileChecks", "The Dial Number is empty!")},
    {[](const ConnectionProfile &p) { return p.isOn(F::UsesApn) && p.text(F::Apn).trimmed().isEmpty(); },
     QT_TRANSLATE_NOOP("ProfileChecks", "The APN is empty!")},
    {[](const ConnectionProfile &p) { return p.isOn(F::UsesPdp) && !isHostAddress(p.text(F::Pdp)); },
     QT_TRANSLATE_NOOP("ProfileChecks", "Invalid PDP!Please check it!")},
    {[](const ConnectionProfile &p) { return p.isOn(F::UsesDns) && !isHostAddress(p.text(F::PreferredDns)); },
     QT_TRANSLATE_NOOP("ProfileChecks", "Invalid Preferred DNS!Please check it!")},
    {[](const ConnectionProfile &p) {
         const QString &second = p.text(F::AlternativeDns);
         return p.isOn(F::UsesDns) && !second.isEmpty() && !isHostAddress(second);
     },
     QT_TRANSLATE_NOOP("ProfileChecks", "Invalid Alternative DNS!Please check it!")},
};

/// A path that stays one word on the line "Modem = ".
bool isPortPath(const QString &path)
{
    return path.startsWith(u'/') && path.size() <= 255 && isOneOf(path, u"/._:+@,-");
}

} // namespace

bool isHostAddress(const QString &text)
{
    static const QRegularExpression quad(
        u"\\A(?:(?:0|[1-9][0-9]?|1[0-9]{2}|2[0-4][0-9]|25[0-5])(?:\\.(?!\\z)|\\z)){4}\\z"_s);
    return quad.match(text).hasMatch() && text != "0.0.0.0"_L1 && text != "255.255.255.255"_L1;
}

bool isWebAddress(const QString &text)
{
    const QUrl url = QUrl::fromUserInput(text);
    return url.isValid() && (url.scheme() == "http"_L1 || url.scheme() == "https"_L1) && !text.contains(u' ');
}

QString profileRefusal(const ConnectionProfile &profile)
{
    for (const Requirement &requirement : requirements) {
        if (requirement.isBroken(profile))
            return say(requirement.sentence);
    }
    QString refusal = firstNotPlain(profile);
    if (refusal.isEmpty())
        refusal = firstBroken(profile, diallerRules);
    if (refusal.isEmpty())
        refusal = firstBroken(profile, otherRules);
    return refusal;
}

QString dialRefusal(const ConnectionProfile &profile, const QString &modemPort)
{
    if (!isPortPath(modemPort))
        return say(
            QT_TRANSLATE_NOOP("ProfileChecks", "The card's data port has a name that cannot be used."));
    if (profile.text(F::Phone).isEmpty())
        return say(QT_TRANSLATE_NOOP("ProfileChecks", "The Dial Number is empty!"));
    const QString refusal = firstNotPlain(profile);
    return refusal.isEmpty() ? firstBroken(profile, diallerRules) : refusal;
}

} // namespace corva

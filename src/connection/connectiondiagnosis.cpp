// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/connectiondiagnosis.h"

#include <QCoreApplication>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct Facts {
    const ConnectionStatus &connection;
    const std::optional<ConnectionProfile> &profile;
};

struct Finding {
    StepStatus status = StepStatus::Ok;
    QString headline;
    QString sentence;
    MendAction action = MendAction::None;
};

QString text(const char *source)
{
    return QCoreApplication::translate("ConnectionDiagnosis", source);
}

Finding ok(const QString &headline)
{
    return {StepStatus::Ok, headline, {}, MendAction::None};
}

Finding failed(const char *headline, const QString &sentence, MendAction action)
{
    return {StepStatus::Failed, text(headline), sentence, action};
}

Finding failed(const char *headline, const char *sentence, MendAction action)
{
    return failed(headline, text(sentence), action);
}

bool isUp(const ConnectionStatus &connection)
{
    return connection.state == ConnectionState::Connected;
}

Finding checkProfile(const Facts &facts)
{
    if (isUp(facts.connection)) // by the profile as it was when the link was made
        return ok(facts.connection.profileName);
    if (!facts.profile)
        return failed(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "No profile is chosen"),
                      QT_TRANSLATE_NOOP("ConnectionDiagnosis",
                                        "A profile says how to reach the internet through your operator. "
                                        "Those of most operators are known; choose one, or add your own."),
                      MendAction::Connect);
    return ok(facts.profile->name());
}

Finding checkAccessPoint(const Facts &facts)
{
    const bool isSupplied =
        isUp(facts.connection) ? facts.connection.apn.isEmpty() : !facts.profile->isOn(ProfileField::UsesApn);
    if (isSupplied)
        return ok(text(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The network chooses it")));
    const QString apn =
        isUp(facts.connection) ? facts.connection.apn : facts.profile->text(ProfileField::Apn);
    if (apn.trimmed().isEmpty())
        return failed(
            QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The profile names no access point"),
            QT_TRANSLATE_NOOP("ConnectionDiagnosis",
                              "Your operator can tell you its name (APN). Enter it in the profile."),
            MendAction::EditProfile);
    return ok(apn);
}

struct EndRow {
    const char *headline;
    ConnectionEnd end;
    MendAction action;
};

/// What is told in two words of an end; the rest is in the sentence that the end brings along.
constexpr EndRow endRows[] = {
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "User name or password refused"), ConnectionEnd::Refused,
     MendAction::EditProfile},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The call was not taken"), ConnectionEnd::NoCarrier,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The line was busy"), ConnectionEnd::Busy, MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "No link within the time"), ConnectionEnd::TimeOut,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The dialler failed"), ConnectionEnd::DiallerFailed,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "System files cannot be changed"), ConnectionEnd::FilesFailed,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "No right to dial"), ConnectionEnd::NoRights,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The profile cannot be used"), ConnectionEnd::ProfileRefused,
     MendAction::EditProfile},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The network ended the connection"), ConnectionEnd::ByPeer,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The connection broke off"), ConnectionEnd::LinkLost,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The card was taken out"), ConnectionEnd::CardGone,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Ended because nothing was carried"), ConnectionEnd::Idle,
     MendAction::Connect},
    {QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The month's volume is used up"), ConnectionEnd::Quota,
     MendAction::Connect},
};

Finding checkDialler(const Facts &facts)
{
    const ConnectionStatus &connection = facts.connection;
    switch (connection.state) {
    case ConnectionState::Connected:
        return ok(text(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The connection is up")));
    case ConnectionState::Connecting:
        return {StepStatus::Running, text(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Connecting")),
                text(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "This takes a few seconds."))};
    case ConnectionState::Disconnecting:
        return {StepStatus::Running, text(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Disconnecting")),
                text(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "This takes a few seconds."))};
    case ConnectionState::NotConnected: break;
    }
    const auto *row = std::find_if(std::begin(endRows), std::end(endRows),
                                   [&](const EndRow &other) { return other.end == connection.end; });
    if (row != std::end(endRows))
        return failed(row->headline, connection.endSentence, row->action);
    return failed(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Not connected"),
                  QT_TRANSLATE_NOOP("ConnectionDiagnosis",
                                    "The card is in the network, and everything is there to connect."),
                  MendAction::Connect);
}

Finding checkAddress(const Facts &facts)
{
    if (facts.connection.localAddress.isEmpty())
        return failed(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The network gave no address"),
                      QT_TRANSLATE_NOOP("ConnectionDiagnosis",
                                        "Disconnect and connect again. If that does not help, the access "
                                        "point of the profile may be the wrong one."),
                      MendAction::EditProfile);
    return ok(facts.connection.localAddress);
}

Finding checkNameServers(const Facts &facts)
{
    if (facts.connection.nameServers.isEmpty())
        return failed(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "No name servers"),
                      QT_TRANSLATE_NOOP("ConnectionDiagnosis",
                                        "Without them names of web sites cannot be found. Enter some in the "
                                        "profile, then disconnect and connect again."),
                      MendAction::EditProfile);
    return ok(facts.connection.nameServers.join(u", "_s));
}

Finding checkRoute(const Facts &facts)
{
    if (!facts.connection.hasDefaultRoute)
        return failed(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Another connection carries the traffic"),
                      QT_TRANSLATE_NOOP("ConnectionDiagnosis",
                                        "This computer goes through a cable, Wi-Fi or another way first. "
                                        "Switch that off, then disconnect and connect again here."),
                      MendAction::None);
    return ok(text(QT_TRANSLATE_NOOP("ConnectionDiagnosis", "The traffic goes through the card")));
}

struct StepRow {
    DiagnosisStepId id;
    const char *title;
    Finding (*check)(const Facts &);
};

constexpr StepRow stepRows[] = {
    {DiagnosisStepId::Profile, QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Profile"), checkProfile},
    {DiagnosisStepId::AccessPoint, QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Access point"),
     checkAccessPoint},
    {DiagnosisStepId::Dialler, QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Connection"), checkDialler},
    {DiagnosisStepId::Address, QT_TRANSLATE_NOOP("ConnectionDiagnosis", "IP address"), checkAddress},
    {DiagnosisStepId::NameServers, QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Name servers"),
     checkNameServers},
    {DiagnosisStepId::Route, QT_TRANSLATE_NOOP("ConnectionDiagnosis", "Route"), checkRoute},
};

} // namespace

std::vector<DiagnosisStep> diagnose(const CardState &state, const ConnectionStatus &connection,
                                    const std::optional<ConnectionProfile> &profile)
{
    std::vector<DiagnosisStep> steps = diagnose(state);
    const Facts facts{connection, profile};
    bool inOrder = isUp(connection) || !firstProblem(steps);
    for (const StepRow &row : stepRows) {
        Finding finding;
        if (inOrder)
            finding = row.check(facts);
        else
            finding.status = StepStatus::NotReached;
        inOrder = inOrder && finding.status == StepStatus::Ok;
        steps.push_back({row.id, finding.status, text(row.title), finding.headline, finding.sentence,
                         finding.action, mendActionText(finding.action)});
    }
    return steps;
}

} // namespace corva

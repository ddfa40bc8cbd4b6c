// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/connectionprofile.h"

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

struct LinkName {
    LinkKind kind;
    QLatin1StringView text;
};
constexpr LinkName linkNames[] = {
    {LinkKind::Automatic, ""_L1},
    {LinkKind::DialUp, "PPP"_L1},
    {LinkKind::NetworkCard, "NDIS"_L1},
};

} // namespace

const std::array<QLatin1StringView, profileFieldCount> &profileLabels()
{
    static constexpr std::array<QLatin1StringView, profileFieldCount> labels = {
        "config file name = "_L1,
        "Phone = "_L1,
        "Username = "_L1,
        "Password = "_L1,
        "save user name = "_L1,
        "ask user name = "_L1,
        "obtain APN = "_L1,
        "use APN = "_L1,
        "APN = "_L1,
        "IP modal = "_L1,
        "PPP modal = "_L1,
        "PAP modal = "_L1,
        "CHAP modal = "_L1,
        "None modal = "_L1,
        "obtain DNS = "_L1,
        "use DNS = "_L1,
        "preNameserver "_L1,
        "altNameserver "_L1,
        "obtain PDP = "_L1,
        "user PDP = "_L1,
        "PDP = "_L1,
        "delete Enable = "_L1,
        "IMSI = "_L1,
        "defaultOpenURL = "_L1,
        "sectionShow = "_L1,
        "defaultUsernameEditable = "_L1,
    };
    return labels;
}

bool ConnectionProfile::isEditable() const
{
    return text(ProfileField::DeleteEnable) != "cannot&edit"_L1;
}

LinkKind ConnectionProfile::linkKind() const
{
    for (const LinkName &name : linkNames) {
        if (text(ProfileField::PppMode) == name.text)
            return name.kind;
    }
    return LinkKind::Automatic;
}

bool ConnectionProfile::asksForUser() const
{
    return isOn(ProfileField::AsksUserName) && !isOn(ProfileField::NoAuthentication) &&
           linkKind() != LinkKind::NetworkCard;
}

void ConnectionProfile::setLinkKind(LinkKind kind)
{
    for (const LinkName &name : linkNames) {
        if (name.kind == kind)
            setText(ProfileField::PppMode, name.text);
    }
}

} // namespace corva

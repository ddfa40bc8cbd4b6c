// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <QString>
#include <array>

namespace corva
{

/// The fields of a connection profile, in the order in which a record file lists them.
enum class ProfileField {
    Name,
    Phone,
    UserName,
    Password,
    SavesUserName,
    AsksUserName,
    ObtainsApn,
    UsesApn,
    Apn,
    IpMode,  ///< the PDP type of "AT+CGDCONT": "IP"
    PppMode, ///< how the link is made, see `LinkKind`
    Pap,
    Chap,
    NoAuthentication,
    ObtainsDns,
    UsesDns,
    PreferredDns,
    AlternativeDns,
    ObtainsPdp,
    UsesPdp,
    Pdp, ///< the fixed address, a dotted quad
    DeleteEnable,
    Imsi,
    DefaultOpenUrl,
    SectionShow,
    UserNameEditable
};
constexpr int profileFieldCount = 26;

/// How each field's line begins in a record file, in the order of the fields: the label with the blanks and
/// the "=" that belong to it.
const std::array<QLatin1StringView, profileFieldCount> &profileLabels();

/// How a profile's link is made. Stored in `PppMode` as "" or anything unknown, "PPP" and "NDIS".
enum class LinkKind { Automatic, DialUp, NetworkCard };

/// One connection profile: a record of "/Data/totalRecord.conf". Texts stand as the file has them, so that a
/// record that nobody edited is written back unchanged; a flag is on when its text is "1".
class ConnectionProfile
{
public:
    const QString &text(ProfileField field) const { return m_texts[std::size_t(field)]; }
    void setText(ProfileField field, const QString &text) { m_texts[std::size_t(field)] = text; }
    bool isOn(ProfileField field) const { return text(field) == u'1'; }
    void setOn(ProfileField field, bool on)
    {
        setText(field, on ? QStringLiteral("1") : QStringLiteral("0"));
    }

    const QString &name() const { return text(ProfileField::Name); }
    /// Whether the person may change and delete it: unless its text is "cannot&edit".
    bool isEditable() const;
    /// Whether the list shows it: anything but "0".
    bool isShown() const { return text(ProfileField::SectionShow) != u'0'; }
    /// With which the IMSI of its SIMs begins; empty: of any.
    QString imsiPrefix() const { return text(ProfileField::Imsi).trimmed(); }
    LinkKind linkKind() const;
    /// Whether the user name is asked for at each connection. A data call over the network card takes none.
    bool asksForUser() const;
    void setLinkKind(LinkKind kind);

    bool operator==(const ConnectionProfile &) const = default;

private:
    std::array<QString, profileFieldCount> m_texts;
};

} // namespace corva

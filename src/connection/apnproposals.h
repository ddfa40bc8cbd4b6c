// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <vector>

namespace corva
{

/// An access point that the shared database of operators names for a SIM.
struct ApnProposal {
    QString operatorName;
    QString planName; ///< "Prepaid internet"; may be empty
    QString apn;
    QString userName;
    QString password;
    bool usesChap = false; ///< the database asks for CHAP
    QString network;       ///< MCC and MNC, 5 or 6 digits
    bool operator==(const ApnProposal &) const = default;
};

inline constexpr char16_t providerDatabase[] =
    u"/usr/share/mobile-broadband-provider-info/serviceproviders.xml";

/// The internet access points of the operators that the IMSI's network code belongs to: the network's own
/// operator first, then in the order of the database; plain internet ones before others, none for multimedia
/// messages only. A three-digit MNC goes before a two-digit one. Empty for an unknown network, and for a
/// database that is missing or broken. Source: serviceproviders.2.dtd of mobile-broadband-provider-info.
std::vector<ApnProposal> apnProposals(const QString &imsi,
                                      const QString &databasePath = QString::fromUtf16(providerDatabase));

} // namespace corva

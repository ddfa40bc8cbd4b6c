// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace corva
{

/// Why the card or the network refused a message operation. 3GPP TS 27.005 3.2.5.
struct CmsError {
    int code = -1;  ///< up to 65535; -1 when the card says it in words
    QString detail; ///< the card's own words; empty when it gave a number
    bool operator==(const CmsError &) const = default;
};

/// The "+CMS ERROR: <code>" of a reply, or its "+CME ERROR: <code>"; a plain "ERROR" has neither code nor
/// words. Nothing when the reply is no refusal.
std::optional<CmsError> cmsErrorIn(const QByteArray &reply);

/// One plain sentence for the person. Codes 0..127 are causes of 3GPP TS 24.011 E.2, 128..255 those of TS
/// 23.040 9.2.3.22, 300 and above those of TS 27.005 3.2.5.
QString cmsErrorText(const CmsError &error);

/// What the status of a delivery report says, as one plain sentence. 3GPP TS 23.040 9.2.3.15.
QString deliveryStatusText(int status);

} // namespace corva

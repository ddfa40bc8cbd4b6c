// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/septets.h"
#include "sms/smparam.h"

#include <QByteArray>
#include <QString>

namespace corva
{

/// What the encoder takes from the settings.
struct SubmitSettings {
    int validPeriod = 0;     ///< 0 half a day, 1 a day, 2 a week, anything else the longest time
    bool asksReport = false; ///< where the record allows it, and does not say itself
    bool isUcs2 = false;
};

/// A SUBMIT in hex: upper-case, its UCS2 text lower-case. `record.TPA` loses a leading "+", so that a record
/// serves once. Nothing is validated: numbers have to be digits and the text has to fit. 3GPP
/// TS 23.040 9.2.2.2.
///
/// An empty service centre gives 01 81; "00" ahead of a number makes it international and stays in it.
QByteArray encodeSubmit(SM_PARAM &record, QStringView text, const SubmitSettings &settings);

/// Code units of the text that go out in UCS2: what the record counts without the header, and no more than
/// TP-UDL can.
qsizetype ucs2Units(const SM_PARAM &record);

/// `count` code units of the text as hex, four lower-case digits each; fewer where the text ends.
QByteArray hexOfUcs2(QStringView text, qsizetype count);

/// Each pair of characters swapped, an odd one at the end with "F" ahead of it: "12345" gives "2143F5".
QByteArray swappedPairs(QByteArrayView digits);

} // namespace corva

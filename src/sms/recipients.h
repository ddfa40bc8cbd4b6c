// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace corva
{

/// What a person wrote into the field of recipients.
struct Recipients {
    QStringList numbers; ///< digits, with "+" in front where it was written; each once
    QString error;       ///< a sentence about the first that is no number; empty when all are
    bool operator==(const Recipients &) const = default;
};

/// Numbers parted by commas or semicolons. Blanks, hyphens, brackets, dots and marks of writing direction
/// are left out, digits of other scripts become those of ASCII; anything else is refused, and what is too
/// long for `SmsDecoder::checkLengthofPhoneNumber`.
Recipients readRecipients(const QString &text);

/// The numbers as they stand in the field.
QString joinRecipients(const QStringList &numbers);

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/gsmalphabet.h"
#include "sms/septets.h"

#include <QString>
#include <QStringView>

namespace corva
{

/// The two tables of a 7-bit text.
struct GsmCoding {
    const GsmTable &base;      ///< the default or a locking table
    const GsmTable &extension; ///< behind an escape: the extension or a single shift table

    static GsmCoding forLanguages(int locking, int single)
    {
        return {gsmLockingTable(locking), gsmShiftTable(single)};
    }
    static GsmCoding standard() { return forLanguages(DefaultLanguage, DefaultLanguage); }

    /// Septets that the character takes: 1, 2 with its escape, 0 when neither table has it.
    int septets(QChar character) const;
    /// Appends them; false and nothing when there are none.
    bool append(QChar character, Septets &septets) const;
    /// The character behind an escape. Where the extension has none, the base table's; a space for another
    /// escape.
    QChar escaped(quint8 septet) const;
};

/// Septets, one a byte, as text. A space for what no table has and for an escape with nothing behind it.
/// 3GPP TS 23.038 6.2.1, 6.2.1.1.
QString textOfSeptets(std::span<const quint8> septets, const GsmCoding &coding);

/// The septet of the table's character, or -1.
int septetIn(const GsmTable &table, QChar character);

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace corva
{

/// Why a PDU cannot be read.
struct PduError {
    QString field;        ///< the standard's name: "TP-UDL"
    qsizetype offset = 0; ///< octets from the start of the PDU
    QString reason;       ///< translated, no full stop

    /// One plain sentence for people.
    QString text() const;
    bool operator==(const PduError &) const = default;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/pduerror.h"

#include "sms/pdufault.h"

#include <QCoreApplication>
#include <array>

namespace corva
{

namespace
{

/// In the order of `PduFault`.
constexpr std::array reasons = {
    QT_TRANSLATE_NOOP("PduError", "there is nothing"),
    QT_TRANSLATE_NOOP("PduError", "this is no hexadecimal digit"),
    QT_TRANSLATE_NOOP("PduError", "half an octet is missing"),
    QT_TRANSLATE_NOOP("PduError", "the message ends too early"),
    QT_TRANSLATE_NOOP("PduError", "the length goes past the end"),
    QT_TRANSLATE_NOOP("PduError", "this is no message of the expected kind"),
    QT_TRANSLATE_NOOP("PduError", "the header is longer than the data"),
    QT_TRANSLATE_NOOP("PduError", "an element goes past the header"),
    QT_TRANSLATE_NOOP("PduError", "there can be no such part"),
    QT_TRANSLATE_NOOP("PduError", "half a character is missing"),
};

} // namespace

PduError pduError(QLatin1StringView field, qsizetype offset, PduFault fault)
{
    return {QString(field), offset, QCoreApplication::translate("PduError", reasons.at(std::size_t(fault)))};
}

QString PduError::text() const
{
    return QCoreApplication::translate("PduError", "The message cannot be read: %1 (%2, octet %3).")
        .arg(reason, field, QString::number(offset));
}

} // namespace corva

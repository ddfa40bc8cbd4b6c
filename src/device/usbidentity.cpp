// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/usbidentity.h"

namespace corva
{

namespace
{

/// Exactly four hexadecimal digits; QString's own number reader would take signs, blanks and "0x" too.
std::optional<quint16> fourHexDigits(QStringView text)
{
    if (text.size() != 4)
        return std::nullopt;
    quint16 value = 0;
    for (const QChar c : text) {
        const char16_t lower = c.toLower().unicode();
        if (lower >= u'0' && lower <= u'9')
            value = static_cast<quint16>(value * 16 + (lower - u'0'));
        else if (lower >= u'a' && lower <= u'f')
            value = static_cast<quint16>(value * 16 + (lower - u'a' + 10));
        else
            return std::nullopt;
    }
    return value;
}

} // namespace

QString UsbId::toString() const
{
    return QStringLiteral("%1:%2").arg(vendor, 4, 16, QLatin1Char('0')).arg(product, 4, 16, QLatin1Char('0'));
}

std::optional<UsbId> UsbId::fromString(QStringView text)
{
    if (text.size() != 9 || text.at(4) != u':')
        return std::nullopt;
    const auto vendor = fourHexDigits(text.first(4));
    const auto product = fourHexDigits(text.last(4));
    if (!vendor || !product)
        return std::nullopt;
    return UsbId{*vendor, *product};
}

QString UsbIdentity::key() const
{
    if (id.isNull())
        return {};
    return serial.isEmpty() ? id.toString() + u'@' + path : id.toString() + u'/' + serial;
}

} // namespace corva

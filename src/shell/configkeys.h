// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <span>

namespace corva
{

/// What a value looks like. All are kept as text.
enum class ConfigType {
    Flag,    ///< "0" or "1"
    Number,  ///< decimal integer
    Seconds, ///< decimal integer, a time
    Pixels,  ///< decimal integer, a length
    Colour,  ///< "red,green,blue", each 0-255
    Text,    ///< any text
    File     ///< a path
};

/// One key of "Data/common-config.xml".
struct ConfigKey {
    QLatin1StringView section;
    QLatin1StringView name;
    ConfigType type;
    QLatin1StringView value;   ///< as shipped
    QLatin1StringView meaning; ///< one line of the manual
};

/// Every key of the program, sections together, in the order of the shipped file.
std::span<const ConfigKey> configKeys();

/// What the manual calls the type, e.g. "0 or 1".
QLatin1StringView typeName(ConfigType type);

/// Whether `value` has the form of `type`. An empty value is right for every type: it means "not set".
bool isValueOf(ConfigType type, const QString &value);

/// The shipped file "Data/common-config.xml".
QByteArray shippedConfigXml();

/// The manual's page of all keys, as Markdown.
QByteArray configKeysPage();

} // namespace corva

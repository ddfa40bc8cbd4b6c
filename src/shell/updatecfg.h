// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QMap>
#include <QString>

namespace corva
{

/// The keys of section "UPDATE" of `basePath` + "/UpdateCfg.ini", by which the external updater and this
/// program tell each other what they know.
enum class UpdateKey {
    FirmwareVersion, ///< "FIRMWARE_VERSION": the link, after reading the card's version
    ImeiId,          ///< "IMEI_ID": the link
    Device,          ///< "DEVICE": the link, the card's model
    DeviceReady,     ///< "DeviceReady": the link, "1" identified, "0" gone
    ClintGroup,      ///< "CLINT_GROUP" (spelled so): the link
    EnableUpdate,    ///< "ENABLE_UPDATE": the settings, automatic update
    CmName,          ///< "CM_NAME": the settings, this program's name
    LanguageType,    ///< "LANGUAGE_TYPE": the settings, this program's language
    SoftwareVersion, ///< "SOFTWARE_VERSION": the settings, this program's version
    UpdateFrequence, ///< "UPDATE_FREQUENCE" (spelled so): read by the settings, time between two checks
    Wvdial           ///< "WVDIAL": the dial-up thread, when it starts the dialler
};

/// The exchange file, from any thread: every change loads, sets and saves under one lock, so that no thread
/// loses another's key.
class UpdateCfg
{
public:
    /// The value in the file now; empty when it is absent.
    static QString value(UpdateKey key);
    /// Writes the values, each on one line (line breaks and other control characters become blanks). The file
    /// is not touched when it holds them already. One with lines that would be lost (see `CIniFile`; comments
    /// do not count) is first kept as "UpdateCfg.ini.before-yyyyMMdd-hhmmss", unless such a file lies there.
    /// False when it cannot be written.
    static bool setValues(const QMap<UpdateKey, QString> &values);
    static bool setValue(UpdateKey key, const QString &value) { return setValues({{key, value}}); }
};

} // namespace corva

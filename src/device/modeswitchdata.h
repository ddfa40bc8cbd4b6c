// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/usbidentity.h"

#include <QByteArray>
#include <QStringList>

namespace corva
{

/// The texts of a stick that a configuration may ask for. Empty where the stick has none.
struct StickTexts {
    QString manufacturer;
    QString product;
    QString serial;
    QString diskVendor; ///< as the stick's disk answers a SCSI inquiry
    QString diskModel;
    QString diskRevision;
};

/// The configuration that usb_modeswitch's data holds for a stick, as its option "-f" takes it; empty when it
/// knows none.
///
/// Each folder may hold files named "vvvv:pppp" with further ":field=text" that the stick's texts must
/// contain, and a "configPack.tar.gz" of the same; the first folder wins. Source: usb_modeswitch's README,
/// "Configuration".
QByteArray modeSwitchConfig(UsbId id, const StickTexts &texts, const QStringList &folders);

/// The stick's texts by libudev.
StickTexts stickTexts(const UsbIdentity &stick);

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/usbidentity.h"
#include "link/cardstate.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace corva
{

/// One known card: which stick it is, and what its interfaces are for (bInterfaceNumber, 0..254).
struct CardType {
    UsbId id;
    bool anyProduct = false; ///< every product of the vendor
    QString name;            ///< empty: as the stick calls itself
    std::optional<CardFamily> family;
    std::optional<int> atInterface; ///< nullopt: the ports are probed
    std::optional<int> modemInterface;
    std::optional<int> voiceInterface;
    QList<UsbId> storageIds; ///< the ids under which the stick shows itself as a disk
    bool operator==(const CardType &) const = default;
};

/// A rule for unknown cards: at least so many serial interfaces of one stick, driven by one of these kernel
/// drivers.
struct ProbeRule {
    QStringList drivers;
    int minimumPorts = 2;
    bool operator==(const ProbeRule &) const = default;
};

/// An entry that could not be used.
struct TypesWarning {
    qint64 line = 0; ///< from 1; 0 when the whole file is meant
    QString reason;
    bool operator==(const TypesWarning &) const = default;
};

/// What "Data/modem_types.xml" says about cards. A plain value.
class ModemTypes
{
public:
    /// Reads the file. What cannot be used is left out and named in `warnings`, in the log too.
    static ModemTypes load(const QString &path);
    /// The same for the text of one. Document type declarations are refused.
    static ModemTypes parse(const QByteArray &xml);

    /// The entry for a stick; an entry for the very product comes before one for the whole vendor.
    const CardType *cardFor(UsbId id) const;
    /// The entry that lists this id as a disk.
    const CardType *cardForStorage(UsbId id) const;
    /// The rule that lets the ports of an unknown stick be probed, by the driver of each port; none for
    /// ignored sticks.
    const ProbeRule *ruleFor(UsbId id, const QStringList &portDrivers) const;

    QList<CardType> cards;
    QList<ProbeRule> rules;
    QList<UsbId> ignored; ///< never probed
    QList<TypesWarning> warnings;
};

} // namespace corva

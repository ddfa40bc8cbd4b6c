// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modemtypes.h"
#include "inputfile.h"

/// Any bytes give a list of cards that can be used, or a reason why not.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto types = corva::ModemTypes::parse(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    for (const auto &card : types.cards) {
        demand(card.id.vendor != 0 && types.cardFor(card.id) != nullptr);
        demand(card.atInterface.value_or(0) >= 0 && card.atInterface.value_or(0) <= 254);
    }
    for (const auto &rule : types.rules)
        demand(!rule.drivers.isEmpty() && rule.minimumPorts >= 1);
    return 0;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modemtypes.h"

#include <QtGlobal>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// Any bytes give a list of cards that could be used, or a reason why not.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const auto types = corva::ModemTypes::parse(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    for (const auto &card : types.cards)
        if (card.id.vendor == 0 || card.atInterface.value_or(0) < 0 || card.atInterface.value_or(0) > 254 ||
            !types.cardFor(card.id))
            abort();
    for (const auto &rule : types.rules)
        if (rule.drivers.isEmpty() || rule.minimumPorts < 1)
            abort();
    return 0;
}

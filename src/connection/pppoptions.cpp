// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/pppoptions.h"

#include <QString>

namespace corva
{

PppOptions PppOptions::from(const std::function<QString(QLatin1StringView)> &valueOf)
{
    PppOptions options;
    for (std::size_t i = 0; i < pppNumberOptions.size(); ++i) {
        const PppOption &option = pppNumberOptions[i];
        bool isNumber = false;
        const int value = valueOf(option.name).toInt(&isNumber);
        if (isNumber && value >= option.least && value <= option.most)
            options.values[i] = value;
    }
    return options;
}

} // namespace corva

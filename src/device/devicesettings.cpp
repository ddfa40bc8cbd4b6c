// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/cardfinder.h"
#include "shell/commoncfg.h"

using namespace Qt::StringLiterals;

namespace corva
{

DeviceSettings DeviceSettings::fromConfiguration()
{
    const QString section = u"device"_s;
    DeviceSettings settings;
    settings.atPort = cmcfg.getValue(section, u"at_port"_s);
    settings.modemPort = cmcfg.getValue(section, u"modem_port"_s);
    settings.voicePort = cmcfg.getValue(section, u"voice_port"_s);
    return settings;
}

} // namespace corva

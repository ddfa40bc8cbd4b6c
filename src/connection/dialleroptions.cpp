// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialleroptions.h"

#include "connection/systemfiles.h"
#include "shell/commoncfg.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

QString text(QLatin1StringView key)
{
    return cmcfg.getValue(u"network_dialer_setting"_s, key).trimmed();
}

/// The number of a key within limits; `otherwise` when it is absent, no number or below `least`.
int number(QLatin1StringView key, int least, int most, int otherwise)
{
    const int value = cmcfg.getNumber(u"network_dialer_setting"_s, key);
    return text(key).isEmpty() || value < least ? otherwise : std::min(value, most);
}

bool isOn(QLatin1StringView key)
{
    return number(key, 0, 1, 0) == 1;
}

} // namespace

DiallerOptions DiallerOptions::fromConfiguration()
{
    constexpr int longest = 3600;
    constexpr int mostDials = 1000;
    const SystemFiles files;
    DiallerOptions options;
    options.dialTimeout = std::chrono::seconds(number("dial_timeout"_L1, 1, longest, 30));
    options.contextId = number("pdp_context"_L1, 1, 2, 1);
    options.ppp = PppOptions::from([](QLatin1StringView key) { return text(key); });
    const QString linkFile = text("ppp0_pid_file"_L1);
    options.linkFiles = linkFile.isEmpty() ? files.pppLinkFiles : QStringList{linkFile};
    const QString resolver = text("resolve_conf_file"_L1);
    options.resolverFile = resolver.isEmpty() ? files.resolver() : resolver;
    options.networkInterface = cmcfg.getValue(u"device"_s, u"network_interface"_s).trimmed();
    options.showsExitCode = cmcfg.getNumber(u"function"_s, u"ppp_errcode_show"_s) == 1;
    options.opensUrl = isOn("Show_open_URL"_L1);
    const auto after = std::chrono::seconds(number("autoRedial_afterSec"_L1, 1, longest, 30));
    options.redials = isOn("autoRedial_enabled"_L1);
    options.redial = {number("autoRedial_time"_L1, 1, mostDials, 5),
                      std::chrono::seconds(number("autoRedial_startSec"_L1, 0, longest, 5)), after};
    options.connectsByItself = isOn("AutoConnectFlag"_L1);
    options.automatic = {number("AutoConnectTimes"_L1, 1, mostDials, 3), 0s, after};
    if (isOn("autoDisconnect_enabled"_L1))
        options.idleLimit = std::chrono::minutes(number("autoDisconnect_min"_L1, 1, 1440, 10));
    return options;
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/dialleroptions.h"

#include "shell/commoncfg.h"

#include <QDir>
#include <algorithm>
#include <unistd.h>

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
    bool isNumber = false;
    const int value = text(key).toInt(&isNumber);
    return !isNumber || value < least ? otherwise : std::min(value, most);
}

bool isOn(QLatin1StringView key)
{
    return number(key, 0, 1, 0) == 1;
}

/// Whether the key names another place.
bool setPath(QString &path, QLatin1StringView key)
{
    const QString named = text(key);
    if (!QDir::isAbsolutePath(named) || named == path)
        return false;
    path = named;
    return true;
}

constexpr int longest = 3600; // s

} // namespace

std::chrono::seconds getDialTimeoutParam()
{
    return std::chrono::seconds(number("dial_timeout"_L1, 1, longest, 30));
}

SystemFiles systemFilesFromConfiguration()
{
    SystemFiles files;
    setPath(files.routeHelper, "get_route_info_cmd"_L1);
    // Named on purpose, it goes over the layout of the package resolvconf.
    if (setPath(files.resolvConf, "resolve_conf_file"_L1))
        files.resolvconfFile = files.resolvConf;
    return files;
}

DiallerOptions DiallerOptions::fromConfiguration()
{
    constexpr int mostDials = 1000;
    const SystemFiles files = geteuid() == 0 ? systemFilesFromConfiguration() : SystemFiles();
    DiallerOptions options;
    options.dialTimeout = getDialTimeoutParam();
    options.contextId = number("pdp_context"_L1, 1, 2, 1);
    options.ppp = PppOptions::from([](QLatin1StringView key) { return text(key); });
    options.linkFiles = files.pppLinkFiles;
    if (const QString further = text("ppp0_pid_file"_L1); !further.isEmpty())
        options.linkFiles += further;
    options.resolverFile = files.resolver();
    options.networkInterface = cmcfg.getValue(u"device"_s, u"network_interface"_s).trimmed();
    options.showsExitCode = cmcfg.getNumber(u"function"_s, u"ppp_errcode_show"_s) == 1;
    options.opensUrl = isOn("Show_open_URL"_L1);
    const auto after = std::chrono::seconds(number("autoRedial_afterSec"_L1, 1, longest, 30));
    options.redials = isOn("autoRedial_enabled"_L1);
    options.redial = {number("autoRedial_time"_L1, 0, mostDials, 5),
                      std::chrono::seconds(number("autoRedial_startSec"_L1, 0, longest, 5)), after};
    options.connectsByItself = isOn("AutoConnectFlag"_L1);
    options.automatic = {number("AutoConnectTimes"_L1, 1, mostDials, 3), 0s, after};
    if (isOn("autoDisconnect_enabled"_L1))
        options.idleLimit = std::chrono::minutes(number("autoDisconnect_min"_L1, 1, 1440, 10));
    options.roamingQuestion = text("roaming_question"_L1);
    return options;
}

} // namespace corva

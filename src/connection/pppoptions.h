// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <array>
#include <functional>
#include <optional>

namespace corva
{

/// An option of pppd that takes a number. Source: pppd(8).
struct PppOption {
    QLatin1StringView name; ///< in the file and in section "network_dialer_setting" of the configuration
    int least;
    int most;
};

/// In the order of "/etc/ppp/options".
inline constexpr std::array<PppOption, 8> pppNumberOptions = {{
    {QLatin1StringView("lcp-echo-failure"), 0, 1000},
    {QLatin1StringView("lcp-echo-interval"), 0, 3600},
    {QLatin1StringView("lcp-max-configure"), 1, 1000},
    {QLatin1StringView("lcp-max-failure"), 1, 1000},
    {QLatin1StringView("ipcp-max-failure"), 1, 1000},
    {QLatin1StringView("ipcp-max-configure"), 1, 1000},
    {QLatin1StringView("mtu"), 128, 16384},
    {QLatin1StringView("mru"), 128, 16384},
}};

/// The numbers for pppd, in the order of `pppNumberOptions`. An option without one is not written.
struct PppOptions {
    std::array<std::optional<int>, pppNumberOptions.size()> values;

    /// From texts by option name, as the configuration has them. What is no number in the option's range
    /// counts as not given, since pppd would not start with it.
    static PppOptions from(const std::function<QString(QLatin1StringView)> &valueOf);

    bool operator==(const PppOptions &) const = default;
};

} // namespace corva

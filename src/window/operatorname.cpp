// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/operatorname.h"

#include "shell/commoncfg.h"

using namespace Qt::StringLiterals;

namespace corva
{

OperatorNameRules OperatorNameRules::fromConfiguration()
{
    const auto isOn = [](const QString &key) { return cmcfg.getNumber(u"plmn_display_setting"_s, key) == 1; };
    return {.networkAlways = isOn(u"isPNNAlwaysShow"_s),
            .networkNever = isOn(u"isPNNNeverShow"_s),
            .providerAlways = isOn(u"isSPNAlwaysShow"_s),
            .providerNever = isOn(u"isSPNNeverShow"_s)};
}

QString operatorNameOf(const CardState &state, const OperatorNameRules &rules)
{
    const QString &network = state.operatorName;
    const SimProvider &provider = state.identity.provider;
    if (network.isEmpty() && state.operatorCode.isEmpty())
        return {};
    const bool isAbroad = state.registration == Registration::Roaming;
    const bool showsProvider = !provider.name.isEmpty() && !rules.providerNever &&
                               (rules.providerAlways || !isAbroad || !provider.isSilentAbroad);
    const bool showsNetwork =
        !network.isEmpty() && !rules.networkNever &&
        (rules.networkAlways || !showsProvider || isAbroad || provider.wantsNetworkAtHome);
    if (showsProvider && showsNetwork && provider.name != network)
        return u"%1 (%2)"_s.arg(provider.name, network);
    return showsProvider ? provider.name : showsNetwork ? network : state.operatorCode;
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/pageregistry.h"

#include "connection/ui/wirelesswindow.h"
#include "settings/csetting.h"
#include "sms/ui/cshortmsg.h"
#include "statistics/ui/trafficpage.h"
#include "window/cardpage.h"

#include <algorithm>
#include <tuple>

namespace corva
{

bool PageRegistry::add(PageEntry entry)
{
    const auto isSame = [&](const PageEntry &other) { return other.info.id == entry.info.id; };
    if (std::any_of(m_entries.begin(), m_entries.end(), isSame))
        return false;
    const auto key = [](const PageEntry &candidate) {
        return std::tuple(candidate.info.isAtFoot, candidate.info.order);
    };
    const auto isBehind = [&](const PageEntry &other) { return key(other) > key(entry); };
    m_entries.insert(std::find_if(m_entries.begin(), m_entries.end(), isBehind), std::move(entry));
    return true;
}

PageRegistry standardPages()
{
    PageRegistry registry;
    registry.add(connectionPageEntry());
    registry.add(messagesPageEntry());
    registry.add(cardPageEntry());
    registry.add(trafficPageEntry());
    registry.add(settingsPageEntry());
    return registry;
}

} // namespace corva

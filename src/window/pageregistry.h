// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "window/page.h"

#include <functional>
#include <vector>

namespace corva
{

class CardMonitor;
class ConnectionService;
class Connector;
class LinkMeter;
class Mender;
class MessageService;
class ProfileStore;
class ReportHub;
class TrafficService;

/// What a page may lean on. Everything outlives the page.
struct PageContext {
    CardMonitor *monitor = nullptr;
    ReportHub *reports = nullptr;
    Mender *mender = nullptr;
    ConnectionService *connection = nullptr;
    ProfileStore *profiles = nullptr;
    TrafficService *traffic = nullptr;
    Connector *connector = nullptr;
    LinkMeter *meter = nullptr;
    std::function<void()> showDiagnosis; ///< which step keeps the computer offline
    MessageService *messageService = nullptr;
};

/// A page as its subsystem contributes it. It is built when it is first shown.
struct PageEntry {
    PageInfo info;
    std::function<Page *(const PageInfo &info, const PageContext &context, QWidget *parent)> create;
};

/// The pages of the window. A page that nobody contributed is not shown.
class PageRegistry
{
public:
    /// False, and nothing changes, when a page of that id is there already.
    bool add(PageEntry entry);
    /// In the order of the navigation: those at the foot last, then by `order`, then as they were added.
    const std::vector<PageEntry> &entries() const { return m_entries; }

private:
    std::vector<PageEntry> m_entries;
};

/// The pages that this program has.
PageRegistry standardPages();

} // namespace corva

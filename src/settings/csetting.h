// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "settings/settingspage.h"
#include "window/pageregistry.h"

class QListWidget;
class QStackedWidget;

namespace corva
{

class TextLabel;

/// The settings: the groups of options of all subsystems on one page. With more than one group they are
/// listed beside.
class CSetting final : public Page
{
    Q_OBJECT

public:
    CSetting(const PageInfo &info, const std::vector<SettingsEntry> &groups, QWidget *parent);

private:
    void addGroup(const SettingsEntry &entry);

    QListWidget *m_list;
    QStackedWidget *m_stack;
    TextLabel *m_said;
};

PageEntry settingsPageEntry();

} // namespace corva

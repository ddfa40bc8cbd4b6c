// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/csetting.h"

#include "connection/ui/connectionsettings.h"
#include "settings/generalpage.h"
#include "sms/ui/messagesettings.h"
#include "statistics/ui/trafficsettingspage.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int listWidth = 160;

/// The groups of this program, in the order shown.
std::vector<SettingsEntry> standardGroups()
{
    return {generalSettingsEntry(), connectionSettingsEntry(), messageSettingsEntry(),
            trafficSettingsEntry()};
}

} // namespace

CSetting::CSetting(const PageInfo &info, const std::vector<SettingsEntry> &groups, QWidget *parent)
    : Page(info, parent), m_list(new QListWidget(this)), m_stack(new QStackedWidget(this)),
      m_said(new TextLabel(TextRole::Text, this))
{
    m_list->setObjectName(u"groups"_s);
    m_list->setAccessibleName(tr("Groups of settings"));
    m_list->setFixedWidth(listWidth);
    m_list->setVisible(groups.size() > 1);
    m_said->setObjectName(u"settingsSaid"_s);
    m_said->setWordWrap(true);
    m_said->setMuted(true);
    m_said->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(metrics::GroupGap);
    columns->addWidget(m_list);
    columns->addWidget(m_stack, 1);
    body()->addLayout(columns, 1);
    body()->addWidget(m_said);
    for (const SettingsEntry &entry : groups)
        addGroup(entry);
    connect(m_list, &QListWidget::currentRowChanged, m_stack, &QStackedWidget::setCurrentIndex);
    m_list->setCurrentRow(0);
}

void CSetting::addGroup(const SettingsEntry &entry)
{
    SettingsPage *page = entry.create(m_stack);
    page->setObjectName(entry.id);
    page->setAccessibleName(entry.title);
    page->setAutoFillBackground(false);
    connect(page, &SettingsPage::sigSaid, m_said, &QLabel::setText);
    auto *scroll = new QScrollArea(m_stack);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(page);
    scroll->viewport()->setAutoFillBackground(false);
    m_stack->addWidget(scroll);
    m_list->addItem(entry.title);
}

PageEntry settingsPageEntry()
{
    PageInfo info{u"settings"_s, CSetting::tr("Settings"), u"settings"_s, 100, true};
    return {info, [](const PageInfo &page, const PageContext &, QWidget *parent) -> Page * {
                return new CSetting(page, standardGroups(), parent);
            }};
}

} // namespace corva

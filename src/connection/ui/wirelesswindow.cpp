// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/wirelesswindow.h"

#include "connection/connectionservice.h"
#include "connection/profilestore.h"
#include "connection/simprofile.h"
#include "connection/ui/connectionfacts.h"
#include "connection/ui/connectionhead.h"
#include "connection/ui/connector.h"
#include "connection/ui/linkmeter.h"
#include "connection/ui/profilelist.h"
#include "device/cardmonitor.h"
#include "widgets/contentscroll.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int listWidth = 260;
}

WirelessWindow::WirelessWindow(const PageInfo &info, const PageContext &context, QWidget *parent)
    : Page(info, parent), m_context(context), m_head(new ConnectionHead(this)),
      m_profiles(new ProfileList(context.profiles, &context.connector->messages(), this)),
      m_facts(new ConnectionFacts(this)), m_said(new TextLabel(TextRole::Text, this))
{
    build();
    connect(m_head, &ConnectionHead::sigPressed, this, &WirelessWindow::isConnectButton_clicked);
    connect(m_head, &ConnectionHead::sigWhy, this, context.showDiagnosis);
    connect(m_profiles, &ProfileList::sigSaid, this, &WirelessWindow::say);
    connect(context.connection, &ConnectionService::sigStatusChanged, this, &WirelessWindow::takeStatus);
    connect(context.monitor, &CardMonitor::sigStateChanged, this, &WirelessWindow::takeStatus);
    connect(context.profiles, &ProfileStore::sigChanged, this, &WirelessWindow::takeStatus);
    connect(context.connector, &Connector::sigProposalsChanged, this, &WirelessWindow::takeStatus);
    connect(context.connector, &Connector::sigProfileWanted, m_profiles, &ProfileList::add);
    connect(context.connector, &Connector::sigEditWanted, m_profiles, &ProfileList::editDefault);
    connect(context.meter, &LinkMeter::sigChanged, m_facts, &ConnectionFacts::setTraffic);
    connect(new QShortcut(QKeySequence::New, this), &QShortcut::activated, m_profiles, &ProfileList::add);
    m_facts->setTraffic(context.meter->traffic());
    takeStatus();
    say(context.profiles->problem());
}

void WirelessWindow::build()
{
    m_said->setObjectName(u"profilesSaid"_s);
    m_said->setWordWrap(true);
    m_said->setMuted(true);
    m_said->hide();
    m_said->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);

    auto *content = new QWidget(this);
    m_factsScroll = scrollAreaFor(m_facts, content);
    m_factsScroll->setObjectName(u"connectionFacts"_s);
    m_factsScroll->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_columns = new QHBoxLayout;
    m_columns->setSpacing(metrics::GroupGap);
    m_columns->addWidget(m_profiles);
    m_columns->addWidget(m_factsScroll, 1);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::HalfGrid);
    layout->setSpacing(2 * metrics::Grid);
    layout->addWidget(m_head);
    layout->addLayout(m_columns, 1);
    m_scroll = scrollAreaFor(content, this);
    m_scroll->setObjectName(u"connectionScroll"_s);
    body()->addWidget(m_scroll, 1);
    body()->addWidget(m_said);
    m_head->takeFocus();
}

/// Side by side with the facts scrolling alone, where there is room; else below each other, and the page
/// scrolls.
void WirelessWindow::arrange()
{
    const int profilesWidth = qMax(listWidth, m_profiles->layout()->minimumSize().width());
    const QSize room = m_scroll->maximumViewportSize();
    const bool isStacked = room.width() < profilesWidth + m_columns->spacing() + m_facts->neededWidth() +
                                              m_scroll->verticalScrollBar()->sizeHint().width();
    m_columns->setDirection(isStacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_head->setStacked(isStacked);
    m_profiles->setMinimumWidth(isStacked ? 0 : profilesWidth);
    m_profiles->setMaximumWidth(isStacked ? QWIDGETSIZE_MAX : profilesWidth);
    const int below = room.height() - m_head->heightForWidth(room.width()) - 2 * metrics::Grid;
    const bool isTight = isStacked || below < m_profiles->layout()->minimumSize().height();
    m_factsScroll->setMinimumHeight(isTight ? m_facts->sizeHint().height() : 0);
}

void WirelessWindow::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    arrange();
}

void WirelessWindow::isConnectButton_clicked()
{
    m_context.connector->toggle();
}

void WirelessWindow::refresh()
{
    m_context.profiles->reload();
    say(m_context.profiles->problem());
}

void WirelessWindow::say(const QString &sentence)
{
    m_said->setText(sentence);
    m_said->setVisible(!sentence.isEmpty());
}

void WirelessWindow::takeStatus()
{
    const ConnectionStatus &status = m_context.connection->status();
    m_head->setStatus(status, hint());
    m_facts->setStatus(status);
    arrange();
}

QString WirelessWindow::hint() const
{
    if (m_context.monitor->state().presence != CardPresence::Ready)
        return tr("Plug the card in to connect.");
    const QString &imsi = m_context.monitor->state().identity.imsi;
    if (const auto chosen = profileForSim(*m_context.profiles, imsi))
        return tr("Connect goes by the profile \"%1\".").arg(chosen->name());
    const auto &proposals = m_context.connector->proposals();
    if (proposals.size() == 1)
        return tr("The settings of %1 are known: just connect.").arg(proposals.front().operatorName);
    if (!proposals.empty())
        return tr("The settings for this SIM card are known: connect, and say whose it is.");
    return tr("Add a profile with the access point that your operator has told you.");
}

PageEntry connectionPageEntry()
{
    PageInfo info{u"connection"_s, WirelessWindow::tr("Internet"), u"globe"_s, 5, false};
    return {info, [](const PageInfo &page, const PageContext &context, QWidget *parent) -> Page * {
                return new WirelessWindow(page, context, parent);
            }};
}

} // namespace corva

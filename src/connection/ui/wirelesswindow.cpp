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
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QScrollArea>
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
    m_profiles->setFixedWidth(listWidth);

    auto *scroll = new QScrollArea(this);
    scroll->setObjectName(u"connectionFacts"_s);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setWidget(m_facts);
    m_facts->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);

    auto *columns = new QHBoxLayout;
    columns->setSpacing(metrics::GroupGap);
    columns->addWidget(m_profiles);
    columns->addWidget(scroll, 1);
    auto *content = new QVBoxLayout;
    content->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, metrics::HalfGrid);
    content->setSpacing(2 * metrics::Grid);
    content->addWidget(m_head);
    content->addLayout(columns, 1);
    content->addWidget(m_said);
    body()->addLayout(content, 1);
    m_head->takeFocus();
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

// SPDX-License-Identifier: GPL-3.0-or-later
// The link's side of the window: called on the thread that reads the port, and stepping over to the GUI
// thread.
#include "device/cardmonitor.h"
#include "shell/commoncfg.h"
#include "sms/messageservice.h"
#include "window/services.h"
#include "window/wtmainwindow.h"

using namespace Qt::StringLiterals;
using corva::LinkReport;

bool WTMainWindow::isReadyForReports() const
{
    return m_isReady;
}

bool WTMainWindow::wantsDeliveryReports() const
{
    return cmcfg.getNumber(u"sms"_s, u"deliveryReport"_s) == 1 || m_services->messages()->awaitsReports();
}

bool WTMainWindow::wantsStkSmsState() const
{
    return cmcfg.getNumber(u"function"_s, u"stk_smsstate_enabled"_s) == 1;
}

void WTMainWindow::findPortNames()
{
    m_monitor->findPorts(false);
}

void WTMainWindow::findPortNamesNew()
{
    m_monitor->findPorts(true);
}

void WTMainWindow::stkReportBuildMainMenu(const QString &text)
{
    m_reports->post(LinkReport::StkMainMenu, text);
}

void WTMainWindow::stkRebuildMainMenu()
{
    m_reports->post(LinkReport::StkSessionEnded);
}

void WTMainWindow::stkEnterSubMenu(const QString &text)
{
    m_reports->post(LinkReport::StkSubMenu, text);
}

void WTMainWindow::stkQueryInputText(const QString &text)
{
    m_reports->post(LinkReport::StkInputWanted, text);
}

void WTMainWindow::stkShowText(const QString &text)
{
    m_reports->post(LinkReport::StkText, text);
}

void WTMainWindow::stkReportSmsState(const QString &text)
{
    m_reports->post(LinkReport::StkSmsState, text);
}

void WTMainWindow::smsStatusReported(const QString &text)
{
    m_reports->post(LinkReport::DeliveryReport, text);
}

void WTMainWindow::class0SmsReceived(const QString &text)
{
    m_reports->post(LinkReport::ImmediateMessage, text);
}

void WTMainWindow::cellBroadcastReceived(const QString &text)
{
    m_reports->post(LinkReport::CellBroadcast, text);
}

void WTMainWindow::ussdReportService(const QString &text)
{
    m_reports->post(LinkReport::Ussd, text);
}

void WTMainWindow::peerStartRing()
{
    m_reports->post(LinkReport::PeerRings);
}

void WTMainWindow::peerStartRingLocal()
{
    m_reports->post(LinkReport::PeerRingsLocally);
}

void WTMainWindow::peerPickupPhone()
{
    m_reports->post(LinkReport::PeerAnswered);
}

void WTMainWindow::getSmsAndVoice(const QString &text)
{
    m_reports->post(LinkReport::RingOrMessage, text);
}

void WTMainWindow::cancelRing()
{
    m_reports->post(LinkReport::RingStopped);
}

void WTMainWindow::callFailed()
{
    m_reports->post(LinkReport::CallFailed);
}

void WTMainWindow::callIsWaiting(const QString &text)
{
    m_reports->post(LinkReport::CallWaiting, text);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// Who owns a modem link: the receiver of the card's unsolicited reports and of the link's request to look
/// for the card. The main window implements it; so do tests.
///
/// Every method is called synchronously on the thread that reads the port (the card worker, or the link's own
/// thread for the searches), with the reply still being collected as far as other writers see it. A receiver
/// that needs the card queues its work; one that needs a window steps over to the GUI thread itself.
class LinkOwner
{
public:
    virtual ~LinkOwner() = default;

    /// Whether drained text may be dispatched: false until the owner can handle reports.
    virtual bool isReadyForReports() const = 0;
    /// Whether the message settings ask for delivery reports ("+CDSI:").
    virtual bool wantsDeliveryReports() const = 0;
    /// Whether the customisation asks for SIM Toolkit message states ("+JSMSR").
    virtual bool wantsStkSmsState() const = 0;

    /// Looks for the card among the serial devices and opens and confirms the AT port. Blocks.
    virtual void findPortNames() = 0;
    /// The same by the fixed names "/dev/at" and "/dev/modem". Blocks.
    virtual void findPortNamesNew() = 0;

    virtual void stkReportBuildMainMenu(const QString &text) = 0;
    virtual void stkRebuildMainMenu() = 0;
    virtual void stkEnterSubMenu(const QString &text) = 0;
    virtual void stkQueryInputText(const QString &text) = 0;
    virtual void stkShowText(const QString &text) = 0;
    virtual void stkReportSmsState(const QString &text) = 0;

    /// Messages that are not announced by "+CMTI:" or "+CMT:": a delivery report, a class 0 message, a cell
    /// broadcast.
    virtual void smsStatusReported(const QString &text) = 0;
    virtual void class0SmsReceived(const QString &text) = 0;
    virtual void cellBroadcastReceived(const QString &text) = 0;

    virtual void ussdReportService(const QString &text) = 0;

    virtual void peerStartRing() = 0;
    virtual void peerStartRingLocal() = 0;
    virtual void peerPickupPhone() = 0;
    /// An incoming ring or a new message (the text holds the report), or the end of a call (empty text).
    virtual void getSmsAndVoice(const QString &text) = 0;
    virtual void cancelRing() = 0;
    virtual void callFailed() = 0;
    virtual void callIsWaiting(const QString &text) = 0;
};

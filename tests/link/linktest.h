// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "../files.h"
#include "link/linkowner.h"

#include <QByteArray>
#include <QStringList>
#include <functional>
#include <future>
#include <mutex>

/// The card's side of a pseudo-terminal.
class Pty
{
public:
    Pty();
    ~Pty() { unplug(); }
    Q_DISABLE_COPY_MOVE(Pty)

    QString name() const { return m_name; }
    void write(QByteArrayView bytes);
    /// What the program wrote, up to and with `end`; what there was when it fell silent for 10 s.
    QByteArray readUntil(QByteArrayView end);
    void unplug();

private:
    int m_fd;
    QString m_name;
};

/// Notes which of its methods were called, in order.
class FakeOwner : public LinkOwner
{
public:
    bool ready = true;
    bool deliveryReports = true;
    bool stkSmsState = true;
    std::function<void()> onCall; ///< called by every receiver, on its thread
    std::function<void()> onFind; ///< does the search

    /// "method" or "method(text)".
    QStringList calls();
    /// The same, and forgets them.
    QStringList takeCalls();

    bool isReadyForReports() const override { return ready; }
    bool wantsDeliveryReports() const override { return deliveryReports; }
    bool wantsStkSmsState() const override { return stkSmsState; }
    void findPortNames() override
    {
        note("findPortNames");
        if (onFind)
            onFind();
    }
    void findPortNamesNew() override { note("findPortNamesNew"); }
    void stkReportBuildMainMenu(const QString &text) override { note("stkReportBuildMainMenu", text); }
    void stkRebuildMainMenu() override { note("stkRebuildMainMenu"); }
    void stkEnterSubMenu(const QString &text) override { note("stkEnterSubMenu", text); }
    void stkQueryInputText(const QString &text) override { note("stkQueryInputText", text); }
    void stkShowText(const QString &text) override { note("stkShowText", text); }
    void stkReportSmsState(const QString &text) override { note("stkReportSmsState", text); }
    void smsStatusReported(const QString &text) override { note("smsStatusReported", text); }
    void class0SmsReceived(const QString &text) override { note("class0SmsReceived", text); }
    void cellBroadcastReceived(const QString &text) override { note("cellBroadcastReceived", text); }
    void ussdReportService(const QString &text) override { note("ussdReportService", text); }
    void peerStartRing() override { note("peerStartRing"); }
    void peerStartRingLocal() override { note("peerStartRingLocal"); }
    void peerPickupPhone() override { note("peerPickupPhone"); }
    void getSmsAndVoice(const QString &text) override { note("getSmsAndVoice", text); }
    void cancelRing() override { note("cancelRing"); }
    void callFailed() override { note("callFailed"); }
    void callIsWaiting(const QString &text) override { note("callIsWaiting", text); }

private:
    void note(const char *method, const QString &text = {});

    std::mutex m_mutex;
    QStringList m_calls;
};

/// Collects the debug output while it lives. Lines come without their time; one that does not begin with a
/// time is kept with "?" before it.
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)
    QStringList lines() const;
};

/// Puts the link's globals back to what they are at the start of the program.
void resetLinkGlobals();

template <typename Work> auto inBackground(Work work)
{
    return std::async(std::launch::async, std::move(work));
}

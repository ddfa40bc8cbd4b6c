// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "link/linkowner.h"
#include "window/linkreport.h"

#include <QTimer>
#include <QWidget>
#include <atomic>

class QAction;
class QMenu;

namespace corva
{
class CardMonitor;
class Connector;
class DesktopPresence;
class KeyboardMover;
enum class MendAction;
class Mender;
class MessageDesk;
class MessageQueue;
class Navigation;
class PageHost;
class Services;
class StatusStrip;
class TopBar;
struct CardState;
} // namespace corva

/// The window: top bar, navigation, the pages, status strip, tray. A shell that owns the card's monitor and
/// the services, shows their state and passes the card's reports on; what is done with them is the pages'
/// business.
class WTMainWindow final : public QWidget, public LinkOwner
{
    Q_OBJECT

public:
    /// Builds the window and starts the link. `flags` are those of a frameless window: it draws its own top
    /// bar.
    WTMainWindow(QWidget *parent, const char *name, Qt::WindowFlags flags);
    ~WTMainWindow() override;

    /// True once the card has answered and its PIN state is settled.
    bool getModemState() const;
    /// Empty until it is known.
    QString getFirmwareVersion() const;
    /// Shows the window and closes the splash 2000 ms from now.
    void wait2secsToShow();
    /// Ends the link's threads. Safe to call twice; to be called on every way out of the program.
    void stopLink();
    void aboutShow();
    /// Has the messages on the SIM and the card read, when the card is ready for that.
    void initReadSMS();

    /// Opens a page by its id; an unknown one changes nothing.
    void showPage(const QString &pageId);
    void showOfflinePanel();

    // From any thread, see LinkOwner.
    bool isReadyForReports() const override;
    bool wantsDeliveryReports() const override;
    bool wantsStkSmsState() const override;
    void findPortNames() override;
    void findPortNamesNew() override;
    void stkReportBuildMainMenu(const QString &text) override;
    void stkRebuildMainMenu() override;
    void stkEnterSubMenu(const QString &text) override;
    void stkQueryInputText(const QString &text) override;
    void stkShowText(const QString &text) override;
    void stkReportSmsState(const QString &text) override;
    void smsStatusReported(const QString &text) override;
    void class0SmsReceived(const QString &text) override;
    void cellBroadcastReceived(const QString &text) override;
    void ussdReportService(const QString &text) override;
    void peerStartRing() override;
    void peerStartRingLocal() override;
    void peerPickupPhone() override;
    void getSmsAndVoice(const QString &text) override;
    void cancelRing() override;
    void callFailed() override;
    void callIsWaiting(const QString &text) override;

public Q_SLOTS:
    void slotDelayShow();
    /// Hangs up where there is something to end, and ends the program then. Asks nothing.
    void quit();

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void slotStateChanged(const corva::CardState &state);
    void slotConnectionChanged(const corva::ConnectionStatus &status);
    void slotReport(corva::LinkReport report, const QString &text);

private:
    void build();
    void buildMenu(QMenu *menu);
    void addShortcuts();
    void connectParts();
    void connectServices();
    void connectMessages();
    void passOn(corva::LinkReport report, const QString &text);
    void toggleConnection();
    void mendConnection(corva::MendAction action);
    void showOrHide();
    void showInFront();
    void fillScreen();
    void askForPinOnce(const corva::CardState &state);
    void finishShowing();
    void restorePlace();
    void savePlace();
    void askToQuit();
    void finishQuitting();

    corva::CardMonitor *m_monitor;
    corva::ReportHub *m_reports;
    corva::Mender *m_mender;
    corva::MessageQueue *m_messages;
    corva::Services *m_services;
    corva::Connector *m_connector;
    corva::MessageDesk *m_desk;
    corva::TopBar *m_topBar = nullptr;
    corva::Navigation *m_navigation = nullptr;
    corva::PageHost *m_pages = nullptr;
    corva::StatusStrip *m_strip = nullptr;
    corva::KeyboardMover *m_mover = nullptr;
    QAction *m_connect = nullptr;                ///< in the menu: connect, cancel or disconnect
    corva::DesktopPresence *m_desktop = nullptr; ///< from the first show on
    QTimer m_delayShow;                          ///< from the splash to the window
    QTimer m_afterShow;                          ///< to the next turn of the event loop after the first show
    std::atomic<bool> m_isReady = false;
    bool m_wasShown = false;
    bool m_wasAskedForPin = false;
    bool m_isSessionEnding = false; ///< the desktop logs out
    bool m_isQuitting = false;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/wtmainwindow.h"

#include "connection/connectionservice.h"
#include "connection/ui/connector.h"
#include "device/cardmonitor.h"
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/endsignals.h"
#include "shell/logging.h"
#include "sms/messageservice.h"
#include "sms/ui/messagedesk.h"
#include "statistics/trafficservice.h"
#include "widgets/line.h"
#include "widgets/messagequeue.h"
#include "widgets/skin.h"
#include "widgets/tooltipmover.h"
#include "window/aboutbox.h"
#include "window/desktoppresence.h"
#include "window/edgegrips.h"
#include "window/keyboardmover.h"
#include "window/mender.h"
#include "window/navigation.h"
#include "window/pagehost.h"
#include "window/services.h"
#include "window/settingsnotice.h"
#include "window/splash.h"
#include "window/statusstrip.h"
#include "window/topbar.h"
#include "window/windowplace.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QShortcut>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace corva;

namespace
{

constexpr QSize smallestSize(800, 520);
constexpr auto longestHangUp = 12s; // pppd has been seen to take seven
const QString windowSection = u"window"_s;
const QString questionKey = u"question"_s; ///< of the notification that a question waits

QString quitQuestion()
{
    return WTMainWindow::tr("Disconnect and quit?");
}

/// A report without what it says, which is the person's own: "+CUSD".
QString reportName(const QString &text)
{
    return text.section(u':', 0, 0).simplified().left(16);
}

QList<QRect> screenAreas()
{
    QList<QRect> areas;
    const QList<QScreen *> screens = QGuiApplication::screens();
    for (const QScreen *screen : screens)
        areas += screen->availableGeometry();
    return areas;
}

} // namespace

WTMainWindow::WTMainWindow(QWidget *parent, const char *name, Qt::WindowFlags flags)
    : QWidget(parent, flags | Qt::Window | Qt::FramelessWindowHint), m_monitor(new CardMonitor(this, this)),
      m_reports(new ReportHub(this)), m_mender(new Mender(m_monitor, this)),
      m_messages(new MessageQueue(this)), m_services(new Services(m_monitor, this)),
      m_connector(
          new Connector(m_monitor, m_services->connection(), m_services->profiles(), m_messages, this)),
      m_desk(new MessageDesk(m_services->messages(), m_messages, this))
{
    setObjectName(QString::fromLatin1(name));
    setWindowTitle(comcfg.softwareName);
    applySkin();
    build();
    addShortcuts();
    connectParts();
    connectServices();
    connectMessages();
    slotStateChanged(m_monitor->state());
    showPage(cmcfg.getValue(windowSection, u"page"_s));
    if (m_pages->currentPage().isEmpty())
        showPage(m_navigation->pageIds().value(0));
    m_isReady = true;
    m_services->connection()->recoverLeftovers();
    m_monitor->start();
}

WTMainWindow::~WTMainWindow()
{
    stopLink();
    delete m_services; // before the card's monitor, which it leans on
}

void WTMainWindow::build()
{
    auto *menu = new QMenu(this);
    m_mover = new KeyboardMover(this);
    m_topBar = new TopBar(menu, this);
    m_navigation = new Navigation(this);
    m_pages = new PageHost(standardPages(),
                           {m_monitor, m_reports, m_mender, m_services->connection(), m_services->profiles(),
                            m_services->traffic(), m_connector, m_services->meter(),
                            [this] { showOfflinePanel(); }, m_services->messages()},
                           this);
    m_strip = new StatusStrip(this);
    buildMenu(menu);
    for (const PageEntry &entry : m_pages->registry().entries())
        m_navigation->addPage(entry.info);

    auto *middle = new QHBoxLayout;
    middle->setSpacing(0);
    middle->addWidget(m_navigation);
    middle->addWidget(m_pages, 1);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1); // the line around the window
    layout->setSpacing(0);
    layout->addWidget(m_topBar);
    layout->addWidget(new Line(Qt::Horizontal, this));
    layout->addLayout(middle, 1);
    layout->addWidget(new Line(Qt::Horizontal, this));
    layout->addWidget(m_strip);

    new EdgeGrips(this);
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    setMinimumSize(smallestSize.boundedTo(room));
    const auto place = placeFromText(cmcfg.getValue(windowSection, u"geometry"_s));
    resize((place ? place->size() : QSize(comcfg.windowWidth, comcfg.windowHeight)).boundedTo(room));
}

void WTMainWindow::buildMenu(QMenu *menu)
{
    const auto add = [&](const QString &text, const QKeySequence &keys, auto &&action) {
        QAction *entry = menu->addAction(text);
        entry->setShortcut(keys);
        entry->setShortcutContext(Qt::WindowShortcut);
        connect(entry, &QAction::triggered, this, action);
        addAction(entry);
        return entry;
    };
    m_connect = add(tr("&Connect"), Qt::CTRL | Qt::Key_D, [this] { toggleConnection(); });
    add(tr("&Why am I offline?"), Qt::Key_F1, [this] { showOfflinePanel(); });
    add(tr("&Refresh"), Qt::Key_F5, [this] {
        m_pages->refresh();
        m_monitor->refreshNow();
    });
    menu->addSeparator();
    add(tr("&Move"), Qt::ALT | Qt::Key_F7, [this] { m_mover->startMove(); });
    add(tr("Re&size"), Qt::ALT | Qt::Key_F8, [this] { m_mover->startResize(); });
    add(tr("Mi&nimise"), Qt::CTRL | Qt::Key_M, [this] { showMinimized(); });
    add(tr("&Fill the screen"), Qt::Key_F11, [this] { fillScreen(); });
    menu->addSeparator();
    add(tr("&About %1").arg(comcfg.softwareName), {}, [this] { aboutShow(); });
    add(tr("C&lose"), Qt::ALT | Qt::Key_F4, [this] { close(); });
    add(tr("&Quit"), Qt::CTRL | Qt::Key_Q, [this] { askToQuit(); });
}

void WTMainWindow::addShortcuts()
{
    const auto add = [this](const QKeySequence &keys, auto &&action) {
        connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
    };
    add(Qt::Key_F10, [this] { m_topBar->openMenu(); });
    add(Qt::CTRL | Qt::Key_W, [this] { close(); });
    const QStringList ids = m_navigation->pageIds();
    for (int number = 1; number <= 9 && number <= ids.size(); ++number)
        add(QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_0 + number)),
            [this, id = ids.at(number - 1)] { showPage(id); });
}

void WTMainWindow::connectParts()
{
    m_delayShow.setSingleShot(true);
    m_delayShow.setTimerType(Qt::PreciseTimer);
    m_afterShow.setSingleShot(true);
    connect(&m_delayShow, &QTimer::timeout, this, &WTMainWindow::slotDelayShow);
    connect(&m_afterShow, &QTimer::timeout, this, &WTMainWindow::finishShowing);
    connect(m_topBar, &TopBar::sigMinimize, this, &QWidget::showMinimized);
    connect(m_topBar, &TopBar::sigClose, this, &QWidget::close);
    connect(m_topBar, &TopBar::sigFillScreen, this, &WTMainWindow::fillScreen);
    connect(m_navigation, &Navigation::sigChosen, this, &WTMainWindow::showPage);
    connect(m_pages, &PageHost::sigOpened, m_navigation, &Navigation::setCurrent);
    connect(m_pages, &PageHost::sigDiagnosisLeft, m_navigation, &Navigation::takeFocus);
    connect(m_strip, &StatusStrip::sigWhy, this, &WTMainWindow::showOfflinePanel);
    connect(m_mender, &Mender::sigSaid, m_strip, &StatusStrip::say);
    connect(m_mender, &Mender::sigDiagnosisWanted, this, &WTMainWindow::showOfflinePanel);
    connect(m_mover, &KeyboardMover::sigSaid, m_strip, &StatusStrip::say);
    connect(m_monitor, &CardMonitor::sigStateChanged, this, &WTMainWindow::slotStateChanged);
    connect(m_monitor, &CardMonitor::sigActivity, m_strip, &StatusStrip::setActivity);
    connect(m_reports, &ReportHub::sigReport, this, &WTMainWindow::slotReport);
}

void WTMainWindow::connectServices()
{
    connect(m_mender, &Mender::sigConnectionWanted, this, &WTMainWindow::mendConnection);
    connect(m_connector, &Connector::sigProfileWanted, this, [this] { showPage(u"connection"_s); });
    connect(m_connector, &Connector::sigQuestionWaits, this, [this](const QString &question) {
        if (m_desktop)
            m_desktop->notify(questionKey, comcfg.softwareName, question, tr("Show"));
    });
    connect(m_connector, &Connector::sigQuestionOver, this, [this] {
        if (m_desktop)
            m_desktop->withdraw(questionKey);
    });
    connect(m_services, &Services::sigVolume, this, [this](const QString &sentence) {
        m_strip->say(sentence);
        if (m_desktop)
            m_desktop->tell(sentence);
    });
    connect(m_services->traffic(), &TrafficService::sigProblem, m_strip, &StatusStrip::say);
    connect(m_services->connection(), &ConnectionService::sigStatusChanged, this,
            &WTMainWindow::slotConnectionChanged);
    connect(m_services->connection(), &ConnectionService::sigOpenUrl, this,
            [](const QUrl &page) { QDesktopServices::openUrl(page); });
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { m_isSessionEnding = true; });
    slotConnectionChanged(m_services->connection()->status());
}

void WTMainWindow::connectMessages()
{
    connect(m_services->messages(), &MessageService::sigCardReady, this, &WTMainWindow::initReadSMS);
    connect(m_desk, &MessageDesk::sigBadge, this,
            [this](const QString &badge) { m_navigation->setBadge(u"messages"_s, badge); });
    connect(m_desk, &MessageDesk::sigSaid, m_strip, &StatusStrip::say);
    connect(m_desk, &MessageDesk::sigNotify, this,
            [this](const QString &key, const QString &title, const QString &body) {
                if (m_desktop)
                    m_desktop->notify(key, title, body, tr("Show"));
            });
    connect(m_desk, &MessageDesk::sigOpen, this, [this](const QString &id) {
        m_pages->openEntry(u"messages"_s, id);
        showInFront();
    });
    connect(m_desk, &MessageDesk::sigNotificationEnded, this, [this](const QString &key) {
        if (m_desktop)
            m_desktop->withdraw(key);
    });
}

void WTMainWindow::initReadSMS()
{
    m_services->messages()->readCard();
}

/// The reports that a service files.
void WTMainWindow::passOn(LinkReport report, const QString &text)
{
    MessageService *messages = m_services->messages();
    switch (report) {
    case LinkReport::RingOrMessage: messages->takeMessages(text); break;
    case LinkReport::DeliveryReport: messages->takeDeliveryReports(text); break;
    case LinkReport::ImmediateMessage: messages->takeImmediate(text); break;
    case LinkReport::CellBroadcast: messages->takeBroadcasts(text); break;
    default: break;
    }
}

bool WTMainWindow::getModemState() const
{
    return m_monitor->state().modemReady;
}

QString WTMainWindow::getFirmwareVersion() const
{
    return m_monitor->state().identity.firmware;
}

void WTMainWindow::wait2secsToShow()
{
    m_delayShow.start(2000ms);
}

void WTMainWindow::slotDelayShow()
{
    show();
    if (splash) {
        splash->close();
        delete splash;
        splash = nullptr;
    }
}

void WTMainWindow::stopLink()
{
    m_services->connection()->shutDown(); // while the card still answers
    m_services->messages()->shutDown();
    m_monitor->stop();
    m_isReady = false;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::FutureCallOut); // of the job that ended just then
    // What was read to the end is nowhere else, and no event loop may come to bring it.
    QCoreApplication::sendPostedEvents(m_reports, QEvent::MetaCall);
}

void WTMainWindow::aboutShow()
{
    auto *box = new AboutBox(m_monitor->state(), this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void WTMainWindow::slotConnectionChanged(const ConnectionStatus &status)
{
    m_topBar->setConnection(status.state);
    if (m_desktop)
        m_desktop->tray().setConnection(status);
    const bool isUp = status.state == ConnectionState::Connected;
    m_connect->setText(isUp                      ? tr("&Disconnect")
                       : m_connector->isActive() ? tr("&Cancel connecting")
                                                 : tr("&Connect"));
    m_connect->setEnabled(status.state != ConnectionState::Disconnecting);
    if (m_connector->isActive())
        return;
    m_messages->withdraw(quitQuestion());
    if (m_isQuitting)
        finishQuitting();
}

void WTMainWindow::toggleConnection()
{
    // What has to be settled before a dial is asked for in the window.
    if (!m_connector->isActive()) {
        showPage(u"connection"_s);
        showInFront();
    }
    m_connector->toggle();
}

void WTMainWindow::mendConnection(MendAction action)
{
    showPage(u"connection"_s);
    if (action == MendAction::Connect)
        m_connector->connectNow();
    else
        m_connector->editProfile();
}

void WTMainWindow::showPage(const QString &pageId)
{
    m_pages->openPage(pageId);
}

void WTMainWindow::showOfflinePanel()
{
    m_pages->openDiagnosis();
    if (isHidden() || isMinimized())
        showInFront();
}

void WTMainWindow::slotStateChanged(const CardState &state)
{
    m_topBar->setState(state);
    m_strip->setState(state);
    if (m_desktop)
        m_desktop->tray().setState(state);
    if (m_wasShown)
        askForPinOnce(state);
}

void WTMainWindow::askForPinOnce(const CardState &state)
{
    const bool isLocked = state.presence == CardPresence::Ready &&
                          (state.sim == SimState::PinNeeded || state.sim == SimState::PukNeeded);
    if (!isLocked) {
        // Another card, or the same one plugged in again, asks anew.
        m_wasAskedForPin = m_wasAskedForPin && state.presence == CardPresence::Ready;
        return;
    }
    if (m_wasAskedForPin)
        return;
    m_wasAskedForPin = true;
    m_mender->askForPin();
}

void WTMainWindow::slotReport(LinkReport report, const QString &text)
{
    passOn(report, text);
    if (const auto notice = noticeFor(report, text))
        m_strip->say(notice->body);
    else
        qCDebug(lcWindow).noquote() << logTime() + u"the card reports"_s << reportName(text);
    if (m_desktop)
        m_desktop->report(report, text);
}

void WTMainWindow::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_desktop)
        m_desktop->tray().setWindowShown(true);
    if (m_wasShown)
        return;
    m_wasShown = true;
    restorePlace();
    m_navigation->takeFocus();
    // What the first sight of the window does not need comes after it.
    m_afterShow.start(0ms);
}

void WTMainWindow::finishShowing()
{
    m_desktop = new DesktopPresence(this);
    connect(m_desktop, &DesktopPresence::sigActivated, m_desk, &MessageDesk::open);
    connect(m_desktop, &DesktopPresence::sigActivated, this, [this](const QString &key) {
        if (key == questionKey)
            showInFront();
    });
    TrayIcon &tray = m_desktop->tray();
    tray.setState(m_monitor->state());
    tray.setConnection(m_services->connection()->status());
    connect(&tray, &TrayIcon::sigConnect, this, &WTMainWindow::toggleConnection);
    connect(&tray, &TrayIcon::sigShowOrHide, this, &WTMainWindow::showOrHide);
    connect(&tray, &TrayIcon::sigWhy, this, &WTMainWindow::showOfflinePanel);
    connect(&tray, &TrayIcon::sigQuit, this, &WTMainWindow::askToQuit);
    connect(&tray, &TrayIcon::sigAbout, this, [this] {
        showInFront();
        aboutShow();
    });
    if (const int pixelsDown = cmcfg.getNumber(u"resource_position"_s, u"tooltipLabel_y"_s))
        new ToolTipMover(pixelsDown, this);
    tellOfSettings(cmcfg, this);
    askForPinOnce(m_monitor->state());
    connect(new EndSignals(this), &EndSignals::sigEnd, this, &WTMainWindow::quit);
}

void WTMainWindow::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    if (m_desktop && !event->spontaneous())
        m_desktop->tray().setWindowShown(false);
}

void WTMainWindow::showOrHide()
{
    if (isVisible() && !isMinimized())
        hide();
    else
        showInFront();
}

void WTMainWindow::showInFront()
{
    if (isMinimized())
        showNormal();
    show();
    raise();
    activateWindow();
}

void WTMainWindow::fillScreen()
{
    if (isMaximized())
        showNormal();
    else
        showMaximized();
}

void WTMainWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_navigation->setFolded(width() < metrics::FoldBelowWidth);
}

void WTMainWindow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::StyleChange)
        update();
}

void WTMainWindow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), skinColor(SkinRole::Window));
    painter.setPen(blend(skinColor(SkinRole::Window), skinColor(SkinRole::Line), 0.7));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void WTMainWindow::restorePlace()
{
    const auto remembered = placeFromText(cmcfg.getValue(windowSection, u"geometry"_s));
    if (!remembered)
        return;
    if (const auto place = fitPlace(*remembered, screenAreas(), minimumSize()))
        setGeometry(*place);
}

void WTMainWindow::savePlace()
{
    const auto keep = [](const QString &key, const QString &value) {
        if (cmcfg.getValue(windowSection, key) != value)
            cmcfg.setValue(windowSection, key, value);
    };
    if (m_wasShown)
        keep(u"geometry"_s, placeToText(isMaximized() ? normalGeometry() : geometry()));
    keep(u"page"_s, m_pages->currentPage());
}

void WTMainWindow::closeEvent(QCloseEvent *event)
{
    if (!m_isQuitting && m_desktop && m_desktop->keepsWindow()) {
        event->ignore();
        hide();
        return;
    }
    event->setAccepted(m_isQuitting || m_isSessionEnding);
    if (m_isSessionEnding)
        quit();
    else
        askToQuit();
}

void WTMainWindow::askToQuit()
{
    if (!m_connector->isActive()) {
        quit();
        return;
    }
    showInFront();
    m_messages->ask(quitQuestion(), tr("Disconnect and &quit"), [this] { quit(); });
}

void WTMainWindow::quit()
{
    if (m_isQuitting)
        return;
    m_isQuitting = true;
    savePlace();
    hide();
    if (!m_connector->isActive()) {
        finishQuitting();
        return;
    }
    QTimer::singleShot(longestHangUp, this, &WTMainWindow::finishQuitting);
    m_connector->disconnectNow(ConnectionEnd::ByProgram);
}

void WTMainWindow::finishQuitting()
{
    stopLink();
    QCoreApplication::exit(0);
}

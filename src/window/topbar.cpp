// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/topbar.h"

#include "shell/commoncfg.h"
#include "widgets/badge.h"
#include "widgets/iconbutton.h"
#include "widgets/signalbars.h"
#include "widgets/skinicon.h"
#include "widgets/textlabel.h"
#include "window/statuschip.h"
#include "window/statustexts.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QMenu>
#include <QMouseEvent>
#include <QTime>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// The width of the bars can be set for small or large screens.
int signalWidth()
{
    const int configured = cmcfg.getNumber(u"resource_position"_s, u"topicon_width"_s);
    return configured > 0 ? qMin(configured, metrics::ControlHeight) : metrics::IconSize;
}

/// Hours and minutes as the person's locale writes them.
QString clockText(QTime time)
{
    const QLocale locale;
    QString format = locale.timeFormat(QLocale::ShortFormat);
    format.remove(u":ss"_s);
    return locale.toString(time, format);
}

} // namespace

QString connectionText(ConnectionState connection)
{
    switch (connection) {
    case ConnectionState::Connecting: return TopBar::tr("Connecting");
    case ConnectionState::Connected: return TopBar::tr("Connected");
    case ConnectionState::Disconnecting: return TopBar::tr("Disconnecting");
    case ConnectionState::NotConnected: break;
    }
    return TopBar::tr("Not connected");
}

TopBar::TopBar(QMenu *menu, QWidget *parent)
    : SkinAreaWidget(&CommonConfig::topBar, parent), m_menu(menu), m_menuButton(new QToolButton(this)),
      m_bars(new SignalBars(signalWidth(), this)), m_operator(new ElidedLabel(TextRole::Strong, this)),
      m_networkType(new Badge(this)), m_roaming(new Badge(this)),
      m_service(new ElidedLabel(TextRole::Text, this)), m_sim(new StatusChip(this)),
      m_connection(new StatusChip(this)), m_clock(new TextLabel(TextRole::Text, this)),
      m_minimize(new IconButton(u"minimize"_s, {}, this, SkinRole::TopBarText)),
      m_close(new IconButton(u"close"_s, {}, this, SkinRole::TopBarText))
{
    setObjectName(u"topBar"_s);
    m_menuButton->setObjectName(u"programMenu"_s);
    m_operator->setObjectName(u"operator"_s);
    m_networkType->setObjectName(u"networkType"_s);
    m_roaming->setObjectName(u"roaming"_s);
    m_service->setObjectName(u"service"_s);
    m_sim->setObjectName(u"sim"_s);
    m_connection->setObjectName(u"connection"_s);
    m_clock->setObjectName(u"clock"_s);
    m_minimize->setName(tr("Minimise"), u"Ctrl+M"_s);
    m_close->setName(tr("Close"), u"Alt+F4"_s);
    m_service->setMuted(true);
    build();

    connect(m_minimize, &QToolButton::clicked, this, &TopBar::sigMinimize);
    connect(m_close, &QToolButton::clicked, this, &TopBar::sigClose);
    connect(&m_minute, &QTimer::timeout, this, &TopBar::showTime);
    m_minute.setSingleShot(true);
    setConnection(ConnectionState::NotConnected);
    setState({});
    showTime();
}

void TopBar::build()
{
    m_menuButton->setText(comcfg.softwareName);
    m_menuButton->setFont(skinFont(TextRole::Strong));
    m_menuButton->setIcon(skinIcon(u"corva"_s, SkinRole::Accent));
    m_menuButton->setIconSize({metrics::IconSize, metrics::IconSize});
    m_menuButton->setAutoRaise(true);
    m_menuButton->setMinimumHeight(metrics::ControlHeight);
    connect(m_menuButton, &QToolButton::clicked, this, &TopBar::openMenu);
    m_menuButton->setFocusPolicy(Qt::TabFocus);
    m_menuButton->setAccessibleName(tr("Menu of %1").arg(comcfg.softwareName));
    m_menuButton->setToolTip(tr("%1 (%2)").arg(tr("Menu"), u"F10"_s));
    measureName();

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::Grid, 0, metrics::Grid, 0);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(m_menuButton);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_bars);
    layout->addWidget(m_operator);
    layout->addWidget(m_networkType);
    layout->addWidget(m_roaming);
    layout->addWidget(m_service);
    layout->addStretch(1);
    layout->addWidget(m_sim);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_connection);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_clock);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_minimize);
    layout->addWidget(m_close);
    setMinimumHeight(metrics::TopBarHeight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void TopBar::setState(const CardState &state)
{
    const bool hasCard = state.presence == CardPresence::Ready;
    const bool registered = isRegistered(state);
    m_bars->setLevel(hasCard ? std::optional(state.signalBars()) : std::nullopt);

    const QString name = registered ? operatorText(state) : QString();
    m_operator->setFullText(name);
    m_operator->setVisible(!name.isEmpty());

    const Naming3G naming = naming3GFromNumber(cmcfg.getNumber(u"function"_s, u"naming3GToH"_s));
    const QString type = registered ? networkTypeShort(state.networkType, naming) : QString();
    m_networkType->setBadge(type, tr("Network type %1").arg(networkTypeName(state.networkType)));
    const bool isRoaming = registered && state.roaming.value_or(state.registration == Registration::Roaming);
    m_roaming->setBadge(isRoaming ? tr("R", "roaming") : QString(), tr("Roaming"));

    // Full service is what the name of the operator says; anything else is worth words.
    const bool isPlain = !hasCard || (registered && state.service == ServiceState::Full);
    QString service = isPlain ? QString() : serviceText(state.service);
    if (hasCard && !registered && service.isEmpty())
        service = registrationText(state.registration);
    m_service->setFullText(service);
    m_service->setVisible(!service.isEmpty());
    showSim(state);
    fitName();
}

void TopBar::showSim(const CardState &state)
{
    if (state.presence != CardPresence::Ready) {
        m_sim->setChip(u"card-off"_s, tr("No card"), tr("No card"));
        return;
    }
    const bool isReady = state.sim == SimState::Ready;
    const bool isLocked = state.sim == SimState::PinNeeded || state.sim == SimState::PukNeeded;
    const QString words = simText(state.sim);
    m_sim->setChip(isReady    ? u"sim"_s
                   : isLocked ? u"lock"_s
                              : u"sim-off"_s,
                   isReady ? tr("SIM") : words,
                   tr("SIM card: %1").arg(words.isEmpty() ? tr("not known yet") : words));
}

void TopBar::setConnection(ConnectionState connection)
{
    const bool isUp = connection == ConnectionState::Connected;
    m_connection->setChip(isUp ? u"globe"_s : u"globe-off"_s, connectionText(connection),
                          tr("Data connection: %1").arg(connectionText(connection)));
    fitName();
}

void TopBar::measureName()
{
    m_menuButton->setToolButtonStyle(Qt::ToolButtonIconOnly);
    const int bare = m_menuButton->sizeHint().width();
    m_menuButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_nameWidth = m_menuButton->sizeHint().width() - bare;
}

/// The program's name makes way for what stands to be read.
void TopBar::fitName()
{
    const bool isNamed = m_menuButton->toolButtonStyle() == Qt::ToolButtonTextBesideIcon;
    const int needed = layout()->minimumSize().width() + (isNamed ? 0 : m_nameWidth);
    m_menuButton->setToolButtonStyle(needed > width() ? Qt::ToolButtonIconOnly
                                                      : Qt::ToolButtonTextBesideIcon);
}

void TopBar::resizeEvent(QResizeEvent *event)
{
    SkinAreaWidget::resizeEvent(event);
    fitName();
}

void TopBar::openMenu()
{
    const QSize size = m_menuButton->size();
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const int left = mirrored ? size.width() - m_menu->sizeHint().width() : 0;
    m_menu->popup(m_menuButton->mapToGlobal(QPoint(left, size.height())));
}

void TopBar::showTime()
{
    const QTime now = QTime::currentTime();
    m_clock->setText(clockText(now));
    m_clock->setAccessibleName(tr("Time: %1").arg(m_clock->text()));
    m_minute.start((60 - now.second()) * 1000);
}

void TopBar::mousePressEvent(QMouseEvent *event)
{
    m_pressedAt = event->position().toPoint();
    event->setAccepted(event->button() == Qt::LeftButton);
}

void TopBar::mouseMoveEvent(QMouseEvent *event)
{
    // The window manager takes the pointer over for the move: not before it is one, or a double click would
    // never come.
    const QPoint way = event->position().toPoint() - m_pressedAt;
    if (event->buttons() & Qt::LeftButton && way.manhattanLength() >= QApplication::startDragDistance())
        window()->windowHandle()->startSystemMove();
}

void TopBar::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT sigFillScreen();
}

void TopBar::changeEvent(QEvent *event)
{
    SkinAreaWidget::changeEvent(event);
    if (event->type() != QEvent::StyleChange)
        return;
    m_menuButton->setFont(skinFont(TextRole::Strong));
    measureName();
    fitName();
}

} // namespace corva

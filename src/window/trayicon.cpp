// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/trayicon.h"

#include "widgets/signalbars.h"
#include "widgets/skin.h"
#include "window/statustexts.h"
#include "window/topbar.h"

#include <QPainter>

using namespace Qt::StringLiterals;

namespace corva
{

TrayIcon::TrayIcon(QObject *parent)
    : QObject(parent), m_showOrHide(m_menu.addAction(QString())), m_connect(m_menu.addAction(QString()))
{
    connect(m_showOrHide, &QAction::triggered, this, &TrayIcon::sigShowOrHide);
    connect(m_connect, &QAction::triggered, this, &TrayIcon::sigConnect);
    connect(m_menu.addAction(tr("&Why am I offline?")), &QAction::triggered, this, &TrayIcon::sigWhy);
    connect(m_menu.addAction(tr("&About %1").arg(comcfg.softwareName)), &QAction::triggered, this,
            &TrayIcon::sigAbout);
    m_menu.addSeparator();
    connect(m_menu.addAction(tr("&Quit")), &QAction::triggered, this, &TrayIcon::sigQuit);
    connect(&m_icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            Q_EMIT sigShowOrHide();
    });
    setWindowShown(true);
    setState({});
    setConnection({});
    m_icon.setContextMenu(&m_menu);
    m_icon.show();
}

bool TrayIcon::isShown() const
{
    return QSystemTrayIcon::isSystemTrayAvailable() && m_icon.isVisible();
}

void TrayIcon::setState(const CardState &state)
{
    m_summary = summaryText(state);
    showToolTip();
    draw(state);
}

void TrayIcon::setConnection(const ConnectionStatus &connection)
{
    m_connection = connectionText(connection.state);
    const bool isUp = connection.state == ConnectionState::Connected;
    const bool isEnding = connection.state == ConnectionState::Disconnecting;
    const bool isTrying = connection.state == ConnectionState::Connecting || connection.redial > 0;
    m_connect->setText(isUp || isEnding ? tr("&Disconnect")
                       : isTrying       ? tr("&Cancel connecting")
                                        : tr("&Connect"));
    m_connect->setEnabled(!isEnding);
    showToolTip();
}

void TrayIcon::showToolTip()
{
    m_icon.setToolTip(u"%1\n%2\n%3"_s.arg(comcfg.softwareName, m_summary, m_connection));
}

void TrayIcon::setWindowShown(bool shown)
{
    m_showOrHide->setText(shown ? tr("&Hide the window") : tr("&Show the window"));
}

void TrayIcon::notify(const QString &title, const QString &body)
{
    if (isShown() && QSystemTrayIcon::supportsMessages())
        m_icon.showMessage(title, body, QSystemTrayIcon::NoIcon);
}

void TrayIcon::draw(const CardState &state)
{
    const auto level =
        state.presence == CardPresence::Ready ? std::optional(state.signalBars()) : std::nullopt;
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        // A panel may be light or dark whatever the skin is: middle tones are seen on both.
        paintSignalBars(painter, pixmap.rect(), level, QColor(0x2A, 0x9D, 0xA5), QColor(0x8A, 0x90, 0x98));
        painter.end();
        icon.addPixmap(pixmap);
    }
    m_icon.setIcon(icon);
}

} // namespace corva

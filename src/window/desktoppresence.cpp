// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/desktoppresence.h"

#include "shell/commoncfg.h"
#include "shell/commonconfig.h"

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

bool isOn(const QString &key)
{
    return cmcfg.getNumber(u"window"_s, key) == 1;
}

} // namespace

DesktopPresence::DesktopPresence(QObject *parent)
    : QObject(parent), m_tray(nullptr),
      m_notifier([this](const QString &title, const QString &body) { m_tray.notify(title, body); })
{
    connect(&m_notifier, &DesktopNotifier::sigActivated, this, &DesktopPresence::sigActivated);
}

bool DesktopPresence::keepsWindow() const
{
    return isOn(u"close_to_tray"_s) && m_tray.isShown();
}

void DesktopPresence::tell(const QString &sentence)
{
    notify(u"volume"_s, comcfg.softwareName, sentence);
}

void DesktopPresence::notify(const QString &key, const QString &title, const QString &body,
                             const QString &action)
{
    if (isOn(u"notifications_enabled"_s))
        m_notifier.notify(key, title, body, action);
}

void DesktopPresence::report(LinkReport report, const QString &text)
{
    if (const auto noticed = noticeFor(report, text))
        notify(noticed->key, noticed->title, noticed->body);
    if (const QString ended = noticeEndedBy(report, text); !ended.isEmpty())
        m_notifier.withdraw(ended);
}

} // namespace corva

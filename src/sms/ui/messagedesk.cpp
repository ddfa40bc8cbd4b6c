// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/messagedesk.h"

#include "shell/commoncfg.h"
#include "sms/messageservice.h"
#include "sms/messagestore.h"
#include "sms/ui/class0dialog.h"
#include "sms/ui/messagetexts.h"
#include "widgets/messagequeue.h"

#include <QLocale>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

const QString messageKey = u"message"_s;
const QString broadcastKey = u"broadcast"_s;
const QString sendingKey = u"sending"_s;

bool isOn(const QString &key)
{
    return cmcfg.getNumber(u"sms"_s, key) == 1;
}

int unreadOf(const MessageStore &store)
{
    int unread = 0;
    for (const MessagePlace place : {MessagePlace::Computer, MessagePlace::Sim, MessagePlace::Card})
        unread += store.unreadCount(MessageBox::Inbox, place);
    return unread;
}

} // namespace

QString unreadBadge(const MessageStore &store)
{
    const int unread = unreadOf(store);
    return unread > 0 ? QLocale().toString(unread) : QString();
}

MessageDesk::MessageDesk(MessageService *service, MessageQueue *messages, QWidget *window)
    : QObject(window), m_service(service), m_store(service->store()), m_messages(messages), m_window(window)
{
    m_counting.setSingleShot(true);
    m_counting.setInterval(0);
    connect(&m_counting, &QTimer::timeout, this, &MessageDesk::showBadge);
    for (const auto signal : {&MessageStore::sigAdded, &MessageStore::sigChanged, &MessageStore::sigRemoved})
        connect(m_store, signal, &m_counting, qOverload<>(&QTimer::start));
    connect(m_store, &MessageStore::sigLoaded, &m_counting, qOverload<>(&QTimer::start));
    connect(m_store, &MessageStore::sigError, m_messages, &MessageQueue::tell);
    connectService();
    if (m_store->isLoaded())
        m_counting.start();
}

void MessageDesk::connectService()
{
    connect(m_service, &MessageService::sigUnreadAtStart, this, &MessageDesk::tellUnread);
    connect(m_service, &MessageService::sigNewMessage, this, &MessageDesk::tellNew);
    connect(m_service, &MessageService::sigBroadcast, this, &MessageDesk::tellBroadcast);
    connect(m_service, &MessageService::sigClass0, this, &MessageDesk::displayClass0Sms);
    connect(m_service, &MessageService::sigDelivered, this, &MessageDesk::tellDelivered);
    connect(m_service, &MessageService::sigNotice, this, &MessageDesk::sigSaid);
    connect(m_service, &MessageService::sigNearlyFull, this, &MessageDesk::sigSaid);
    connect(m_service, &MessageService::sigSendSummary, this, &MessageDesk::tellSummary);
}

void MessageDesk::showBadge()
{
    const QString badge = unreadBadge(*m_store);
    if (badge == m_badge)
        return;
    m_badge = badge;
    Q_EMIT sigBadge(badge);
    if (badge.isEmpty())
        Q_EMIT sigNotificationEnded(messageKey);
}

void MessageDesk::notify(const QString &key, const QString &title, const QString &body, const QString &id)
{
    m_notified.insert(key, id);
    Q_EMIT sigNotify(key, title, body);
}

void MessageDesk::open(const QString &key)
{
    if (const auto notified = m_notified.constFind(key); notified != m_notified.constEnd())
        Q_EMIT sigOpen(*notified);
}

void MessageDesk::tellUnread(int count)
{
    const QString sentence = tr("%n messages are unread.", nullptr, count);
    Q_EMIT sigSaid(sentence);
    notify(messageKey, tr("Messages"), sentence);
}

void MessageDesk::tellNew(const QString &id)
{
    const auto message = m_store->find(id);
    if (!message)
        return;
    const QString sender =
        peopleOf(*message, [this](const QString &number) { return m_service->nameFor(number); });
    Q_EMIT sigSaid(tr("New message from %1").arg(sender));
    notify(messageKey, sender, previewOf(*message), id);
}

void MessageDesk::tellBroadcast(const QString &id)
{
    const auto message = m_store->find(id);
    if (!message)
        return;
    const QString title = tr("Broadcast on channel %1").arg(message->channel);
    Q_EMIT sigSaid(title);
    notify(broadcastKey, title, previewOf(*message), id);
}

void MessageDesk::tellDelivered(const QString &sentence)
{
    if (isOn(u"deliveryReportMsgDlgShow"_s))
        m_messages->tell(sentence);
    else
        Q_EMIT sigSaid(sentence);
}

void MessageDesk::tellSummary(int sent, int failed)
{
    const QString summary = tr("Sent successfully %1,failed %2").arg(sent).arg(failed);
    Q_EMIT sigSaid(summary);
    if (failed > 0 && !m_window->isActiveWindow())
        notify(sendingKey, tr("Messages"), summary);
}

void MessageDesk::displayClass0Sms(const QString &sender, const QString &text,
                                   [[maybe_unused]] const QString &pdu, const Message &message)
{
    if (!m_class0)
        m_class0 = new Class0Dialog(m_store, m_window);
    m_class0->add({m_service->nameFor(sender), text, message});
}

} // namespace corva

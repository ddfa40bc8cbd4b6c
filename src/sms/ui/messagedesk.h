// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>

class QWidget;

namespace corva
{

class Class0Dialog;
struct Message;
class MessageQueue;
class MessageService;
class MessageStore;

/// The number of unread messages as the navigation shows it; empty for none.
QString unreadBadge(const MessageStore &store);

/// Tells the person of what comes in and goes out, whatever page is open: immediate messages and delivery
/// reports in boxes, the rest in sentences for the strip and the desktop.
class MessageDesk final : public QObject
{
    Q_OBJECT

public:
    /// `window` becomes the parent of the dialogs.
    MessageDesk(MessageService *service, MessageQueue *messages, QWidget *window);

    /// The person chose the notification of that key. One that is not from here does nothing.
    void open(const QString &key);

Q_SIGNALS:
    /// What stands behind the page in the navigation.
    void sigBadge(const QString &badge);
    /// For the foot of the window.
    void sigSaid(const QString &sentence);
    /// For the desktop; one of the same key takes the place of the one before.
    void sigNotify(const QString &key, const QString &title, const QString &body);
    /// It was read meanwhile.
    void sigNotificationEnded(const QString &key);
    /// The page is to be shown, with this message where there is one.
    void sigOpen(const QString &id);

private:
    void connectService();
    void showBadge();
    void notify(const QString &key, const QString &title, const QString &body, const QString &id = {});
    void tellUnread(int count);
    void tellNew(const QString &id);
    void tellBroadcast(const QString &id);
    void tellDelivered(const QString &sentence);
    void tellSummary(int sent, int failed);
    void displayClass0Sms(const QString &sender, const QString &text, const QString &pdu,
                          const Message &message);

    MessageService *m_service;
    MessageStore *m_store;
    MessageQueue *m_messages;
    QWidget *m_window;
    QPointer<Class0Dialog> m_class0;
    QTimer m_counting; ///< to the end of a burst of changes
    QString m_badge;
    QHash<QString, QString> m_notified; ///< key of a notification to the message that it is about
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QAction>
#include <QObject>
#include <QTimer>

class QMenu;

namespace corva
{

class MessageQueue;
class MessageService;

/// What can be done with the chosen messages, as actions: enabled where they make sense, with their keys.
class MessageActions final : public QObject
{
    Q_OBJECT

public:
    MessageActions(MessageService *service, MessageQueue *messages, QObject *parent);

    void setChosen(const QStringList &ids);
    const QStringList &chosen() const { return m_ids; }

    QAction *reply() { return m_reply; }
    QAction *edit() { return m_edit; }
    QAction *forward() { return m_forward; }
    QAction *remove() { return m_remove; }
    QAction *retry() { return m_retry; }
    /// Those that belong to the list, for its keys.
    QList<QAction *> all() const;
    /// Fills a menu for the chosen ones.
    void fill(QMenu *menu);

Q_SIGNALS:
    void sigCompose(const QStringList &recipients, const QString &text);
    void sigEdit(const QString &draftId);
    /// What was done or went wrong, with what the person may do about it.
    void sigSaid(const QString &sentence, bool canUndo);
    void sigExport(const QStringList &ids);
    void sigPrint(const QStringList &ids);

private:
    QAction *add(const QString &text, const QKeySequence &keys, void (MessageActions::*act)());
    void addPlaces(QMenu *menu, const QString &title,
                   void (MessageService::*act)(const QStringList &, MessagePlace));
    void follow();
    std::vector<Message> messages() const;
    void replyToSender();
    void forwardText();
    void editDraft();
    void deleteChosen();
    void restoreChosen();
    void markRead();
    void markUnread();
    void retryFailed();
    void copyText();
    void exportChosen();
    void printChosen();

    MessageService *m_service;
    MessageQueue *m_messages;
    QStringList m_ids;
    QTimer m_following;
    QAction *m_reply;
    QAction *m_edit;
    QAction *m_forward;
    QAction *m_remove;
    QAction *m_restore;
    QAction *m_retry;
    QAction *m_read;
    QAction *m_unread;
    QAction *m_copy;
    QAction *m_export;
    QAction *m_print;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/ui/boxchooser.h"

#include <QWidget>

class QListView;
class QStackedWidget;

namespace corva
{

class ConversationModel;
class MessageActions;
class TextLabel;

/// The list beside the message: of a box, a place, what was found, or of persons. Keeps what is chosen while
/// the list changes.
class MessageBrowser final : public QWidget
{
    Q_OBJECT

public:
    MessageBrowser(MessageService *service, MessageActions *actions, QWidget *parent);

    void show(const MessageView &view);
    /// Shows what is found everywhere; nothing to look for brings the box back.
    void setWords(const QString &words);
    /// Says anew what depends on the day, and why the list is empty.
    void retell();

    bool isByPerson() const;
    /// Whether a sentence stands in the place of the list.
    bool isEmpty() const;
    /// Of the messages; empty when persons are shown.
    QStringList chosen() const;
    /// The person chosen, when persons are shown.
    const Conversation *conversation() const;
    void choose(const QString &id);
    void selectAll();
    void takeFocus();

Q_SIGNALS:
    /// Another message or person is chosen, or none.
    void sigChosen();
    /// The list became empty, or is not empty any more.
    void sigEmptied();
    /// Enter, or a double click.
    void sigActivated();
    /// The persons changed; the one chosen may have another message.
    void sigConversationsChanged();

private:
    void build(MessageActions *actions);
    void useModel(QAbstractItemModel *model);
    void takeSelection();
    void keepChosen();
    void showEmpty();
    QString emptyText() const;
    void openMenu(const QPoint &position);

    MessageService *m_service;
    MessageActions *m_actions;
    MessageView m_view;
    MessageListModel *m_messages;
    ConversationModel *m_persons;
    QStackedWidget *m_stack;
    QListView *m_list;
    TextLabel *m_empty;
    QString m_chosen;         ///< id or key of the current row
    bool m_isKeeping = false; ///< the list changes: what is chosen stays
    int m_leftRow = -1;       ///< where one that was chosen is about to leave
};

} // namespace corva

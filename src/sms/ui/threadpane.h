// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QWidget>

class QListView;
class QPushButton;

namespace corva
{

class ElidedLabel;
class MessageActions;
class MessageService;
class ThreadModel;

/// What was said with one person, as it went to and fro.
class ThreadPane final : public QWidget
{
    Q_OBJECT

public:
    ThreadPane(MessageService *service, MessageActions *actions, QWidget *parent);

    void show(const Conversation &conversation);
    /// Those chosen in it; all of the conversation's when none is.
    QStringList chosen() const;

Q_SIGNALS:
    void sigChosen();
    void sigWrite(const QStringList &recipients);

private:
    void build();
    void follow();
    void openMenu(const QPoint &position);
    bool isAtEnd() const;

    MessageService *m_service;
    MessageActions *m_actions;
    Conversation m_conversation;
    ElidedLabel *m_name;
    ElidedLabel *m_numbers;
    QPushButton *m_earlier;
    QPushButton *m_write;
    QListView *m_list;
    ThreadModel *m_model;
};

} // namespace corva

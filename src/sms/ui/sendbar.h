// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QProgressBar;

namespace corva
{

class MessageQueue;
class MessageService;
class TextLabel;

/// How far the sending has come, with the way to end it. Hidden while nothing is sent.
class SendBar final : public QWidget
{
    Q_OBJECT

public:
    SendBar(MessageService *service, MessageQueue *messages, QWidget *parent);

private:
    void follow();
    void askToCancel();

    MessageService *m_service;
    MessageQueue *m_messages;
    TextLabel *m_text;
    QProgressBar *m_progress;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace corva
{

class FormField;
class MessageService;

/// Which channels of cell broadcast are listened to.
class BroadcastBar final : public QWidget
{
    Q_OBJECT

public:
    BroadcastBar(MessageService *service, QWidget *parent);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void take();

    MessageService *m_service;
    FormField *m_channels;
};

} // namespace corva

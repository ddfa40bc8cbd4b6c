// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

namespace corva
{

class FormField;
class MessageService;

/// The number of the service centre, which takes the messages: as the SIM holds it, and another one for it.
class ServiceCentreDialog final : public QDialog
{
    Q_OBJECT

public:
    ServiceCentreDialog(MessageService *service, QWidget *parent);

private:
    void build();
    void take();

    MessageService *m_service;
    FormField *m_number;
};

} // namespace corva

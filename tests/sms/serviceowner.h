// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linktest.h"
#include "shell/commoncfg.h"
#include "sms/messageservice.h"

#include <atomic>

/// The window's part between link and service: reports step over to this thread.
class ServiceOwner : public FakeOwner
{
public:
    QObject context;
    std::atomic<corva::MessageService *> service = nullptr;

    bool wantsDeliveryReports() const override
    {
        const corva::MessageService *to = service;
        return cmcfg.getNumber(QStringLiteral("sms"), QStringLiteral("deliveryReport")) == 1 ||
               (to && to->awaitsReports());
    }
    void getSmsAndVoice(const QString &text) override
    {
        pass([text](corva::MessageService &to) { to.takeMessages(text); });
    }
    void smsStatusReported(const QString &text) override
    {
        pass([text](corva::MessageService &to) { to.takeDeliveryReports(text); });
    }
    void class0SmsReceived(const QString &text) override
    {
        pass([text](corva::MessageService &to) { to.takeImmediate(text); });
    }

private:
    template <typename Take> void pass(Take take)
    {
        QMetaObject::invokeMethod(&context, [this, take] {
            if (corva::MessageService *to = service)
                take(*to);
        });
    }
};

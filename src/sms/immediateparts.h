// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QObject>
#include <QTimer>
#include <chrono>
#include <vector>

namespace corva
{

/// Puts immediate messages together, which come in parts like any other and are kept nowhere.
class ImmediateParts final : public QObject
{
    Q_OBJECT

public:
    /// `patience`: how long the first that waits does so before all are handed on as they are.
    explicit ImmediateParts(std::chrono::milliseconds patience, QObject *parent = nullptr);

    void take(Message message);

Q_SIGNALS:
    /// A whole message, or what came of it.
    void sigReady(const corva::Message &message);

private:
    void giveUpWaiting();

    std::vector<Message> m_begun;
    QTimer m_patience;
};

} // namespace corva

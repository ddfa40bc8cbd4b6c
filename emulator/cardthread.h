// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "emulatedcard.h"

#include <QThread>
#include <memory>

namespace cardemu
{

/// An EmulatedCard in a thread of its own, for programs that block while they talk to it, tests above all.
/// All functions may be called from any thread and return when the card has done its part.
class CardThread
{
public:
    explicit CardThread(const Profile &profile);
    ~CardThread();
    CardThread(const CardThread &) = delete;
    CardThread &operator=(const CardThread &) = delete;

    /// See EmulatedCard::start().
    [[nodiscard]] QString start(const QString &folder);
    /// See EmulatedCard::control().
    QJsonObject control(const QJsonObject &request);
    /// The same with a line of JSON text: control(R"({"command": "roaming", "on": true})").
    QJsonObject control(const QByteArray &json);

private:
    std::unique_ptr<QThread> m_thread;
    EmulatedCard *m_card = nullptr;
};

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/immediateparts.h"

#include "sms/messagefiling.h"

#include <algorithm>
#include <utility>

namespace corva
{

namespace
{

constexpr std::size_t mostBegun = 16;

bool isSameLong(const Message &one, const Message &other)
{
    return one.recipients == other.recipients && one.concatReference == other.concatReference &&
           one.is16Bit == other.is16Bit && one.total == other.total;
}

bool hasSequence(const Message &message, int sequence)
{
    return std::ranges::find(message.parts, sequence, &MessagePart::sequence) != message.parts.end();
}

} // namespace

ImmediateParts::ImmediateParts(std::chrono::milliseconds patience, QObject *parent) : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, &ImmediateParts::giveUpWaiting);
}

void ImmediateParts::take(Message given)
{
    Message message = tidied(std::move(given));
    const auto begun =
        std::ranges::find_if(m_begun, [&](const Message &each) { return isSameLong(each, message); });
    if (begun != m_begun.end()) {
        if (hasSequence(*begun, message.parts.front().sequence))
            return; // sent again
        message = joined(*begun, message);
        m_begun.erase(begun);
    }
    if (message.missingParts() == 0) {
        Q_EMIT sigReady(message);
        return;
    }
    m_begun.push_back(std::move(message));
    if (m_begun.size() > mostBegun)
        giveUpWaiting();
    else if (!m_patience.isActive()) // whoever goes on sending first parts holds up nobody else's
        m_patience.start();
}

void ImmediateParts::giveUpWaiting()
{
    m_patience.stop();
    for (const Message &message : std::exchange(m_begun, {}))
        Q_EMIT sigReady(message);
}

} // namespace corva

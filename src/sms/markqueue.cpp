// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/markqueue.h"

#include "sms/messagestore.h"

namespace corva
{

namespace
{
constexpr qsizetype markedAtOnce = 200; ///< what takes a few milliseconds
}

MarkQueue::MarkQueue(MessageStore *store) : m_store(store)
{
    m_next.setInterval(0);
    QObject::connect(&m_next, &QTimer::timeout, &m_next, [this] { step(); });
}

MarkQueue::~MarkQueue()
{
    for (const Entry &entry : m_waiting)
        m_store->setRead(entry.ids, entry.isRead);
}

void MarkQueue::mark(const QStringList &ids, bool isRead)
{
    for (qsizetype i = 0; i < ids.size(); i += markedAtOnce)
        m_waiting.push_back({ids.mid(i, markedAtOnce), isRead});
    if (!m_next.isActive())
        step();
}

void MarkQueue::step()
{
    if (!m_waiting.empty()) {
        const Entry entry = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_store->setRead(entry.ids, entry.isRead);
    }
    if (m_waiting.empty())
        m_next.stop();
    else
        m_next.start();
}

} // namespace corva

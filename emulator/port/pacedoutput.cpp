// SPDX-License-Identifier: GPL-3.0-or-later
#include "port/pacedoutput.h"

#include <algorithm>

namespace cardemu
{

using std::chrono::milliseconds;

void PacedOutput::add(const QByteArray &bytes, milliseconds pauseBefore)
{
    if (bytes.isEmpty() && pauseBefore.count() == 0)
        return;
    m_queue.push_back({pauseBefore, bytes});
    m_pending += bytes.size();
    pump();
}

void PacedOutput::clear()
{
    m_queue.clear();
    m_timer.stop();
    m_pending = 0;
}

void PacedOutput::pump()
{
    while (!m_queue.empty() && !m_timer.isActive()) {
        Segment &front = m_queue.front();
        if (front.pause.count() > 0)
            m_timer.start(std::exchange(front.pause, milliseconds(0)), [this] { pump(); });
        else if (front.bytes.isEmpty())
            m_queue.pop_front();
        else
            sendSlice(front);
    }
}

// With a pace, what fits into 10 ms goes out at once, and the rest waits for as long as that takes on the
// line.
void PacedOutput::sendSlice(Segment &segment)
{
    const qsizetype limit = m_pace == 0 ? segment.bytes.size() : std::max(1, m_pace / 100);
    const QByteArray slice = segment.bytes.left(limit);
    segment.bytes.remove(0, slice.size());
    m_pending -= slice.size();
    if (m_pace != 0)
        m_timer.start(milliseconds(slice.size() * 1000 / m_pace), [this] { pump(); });
    m_sink(slice);
}

} // namespace cardemu

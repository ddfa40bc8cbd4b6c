// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/escapewatch.h"

#include <algorithm>

namespace cardemu
{

namespace
{

constexpr std::chrono::milliseconds guardTime{1000};

} // namespace

void EscapeWatch::feed(const QByteArray &bytes)
{
    const bool pluses = std::ranges::all_of(bytes, [](char byte) { return byte == '+'; });
    const bool goesOn = pluses && (m_pluses > 0 || !m_quiet.isActive());
    m_pluses = goesOn ? m_pluses + bytes.size() : 0;
    m_quiet.start(guardTime, [] {});
    m_after.stop();
    if (m_pluses == 3)
        m_after.start(guardTime, [this] {
            m_pluses = 0;
            m_escaped();
        });
}

void EscapeWatch::reset()
{
    m_pluses = 0;
    m_after.stop();
    m_quiet.stop();
}

} // namespace cardemu

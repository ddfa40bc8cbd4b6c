// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/lineeditor.h"

#include <utility>

namespace cardemu
{

namespace
{

bool isLetter(char byte, char upper)
{
    return byte == upper || byte == upper + ('a' - 'A');
}

} // namespace

LineEditor::Step LineEditor::feed(char byte, const PortSettings &port)
{
    // Clients end their lines in CR LF; the LF is no beginning of anything, and is not echoed.
    const bool afterLine = std::exchange(m_afterLine, false);
    if (byte == '\0' || (afterLine && byte == port.lineFeed))
        return {};
    if (m_state == State::Waiting)
        return waiting(byte);
    return m_state == State::SeenA ? seenA(byte) : inLine(byte, port);
}

void LineEditor::reset()
{
    m_state = State::Waiting;
    m_body.clear();
    m_afterLine = false;
}

LineEditor::Step LineEditor::waiting(char byte)
{
    if (isLetter(byte, 'A'))
        m_state = State::SeenA;
    return {QByteArray(1, byte), {}};
}

LineEditor::Step LineEditor::seenA(char byte)
{
    m_state = isLetter(byte, 'A') ? State::SeenA : State::Waiting;
    if (byte == '/')
        return {QByteArray(1, byte), m_last};
    if (isLetter(byte, 'T'))
        m_state = State::InLine;
    return {QByteArray(1, byte), {}};
}

LineEditor::Step LineEditor::inLine(char byte, const PortSettings &port)
{
    if (byte == port.backspace) {
        if (m_body.isEmpty())
            return {};
        m_body.chop(1);
        return {QByteArray(1, byte) + ' ' + byte, {}};
    }
    if (byte == port.lineEnd) {
        m_state = State::Waiting;
        m_afterLine = true;
        m_last = std::exchange(m_body, {});
        return {QByteArray(1, byte), m_last};
    }
    // What is too long is kept one byte over the limit, so that it is seen to be so.
    if (byte != port.lineFeed && m_body.size() <= longestLine)
        m_body += byte;
    return {QByteArray(1, byte), {}};
}

} // namespace cardemu

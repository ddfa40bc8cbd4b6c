// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/textinput.h"

namespace cardemu
{

namespace
{

constexpr char end = '\x1a';
constexpr char escape = '\x1b';

} // namespace

void TextInput::begin()
{
    m_state = State::Typing;
    m_text.clear();
}

void TextInput::reset()
{
    m_state = State::Idle;
    m_text.clear();
}

// Line ends are no part of a PDU, and the LF of the command line may still be on its way.
QByteArray TextInput::feed(char byte)
{
    if (byte == end || byte == escape) {
        m_state = byte == end ? State::Complete : State::GivenUp;
        return {};
    }
    if (byte == '\r' || byte == '\n' || m_text.size() >= longest)
        return {};
    m_text += byte;
    return {1, byte};
}

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace cardemu
{

/// Takes the text behind a "> " prompt: Ctrl-Z ends it, ESC gives it up. 3GPP TS 27.005 3.5.1 and 4.3.
class TextInput
{
public:
    enum class State { Idle, Typing, Complete, GivenUp };

    void begin();
    void reset();
    /// Takes one character in; what it is echoed as, with E1.
    QByteArray feed(char byte);
    State state() const { return m_state; }
    bool isActive() const { return m_state == State::Typing; }
    const QByteArray &text() const { return m_text; }

    /// What is typed beyond this is not kept; the text is then too long for any message.
    static constexpr qsizetype longest = 1 << 16;

private:
    State m_state = State::Idle;
    QByteArray m_text;
};

} // namespace cardemu

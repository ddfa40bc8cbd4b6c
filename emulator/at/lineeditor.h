// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "at/portsettings.h"

#include <optional>

namespace cardemu
{

/// Makes command lines of the bytes that come in. ITU-T V.250 5.2: a line begins with "AT" and ends with S3,
/// S5 takes the last character back, "A/" repeats the last line at once.
class LineEditor
{
public:
    struct Step {
        QByteArray echo;                ///< with E1
        std::optional<QByteArray> body; ///< a complete line, without its "AT"
    };

    Step feed(char byte, const PortSettings &port);
    /// Forgets an unfinished line.
    void reset();

    /// Longer lines are answered with ERROR.
    static constexpr qsizetype longestLine = 4096;

private:
    enum class State { Waiting, SeenA, InLine };

    Step waiting(char byte);
    Step seenA(char byte);
    Step inLine(char byte, const PortSettings &port);

    State m_state = State::Waiting;
    bool m_afterLine = false;
    QByteArray m_body;
    QByteArray m_last;
};

} // namespace cardemu

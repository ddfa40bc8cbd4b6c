// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <chrono>
#include <functional>
#include <optional>

namespace cardemu
{

/// How a command line ends. ITU-T V.250 5.7.1; 3GPP TS 27.007 9.2; 3GPP TS 27.005 3.2.5.
struct Final {
    enum class Kind {
        Ok,
        Connect,
        NoCarrier,
        Error,
        NoDialtone,
        Busy,
        NoAnswer,
        CmeError,
        CmsError,
        Literal,
        Pending ///< nothing yet, and perhaps never: the command goes on until the line is disturbed
    };
    Kind kind = Kind::Ok;
    int number = 0;    ///< of CmeError and CmsError
    QByteArray text{}; ///< of Literal: the result code as it stands

    bool isSuccess() const { return kind == Kind::Ok; }
};

struct Answer;

/// What a command waits for before it goes on: a text that the client types at the prompt, then some time.
struct Later {
    bool wantsText = false;
    std::chrono::milliseconds delay{0};
    std::function<Answer(const QByteArray &text)> go;
};

/// What a command answers: information lines without their line ends, and how it went.
struct Answer {
    QByteArrayList lines;
    Final final;
    std::optional<Later> later{}; ///< where this is set, `final` is not known yet
};

inline Answer ok(const QByteArrayList &lines = {})
{
    return {lines, {}};
}

inline Answer ok(const QByteArray &line)
{
    return {{line}, {}};
}

inline Answer later(const Later &later)
{
    return {{}, {}, later};
}

inline Answer result(Final::Kind kind)
{
    return {{}, {kind}};
}

inline Answer error()
{
    return result(Final::Kind::Error);
}

inline Answer cmeError(int number)
{
    return {{}, {Final::Kind::CmeError, number}};
}

inline Answer cmsError(int number)
{
    return {{}, {Final::Kind::CmsError, number}};
}

} // namespace cardemu

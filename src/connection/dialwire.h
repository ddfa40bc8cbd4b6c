// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/dialrequest.h"

#include <QByteArray>
#include <optional>
#include <vector>

namespace corva
{

/// How the program and its helper speak: one JSON object per line, both ways. Pure.
///
/// A request has "verb" and exactly the members of that verb. A line that is anything else is no request: the
/// reader of requests has an administrator's rights, and believes nothing.
QByteArray toLine(const DialRequest &request);
std::optional<DialRequest> requestFromLine(const QByteArray &line);

/// What the helper says.
struct DialEvent {
    enum class Kind {
        Ready,      ///< it runs, with the rights it needs
        Done,       ///< answers the oldest request, see `result`
        Output,     ///< of the dialler
        DiallerGone ///< the dialler has ended
    };
    Kind kind = Kind::Ready;
    DialResult result;
    QByteArray output;
};
QByteArray toLine(const DialEvent &event);
std::optional<DialEvent> eventFromLine(const QByteArray &line);

/// Cuts a stream into its lines.
class LineCutter
{
public:
    static constexpr qsizetype longestLine = 65536;

    /// The lines that `chunk` completes, without their ends.
    std::vector<QByteArray> feed(const QByteArray &chunk);
    /// True once a line was longer than any that is spoken here. Nothing is cut any more.
    bool isBroken() const { return m_isBroken; }

private:
    QByteArray m_rest;
    bool m_isBroken = false;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

/// The rules for the end of a reply as they are written: after every byte, the whole text is looked through
/// for every mark. Slow and plain, for holding the real reader against.
namespace byterules
{

struct Outcome {
    bool isComplete = false;
    QByteArray reply;
    qsizetype consumed = 0;
    bool operator==(const Outcome &) const = default;
};

/// `endsOnCmsError`: a whole line that begins with "+CMS ERROR" is an end as well.
inline Outcome read(const QByteArray &stream, bool endsOnCmsError = false)
{
    const char *const ends[] = {"> ", "not support\r\n", "CONNECT\r\n", "OK\r\n", "NO CARRIER"};
    const char *const reports[] = {"+JPDPACT: 1,1", "+JPDPACT: 1,2", "+JPDPACT: 1,0", "+JPDPACT: 1,3"};
    QByteArray text;
    QByteArray reply;
    bool continuation = false;
    for (qsizetype i = 0; i < stream.size(); ++i) {
        if (stream[i] == '\0')
            continue;
        text.append(stream[i]);
        bool done = false;
        if (continuation) {
            if (text.contains("\r\n") || text.contains("no network service")) {
                reply += text;
                done = true;
            }
        } else {
            if (text.contains("JEND\r\n")) {
                reply = text;
                text.clear();
            }
            for (const char *end : ends)
                done = done || text.contains(end);
            const qsizetype line = (QByteArray("\n") + text).lastIndexOf("\n+CMS ERROR");
            done = done || (endsOnCmsError && line >= 0 && text.indexOf("\r\n", line) >= 0 &&
                            text.indexOf("\r\n", line) == text.indexOf('\n', line) - 1);
            done = done || (text.contains("ERROR\r\n") && !text.contains("+CME ERROR"));
            if (done)
                reply = text;
            if (text.contains("+CME ERROR")) {
                reply = text;
                if (text.contains("no network service")) {
                    done = true;
                } else if (!done) {
                    text.clear();
                    continuation = true;
                }
            }
        }
        for (const char *report : reports) {
            if (text.contains(report)) {
                reply = text;
                done = true;
            }
        }
        if (done)
            return {true, reply, i + 1};
    }
    return {false, reply, stream.size()};
}

} // namespace byterules

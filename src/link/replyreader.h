// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <vector>

namespace corva
{

/// Finds the end of one reply in the bytes that the card sends.
///
/// The end is decided by text, anywhere in what has come so far, not by line: "OK\r\n", "ERROR\r\n", the line
/// that follows "+CME ERROR", "NO CARRIER", "CONNECT\r\n", the prompt "> ", "not support\r\n" and the
/// data-call reports
/// "+JPDPACT: 1,0" to "+JPDPACT: 1,3". "JEND\r\n" throws away what came before it. Every mark is acted on at
/// the byte that completes it, so looking at the end of the text after each byte costs the reply's length,
/// not its square.
///
/// No I/O, no clock: what is worth a log line is kept in `notes()`. NUL bytes are line noise and dropped.
class ReplyReader
{
public:
    /// Longest reply, in bytes: a reply buffer of 102400 with its terminator. What a card sends beyond it,
    /// thrown away text included, makes the reply fail: a card that never stops cannot hold its reader for
    /// ever.
    static constexpr qsizetype capacity = 102400 - 1;

    /// What ends a reply beside the marks above.
    enum class Also {
        Nothing,
        CmsError ///< a whole line "+CMS ERROR...", which holds none of the marks when a code follows
    };

    explicit ReplyReader(Also also = Also::Nothing) : m_endsOnCmsError(also == Also::CmsError) {}

    enum class Status { More, Complete, TooLong };
    struct Progress {
        Status status;
        qsizetype consumed; ///< bytes of the fed text that belong to this reply
    };

    /// Takes bytes up to the one that completes the reply; the rest belongs to whatever comes next.
    Progress feed(QByteArrayView bytes);

    /// The reply so far; whole once `feed` said Complete.
    const QByteArray &reply() const { return m_reply; }
    /// What came and is not in the reply: thrown away by "JEND\r\n", and while the reply is not complete, all
    /// of it. Reports in it are still to be seen: nobody sends them again.
    QByteArray leftOver() const;
    /// Log lines earned so far, in order.
    const std::vector<const char *> &notes() const { return m_notes; }

private:
    enum class Then { GoOn, Done };
    struct Mark;

    bool take(char byte);
    bool endsContinuation(char byte);
    bool endsCmsErrorLine() const;
    Then act(const Mark &mark);
    Then actOnCmeError();
    void keepText();
    bool endsWith(QByteArrayView mark) const { return QByteArrayView(m_text).endsWith(mark); }
    void note(const char *line);

    QByteArray m_text;  ///< the working buffer
    QByteArray m_reply; ///< what is handed over
    QByteArray m_thrownAway;
    std::vector<const char *> m_notes;
    qsizetype m_taken = 0;
    bool m_isComplete = false;
    bool m_continuation = false; ///< "+CME ERROR" was seen, its line is not at its end
    bool m_noNetworkService = false;
    bool m_endsOnCmsError;
};

} // namespace corva

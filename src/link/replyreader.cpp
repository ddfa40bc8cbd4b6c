// SPDX-License-Identifier: GPL-3.0-or-later
#include "replyreader.h"

#include <array>

namespace corva
{

namespace
{
enum class Effect { Complete, Restart, CmeError };
} // namespace

struct ReplyReader::Mark {
    QByteArrayView text;
    Effect effect;
    const char *note;
};

/// In the order in which they are tested after each byte.
static constexpr auto dataCallReports = std::to_array<std::pair<const char *, const char *>>({
    {"+JPDPACT: 1,1", "****** 1JPDPACT!"},
    {"+JPDPACT: 1,2", "****** 2JPDPACT!"},
    {"+JPDPACT: 1,0", "****** 0JPDPACT!"},
    {"+JPDPACT: 1,3", "******3 JPDPACT!"},
});

ReplyReader::Progress ReplyReader::feed(QByteArrayView bytes)
{
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (++m_taken > capacity)
            return {Status::TooLong, i};
        if (bytes[i] != '\0' && take(bytes[i])) {
            m_isComplete = true;
            return {Status::Complete, i + 1};
        }
    }
    return {Status::More, bytes.size()};
}

QByteArray ReplyReader::leftOver() const
{
    if (m_isComplete)
        return m_thrownAway;
    return m_thrownAway + (m_continuation ? m_reply : QByteArray()) + m_text;
}

/// One byte; true when it completes the reply.
bool ReplyReader::take(char byte)
{
    static const std::array<Mark, 8> marks{{
        {"JEND\r\n", Effect::Restart, "****** Cmd of JEND find!"},
        {"> ", Effect::Complete, nullptr},
        {"not support\r\n", Effect::Complete, "****** Cmd of JCPBR is not support!"},
        {"CONNECT\r\n", Effect::Complete, "****** Video Call CONNECT!"},
        {"OK\r\n", Effect::Complete, nullptr},
        {"NO CARRIER", Effect::Complete, nullptr},
        {"ERROR\r\n", Effect::Complete, nullptr},
        {"+CME ERROR", Effect::CmeError, nullptr},
    }};

    m_text.append(byte);
    if (byte == 'e' && endsWith("no network service"))
        m_noNetworkService = true;

    Then then = Then::GoOn;
    if (m_continuation) {
        if (endsContinuation(byte))
            return true;
    } else if (byte == '\n' || byte == ' ' || byte == 'R') {
        for (const Mark &mark : marks) {
            if (endsWith(mark.text))
                then = act(mark);
            if (then == Then::Done)
                return true;
        }
        if (m_endsOnCmsError && byte == '\n' && endsCmsErrorLine()) {
            keepText();
            return true;
        }
    }
    if (byte >= '0' && byte <= '3') {
        for (const auto &[report, line] : dataCallReports) {
            if (endsWith(report)) {
                note(line);
                keepText();
                return true;
            }
        }
    }
    return false;
}

/// The rest of an error line: its end, or the words that need no line end, complete the reply.
bool ReplyReader::endsContinuation(char byte)
{
    const bool refusedByNetwork = byte == 'e' && m_noNetworkService;
    if (!refusedByNetwork && !(byte == '\n' && endsWith("\r\n")))
        return false;
    if (refusedByNetwork)
        note("******3 JPDPACT!");
    m_reply += m_text;
    return true;
}

/// Whether the line that ends here is the refusal of a message operation.
bool ReplyReader::endsCmsErrorLine() const
{
    if (!endsWith("\r\n"))
        return false;
    const qsizetype begin = m_text.lastIndexOf('\n', -2) + 1;
    return QByteArrayView(m_text).sliced(begin).startsWith("+CMS ERROR");
}

ReplyReader::Then ReplyReader::act(const Mark &mark)
{
    if (mark.effect == Effect::CmeError)
        return actOnCmeError();
    if (mark.note)
        note(mark.note);
    keepText();
    if (mark.effect == Effect::Complete)
        return Then::Done;
    m_thrownAway += m_text.chopped(mark.text.size());
    m_text.clear();
    m_noNetworkService = false;
    return Then::GoOn;
}

ReplyReader::Then ReplyReader::actOnCmeError()
{
    keepText();
    if (m_noNetworkService) {
        note("******3 JPDPACT!");
        return Then::Done;
    }
    note("****** in the resAtStr,to continue of while!!!");
    m_text.clear();
    m_continuation = true;
    return Then::GoOn;
}

void ReplyReader::keepText()
{
    m_reply = m_text;
}

/// A card that repeats itself without end earns no endless log.
void ReplyReader::note(const char *line)
{
    constexpr std::size_t mostNotes = 16;
    if (m_notes.size() < mostNotes)
        m_notes.push_back(line);
}

} // namespace corva

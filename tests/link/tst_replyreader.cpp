// SPDX-License-Identifier: GPL-3.0-or-later
#include "../../fuzz/byterules.h"
#include "../rows.h"
#include "link/replyreader.h"

#include <QRandomGenerator>

namespace byterules
{

char *toString(const Outcome &outcome)
{
    return QTest::toString(QByteArray(outcome.isComplete ? "complete, " : "more, ") +
                           QByteArray::number(outcome.consumed) + ": " +
                           outcome.reply.toPercentEncoding(" ,+:"));
}

} // namespace byterules

using byterules::Outcome;
using corva::ReplyReader;

namespace
{

/// Fed in random chunks.
Outcome inChunks(const QByteArray &stream, QRandomGenerator &random, bool endsOnCmsError)
{
    ReplyReader reader(endsOnCmsError ? ReplyReader::Also::CmsError : ReplyReader::Also::Nothing);
    qsizetype at = 0;
    while (at < stream.size()) {
        const qsizetype length = std::min<qsizetype>(random.bounded(1, 12), stream.size() - at);
        const auto progress = reader.feed(QByteArrayView(stream).sliced(at, length));
        at += progress.consumed;
        if (progress.status == ReplyReader::Status::Complete)
            return {true, reader.reply(), at};
    }
    return {false, reader.reply(), at};
}

QByteArray randomStream(QRandomGenerator &random)
{
    static const QByteArrayList pieces =
        QByteArray("> |not support\r\n|CONNECT\r\n|OK\r\n|NO CARRIER|ERROR\r\n|+CME ERROR|+CME ERROR: 14\r\n|"
                   "+CMS ERROR: 301\r\n|: no network service\r\n|+JEND\r\n|+JPDPACT: 1,1|+JPDPACT: 1,2|"
                   "+JPDPACT: 1,0|+JPDPACT: 1,3|\r\n|+CMTI: \"SM\",3\r\n|AT+CSQ\r|@")
            .replace('@', '\0')
            .split('|');
    QByteArray stream;
    for (int count = random.bounded(1, 9); count > 0; --count) {
        QByteArray piece = pieces[random.bounded(int(pieces.size()))];
        if (random.bounded(2) == 0) // the beginning of a mark, and then something else
            piece.truncate(random.bounded(1, int(piece.size()) + 1));
        if (random.bounded(4) == 0)
            piece.insert(random.bounded(int(piece.size()) + 1), char(random.bounded(256)));
        stream += piece;
    }
    return stream;
}

const Rows<QByteArray, QByteArray, QByteArray> endsRows{
    {"USSD answer comes later", "AT+CUSD=1\r\r\nOK\r\n\r\n+CUSD: 0\r\n", "AT+CUSD=1\r\r\nOK\r\n", {}},
    {"CMS error", "\r\n+CMS ERROR\r\n", "\r\n+CMS ERROR\r\n", {}},
    {"unsupported", "COMMAND not support\r\nOK\r\n", "COMMAND not support\r\n",
     "****** Cmd of JCPBR is not support!"},
    {"video call", "CONNECT\r\n", "CONNECT\r\n", "****** Video Call CONNECT!"},
    {"CME number", "\r\n+CME ERROR: 14\r\n\r\n", "\r\n+CME ERROR: 14\r\n",
     "****** in the resAtStr,to continue of while!!!"},
    {"no network, words behind", "+CME ERROR: no network service\r\n", "+CME ERROR: no network service",
     "****** in the resAtStr,to continue of while!!!|******3 JPDPACT!"},
    {"no network, words before", "no network service\r\n+CME ERROR: 30\r\n",
     "no network service\r\n+CME ERROR", "******3 JPDPACT!"},
    {"prompt inside an error line", "+CME ERROR: > NO CARRIER\r\n", "+CME ERROR: > NO CARRIER\r\n",
     "****** in the resAtStr,to continue of while!!!"},
    {"end of call drops what came before", "+CSQ: 1\r\n+JEND\r\n\r\nOK\r\n", "\r\nOK\r\n",
     "****** Cmd of JEND find!"},
    {"data call comes up", "\r\n+JPDPACT: 1,1\r\nOK\r\n", "\r\n+JPDPACT: 1,1", "****** 1JPDPACT!"},
    {"data call inside an error line", "+CME ERROR +JPDPACT: 1,0\r\n", " +JPDPACT: 1,0",
     "****** in the resAtStr,to continue of while!!!|****** 0JPDPACT!"},
    {"end mark in an operator's name", "+COPS: 0,0,\"NO CARRIER\"\r\nOK\r\n", "+COPS: 0,0,\"NO CARRIER", {}},
};

} // namespace

class TestReplyReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsReadingByteByByte()
    {
        constexpr quint32 seed = 20260228;
        QRandomGenerator random(seed);
        int completed = 0;
        for (int i = 0; i < 2000; ++i) {
            const QByteArray stream = randomStream(random);
            const bool endsOnCmsError = i % 2 == 1; // as the message operations ask
            const Outcome expected = byterules::read(stream, endsOnCmsError);
            const Outcome actual = inChunks(stream, random, endsOnCmsError);
            if (actual != expected)
                qWarning("seed %u, stream %d: %s", seed, i, stream.toPercentEncoding().constData());
            QCOMPARE(actual, expected);
            completed += expected.isComplete;
        }
        QVERIFY2(completed > 500 && completed < 1900, "both outcomes were met often");
    }

    void ends_data() { addRows(endsRows); }
    void ends()
    {
        const auto &[name, stream, reply, notes] = currentRow(endsRows);
        ReplyReader reader;
        const auto progress = reader.feed(stream);
        QCOMPARE(progress.status, ReplyReader::Status::Complete);
        QCOMPARE(reader.reply(), reply);
        QCOMPARE(QByteArrayList(reader.notes().begin(), reader.notes().end()).join('|'), notes);
    }

    void longestReply()
    {
        QByteArray stream(ReplyReader::capacity - 4, 'x');
        stream += "OK\r\n";
        QCOMPARE(ReplyReader().feed(stream).status, ReplyReader::Status::Complete);
        stream.prepend('x');
        QCOMPARE(ReplyReader().feed(stream).status, ReplyReader::Status::TooLong);
    }
};

QTEST_APPLESS_MAIN(TestReplyReader)
#include "tst_replyreader.moc"

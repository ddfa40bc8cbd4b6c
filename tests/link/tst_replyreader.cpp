// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "link/replyreader.h"

using corva::ReplyReader;

namespace
{

const Rows<QByteArray, QByteArray, QByteArray> endsRows{
    {"USSD answer comes later", "AT+CUSD=1\r\r\nOK\r\n\r\n+CUSD: 0\r\n", "AT+CUSD=1\r\r\nOK\r\n", {}},
    {"CMS error", "\r\n+CMS ERROR\r\n", "\r\n+CMS ERROR\r\n", {}},
    {"NUL bytes are noise", QByteArray("A\0T\r\r\nO\0K\r\n", 11), "AT\r\r\nOK\r\n", {}},
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
    void ends_data() { addRows(endsRows); }
    void ends()
    {
        const auto &[name, stream, reply, notes] = currentRow(endsRows);
        for (const qsizetype piece : {stream.size(), qsizetype(1)}) {
            ReplyReader reader;
            ReplyReader::Progress progress{};
            for (qsizetype at = 0; progress.status != ReplyReader::Status::Complete; at += piece) {
                QVERIFY(at < stream.size());
                progress = reader.feed(QByteArrayView(stream).sliced(at, piece));
            }
            QCOMPARE(reader.reply(), reply);
            QCOMPARE(QByteArrayList(reader.notes().begin(), reader.notes().end()).join('|'), notes);
        }
    }

    void messageErrorsEndWhereAskedFor()
    {
        const QByteArray error = "\r\n+CMS ERROR: 301\r\n";
        QCOMPARE(ReplyReader(ReplyReader::Also::CmsError).feed(error).status, ReplyReader::Status::Complete);
        QCOMPARE(ReplyReader(ReplyReader::Also::CmsError).feed("+X" + error.sliced(2)).status,
                 ReplyReader::Status::More);
        QCOMPARE(ReplyReader().feed(error).status, ReplyReader::Status::More);
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

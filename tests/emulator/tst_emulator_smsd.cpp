// SPDX-License-Identifier: GPL-3.0-or-later
// A message server that knows nothing of this emulator sends from its spool, and receives into it.
#include "testcard.h"

#include <QDir>
#include <QProcess>

namespace
{

/// smsd with its spool in the card's folder; it ends with this.
class Server
{
public:
    explicit Server(const TestCard &card) : m_card(card)
    {
        QByteArray settings =
            "devices = GSM1\nloglevel = 7\ndelaytime = 1\nerrorsleeptime = 1\nblocktime = 1\n"
            "autosplit = 3\nincoming_utf8 = yes\n";
        for (const QString &folder :
             {u"outgoing"_s, u"checked"_s, u"incoming"_s, u"failed"_s, u"sent"_s, u"report"_s}) {
            QDir().mkpath(card.path(folder));
            settings += setting(folder, folder);
        }
        settings += setting(u"logfile"_s, u"log"_s) + setting(u"infofile"_s, u"running"_s) +
                    setting(u"pidfile"_s, u"pid"_s);
        settings += "[GSM1]\n" + setting(u"device"_s, u"at"_s) +
                    "incoming = yes\npre_init = no\nmemory_start = 1\ncheck_memory_method = 31\n"
                    "init = AT+CPMS=\"SM\",\"SM\";+CSMS=1;+CNMI=2,1,0,1,0\n"
                    "using_routed_status_report = yes\nrouted_status_report_cnma = yes\n";
        putFile(card.path(u"smsd.conf"_s), settings);
        m_process.start(u"/usr/sbin/smsd"_s, {u"-t"_s, u"-c"_s, card.path(u"smsd.conf"_s)});
    }
    ~Server()
    {
        m_process.terminate();
        m_process.waitForFinished(20000);
    }
    Q_DISABLE_COPY_MOVE(Server)

    /// All files of a folder of the spool, one behind the other.
    QByteArray spool(const QString &folder) const
    {
        const QDir dir(m_card.path(folder));
        QByteArray texts;
        for (const QString &name : dir.entryList(QDir::Files))
            texts += contentOf(dir.filePath(name)) + '\n';
        return texts;
    }

private:
    QByteArray setting(const QString &key, const QString &name) const
    {
        return key.toLatin1() + " = " + QFile::encodeName(m_card.path(name)) + '\n';
    }

    const TestCard &m_card;
    QProcess m_process;
};

} // namespace

class TestEmulatorSmsd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sendsAndReceives()
    {
        TestCard card;
        const QByteArray greetings = QByteArray("Grüße ").repeated(40);
        const QByteArray numbers = QByteArray("0123456789").repeated(20);
        QVERIFY(card.tell(R"({"command": "sms-network", "reportDelay": 0})"));
        QVERIFY(card.tell(R"({"command": "sms", "order": "2,1", "from": "+4917212345678", "text": "%1"})",
                          greetings));
        const Server server(card);
        putFile(card.path(u"outgoing/one"_s), "To: 12025550123\nReport: yes\n\n" + numbers);
        constexpr int patience = 30000;
        QTRY_VERIFY_WITH_TIMEOUT(server.spool(u"sent"_s).contains(numbers), patience);
        QTRY_VERIFY_WITH_TIMEOUT(server.spool(u"incoming"_s).contains("\n\n" + numbers), patience);
        QTRY_COMPARE_WITH_TIMEOUT(server.spool(u"report"_s).count("Status: 0,Ok"), 2, patience);
        const QByteArray received = server.spool(u"incoming"_s);
        QVERIFY2(received.contains("From: 4917212345678\n") && received.contains("\n\n" + greetings),
                 received);
        QVERIFY2(server.spool(u"failed"_s).isEmpty(), server.spool(u"log"_s));
        QCOMPARE(card.sent().size(), 2);
    }
};

QTEST_GUILESS_MAIN(TestEmulatorSmsd)
#include "tst_emulator_smsd.moc"

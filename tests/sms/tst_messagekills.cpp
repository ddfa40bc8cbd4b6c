// SPDX-License-Identifier: GPL-3.0-or-later
#include "cardthread.h"
#include "device/cardmonitor.h"
#include "link/serialthread.h"
#include "serviceowner.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "sms/messagestore.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

constexpr int patience = 60000; // ms

void say(const QString &line)
{
    std::fputs(qPrintable(line + u'\n'), stdout);
    std::fflush(stdout);
}

/// The program that is killed: receives, and sends one message, if it is given one. Ends with its input.
int runProgram(const QStringList &arguments)
{
    basePath = arguments.value(0);
    const QString text = arguments.value(1);
    ServiceOwner owner;
    CardMonitor monitor(&owner);
    owner.onFind = [&] { monitor.findPorts(false); };
    MessageStore store(basePath + u"/Data"_s);
    MessageService service(&monitor, &store);
    owner.service = &service;
    QObject::connect(&service, &MessageService::sigCardReady, &service, &MessageService::readCard);
    QObject::connect(&service, &MessageService::sigPlaceChanged, &service, [&](MessagePlace place) {
        if (service.place(place).isRead && !service.place(place).isLoading)
            say(u"listed"_s);
    });
    QObject::connect(&store, &MessageStore::sigLoaded, &service, [&] {
        if (text.isEmpty())
            return;
        QObject::connect(&service, &MessageService::sigSending, &service, [&, text](const SendProgress &) {
            say(u"queued "_s + text); // it is on disk when the first of it is on its way
        });
        service.send({{u"10086"_s}, text, false, {}});
    });
    store.load();
    monitor.start();
    return QCoreApplication::exec();
}

} // namespace

/// The program killed at random moments while messages come and go. CORVA_KILLS names the number of rounds.
class TestMessageKills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingIsLostOrDoubled()
    {
        bool isNumber = false;
        const int given = qEnvironmentVariableIntValue("CORVA_KILLS", &isNumber);
        const int rounds = isNumber ? given : 12;
        const quint32 seed = QRandomGenerator::global()->generate();
        qInfo("%d rounds, seed %u", rounds, seed);
        QRandomGenerator random(seed);
        prepare();
        for (int round = 0; round < rounds; ++round)
            oneRound(round, random);
        finish();

        MessageStore store(m_folder.path() + u"/Data"_s);
        QStringList errors;
        connect(&store, &MessageStore::sigError, this, [&](const QString &error) { errors += error; });
        store.load();
        QTRY_VERIFY_WITH_TIMEOUT(store.isLoaded(), patience);
        QCOMPARE(errors, QStringList());
        QStringList received = texts(store, MessageBox::Inbox);
        received.sort();
        m_injected.sort();
        QVERIFY2(received == m_injected,
                 qPrintable(u"%1 of %2"_s.arg(received.join(u','), m_injected.join(u','))));

        const QStringList out = texts(store, MessageBox::Sent) + texts(store, MessageBox::Outbox);
        for (const QString &text : std::as_const(m_queued))
            QVERIFY2(out.count(text) == 1, qPrintable(u"%1: %2 times"_s.arg(text).arg(out.count(text))));
        QStringList pdus;
        for (const QJsonValue sent : m_card->control(R"({"command": "sent"})")[u"sent"_s].toArray())
            pdus += sent[u"pdu"_s].toString();
        QCOMPARE(QSet<QString>(pdus.begin(), pdus.end()).size(), pdus.size()); // no part went out twice
        QVERIFY(texts(store, MessageBox::Sent).size() <= pdus.size());
        qInfo("%lld received, %lld queued, %lld sent, %lld unsure", qlonglong(received.size()),
              qlonglong(m_queued.size()), qlonglong(texts(store, MessageBox::Sent).size()),
              qlonglong(texts(store, MessageBox::Outbox).size()));
    }

private:
    void prepare()
    {
        cmcfg.setValue(u"device"_s, u"at_port"_s, m_folder.path() + u"/card/at"_s);
        cmcfg.setValue(u"device"_s, u"modem_port"_s, m_folder.path() + u"/card/modem"_s);
        cmcfg.setValue(u"network_dialer_setting"_s, u"send_nullatcommand_timer_100ms"_s, u"10"_s);
        cmcfg.setValue(u"sms"_s, u"newsmsLocation"_s, u"2"_s);
        // Stored on the card first: what is handed over directly exists nowhere while it is on its way.
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, u"0"_s);
        m_card = std::make_unique<cardemu::CardThread>(
            std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s)));
        QCOMPARE(m_card->start(m_folder.path() + u"/card"_s), QString());
        tell(R"({"command": "store", "name": "SM", "clear": true, "capacity": 200})");
        tell(R"({"command": "sms-network", "delay": 30})");
    }

    void start(QProcess &program, const QString &text)
    {
        program.setProcessChannelMode(QProcess::SeparateChannels);
        program.setStandardErrorFile(QProcess::nullDevice());
        program.setWorkingDirectory(m_folder.path());
        program.start(QCoreApplication::applicationFilePath(), {u"--program"_s, m_folder.path(), text});
        QVERIFY(program.waitForStarted(patience));
    }

    void oneRound(int round, QRandomGenerator &random)
    {
        QProcess program;
        start(program, u"out %1"_s.arg(round));
        const bool isEarly = random.bounded(4) == 0;
        if (!isEarly)
            QVERIFY(waitFor(program, "listed"));
        const int before = random.bounded(isEarly ? 400 : 40);
        const int after = random.bounded(120);
        QTest::qWait(before);
        for (int i = random.bounded(1, 4); i > 0; --i)
            inject();
        QTest::qWait(after);
        program.kill();
        QVERIFY(program.waitForFinished(patience));
        m_output += program.readAllStandardOutput();
        takeQueued();
    }

    /// The last run is left alone until all is done.
    void finish()
    {
        QProcess program;
        start(program, {});
        QVERIFY(waitFor(program, "listed"));
        for (QString before, now = u"-"_s; before != now; before = std::exchange(now, cardNow()))
            QTest::qWait(700); // longer than anything that is under way takes
        program.kill();
        QVERIFY(program.waitForFinished(patience));
    }

    bool waitFor(QProcess &program, const QByteArray &word)
    {
        m_output.clear();
        return QTest::qWaitFor(
            [&] {
                m_output += program.readAllStandardOutput();
                return m_output.contains(word) || program.state() == QProcess::NotRunning;
            },
            patience);
    }

    void takeQueued()
    {
        for (const QByteArray &line : m_output.split('\n')) {
            const QString text = QString::fromLatin1(line.mid(7));
            if (line.startsWith("queued ") && !m_queued.contains(text))
                m_queued += text;
        }
        m_output.clear();
    }

    void inject()
    {
        m_injected += u"in %1"_s.arg(m_injected.size());
        tell(QByteArray(R"({"command": "sms", "from": "+4917112345", "text": "@"})")
                 .replace('@', m_injected.back().toLatin1()));
    }

    void tell(const QByteArray &json)
    {
        const QJsonObject answer = m_card->control(json);
        QVERIFY2(answer[u"ok"_s].toBool(), qPrintable(answer[u"error"_s].toString()));
    }

    /// What the card holds and has sent.
    QString cardNow()
    {
        const QJsonObject state = m_card->control(R"({"command": "show"})");
        const QJsonObject sent = m_card->control(R"({"command": "sent"})");
        return QString::fromUtf8(
            QJsonDocument(state[u"state"_s][u"messages"_s][u"stores"_s].toObject()).toJson() +
            QJsonDocument(sent).toJson());
    }

    static QStringList texts(const MessageStore &store, MessageBox box)
    {
        QStringList found;
        for (const MessagePlace place : {MessagePlace::Computer, MessagePlace::Sim, MessagePlace::Card}) {
            for (const Message &message : store.messages(store.ids(box, place)))
                found += message.text();
        }
        return found;
    }

    ScratchFolder m_folder;
    std::unique_ptr<cardemu::CardThread> m_card;
    QStringList m_injected;
    QStringList m_queued;
    QByteArray m_output;
};

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == "--program"_L1)
        return runProgram(arguments.mid(2));
    TestMessageKills test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_messagekills.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// The real wvdial and pppd on an emulated card, through the whole service. Where the kernel has no PPP pppd
// says so after the card's CONNECT, which is one more way for a dial to fail.
#include "../rows.h"
#include "cardthread.h"
#include "connection/connectionservice.h"
#include "connection/dialwork.h"
#include "connection/helperbackend.h"
#include "connection/linkfacts.h"
#include "connection/ownbackend.h"
#include "connection/processsession.h"
#include "connection/profilestore.h"
#include "device/cardmonitor.h"
#include "linktest.h"
#include "ownsystem.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "shell/updatecfg.h"

#include <QDir>
#include <QJsonDocument>
#include <QProcess>
#include <QSignalSpy>
#include <QTest>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

constexpr int patience = 30000; // ms: wvdial takes its time to give up
constexpr auto dhclient = "/usr/sbin/dhclient";

static QString whyNot;
static const QString helperProgram = QStringLiteral(CORVA_DIALHELPER);

static ConnectionProfile homeProfile()
{
    ConnectionProfile profile = ProfileStore::newProfile();
    profile.setText(ProfileField::Name, u"Home"_s);
    profile.setText(ProfileField::Apn, u"internet"_s);
    profile.setOn(ProfileField::UsesApn, true);
    profile.setLinkKind(LinkKind::DialUp);
    return profile;
}

static DialRequest request(DialVerb verb, const QString &port)
{
    DialRequest request{.verb = verb};
    request.profile = homeProfile();
    request.modemPort = port;
    return request;
}

static const Rows<QByteArray, ConnectionEnd, int, QString> failedDialsRows{
    {"NO CARRIER", "no-carrier", ConnectionEnd::NoCarrier, -1, u"Connection is failed!"_s},
    {"BUSY, which wvdial would redial for ever", "busy", ConnectionEnd::Busy, -1, u"Connection is failed!"_s},
    {"the dial command refused", "error", ConnectionEnd::NoCarrier, -1, u"Connection is failed!"_s},
    {"no PPP in the kernel", "connect", ConnectionEnd::DiallerFailed, 4,
     u"Fail to connect! exit code is 4\nThe kernel does not support PPP, for example, the PPP kernel driver "
     u"is "
     "not included or cannot be loaded."_s},
};

static const Rows<QString> withoutRightsRows{
    {"refused", u"echo x >> asked; exit 126"_s},
    {"cancelled", u"echo x >> asked; exec sleep 600"_s},
};

class TestDialler : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!whyNot.isEmpty())
            QSKIP(qPrintable(whyNot));
        if (!QFile::exists(u"/usr/bin/wvdial"_s))
            QSKIP("wvdial is not installed");
        m_folder.emplace();
        basePath = m_folder->path();
        cmcfg.setValue(u"device"_s, u"at_port"_s, basePath + u"/card/at"_s);
        cmcfg.setValue(u"device"_s, u"modem_port"_s, basePath + u"/card/modem"_s);
        set(u"send_nullatcommand_timer_100ms"_s, u"10"_s);
        cmcfg.setValue(u"function"_s, u"ppp_errcode_show"_s, u"1"_s);
        m_owner.onFind = [this] { m_monitor->findPorts(false); };
        m_before = etcAsText();
    }
    void init()
    {
        resetLinkGlobals();
        set(u"dial_timeout"_s, u"60"_s);
        begin();
    }
    void cleanup()
    {
        m_service.reset();
        m_monitor.reset();
        m_card.reset();
        m_store.reset();
        QCOMPARE(etcAsText(), m_before);
        QVERIFY(!QFile::exists(u"/tmp/connect_info"_s));
    }

    void failedDials_data() { addRows(failedDialsRows); }
    void failedDials()
    {
        const auto &[name, dial, end, exitCode, message] = currentRow(failedDialsRows);
        if (exitCode == 4 && QFile::exists(u"/dev/ppp"_s))
            QSKIP("the kernel has PPP");
        tell(R"({"command": "dial-result", "result": "%1"})", dial);
        const LogCapture log;
        QVERIFY(m_service->connectNow());
        QVERIFY(!m_service->connectNow()); // a second press changes nothing
        QTRY_VERIFY_WITH_TIMEOUT(!m_messages.isEmpty(), patience);
        QCOMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(m_service->status().end, end);
        QCOMPARE(m_service->status().exitCode, exitCode);
        QVERIFY(!m_service->status().endSentence.isEmpty());
        QCOMPARE(m_messages.join(u'|'), message);
        QCOMPARE(UpdateCfg::value(UpdateKey::Wvdial), u"1"_s);
        QVERIFY(log.lines().contains(u"*****sigPDPSetCommand_result is 1*****"_s));
        const QByteArray heard = QJsonDocument(m_card->control(R"({"command": "log"})")).toJson();
        QVERIFY2(heard.contains(R"(AT+CGDCONT=1,\"IP\",\"internet\")"), heard.constData());
    }

    void judgedAtTheTimeOutAtTheLatest()
    {
        set(u"dial_timeout"_s, u"3"_s);
        tell(R"({"command": "dial-result", "result": "silence"})");
        QVERIFY(m_service->connectNow());
        QTRY_COMPARE_WITH_TIMEOUT(m_messages, QStringList{u"Fail to connect! Link ppp0 wasn't built !"_s},
                                  patience);
        QCOMPARE(m_service->status().end, ConnectionEnd::TimeOut);
    }

    /// Somebody else's dialler lives on.
    void cancelledWhileDialling()
    {
        QProcess other;
        other.start(u"sh"_s, {u"-c"_s, u"cp /bin/sleep /tmp/wvdial; exec /tmp/wvdial 600"_s});
        QVERIFY(other.waitForStarted());
        tell(R"({"command": "dial-result", "result": "silence"})");
        QVERIFY(m_service->connectNow());
        QTRY_VERIFY_WITH_TIMEOUT(!dialler().empty(), patience);
        m_service->disconnectNow();
        QCOMPARE(m_service->status().state, ConnectionState::Disconnecting);
        QTRY_COMPARE_WITH_TIMEOUT(m_service->status().state, ConnectionState::NotConnected, patience);
        QCOMPARE(m_service->status().end, ConnectionEnd::ByPerson);
        QVERIFY(dialler().empty());
        QCOMPARE(m_messages, QStringList());
        QCOMPARE(other.state(), QProcess::Running);
        other.kill();
        other.waitForFinished();
    }

    /// wvdial crashes, and is started once more: what it said stays to be read.
    void crashedDiallersWordsStay()
    {
        tell(R"({"command": "dial-result", "result": "silence"})");
        QVERIFY(m_service->connectNow());
        for (const int run : {1, 2}) {
            const auto said = [] {
                QFile info(u"/tmp/connect_info"_s);
                return info.open(QIODevice::ReadOnly) ? info.readAll() : QByteArray();
            };
            QTRY_COMPARE_WITH_TIMEOUT(said().count("Waiting for carrier"), run, patience);
            if (run == 1)
                kill(dialler().at(0), SIGKILL);
        }
        m_service->disconnectNow();
        QTRY_COMPARE_WITH_TIMEOUT(m_service->status().state, ConnectionState::NotConnected, patience);
    }

    void endOfTheProgramHangsUp()
    {
        tell(R"({"command": "dial-result", "result": "silence"})");
        QVERIFY(m_service->connectNow());
        QTRY_VERIFY_WITH_TIMEOUT(!dialler().empty(), patience);
        m_service.reset();
        QVERIFY(dialler().empty());
        QCOMPARE(etcAsText(), m_before);
    }

    /// Killed at a moment at which it cannot put anything back: the next start finds dialler and files.
    void killedWhileDialling()
    {
        tell(R"({"command": "dial-result", "result": "silence"})");
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {u"--dial-and-die"_s, modemPort()});
        QVERIFY(program.waitForFinished(patience));
        QCOMPARE(program.exitStatus(), QProcess::CrashExit);
        QVERIFY(etcAsText() != m_before); // its dialler may live on, or meet its broken pipe

        m_service->recoverLeftovers();
        QTRY_COMPARE_WITH_TIMEOUT(etcAsText(), m_before, patience);
        QVERIFY(dialler().empty());
    }

    void throughTheHelper()
    {
        makeService(std::make_unique<HelperBackend>(QStringList{helperProgram}));
        tell(R"({"command": "dial-result", "result": "busy"})");
        QVERIFY(m_service->connectNow());
        QTRY_VERIFY_WITH_TIMEOUT(!m_messages.isEmpty(), patience);
        QCOMPARE(m_service->status().end, ConnectionEnd::Busy);
        QCOMPARE(m_service->status().state, ConnectionState::NotConnected);
        QCOMPARE(etcAsText(), m_before);
    }

    /// The question for the password is open, or was answered with "no".
    void withoutRights_data() { addRows(withoutRightsRows); }
    void withoutRights()
    {
        const auto &[name, question] = currentRow(withoutRightsRows);
        QFile asked(m_folder->path(u"asked"_s));
        HelperBackend backend({u"sh"_s, u"-c"_s, question});
        int refused = 0;
        const auto count = [&refused](const DialResult &result) {
            refused += result.kind == DialResult::Kind::NoRights ? 1 : 100;
        };
        for (int link = 1; link <= 2; ++link) {
            backend.ask({.verb = DialVerb::Save}, count);
            QTRY_VERIFY_WITH_TIMEOUT(asked.size() == 2 * link, patience);
            backend.giveUpAsking();
            QTRY_COMPARE_WITH_TIMEOUT(refused, 2 * link - 1, patience);
            backend.ask({.verb = DialVerb::Recover}, count);
            QTRY_COMPARE_WITH_TIMEOUT(refused, 2 * link, patience);
            QCOMPARE(asked.size(), qint64(2 * link));
        }
        QVERIFY(asked.remove());
    }

    /// The service asks a new helper to put right what the dead one left.
    void helperKilledWhileDialling()
    {
        makeService(std::make_unique<HelperBackend>(QStringList{helperProgram}));
        tell(R"({"command": "dial-result", "result": "silence"})");
        QVERIFY(m_service->connectNow());
        QTRY_VERIFY_WITH_TIMEOUT(!dialler().empty(), patience);
        kill(running("corva-dialhelpe").at(0), SIGKILL);
        QTRY_COMPARE_WITH_TIMEOUT(m_service->status().state, ConnectionState::NotConnected, patience);
        QCOMPARE(m_service->status().end, ConnectionEnd::DiallerFailed);
        QVERIFY(dialler().empty());
    }

    void helperEndsWhileItDials_data()
    {
        QTest::addColumn<QByteArray>("said"); ///< none: the window was killed
        QTest::addColumn<int>("exitCode");
        QTest::newRow("the window is gone") << QByteArray() << 0;
        QTest::newRow("requests without end")
            << toLine({.verb = DialVerb::HangUp}) + toLine({.verb = DialVerb::RouteHelper}).repeated(40) << 2;
    }
    void helperEndsWhileItDials()
    {
        QFETCH(QByteArray, said);
        tell(R"({"command": "dial-result", "result": "silence"})");
        QProcess helper;
        helper.start(helperProgram, QStringList());
        for (const DialVerb verb : {DialVerb::Save, DialVerb::Write, DialVerb::Dial})
            helper.write(toLine(request(verb, modemPort())));
        QTRY_VERIFY_WITH_TIMEOUT(!dialler().empty(), patience);
        QVERIFY(etcAsText() != m_before);
        if (said.isEmpty())
            helper.closeWriteChannel();
        else
            helper.write(said);
        QVERIFY(helper.waitForFinished(patience));
        QTEST(helper.exitCode(), "exitCode");
        QVERIFY(dialler().empty());
        QCOMPARE(etcAsText(), m_before);
    }

    void helperRefuses_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QString>("sentence"); // none: it does not speak on with who speaks like that
        const auto write = [](const QString &port, ProfileField field, const QString &text) {
            DialRequest hostile = request(DialVerb::Write, {});
            hostile.modemPort = port;
            hostile.profile.setText(field, text);
            return toLine(hostile);
        };
        const QString port = u"%PORT%"_s;
        const QString notYours = u"You may not use this card's data port."_s;
        const QByteArray servers = R"({"verb":"nameServers","servers":["1.1.1.1\nsearch evil"]})";
        QTest::newRow("an unknown verb") << QByteArray(R"({"verb":"shell","text":"id"})") << QString();
        QTest::newRow("an endless line") << QByteArray(100000, 'x') << QString();
        QTest::newRow("a phone number that is two lines")
            << write(port, ProfileField::Phone, u"*99#\nInit2 = AT+X"_s)
            << u"A value holds a line break or another control character, or the text \"-|-\"."_s;
        QTest::newRow("an option in the user name")
            << write(port, ProfileField::UserName, u"a\" connect /bin/sh"_s)
            << u"The user name must not hold quotes, backslashes, a brace at its beginning or blanks at its "
               u"ends, not be a single asterisk, and be 255 bytes long at most."_s;
        QTest::newRow("a disk") << write(u"/dev/null"_s, ProfileField::Name, u"x"_s) << notYours;
        QTest::newRow("no device") << write(u"/etc/passwd"_s, ProfileField::Name, u"x"_s) << notYours;
        QTest::newRow("another's network interface")
            << QByteArray(R"({"verb":"lease","port":"%PORT%","interface":"lo"})")
            << u"The network interface does not belong to the card."_s;
        QTest::newRow("servers that are more than that") << servers << u"The DNS is invalid !"_s;
        QTest::newRow("servers without a link")
            << QByteArray(R"({"verb":"nameServers","servers":["1.1.1.1"]})")
            << u"The network interface has no address from here."_s;
        QTest::newRow("a dial on no port") << QByteArray(R"({"verb":"dial"})") << notYours;
    }
    void helperRefuses()
    {
        QFETCH(QByteArray, line);
        QFETCH(QString, sentence);
        const bool ends = sentence.isEmpty();
        QProcess helper;
        helper.start(helperProgram, QStringList());
        helper.write(toLine(request(DialVerb::Save, {})));
        helper.write(line.replace("%PORT%", modemPort().toUtf8()).trimmed() + '\n');
        QByteArray said;
        QTRY_VERIFY_WITH_TIMEOUT((said += helper.readAllStandardOutput()).contains("error") ||
                                     helper.state() == QProcess::NotRunning,
                                 patience);
        QCOMPARE(helper.state() == QProcess::NotRunning, ends);
        if (!ends)
            QCOMPARE(eventFromLine(said.trimmed().split('\n').last())->result.error, sentence);
        helper.closeWriteChannel();
        QVERIFY(helper.state() == QProcess::NotRunning || helper.waitForFinished(patience));
        QCOMPARE(helper.exitCode(), ends ? 2 : 0);
        QVERIFY(!QFile::exists(u"/tmp/connect_info"_s));
    }

    /// The helper's caller has no port but his own.
    void portOfAnother()
    {
        constexpr uid_t nobody = 65534;
        const QByteArray port = modemPort().toLocal8Bit();
        if (chown(port.constData(), nobody, gid_t(-1)) != 0)
            QSKIP("the port cannot be given away here");
        for (const bool isHis : {true, false}) {
            QCOMPARE(chown(port.constData(), isHis ? nobody : 0, gid_t(-1)), 0);
            QCOMPARE(chmod(port.constData(), 0600), 0);
            QProcess helper;
            QProcessEnvironment environment;
            environment.insert(u"PKEXEC_UID"_s, QString::number(nobody));
            helper.setProcessEnvironment(environment);
            helper.start(helperProgram, QStringList());
            helper.write(toLine(request(DialVerb::Save, {})));
            helper.write(toLine(request(DialVerb::Write, modemPort())));
            QByteArray said;
            QTRY_COMPARE_WITH_TIMEOUT((said += helper.readAllStandardOutput()).count("done"), 2, patience);
            QCOMPARE(said.contains("error"), !isHis);
            helper.closeWriteChannel();
            QVERIFY(helper.waitForFinished(patience));
        }
    }

    /// The port that was checked is the one that is dialled on: not another that has its name meanwhile.
    void portSwappedBeforeTheDial()
    {
        const int other = posix_openpt(O_RDWR | O_NOCTTY);
        QVERIFY(other >= 0 && grantpt(other) == 0 && unlockpt(other) == 0);
        const QByteArray port = modemPort().toLocal8Bit();
        QProcess helper;
        helper.start(helperProgram, QStringList());
        helper.write(toLine(request(DialVerb::Save, {})) + toLine(request(DialVerb::Write, modemPort())));
        QByteArray said;
        QTRY_COMPARE_WITH_TIMEOUT((said += helper.readAllStandardOutput()).count("done"), 2, patience);
        QVERIFY(!said.contains("error"));
        QCOMPARE(mount(ptsname(other), port.constData(), nullptr, MS_BIND, nullptr), 0);
        helper.write(toLine(request(DialVerb::Dial, {})));
        QTRY_COMPARE_WITH_TIMEOUT((said += helper.readAllStandardOutput()).count("done"), 3, patience);
        QCOMPARE(umount(port.constData()), 0);
        ::close(other);
        QCOMPARE(eventFromLine(said.trimmed().split('\n').last())->result.error,
                 u"You may not use this card's data port."_s);
        helper.closeWriteChannel();
        QVERIFY(helper.waitForFinished(patience));
    }

    /// Killed outright, it leaves a DHCP client behind that goes on renewing.
    void leaseOfAKilledRun()
    {
        if (!takeDhclientsPlace("echo $@ >> /tmp/asked\n"))
            QSKIP("no dhclient to take the place of");
        {
            DialWork killed{SystemFiles(), {}};
            QSignalSpy done(&killed, &DialWork::sigDone);
            killed.ask({.verb = DialVerb::Save});
            killed.ask({.verb = DialVerb::Lease, .interfaceName = u"none0"_s});
            QTRY_COMPARE_WITH_TIMEOUT(done.size(), 2, patience);
        }
        for (const bool isFirst : {true, false}) {
            DialWork next{SystemFiles(), {}};
            QSignalSpy done(&next, &DialWork::sigDone);
            next.ask({.verb = DialVerb::Save});
            next.ask({.verb = DialVerb::Recover});
            QTRY_COMPARE_WITH_TIMEOUT(done.size(), 2, patience);
            const QByteArray said = contentOf(u"/tmp/asked"_s);
            QVERIFY2(said.count("-4 -r ") == 1 && said.endsWith("none0\n"), isFirst ? said : "again");
        }
        QCOMPARE(umount(dhclient), 0);
    }

    /// The program ends while a DHCP client hangs, which then hangs again over giving the address back.
    void hangingDhcpClient()
    {
        if (!takeDhclientsPlace("trap '' TERM\necho $$ >> /tmp/hangs\nexec sleep 600\n"))
            QSKIP("no dhclient to take the place of");
        DialWork work{SystemFiles(), {}};
        QSignalSpy over(&work, &DialWork::sigShutDown);
        work.ask({.verb = DialVerb::Lease, .interfaceName = u"none0"_s});
        QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(u"/tmp/hangs"_s), patience);
        work.shutDown();
        QTRY_COMPARE_WITH_TIMEOUT(over.size(), 1, int(DiallerBackend::longestShutDown.count()));
        QCOMPARE(umount(dhclient), 0);
        const QList<QByteArray> pids = contentOf(u"/tmp/hangs"_s).simplified().split(' ');
        QCOMPARE(pids.size(), 2);
        for (const QByteArray &pid : pids)
            QVERIFY(!processStat(pid.toInt()));
        QVERIFY(QFile::remove(u"/tmp/hangs"_s));
        QVERIFY(!QFile::exists(u"/run/corva-dialler.lease"_s));
    }

private:
    void set(const QString &key, const QString &value)
    {
        cmcfg.setValue(u"network_dialer_setting"_s, key, value);
    }
    /// False where there is none. Its place is given back by `umount`.
    bool takeDhclientsPlace(const QByteArray &script)
    {
        if (!QFile::exists(QString::fromLatin1(dhclient)))
            return false;
        const QString stub = m_folder->path(u"dhclient"_s);
        putFile(stub, "#!/bin/sh\n" + script);
        return QFile::setPermissions(stub, QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner) &&
               mount(QFile::encodeName(stub).constData(), dhclient, nullptr, MS_BIND, nullptr) == 0;
    }
    void tell(QByteArray command, const QByteArray &value = {})
    {
        QVERIFY(m_card->control(command.replace("%1", value)).value(u"ok"_s).toBool());
    }

    void begin()
    {
        m_store = std::make_unique<ProfileStore>(basePath + u"/Data"_s);
        QString error;
        if (m_store->list().isEmpty())
            QVERIFY2(m_store->add(homeProfile(), &error) && m_store->setDefault(u"Home"_s, &error),
                     qPrintable(error));
        m_card = std::make_unique<cardemu::CardThread>(
            std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s)));
        QCOMPARE(m_card->start(basePath + u"/card"_s), QString());
        m_monitor = std::make_unique<CardMonitor>(&m_owner);
        m_monitor->start();
        QTRY_VERIFY_WITH_TIMEOUT(m_monitor->state().modemReady, patience);
        makeService();
    }
    void makeService(std::unique_ptr<DiallerBackend> backend = nullptr)
    {
        m_service.reset();
        ConnectionParts parts;
        if (backend)
            parts.backend = std::move(backend);
        m_service = std::make_unique<ConnectionService>(m_monitor.get(), m_store.get(), std::move(parts));
        m_messages.clear();
        connect(m_service.get(), &ConnectionService::sigMessage, this,
                [this](const QString &text) { m_messages += text; });
    }

    static QString modemPort() { return QFileInfo(basePath + u"/card/modem"_s).canonicalFilePath(); }
    static QString worldOf(const QString &process)
    {
        return QFile::symLinkTarget(u"/proc/%1/ns/mnt"_s.arg(process)).section(u'/', -1);
    }
    /// Processes of this test: the machine may have others of that name.
    static std::vector<pid_t> running(const QByteArray &name)
    {
        std::vector<pid_t> pids;
        for (const QString &entry : QDir(u"/proc"_s).entryList(QDir::Dirs))
            if (const auto stat = processStat(entry.toInt());
                stat && stat->name == name && !stat->isZombie() && worldOf(entry) == worldOf(u"self"_s))
                pids.push_back(stat->pid);
        return pids;
    }
    /// The true diallers among them.
    static std::vector<pid_t> dialler()
    {
        std::vector<pid_t> pids = running("wvdial");
        std::erase_if(pids, [](pid_t pid) {
            return !QFile::symLinkTarget(u"/proc/%1/exe"_s.arg(pid)).startsWith(u"/usr/bin/"_s);
        });
        return pids;
    }

    std::optional<ScratchFolder> m_folder;
    FakeOwner m_owner;
    QString m_before;
    QStringList m_messages;
    std::unique_ptr<cardemu::CardThread> m_card;
    std::unique_ptr<CardMonitor> m_monitor;
    std::unique_ptr<ProfileStore> m_store;
    std::unique_ptr<ConnectionService> m_service;
};

/// Another run of the program, killed as soon as its dialler runs.
static int dialAndDie(const QString &port)
{
    basePath = QDir::currentPath();
    OwnBackend backend{SystemFiles()};
    for (const DialVerb verb : {DialVerb::Save, DialVerb::Write, DialVerb::Dial})
        backend.ask(request(verb, port), [](const DialResult &result) {
            if (!result.isDone())
                QCoreApplication::exit(1);
        });
    // Silent from then on: what it wrote to nobody would end it.
    QObject::connect(&backend, &DiallerBackend::sigOutput, [](const QByteArray &chunk) {
        if (chunk.contains("Waiting for carrier"))
            raise(SIGKILL);
    });
    return QCoreApplication::exec();
}

int main(int argc, char **argv)
{
    if (argc == 3 && qstrcmp(argv[1], "--dial-and-die") == 0) {
        QCoreApplication app(argc, argv);
        return dialAndDie(QString::fromLocal8Bit(argv[2]));
    }
    whyNot = enterOwnSystem();
    QCoreApplication app(argc, argv);
    TestDialler test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_dialler.moc"

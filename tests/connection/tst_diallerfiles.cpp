// SPDX-License-Identifier: GPL-3.0-or-later
#include "../child.h"
#include "../files.h"
#include "../rows.h"
#include "connection/diallerfiles.h"
#include "connection/diallertexts.h"
#include "connection/profilestore.h"

#include <QDirIterator>
#include <QRandomGenerator>

#include <csignal>
#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace corva;

using F = ProfileField;

namespace
{

void put(const QString &path, const QByteArray &content, mode_t mode = 0644)
{
    putFile(path, content);
    if (::chmod(QFile::encodeName(path).constData(), mode) != 0)
        qFatal("%s cannot be made", qPrintable(path));
}

mode_t modeOf(const QString &path)
{
    struct stat status = {};
    return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// Everything below the folder but the lock: kind, mode, owner, time and content or target by name.
QMap<QString, QByteArray> snapshot(const QString &root)
{
    QMap<QString, QByteArray> all;
    QDirIterator it(root, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                    QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        struct stat status = {};
        if (path.endsWith(u".lock"_s) || ::lstat(QFile::encodeName(path).constData(), &status) != 0)
            continue;
        QByteArray facts =
            QByteArray::number(status.st_mode, 8) + ' ' + QByteArray::number(status.st_gid) + ' ';
        if (S_ISLNK(status.st_mode))
            facts += QFile::symLinkTarget(path).toUtf8();
        else if (S_ISREG(status.st_mode))
            facts += QByteArray::number(qlonglong(status.st_mtim.tv_sec)) + ' ' + contentOf(path);
        all[path] = facts;
    }
    return all;
}

ConnectionProfile profile()
{
    ConnectionProfile p = ProfileStore::newProfile();
    p.setText(F::Name, u"Home"_s);
    p.setText(F::UserName, u"me"_s);
    p.setText(F::Password, u"se#cret"_s);
    return p;
}

/// As wvdial does it: a line of the same user goes, and the new one comes last.
void dialInto(const SystemFiles &files)
{
    for (const QString &path : {files.papSecrets, files.chapSecrets}) {
        QByteArray lines;
        for (const QByteArray &line : contentOf(path).trimmed().split('\n'))
            lines += line.startsWith("me\t*") ? QByteArray() : line + '\n';
        putFile(path, lines + "me\t*\tse\\#cret\n");
    }
}

bool connectOnce(DiallerFiles &files)
{
    const bool isWritten = files.saveConfigData() &&
                           files.readDeafaultConfigData(profile(), u"/dev/ttyUSB1"_s, {}) &&
                           files.saveManualDNS(u"8.8.8.8"_s, u"8.8.4.4"_s);
    if (isWritten)
        dialInto(files.files());
    return isWritten;
}

/// Runs `act` in a process of its own that is killed before its system call number `calls`, if it makes that
/// many. Returns how many it made.
int runAndKill(const std::function<void()> &act, int calls)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        ::raise(SIGSTOP);
        act();
        ::_exit(0);
    }
    int status = 0;
    int stops = 0;
    ::waitpid(child, &status, 0);
    // Every call stops the process twice, when it begins and when it ends.
    while (WIFSTOPPED(status) && stops < 2 * calls) {
        ::ptrace(PTRACE_SYSCALL, child, nullptr, nullptr);
        ::waitpid(child, &status, 0);
        ++stops;
    }
    if (WIFSTOPPED(status)) {
        ::kill(child, SIGKILL);
        ::waitpid(child, &status, 0);
    }
    return stops / 2;
}

const QByteArray refuseOthers = "refuse-mschap refuse-mschap-v2 refuse-eap ";
// Of the lines that may be commented out, those that are not.
const Rows<F, QString, QByteArray> authenticationRows{
    {"PAP", F::Pap, u"me@home"_s, "refuse-chap " + refuseOthers + "name me@home"},
    {"CHAP", F::Chap, u"a b#c"_s, "refuse-pap " + refuseOthers + "name \"a b#c\""},
    {"none", F::NoAuthentication, u"me"_s, "refuse-pap refuse-chap " + refuseOthers.trimmed()},
    {"no choice", F::Name, u"me"_s, "name me"},
};

const QByteArray oldResolver = "search example.org\nnameserver 1.1.1.1\n";
const Rows<QString, QByteArray, bool> resolverOfPppdRows{
    {"pppd was killed before it put it back", u"ppp97"_s, oldResolver, true},
    {"the link of another program is up", u"lo"_s, oldResolver, false},
    {"what it replaced were the person's own name servers", u"ppp97"_s,
     "nameserver 8.8.8.8\nsearch example.org\n", true},
    {"of another time", u"ppp97"_s, "nameserver 4.4.4.4\n", false},
};

const QByteArray mySecrets = "# mine\nme\t*\told # of another network\n\nyou\t*\tkey\n";
const Rows<QByteArray, QByteArray> secretsOfOthersRows{
    {"another user came", "# mine\nyou\t*\tkey\nme\t*\tse\\#cret\nhe * x\n",
     "# mine\nyou\t*\tkey\nhe * x\n"
     "me\t*\told # of another network\n"},
    {"a user went", "# mine\n\"me\" * 'se#cret' # dial\n", "# mine\nme\t*\told # of another network\n"},
    {"the same user for one server", mySecrets + "me\tserver\tse\\#cret\n",
     mySecrets + "me\tserver\tse\\#cret\n"},
    {"the dialler was killed while it wrote", "# mine\nyou\t*", mySecrets},
    {"the dialler was killed before it wrote", {}, mySecrets},
};

} // namespace

class TestDiallerFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// A file, a file behind a link, no file at all, and the resolver behind a link.
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        m_files = SystemFiles::below(m_root->path());
        for (const QString &folder : {u"/etc/ppp/peers"_s, u"/run"_s, u"/tmp"_s, u"/usr/share"_s})
            QDir().mkpath(path(folder));
        put(m_files.wvdialConf, "[Dialer Defaults]\nPassword = mine\r\n", 0640);
        put(path(u"/usr/share/options"_s), "lock\n", 0604);
        QVERIFY(QFile::link(u"../../usr/share/options"_s, m_files.pppOptions));
        put(path(u"/run/resolv.conf"_s), oldResolver);
        QVERIFY(QFile::link(u"../run/resolv.conf"_s, m_files.resolvConf));
        put(m_files.papSecrets, mySecrets, 0640);
        for (const QString &file : {m_files.wvdialConf, m_files.papSecrets, path(u"/usr/share/options"_s)}) {
            const timespec times[] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
            QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(file).constData(), times, 0), 0);
        }
    }

    void texts()
    {
        ConnectionProfile p = profile();
        p.setText(F::Phone, u"*99***1#"_s);
        PppOptions options;
        options.values[0] = 4;
        options.values[6] = 1500;
        QCOMPARE(
            wvdialConfText(p, u"/dev/ttyUSB1"_s),
            QByteArray("[Dialer Defaults]\r\nPhone = *99***1#\r\nUsername = me\r\nPassword = se#cret\r\n"
                       "Stupid Mode = 1\r\nDial Command = ATDT\r\nModem = /dev/ttyUSB1\r\nBaud = 115200\r\n"
                       "ISDN = 0\r\nAuto Reconnect = off\r\nCheck DNS = off\r\nDial Attempts = 1\r\n"
                       "Modem Type = Analog Modem\r\n"));
        QCOMPARE(
            pppOptionsText(p, options),
            QByteArray("debug\r\nnoauth\r\nnoipdefault\r\ndefaultroute\r\nusepeerdns\r\ncrtscts\r\nlock\r\n"
                       "kdebug 7 \r\n-detach \r\nlcp-echo-failure 4\r\nmtu 1500\r\n#refuse-pap\r\n"
                       "refuse-chap\r\nrefuse-mschap\r\nrefuse-mschap-v2\r\nrefuse-eap\r\nname me\r\n"
                       "#show-password\r\n"));
        QCOMPARE(peerText(false),
                 QByteArray("ipcp-accept-local\r\nipcp-accept-remote\r\n#lcp-echo-failure 0\r\n"
                            "#lcp-echo-interval 0\r\n"));
        QVERIFY(peerText(true).endsWith("#lcp-echo-interval 0\r\nplugin passwordfd.so\r\n"));
        put(m_files.issue, "Welcome to openSUSE Leap 15.4\n");
        QVERIFY(DiallerFiles(m_files).isSuse());
        p.setText(F::UserName, {});
        p.setText(F::Password, {});
        p.setOn(F::UsesDns, true);
        QVERIFY(wvdialConfText(p, u"/dev/ttyUSB1"_s).contains("\r\nUsername = null\r\nPassword = null\r\n"));
        QVERIFY(pppOptionsText(p, {}).contains("\r\n#usepeerdns\r\n"));
        QVERIFY(pppOptionsText(p, {}).contains("\r\n#name\r\n"));
    }

    void authentication_data() { addRows(authenticationRows); }
    void authentication()
    {
        const auto &[name, choice, user, expected] = currentRow(authenticationRows);
        ConnectionProfile p = profile();
        p.setOn(F::Pap, false);
        p.setOn(choice, true);
        p.setText(F::UserName, user);
        const QByteArray text = pppOptionsText(p, {});
        QByteArrayList plain = text.sliced(text.indexOf("-detach \r\n") + 10).trimmed().split('\n');
        plain.removeIf([](const QByteArray &line) { return line.startsWith('#'); });
        QCOMPARE(plain.join().replace('\r', ' ').trimmed(), expected);
    }

    void nameServers()
    {
        DiallerFiles files(m_files);
        QString error;
        QVERIFY(!files.saveManualDNS(u"8.8.8.8"_s, u"x"_s, &error));
        QCOMPARE(error, u"The DNS is invalid !"_s);
        QVERIFY(!files.saveManualDNS(u"8.8.8.8"_s, {}));
        QVERIFY(files.saveConfigData());
        QVERIFY(files.saveManualDNS(u"8.8.8.8"_s, {}));
        QCOMPARE(contentOf(m_files.resolvConf), QByteArray("nameserver 8.8.8.8\nsearch example.org\n"));
        QCOMPARE(modeOf(m_files.resolvConf), 0644u);
        QVERIFY(QFileInfo(m_files.resolvConf).isSymLink());
    }

    void thereAndBack()
    {
        const auto before = snapshot(m_root->path());
        DiallerFiles files(m_files);
        QVERIFY2(connectOnce(files), qPrintable(files.detail()));
        QCOMPARE(contentOf(m_files.savedWvdialConf), QByteArray("[Dialer Defaults]\nPassword = mine\r\n"));
        QCOMPARE(modeOf(m_files.savedWvdialConf), 0640u);
        QCOMPARE(contentOf(m_files.wvdialConf), wvdialConfText(profile(), u"/dev/ttyUSB1"_s));
        for (const QString &file : {m_files.wvdialConf, m_files.pppOptions, m_files.peer, m_files.journal})
            QCOMPARE(modeOf(file), 0600u);
        QVERIFY(!contentOf(m_files.journal).contains("#cret"));
        QVERIFY(!files.hasLeftovers());
        // Saved and written once more, and dialled as somebody else: the owner's files are what goes back.
        QVERIFY(connectOnce(files));
        ConnectionProfile other = profile();
        other.setText(F::UserName, u"other"_s);
        QVERIFY(files.readDeafaultConfigData(other, u"/dev/ttyUSB1"_s, {}));
        QVERIFY(files.recoverConfigData());
        QCOMPARE(snapshot(m_root->path()), before);
    }

    void missingCopy()
    {
        DiallerFiles files(m_files);
        QVERIFY(connectOnce(files));
        QVERIFY(QFile::remove(m_files.savedWvdialConf));
        QString error;
        QVERIFY(!files.recoverConfigData(&error));
        QCOMPARE(error, u"Recover wvdial config data failed!"_s);
        QCOMPARE(contentOf(m_files.wvdialConf), wvdialConfText(profile(), u"/dev/ttyUSB1"_s));
        QCOMPARE(contentOf(m_files.pppOptions), QByteArray("lock\n"));
        QVERIFY(!QFile::exists(m_files.journal)); // which a person may not read: it would count as a leftover
        QVERIFY(!files.hasLeftovers());
        QVERIFY(!files.recoverConfigData());
    }

    void unreadableCopy()
    {
        {
            DiallerFiles files(m_files);
            QVERIFY(connectOnce(files));
        }
        QVERIFY(QFile::remove(m_files.savedWvdialConf));
        QVERIFY(QDir().mkpath(m_files.savedWvdialConf));
        DiallerFiles files(m_files);
        QString error;
        QVERIFY(!files.saveConfigData(&error));
        const QStringList aside =
            QDir(path(u"/etc"_s)).entryList({u"tmpwvdial.conf.unreadable-*"_s}, QDir::Dirs);
        QCOMPARE(aside.size(), 1);
        QCOMPARE(error, u"Save wvdial config data failed!\n"_s + path(u"/etc/"_s) + aside.first());
        QVERIFY(files.saveConfigData());
        QVERIFY(files.recoverConfigData());
        QCOMPARE(contentOf(m_files.pppOptions), QByteArray("lock\n"));
    }

    void ownFilesAreNotSaved()
    {
        {
            DiallerFiles files(m_files);
            QVERIFY(connectOnce(files));
        }
        QVERIFY(QFile::remove(m_files.savedWvdialConf));
        DiallerFiles files(m_files);
        QVERIFY(files.saveConfigData());
        QVERIFY(!QFileInfo::exists(m_files.savedWvdialConf));
        QVERIFY(files.recoverConfigData());
        QVERIFY(!QFileInfo::exists(m_files.wvdialConf));
        QCOMPARE(contentOf(m_files.pppOptions), QByteArray("lock\n"));
    }

    void foreignCopiesGoBack()
    {
        put(m_files.savedWvdialConf, "older\n", 0600);
        DiallerFiles files(m_files);
        QVERIFY(files.hasLeftovers());
        QVERIFY(files.saveConfigData());
        QCOMPARE(contentOf(m_files.savedWvdialConf), QByteArray("older\n"));
        QVERIFY(files.recoverConfigData());
        QCOMPARE(contentOf(m_files.wvdialConf), QByteArray("older\n"));
        const QStringList kept = QDir(path(u"/etc"_s)).entryList({u"wvdial.conf.changed-*"_s});
        QCOMPARE(kept.size(), 1); // who knows whose it was
        QCOMPARE(contentOf(path(u"/etc/"_s) + kept.first()),
                 QByteArray("[Dialer Defaults]\nPassword = mine\r\n"));
    }

    void editedMeanwhile()
    {
        DiallerFiles files(m_files);
        QVERIFY(connectOnce(files));
        put(m_files.wvdialConf, "edited\n");
        QVERIFY(files.recoverConfigData());
        QCOMPARE(contentOf(m_files.wvdialConf), QByteArray("[Dialer Defaults]\nPassword = mine\r\n"));
        const QStringList kept = QDir(path(u"/etc"_s)).entryList({u"wvdial.conf.changed-*"_s});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(contentOf(path(u"/etc/"_s) + kept.first()), QByteArray("edited\n"));
    }

    void resolverOfPppd_data() { addRows(resolverOfPppdRows); }
    /// pppd's script keeps beside what it replaces.
    void resolverOfPppd()
    {
        const auto &[name, interfaceName, setAside, goesBack] = currentRow(resolverOfPppdRows);
        DiallerFiles files(m_files);
        QVERIFY(files.saveConfigData());
        const QByteArray before = contentOf(m_files.resolvConf);
        QVERIFY(files.saveManualDNS(u"8.8.8.8"_s, {}));
        const QByteArray ofLink = "nameserver 10.0.0.1\nsearch example.org\n";
        const QString backup = path(u"/run/resolv.conf.pppd-backup."_s + interfaceName);
        put(backup, setAside);
        put(path(u"/run/resolv.conf"_s), ofLink);
        QVERIFY(files.recoverConfigData());
        QCOMPARE(contentOf(m_files.resolvConf), goesBack ? before : ofLink);
        QVERIFY(QFileInfo(m_files.resolvConf).isSymLink());
        QCOMPARE(QFileInfo::exists(backup), !goesBack);
    }

    void secretsOfOthers_data() { addRows(secretsOfOthersRows); }
    void secretsOfOthers()
    {
        const auto &[name, meanwhile, after] = currentRow(secretsOfOthersRows);
        DiallerFiles files(m_files);
        QVERIFY(connectOnce(files));
        QCOMPARE(modeOf(m_files.savedPapSecrets), 0600u);
        put(m_files.papSecrets, meanwhile, 0640);
        QVERIFY(files.recoverConfigData());
        QCOMPARE(contentOf(m_files.papSecrets), after);
        QCOMPARE(modeOf(m_files.papSecrets), 0640u);
        QVERIFY(!QFile::exists(m_files.chapSecrets));
    }

    void otherProgram()
    {
        DiallerFiles first(m_files);
        QVERIFY(connectOnce(first));
        DiallerFiles second(m_files);
        QString error;
        QVERIFY(!second.hasLeftovers());
        QVERIFY(second.recoverLeftovers());
        QVERIFY(!second.saveConfigData(&error));
        QCOMPARE(error, u"Save wvdial config data failed!"_s);
        QCOMPARE(contentOf(m_files.wvdialConf), wvdialConfText(profile(), u"/dev/ttyUSB1"_s));
        QVERIFY(!second.deleteTmpFile());

        // Another person, who may read neither lock nor journal.
        for (const QString &path : {m_files.lock, m_files.journal})
            QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0), 0);
        QCOMPARE(::chmod(QFile::encodeName(m_root->path()).constData(), 0755), 0);
        const int status = inChild([this] {
            const bool isOther = ::geteuid() != 0 || ::setuid(65534) == 0;
            return isOther && !DiallerFiles(m_files).hasLeftovers() ? 0 : 1;
        });
        QCOMPARE(status, 0);
        for (const QString &path : {m_files.lock, m_files.journal})
            QCOMPARE(::chmod(QFile::encodeName(path).constData(), 0600), 0);

        QVERIFY(first.recoverConfigData());
        QVERIFY(second.saveConfigData());
    }

    void refusals()
    {
        const auto before = snapshot(m_root->path());
        DiallerFiles files(m_files);
        QString error;
        QVERIFY(!files.recoverConfigData(&error));
        QCOMPARE(error, u"Recover wvdial config data failed!"_s);
        QVERIFY(!files.readDeafaultConfigData(profile(), u"/dev/ttyUSB1"_s, {}, &error));
        QCOMPARE(error, u"Read default wvdial config data failed!"_s);
        QVERIFY(files.saveConfigData());
        ConnectionProfile hostile = profile();
        hostile.setText(F::UserName, u"me\nplugin /tmp/x.so"_s);
        QVERIFY(!files.readDeafaultConfigData(hostile, u"/dev/ttyUSB1"_s, {}, &error));
        QVERIFY(error.startsWith(u"A value holds a line break"_s));
        QVERIFY(QDir(path(u"/etc/ppp"_s)).rename(u"peers"_s, u"gone"_s));
        QVERIFY(!files.readDeafaultConfigData(profile(), u"/dev/ttyUSB1"_s, {}, &error));
        QCOMPARE(error, u"open file operation error!\n"_s + m_files.peer);
        QVERIFY(files.recoverConfigData());
        QVERIFY(QDir(path(u"/etc/ppp"_s)).rename(u"gone"_s, u"peers"_s));
        QCOMPARE(snapshot(m_root->path()), before);
        QVERIFY(QFile::remove(m_files.wvdialConf));
        QVERIFY(QDir().mkpath(m_files.wvdialConf));
        QVERIFY(!files.saveConfigData(&error));
        QCOMPARE(error, u"Save wvdial config data failed!"_s);
        QVERIFY(!files.hasLeftovers());
    }

    void connectInfo()
    {
        put(path(u"/victim"_s), "precious");
        QVERIFY(QFile::link(path(u"/victim"_s), m_files.connectInfo));
        DiallerFiles files(m_files);
        QVERIFY(files.makeConnectInfo());
        QVERIFY(!QFileInfo(m_files.connectInfo).isSymLink());
        QCOMPARE(modeOf(m_files.connectInfo), 0600u);
        QVERIFY(files.deleteTmpFile());
        QVERIFY(!QFileInfo::exists(m_files.connectInfo));
        QCOMPARE(contentOf(path(u"/victim"_s)), QByteArray("precious"));
        QVERIFY(QDir().mkpath(m_files.connectInfo));
        QString error;
        QVERIFY(!files.makeConnectInfo(&error));
        QCOMPARE(error, u"open file operation error!\n"_s + m_files.connectInfo);
    }

    void killedAnywhere()
    {
        const auto before = snapshot(m_root->path());
        const auto connectAndEnd = [this] {
            DiallerFiles files(m_files);
            connectOnce(files);
            files.recoverConfigData();
        };
        const auto recover = [this] { DiallerFiles(m_files).recoverLeftovers(); };
        const int calls = runAndKill(connectAndEnd, std::numeric_limits<int>::max() / 2);
        QCOMPARE(snapshot(m_root->path()), before);
        QVERIFY(calls > 100);

        bool isNumber = false;
        const int given = qEnvironmentVariableIntValue("CORVA_KILLS", &isNumber);
        const int rounds = isNumber ? given : 60;
        QRandomGenerator random(20260101);
        for (int round = 0; round < rounds; ++round) {
            const int moment = random.bounded(calls);
            runAndKill(connectAndEnd, moment);
            // The putting back is killed as well, and begun again.
            runAndKill(recover, random.bounded(calls / 4));
            DiallerFiles files(m_files);
            const bool isBack = round % 2 == 0 ? files.recoverLeftovers()
                                               : files.saveConfigData() && files.recoverConfigData();
            QVERIFY2(isBack, qPrintable(files.detail()));
            if (snapshot(m_root->path()) != before)
                qWarning("killed before the system call number %d of %d", moment, calls);
            QCOMPARE(snapshot(m_root->path()), before);
            QVERIFY(!files.hasLeftovers());
        }
    }

private:
    QString path(const QString &name) const { return m_root->path() + name; }

    std::unique_ptr<QTemporaryDir> m_root;
    SystemFiles m_files;
};

QTEST_APPLESS_MAIN(TestDiallerFiles)
#include "tst_diallerfiles.moc"

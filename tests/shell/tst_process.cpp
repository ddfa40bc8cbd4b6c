// SPDX-License-Identifier: GPL-3.0-or-later
// What belongs to the process as a whole: the instance lock, the version file, the debug log.
#include "../files.h"
#include "../rows.h"
#include "device/modemtypes.h"
#include "shell/commonconfig.h"
#include "shell/debuglog.h"
#include "shell/globals.h"
#include "shell/instance.h"
#include "shell/logging.h"
#include "shell/updatecfg.h"

#include <csignal>
#include <functional>
#include <optional>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

/// A child process that reports what `work` returned and then lives until it is killed.
class Child
{
public:
    explicit Child(const std::function<int()> &work)
    {
        int ends[2] = {-1, -1};
        if (::pipe(ends) != 0)
            return;
        m_pid = ::fork();
        if (m_pid == 0) {
            const int result = work();
            if (::write(ends[1], &result, sizeof result) != sizeof result)
                ::_exit(98);
            for (;;)
                ::pause();
        }
        ::close(ends[1]);
        m_reportEnd = ends[0];
    }
    Q_DISABLE_COPY_MOVE(Child)
    ~Child()
    {
        kill();
        ::close(m_reportEnd);
    }

    int pid() const { return int(m_pid); }

    /// What the work returned, or 1000 + the exit status when it ended the process.
    int result()
    {
        int value = 0;
        if (::read(m_reportEnd, &value, sizeof value) == sizeof value)
            return value;
        return 1000 + WEXITSTATUS(wait());
    }

    void kill()
    {
        if (m_pid > 0)
            ::kill(m_pid, SIGKILL);
        wait();
    }

private:
    int wait()
    {
        int status = 0;
        if (m_pid > 0)
            ::waitpid(m_pid, &status, 0);
        m_pid = -1;
        return status;
    }

    pid_t m_pid = -1;
    int m_reportEnd = -1;
};

const Rows<QByteArray, QString> versionRows{
    {"other line end", "1.2.3\r\nmore\r\n", u"1.2.3"_s},
    {"UTF-8", "1.2 \xc3\xa4\n", u"1.2 ä"_s},
    {"first line empty", "\n1.2.3\n", {}},
    {"empty", {}, {}},
};

} // namespace

class TestProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        basePath = m_folder->path();
    }

    void oneInstanceHoldsTheLock()
    {
        const QByteArray path = QFile::encodeName(basePath + u"/pid"_s);
        const auto take = [&] { return corva::takeInstanceLock(path.constData()); };
        putFile(basePath + u"/pid"_s, "a longer text than any number");

        Child first(take);
        QCOMPARE(first.result(), 0);
        const QByteArray number = QByteArray::number(first.pid());
        QCOMPARE(corva::instanceLockHolder(path.constData()), first.pid());
        QCOMPARE(contentOf(basePath + u"/pid"_s), number);

        Child second(take);
        QCOMPARE(second.result(), 1);
        QCOMPARE(contentOf(basePath + u"/pid"_s), number);

        first.kill();
        QCOMPARE(corva::instanceLockHolder(path.constData()), 0);
        Child third(take);
        QCOMPARE(third.result(), 0);
        QCOMPARE(contentOf(basePath + u"/pid"_s), QByteArray::number(third.pid()));
    }

    void lockFileThatCannotBeUsed()
    {
        for (const char *name : {"/no/pid", "/Data"}) { // no such folder; a folder itself
            const QByteArray path = QFile::encodeName(basePath) + name;
            Child child([&] { return corva::takeInstanceLock(path.constData()); });
            QCOMPARE(child.result(), 1001);
        }
    }

    void version_data() { addRows(versionRows); }
    void version()
    {
        const auto &[name, content, version] = currentRow(versionRows);
        QCOMPARE(readVersionInfo(), QString());
        putFile(basePath + u"/Data/version.txt"_s, content);
        QCOMPARE(readVersionInfo(), version);
    }

    void pipesInPlaceOfFilesAreNotWaitedFor()
    {
        const QStringList names{u"Data/config"_s, u"Data/version.txt"_s, u"Data/modem_types.xml"_s,
                                u"UpdateCfg.ini"_s};
        for (const QString &name : names)
            QCOMPARE(::mkfifo(QFile::encodeName(basePath + u'/' + name).constData(), 0600), 0);
        CommonConfig config;
        QVERIFY(!readConfigFile(config, basePath + u"/Data/config"_s));
        QCOMPARE(readVersionInfo(), QString());
        QCOMPARE(corva::ModemTypes::load(basePath + u"/Data/modem_types.xml"_s).warnings.size(), 1);
        QVERIFY(!corva::UpdateCfg::setValue(corva::UpdateKey::Device, u"x"_s));
    }

    void debugLogCollects()
    {
        const QString log = basePath + u"/Data/debug.log"_s;
        putFile(log, QByteArray(1000, 'x'));
        myMessageOutput(QtDebugMsg, {}, u"one ä"_s);
        myMessageOutput(QtWarningMsg, {}, u"dropped"_s);
        myMessageOutput(QtInfoMsg, {}, u"two"_s);
        myMessageOutput(QtCriticalMsg, {}, u"three"_s);
        outputLog2File();
        QCOMPARE(contentOf(log), QByteArray("one ä\r\ntwo\r\nthree\r\n"));

        myMessageOutput(QtDebugMsg, {}, u"four"_s);
        outputLog2File();
        QCOMPARE(contentOf(log), QByteArray("one ä\r\ntwo\r\nthree\r\nfour\r\n"));
    }

    void fatalMessageAborts()
    {
        const pid_t child = ::fork();
        if (child == 0) {
            myMessageOutput(QtFatalMsg, {}, u"fatal, on purpose"_s);
            ::_exit(0);
        }
        int status = 0;
        ::waitpid(child, &status, 0);
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGABRT);
    }

private:
    std::optional<ScratchFolder> m_folder;
};

QTEST_APPLESS_MAIN(TestProcess)
#include "tst_process.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
// What belongs to the process as a whole: the instance lock, the version file, the debug log, the signals
// that end it.
#include "../child.h"
#include "../files.h"
#include "../rows.h"
#include "device/modemtypes.h"
#include "shell/commonconfig.h"
#include "shell/debuglog.h"
#include "shell/endsignals.h"
#include "shell/globals.h"
#include "shell/instance.h"
#include "shell/logging.h"
#include "shell/updatecfg.h"

#include <QSignalSpy>
#include <csignal>
#include <optional>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace
{

const Rows<QByteArray, QString> versionRows{
    {"other line end", "1.2.3\r\nmore\r\n", u"1.2.3"_s},
    {"UTF-8", "1.2 \xc3\xa4\n", u"1.2 ä"_s},
    {"first line empty", "\n1.2.3\n", {}},
    {"empty", {}, {}},
};

const Rows<int> eachSignalBecomesAnEventRows{
    {"asked to end", SIGTERM},
    {"Ctrl+C", SIGINT},
    {"the terminal closed", SIGHUP},
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
        const QString path = basePath + u"/pid"_s;
        const QByteArray name = QFile::encodeName(path);
        const auto take = [&] { return corva::takeInstanceLock(name.constData()); };
        putFile(path, "a longer text than any number");
        QCOMPARE(inChild([&] { return take() == 0 && contentOf(path) == QByteArray::number(getpid()); }),
                 1 << 8);
        QCOMPARE(corva::instanceLockHolder(name.constData()), 0); // its end has freed the lock

        // From here on only children look: a process that closes the file gives its lock on it back.
        QCOMPARE(take(), 0);
        QCOMPARE(inChild(take), 1 << 8);
        const pid_t self = ::getpid();
        QCOMPARE(inChild([&] { return corva::instanceLockHolder(name.constData()) == self; }), 1 << 8);
        QCOMPARE(inChild([&] { return contentOf(path) == QByteArray::number(self); }), 1 << 8);
    }

    void lockFileThatCannotBeUsed()
    {
        for (const char *name : {"/no/pid", "/Data"}) { // no such folder; a folder itself
            const QByteArray path = QFile::encodeName(basePath) + name;
            QCOMPARE(inChild([&] { return 9 + corva::takeInstanceLock(path.constData()); }), 1 << 8);
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
        const int status = inChild([] {
            myMessageOutput(QtFatalMsg, {}, u"fatal, on purpose"_s);
            return 0;
        });
        QVERIFY(endedBy(status, SIGABRT));
    }

    void eachSignalBecomesAnEvent_data() { addRows(eachSignalBecomesAnEventRows); }
    void eachSignalBecomesAnEvent()
    {
        const auto &[name, number] = currentRow(eachSignalBecomesAnEventRows);
        const corva::EndSignals signals_;
        QSignalSpy ends(&signals_, &corva::EndSignals::sigEnd);
        ::raise(number);
        QCOMPARE(ends.size(), 0); // never from within the handler
        QTRY_COMPARE(ends.size(), 1);
        ::raise(number);
        QTRY_COMPARE(ends.size(), 2);
    }

    void endsAtOnceAgainWhenNobodyListensAnyMore()
    {
        const int status = inChild([] {
            std::optional<corva::EndSignals> over(std::in_place);
            over.reset();
            return ::raise(SIGTERM);
        });
        QVERIFY(endedBy(status, SIGTERM));
    }

private:
    std::optional<ScratchFolder> m_folder;
};

QTEST_GUILESS_MAIN(TestProcess)
#include "tst_process.moc"

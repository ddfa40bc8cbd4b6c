// SPDX-License-Identifier: GPL-3.0-or-later
#include "../child.h"
#include "../files.h"
#include "../rows.h"
#include "shell/safefile.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QRegularExpression>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// A content that tells whether it is whole: one letter, many times, and an end mark.
QByteArray wholeContent(int round)
{
    const int size = 20'000 + (round % 5) * 30'000;
    return QByteArray(size, char('a' + round % 26)) + '!';
}

bool isWhole(const QByteArray &content)
{
    const QByteArray body = content.chopped(1);
    return content.endsWith('!') && body.size() >= 20'000 && body.count(body.front()) == body.size();
}

[[noreturn]] void rewriteForEver(const QString &path, int startPipe)
{
    for (int round = 0;; ++round) {
        if (!writeFileSafely(path, wholeContent(round)))
            ::_exit(1);
        if (round == 0 && ::write(startPipe, "x", 1) != 1)
            ::_exit(2);
    }
}

/// Starts a child that rewrites the file, lets it run, kills it, and returns its wait status.
int writeAndKill(const QString &path, int microseconds)
{
    int started[2];
    if (::pipe(started) != 0)
        return -1;
    const pid_t child = ::fork();
    if (child == 0)
        rewriteForEver(path, started[1]);
    char byte = 0;
    const bool running = ::read(started[0], &byte, 1) == 1;
    QElapsedTimer timer;
    timer.start();
    while (running && timer.nsecsElapsed() < qint64(microseconds) * 1000) {
    }
    ::kill(child, SIGKILL);
    int status = 0;
    ::waitpid(child, &status, 0);
    ::close(started[0]);
    ::close(started[1]);
    return running ? status : -1;
}

const Rows<QString, QString> refusesWithASentenceRows{
    {"a folder of that name", u"folder"_s, u"is not a plain file"_s},
    {"a pipe of that name", u"pipe"_s, u"is not a plain file"_s},
    {"a ring of links", u"ring"_s, u"is a ring of links"_s},
    {"a file where a folder must be", u"plain/file"_s, u"Not a directory"_s},
    {"a name that is too long", QString(300, u'n'), u"File name too long"_s},
};

const Rows<QString> leavesTheOldFileWhereRightsForbidRows{
    {"file is read-only", u"folder/file"_s},
    {"folder is read-only", u"folder"_s},
};

} // namespace

class TestSafeFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void replacesAndKeepsPrivate()
    {
        const QString path = at("new/deep/file.xml");
        QVERIFY(writeFileSafely(path, "one"));
        QVERIFY(writeFileSafely(path, "two"));
        QCOMPARE(contentOf(path), QByteArray("two"));
        QCOMPARE(modeOf(path), 0600U);
        QCOMPARE(modeOf(at("new/deep")), 0700U);
        QCOMPARE(modeOf(at("new")), 0700U);
        QCOMPARE(filesIn("new/deep"), QStringList{u"file.xml"_s});
    }

    void followsLinks()
    {
        putFile(at("real"), "old");
        QVERIFY(QFile::link(u"real"_s, at("link")));
        QVERIFY(QFile::link(at("link"), at("linkToLink")));
        QVERIFY(QFile::link(at("absent"), at("dangling")));
        QVERIFY(writeFileSafely(at("linkToLink"), "new"));
        QVERIFY(writeFileSafely(at("dangling"), "made"));
        QCOMPARE(contentOf(at("real")), QByteArray("new"));
        QCOMPARE(contentOf(at("absent")), QByteArray("made"));
        QVERIFY(QFileInfo(at("linkToLink")).isSymLink());
        QVERIFY(QFileInfo(at("dangling")).isSymLink());
    }

    void refusesWithASentence_data() { addRows(refusesWithASentenceRows); }
    void refusesWithASentence()
    {
        const auto &[title, name, sentence] = currentRow(refusesWithASentenceRows);
        QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
        QVERIFY(QFile::link(at("ring"), at("ring")));
        putFile(at("plain"), "plain");
        const QStringList before = filesIn("");

        QString error;
        QVERIFY(!writeFileSafely(at(name), "content", &error));
        QVERIFY2(error.contains(sentence), qPrintable(error));
        QCOMPARE(filesIn(""), before);
        QCOMPARE(contentOf(at("plain")), QByteArray("plain"));
    }

    void leavesTheOldFileWhereRightsForbid_data() { addRows(leavesTheOldFileWhereRightsForbidRows); }
    void leavesTheOldFileWhereRightsForbid()
    {
        const auto &[name, locked] = currentRow(leavesTheOldFileWhereRightsForbidRows);
        QVERIFY(writeFileSafely(at("folder/file"), "old"));
        const int status = asOrdinaryUser([&, &place = locked] {
            ::chmod(QFile::encodeName(at(place)).constData(), 0500);
            return writeFileSafely(at("folder/file"), "new") ? 1 : 0;
        });
        ::chmod(QFile::encodeName(at(locked)).constData(), 0700);
        QCOMPARE(status, 0);
        QCOMPARE(contentOf(at("folder/file")), QByteArray("old"));
        QCOMPARE(filesIn("folder"), QStringList{u"file"_s});
    }

    void leavesTheOldFileOnAFullDisk()
    {
        QVERIFY(writeFileSafely(at("file"), "old"));
        const int status = asOrdinaryUser([&] {
            ::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{1000, 1000};
            ::setrlimit(RLIMIT_FSIZE, &limit);
            return writeFileSafely(at("file"), QByteArray(5000, 'x')) ? 1 : 0;
        });
        QCOMPARE(status, 0);
        QCOMPARE(contentOf(at("file")), QByteArray("old"));
        QCOMPARE(filesIn(""), QStringList{u"file"_s});
    }

    void killedInMidWrite()
    {
        constexpr int rounds = 250;
        const QString path = at("file");
        QVERIFY(writeFileSafely(path, wholeContent(0)));
        int leftovers = 0;
        for (int i = 0; i < rounds; ++i) {
            const int status = writeAndKill(path, QRandomGenerator::global()->bounded(3000));
            QVERIFY(endedBy(status, SIGKILL));
            const QByteArray content = contentOf(path);
            QVERIFY2(isWhole(content), qPrintable(u"a part of %1 bytes"_s.arg(content.size())));
            leftovers += int(filesIn("").size()) - 1;
        }
        QVERIFY2(leftovers > 0, "no kill hit a write: the test proves nothing");
        QVERIFY(writeFileSafely(path, "end"));
        QCOMPARE(filesIn(""), QStringList{u"file"_s});
    }

    void spareOthersFiles()
    {
        const QString mine = u".file.new-%1-77"_s.arg(::getpid());
        for (const QString &name : {mine, u".file.new-x"_s, u".file.new-"_s, u".file"_s, u"file.new-1"_s})
            putFile(at(name), "theirs");
        QVERIFY(writeFileSafely(at("file"), "content"));
        QCOMPARE(filesIn("").size(), 6);
    }

    void keepsBrokenFilesApart()
    {
        QStringList kept;
        for (const char *content : {"first", "second", "third"}) {
            putFile(at("file"), content);
            kept += keepBrokenFile(at("file"));
            QCOMPARE(contentOf(kept.last()), QByteArray(content));
            QVERIFY(!QFile::exists(at("file")));
        }
        static const QRegularExpression form(uR"(/file\.broken-\d{8}-\d{6}(-\d+)?$)"_s);
        for (const QString &name : kept)
            QVERIFY2(form.match(name).hasMatch(), qPrintable(name));
    }

    void keepsBehindALink()
    {
        putFile(at("real"), "broken");
        QVERIFY(QFile::link(at("real"), at("link")));
        QVERIFY(keepBrokenFile(at("link")).startsWith(at("real.broken-")));
        QVERIFY(writeFileSafely(at("link"), "new"));
        QCOMPARE(contentOf(at("real")), QByteArray("new"));
    }

    void readsNoMoreThanAsked()
    {
        putFile(at("file"), "abcdef");
        putFile(at("empty"), "");
        QCOMPARE(::mkfifo(QFile::encodeName(at("pipe")).constData(), 0600), 0);
        QCOMPARE(readAtMost(at("file"), 4), QByteArray("abcd"));
        QCOMPARE(readAtMost(at("file"), 100), QByteArray("abcdef"));
        QVERIFY(readAtMost(u"/proc/self/cmdline"_s, 4).size() == 4); // says 0 for its size
        QVERIFY(!readAtMost(at("empty"), 4).isNull());
        QVERIFY(readAtMost(at("pipe"), 4).isNull()); // nobody writes into it
        QVERIFY(readAtMost(at("absent"), 4).isNull());
    }

    void keepsNothingWhereNothingIs()
    {
        putFile(at("empty"), "");
        QCOMPARE(keepBrokenFile(at("absent")), QString());
        QCOMPARE(keepBrokenFile(at("empty")), QString());
        QVERIFY(QFile::exists(at("empty")));
    }

private:
    QString at(const QString &name) const { return m_folder->filePath(name); }
    QString at(const char *name) const { return at(QString::fromLatin1(name)); }

    QStringList filesIn(const char *folder) const
    {
        return QDir(at(folder))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }

    static unsigned modeOf(const QString &path)
    {
        struct stat status = {};
        ::stat(QFile::encodeName(path).constData(), &status);
        return status.st_mode & 07777;
    }

    /// Runs `work` in a child without the rights of root, and returns its result; -1 when it crashed.
    template <typename Work> int asOrdinaryUser(Work work) const
    {
        constexpr uid_t nobody = 65534;
        const bool isRoot = ::geteuid() == 0;
        if (isRoot) {
            for (const QString &name : {m_folder->path(), at("folder"), at("folder/file"), at("file")})
                (void)!::chown(QFile::encodeName(name).constData(), nobody, nobody);
        }
        const int status = inChild([&] { return isRoot && ::setuid(nobody) != 0 ? 99 : work(); });
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(TestSafeFile)
#include "tst_safefile.moc"

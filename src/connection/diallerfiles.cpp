// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/diallerfiles.h"

#include "connection/diallertexts.h"
#include "connection/filelock.h"
#include "connection/keptfile.h"
#include "connection/profilechecks.h"
#include "connection/secretslines.h"
#include "shell/logging.h"
#include "shell/safefile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

using Phase = DiallerJournal::Phase;
using Result = KeptFile::Result;

constexpr const char *saveFailed = QT_TRANSLATE_NOOP("DiallerFiles", "Save wvdial config data failed!");
constexpr const char *readFailed =
    QT_TRANSLATE_NOOP("DiallerFiles", "Read default wvdial config data failed!");
constexpr const char *openFailed = QT_TRANSLATE_NOOP("DiallerFiles", "open file operation error!");
constexpr const char *recoverFailed = QT_TRANSLATE_NOOP("DiallerFiles", "Recover wvdial config data failed!");
constexpr const char *dnsInvalid = QT_TRANSLATE_NOOP("DiallerFiles", "The DNS is invalid !");

constexpr qint64 longestResolver = 64LL * 1024;
constexpr qint64 longestJournal = 1024LL * 1024;

bool removeFile(const QString &path)
{
    return ::unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT;
}

QString systemError(const QString &path)
{
    return path + u": "_s + QString::fromLocal8Bit(std::strerror(errno));
}

} // namespace

class DiallerFiles::Private
{
public:
    explicit Private(const SystemFiles &systemFiles)
        : files(systemFiles), lock(systemFiles.lock),
          kept{
              KeptFile(u"wvdial.conf"_s, files.wvdialConf, files.savedWvdialConf, KeptFile::PutBack::Always),
              KeptFile(u"options"_s, files.pppOptions, files.savedPppOptions, KeptFile::PutBack::Always),
              KeptFile(u"peer"_s, files.peer, files.savedPeer, KeptFile::PutBack::Always),
              KeptFile(u"pap-secrets"_s, files.papSecrets, files.savedPapSecrets, KeptFile::PutBack::Secrets),
              KeptFile(u"chap-secrets"_s, files.chapSecrets, files.savedChapSecrets,
                       KeptFile::PutBack::Secrets),
              KeptFile(u"resolver"_s, files.resolver(), files.savedResolvConf, KeptFile::PutBack::IfOurs)}
    {
    }

    bool fail(const char *sentence, const QString &what, QString *error, const QString &file = {});
    bool takeInHand();
    bool note(Phase phase);
    void forget();
    bool isLeftOver() const;
    bool save();
    bool putAllBack(bool copiesMayBeMissing);
    Result putOneBack(const KeptFile &file, Phase before);
    QStringList pppdsBackups();

    SystemFiles files;
    FileLock lock;
    DiallerJournal journal;
    std::array<KeptFile, 6> kept;
    QString detail;
    QString setAside; ///< a copy that was put out of the way by the last putting back
};

/// A person who can do something about a file is told which it is, on a line of its own.
bool DiallerFiles::Private::fail(const char *sentence, const QString &what, QString *error,
                                 const QString &file)
{
    if (!what.isEmpty())
        detail = what;
    if (error)
        *error = QCoreApplication::translate("DiallerFiles", sentence) +
                 (file.isEmpty() ? QString() : u'\n' + file);
    return false;
}

/// The journal is read anew only when the files come into hand: while they are, nobody else writes it.
bool DiallerFiles::Private::takeInHand()
{
    if (lock.isHeld())
        return true;
    if (!lock.acquire()) {
        detail = u"another program has the dialler's files in hand"_s;
        return false;
    }
    removeUnfinishedFiles(files.journal);
    removeUnfinishedFiles(files.lost);
    journal = DiallerJournal::fromJson(readAtMost(files.journal, longestJournal));
    if (journal.phase == Phase::None)
        journal.files = DiallerJournal::fromJson(readAtMost(files.lost, longestJournal)).files;
    return true;
}

bool DiallerFiles::Private::note(Phase phase)
{
    journal.phase = phase;
    return writeFileSafely(files.journal, journal.toJson(), &detail);
}

void DiallerFiles::Private::forget()
{
    journal = {};
    for (const QString &file : {files.journal, files.lost}) {
        if (!removeFile(file))
            detail = systemError(file);
    }
}

/// The copy of the resolver file alone is none: it may be old, and others keep that file up to date.
bool DiallerFiles::Private::isLeftOver() const
{
    return journal.phase != Phase::None ||
           std::any_of(kept.begin(), kept.end() - 1, [](const KeptFile &file) { return file.hasCopy(); });
}

bool DiallerFiles::Private::save()
{
    setAside.clear();
    if (isLeftOver() && !putAllBack(true))
        return false;
    // Hashes of the program's own that still stand in a place are known from the last journal.
    if (!note(Phase::Saving))
        return false;
    for (const KeptFile &file : kept) {
        if (!file.take(&journal.files[file.name()], &detail))
            return false;
    }
    return note(Phase::Saved);
}

Result DiallerFiles::Private::putOneBack(const KeptFile &file, Phase before)
{
    switch (before) {
    case Phase::None: return file.putBackUnknown(journal.files.value(file.name()).written, &detail);
    case Phase::Saving: return file.tidy() ? Result::Done : Result::Failed;
    default: break;
    }
    return file.putBack(journal.files[file.name()], before == Phase::Restoring, &detail);
}

/// The resolver files that pppd's script set aside for links that are gone: it puts them back itself, unless
/// pppd was cut off. Those alone that hold what was there at the saving, or what was written since.
QStringList DiallerFiles::Private::pppdsBackups()
{
    const KeptFile &resolver = kept.back();
    const DiallerJournal::File known = journal.files.value(resolver.name());
    const auto isKnown = [&](const QByteArray &hash) {
        return hash == known.original || known.written.contains(hash);
    };
    const QFileInfo file(QFileInfo(resolver.path()).canonicalFilePath());
    const QString prefix = file.fileName() + u".pppd-backup."_s;
    QStringList backups;
    for (const QFileInfo &backup : file.dir().entryInfoList({prefix + u'*'}, QDir::Files | QDir::Hidden)) {
        const QString interfaceName = backup.fileName().sliced(prefix.size());
        if (!QFileInfo::exists(u"/sys/class/net/"_s + interfaceName) &&
            isKnown(DiallerJournal::hashOf(readAtMost(backup.filePath(), longestResolver))))
            backups += backup.filePath();
    }
    return backups;
}

/// Every file is tried. What is known of a file whose copy is lost is kept, apart from the journal: the
/// program's own that stands in its place must not be saved as the person's next time.
bool DiallerFiles::Private::putAllBack(bool copiesMayBeMissing)
{
    const Phase before = journal.phase;
    const QStringList backups = pppdsBackups();
    if (const KeptFile &resolver = kept.back(); !backups.isEmpty())
        journal.files[resolver.name()].written +=
            DiallerJournal::hashOf(readAtMost(resolver.path(), longestResolver));
    if (before == Phase::Saved && !note(Phase::Restoring))
        return false;
    DiallerJournal lost;
    setAside.clear();
    bool isAllBack = true;
    bool isAllTried = true;
    for (const KeptFile &file : kept) {
        const Result result = putOneBack(file, before);
        if (result == Result::Lost && (before != Phase::None || journal.files.contains(file.name())))
            lost.files[file.name()].written = journal.files[file.name()].written;
        if (result == Result::SetAside)
            setAside = detail;
        isAllTried = isAllTried && result != Result::Failed && result != Result::SetAside;
        isAllBack = isAllBack && (result == Result::Done || (result == Result::Lost && copiesMayBeMissing));
    }
    if (!isAllTried)
        return false;
    for (const QString &backup : backups)
        removeFile(backup);
    if (lost.files.isEmpty()) {
        forget();
        return isAllBack;
    }
    journal = lost;
    return writeFileSafely(files.lost, lost.toJson(), &detail) && removeFile(files.journal) && isAllBack;
}

DiallerFiles::DiallerFiles(const SystemFiles &files) : d(std::make_unique<Private>(files)) {}

DiallerFiles::~DiallerFiles() = default;

const SystemFiles &DiallerFiles::files() const
{
    return d->files;
}

const QString &DiallerFiles::detail() const
{
    return d->detail;
}

bool DiallerFiles::saveConfigData(QString *error)
{
    if (!d->takeInHand())
        return d->fail(saveFailed, {}, error);
    if (d->save())
        return true;
    const QString why = d->detail;
    const QString file = d->setAside;
    if (d->journal.phase == Phase::Saving)
        d->putAllBack(true);
    d->lock.release();
    return d->fail(saveFailed, why, error, file);
}

bool DiallerFiles::readDeafaultConfigData(const ConnectionProfile &profile, const QString &modemPort,
                                          const PppOptions &options, QString *error)
{
    const QString refusal = dialRefusal(profile, modemPort);
    if (!refusal.isEmpty()) {
        if (error)
            *error = refusal;
        d->detail = u"a value of the profile is refused"_s;
        return false;
    }
    if (!d->takeInHand())
        return d->fail(readFailed, {}, error);
    if (d->journal.phase != Phase::Saved)
        return d->fail(readFailed, u"the system's files are not saved"_s, error);
    // wvdial writes there itself, once the card is connected.
    const QByteArray secret = secretHash(dialledUser(profile), dialledPassword(profile));
    for (const QString &name : {u"pap-secrets"_s, u"chap-secrets"_s})
        d->journal.files[name].written += secret;
    const QByteArray contents[] = {wvdialConfText(profile, modemPort), pppOptionsText(profile, options),
                                   peerText(isSuse())};
    for (std::size_t i = 0; i < std::size(contents); ++i) {
        if (!QFileInfo::exists(QFileInfo(d->kept[i].path()).path()))
            return d->fail(openFailed, d->kept[i].path() + u": no such folder"_s, error, d->kept[i].path());
        d->journal.files[d->kept[i].name()].written += DiallerJournal::hashOf(contents[i]);
    }
    if (!d->note(Phase::Saved)) // once for all: each note waits for the disk
        return d->fail(openFailed, {}, error, d->files.journal);
    for (std::size_t i = 0; i < std::size(contents); ++i) {
        if (!d->kept[i].write(contents[i], &d->detail))
            return d->fail(openFailed, {}, error, d->kept[i].path());
    }
    return true;
}

bool DiallerFiles::recoverConfigData(QString *error)
{
    if (!d->takeInHand())
        return d->fail(recoverFailed, {}, error);
    const bool isBack = d->putAllBack(false);
    d->lock.release();
    return isBack || d->fail(recoverFailed, {}, error, d->setAside);
}

bool DiallerFiles::deleteTmpFile()
{
    const bool wasInHand = d->lock.isHeld();
    if (!d->takeInHand())
        return false;
    const bool isRemoved = removeFile(d->files.connectInfo);
    if (!isRemoved)
        d->detail = systemError(d->files.connectInfo);
    if (wasInHand)
        return isRemoved;
    if (!d->isLeftOver()) {
        for (const KeptFile &file : d->kept)
            file.tidy();
    }
    d->lock.release();
    return isRemoved;
}

bool DiallerFiles::hasLeftovers() const
{
    if (d->lock.isHeld() || d->lock.isHeldElsewhere())
        return false;
    const QFileInfo info(d->files.journal);
    if (info.exists() && !info.isReadable())
        return true;
    d->journal = DiallerJournal::fromJson(readAtMost(d->files.journal, longestJournal));
    return d->isLeftOver();
}

bool DiallerFiles::recoverLeftovers(QString *error)
{
    if (d->lock.isHeldElsewhere())
        return true;
    if (!d->takeInHand())
        return d->fail(recoverFailed, {}, error);
    bool isBack = true;
    d->setAside.clear();
    if (d->isLeftOver()) {
        isBack = d->putAllBack(d->journal.phase == Phase::None);
        removeFile(d->files.connectInfo);
    }
    d->lock.release();
    return isBack || d->fail(recoverFailed, {}, error, d->setAside);
}

bool DiallerFiles::noteResolver()
{
    if (d->journal.phase != Phase::Saved)
        return false;
    const KeptFile &resolver = d->kept.back();
    d->journal.files[resolver.name()].written +=
        DiallerJournal::hashOf(readAtMost(resolver.path(), longestResolver));
    return d->note(Phase::Saved);
}

bool DiallerFiles::saveManualDNS(const QString &preferred, const QString &alternative, QString *error)
{
    if (!isHostAddress(preferred) || (!alternative.isEmpty() && !isHostAddress(alternative)))
        return d->fail(dnsInvalid, u"no dotted quad"_s, error);
    if (!d->takeInHand())
        return d->fail(openFailed, {}, error);
    if (d->journal.phase != Phase::Saved)
        return d->fail(openFailed, u"the system's files are not saved"_s, error);

    const KeptFile &resolver = d->kept.back();
    const QStringList servers =
        alternative.isEmpty() ? QStringList{preferred} : QStringList{preferred, alternative};
    const QByteArray content = resolverText(readAtMost(resolver.path(), longestResolver), servers);
    // Every program must be able to read it.
    FileRights rights{S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH, ::geteuid(), ::getegid(), {0, UTIME_NOW}};
    if (const auto present = fileRights(resolver.path())) {
        rights = *present;
        rights.modified = {0, UTIME_NOW};
    }
    d->journal.files[resolver.name()].written += DiallerJournal::hashOf(content);
    const bool isWritten =
        d->note(Phase::Saved) && writeFileSafely(resolver.path(), content, rights, &d->detail);
    return isWritten || d->fail(openFailed, {}, error, resolver.path());
}

bool DiallerFiles::keepsConnectInfo() const
{
    const int descriptor = ::open(QFile::encodeName(d->files.connectInfo).constData(),
                                  O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    struct stat status = {};
    const bool isOwn = descriptor >= 0 && ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) &&
                       status.st_uid == ::geteuid() && status.st_nlink == 1;
    if (descriptor >= 0)
        ::close(descriptor);
    return isOwn;
}

bool DiallerFiles::makeConnectInfo(QString *error)
{
    if (!removeFile(d->files.connectInfo))
        return d->fail(openFailed, systemError(d->files.connectInfo), error, d->files.connectInfo);
    const int descriptor = ::open(QFile::encodeName(d->files.connectInfo).constData(),
                                  O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (descriptor < 0)
        return d->fail(openFailed, systemError(d->files.connectInfo), error, d->files.connectInfo);
    ::close(descriptor);
    return true;
}

bool DiallerFiles::isOSDistro(const QString &name) const
{
    constexpr qint64 longestIssue = 64LL * 1024;
    return QString::fromUtf8(readAtMost(d->files.issue, longestIssue)).contains(name, Qt::CaseInsensitive);
}

bool DiallerFiles::isSuse() const
{
    const bool isSuse = isOSDistro(u"suse"_s);
    if (isSuse)
        qCDebug(lcConnection).noquote() << logTime() + u"It's suse."_s;
    return isSuse;
}

} // namespace corva

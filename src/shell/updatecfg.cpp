// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/updatecfg.h"

#include "shell/globals.h"
#include "shell/inifile.h"
#include "shell/logging.h"
#include "shell/safefile.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

constexpr qint64 largestFile = 4'194'304;
constexpr auto section = "UPDATE";
constexpr const char *names[] = {"FIRMWARE_VERSION", "IMEI_ID",          "DEVICE",  "DeviceReady",
                                 "CLINT_GROUP",      "ENABLE_UPDATE",    "CM_NAME", "LANGUAGE_TYPE",
                                 "SOFTWARE_VERSION", "UPDATE_FREQUENCE", "WVDIAL"};
static_assert(std::size(names) == size_t(UpdateKey::Wvdial) + 1);

const char *nameOf(UpdateKey key)
{
    return names[static_cast<int>(key)];
}

QMutex &fileLock()
{
    static QMutex mutex;
    return mutex;
}

QByteArray filePath()
{
    return QFile::encodeName(basePath + u"/UpdateCfg.ini"_s);
}

/// The card's texts end up here: a line break would let them write keys of their own.
QByteArray onOneLine(const QString &value)
{
    QByteArray line = value.toUtf8();
    for (char &c : line) {
        const auto code = static_cast<unsigned char>(c);
        if (code < ' ' || code == 0x7F)
            c = ' ';
    }
    return line.trimmed();
}

/// Whether saving what was loaded would lose a line that somebody wrote: one longer than a piece, one that is
/// no pair, one of two values of a key. Comments do not count.
bool wouldLoseText(const QByteArray &file, const CIniFile &ini)
{
    constexpr qsizetype longestLine = 254; // and its end: one piece of the reader
    QByteArray group;
    for (const QByteArray &whole : file.split('\n')) {
        const QByteArray line = whole.trimmed();
        if (line.isEmpty() || QByteArrayView(";/#").contains(line.front()))
            continue;
        if (whole.size() <= longestLine && line.startsWith('[') && line.endsWith(']')) {
            group = line.sliced(1, line.size() - 2).trimmed();
            continue;
        }
        const qsizetype equals = line.indexOf('=');
        const QByteArray key = line.first(std::max<qsizetype>(equals, 0)).trimmed();
        if (whole.size() > longestLine || equals < 0 ||
            line.sliced(equals + 1).trimmed() != ini.Get(group.constData(), key.constData(), nullptr))
            return true;
    }
    return false;
}

/// Once: where a kept file lies beside already, its reader has not looked at it yet.
void keepWhatWouldBeLost(const QString &path, const CIniFile &ini)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
        return;
    const QString name = QFileInfo(path).fileName() + u".before-"_s;
    const QByteArray text = file.read(largestFile);
    if (!wouldLoseText(text, ini) || !QFileInfo(path).dir().entryList({name + u'*'}).isEmpty())
        return;
    const QString time = QDateTime::currentDateTime().toString(u"yyyyMMdd-hhmmss"_s);
    QString error;
    if (!writeFileSafely(QFileInfo(path).dir().filePath(name + time), text, &error))
        qCWarning(lcShell).noquote() << logTime() + error;
}

} // namespace

QString UpdateCfg::value(UpdateKey key)
{
    const QMutexLocker locker(&fileLock());
    const CIniFile ini(filePath().constData());
    return QString::fromUtf8(ini.Get(section, nameOf(key), ""));
}

bool UpdateCfg::setValues(const QMap<UpdateKey, QString> &values)
{
    const QMutexLocker locker(&fileLock());
    const QByteArray path = filePath();
    CIniFile ini;
    if (ini.Load(path.constData()) != 0 && QFileInfo::exists(QFile::decodeName(path)))
        keepBrokenFile(QFile::decodeName(path));

    bool changed = false;
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        const QByteArray line = onOneLine(it.value());
        const char *old = ini.Get(section, nameOf(it.key()), nullptr);
        changed = changed || !old || line != old;
        ini.Set(section, nameOf(it.key()), line.constData());
    }
    if (!changed)
        return true;
    keepWhatWouldBeLost(QFile::decodeName(path), CIniFile(path.constData()));
    return ini.Save(path.constData()) == 0;
}

} // namespace corva

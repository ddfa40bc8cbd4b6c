// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/updatecfg.h"

#include "shell/globals.h"
#include "shell/inifile.h"
#include "shell/safefile.h"

#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>

using namespace Qt::StringLiterals;

namespace corva
{
namespace
{

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
    return !changed || ini.Save(path.constData()) == 0;
}

} // namespace corva

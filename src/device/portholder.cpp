// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/portholder.h"

#include "device/plaintext.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr auto modemManagerService = "org.freedesktop.ModemManager1"_L1;
constexpr auto modemManagerName = "ModemManager"_L1;
constexpr int busTimeoutMs = 1000;

QString processName(qint64 pid)
{
    QFile file(u"/proc/%1/comm"_s.arg(pid));
    return file.open(QIODevice::ReadOnly) ? plainText(QString::fromLocal8Bit(file.readAll())) : QString();
}

PortHolder holderByPid(qint64 pid)
{
    return {processName(pid), pid};
}

bool isRunning(qint64 pid)
{
    return kill(static_cast<pid_t>(pid), 0) == 0 || errno == EPERM;
}

/// The process id in a lock file: decimal text as the Filesystem Hierarchy Standard 5.9 has it, or a binary
/// int as older programs write it. 0 when it is neither.
qint64 pidInLockFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray content = file.read(64);
    bool ok = false;
    const int decimal = content.trimmed().split(' ').constFirst().toInt(&ok);
    if (ok)
        return decimal;
    qint32 binary = 0;
    if (content.size() == sizeof binary)
        std::memcpy(&binary, content.constData(), sizeof binary);
    return binary;
}

/// The character device behind a path; 0 when there is none.
dev_t characterDevice(const QString &path)
{
    struct stat status = {};
    if (stat(QFile::encodeName(path).constData(), &status) != 0 || !S_ISCHR(status.st_mode))
        return 0;
    return status.st_rdev;
}

/// Whether one of the process's descriptors is this device. False, too, where this user may not look.
bool hasOpen(const QString &process, dev_t device)
{
    const QDir descriptors(u"/proc/"_s + process + u"/fd"_s);
    const QStringList entries = descriptors.entryList(QDir::Files | QDir::System);
    return std::ranges::any_of(entries, [&](const QString &entry) {
        return characterDevice(descriptors.filePath(entry)) == device;
    });
}

/// Every name the port goes by: the one given, and the one behind a link such as "/dev/at".
QStringList baseNames(const QString &port)
{
    QStringList names{QFileInfo(port).fileName()};
    const QString target = QFileInfo(port).symLinkTarget();
    if (!target.isEmpty())
        names.append(QFileInfo(target).fileName());
    return names;
}

using Properties = QMap<QString, QVariantMap>; // by interface
using Objects = QMap<QDBusObjectPath, Properties>;

/// "Ports" of a modem: an array of (name, type), the name as "ttyUSB2".
bool listsPort(const QVariant &ports, const QStringList &names)
{
    const auto argument = ports.value<QDBusArgument>();
    if (argument.currentSignature() != "a(su)"_L1)
        return false;
    bool found = false;
    argument.beginArray();
    while (!argument.atEnd()) {
        QString name;
        uint type = 0;
        argument.beginStructure();
        argument >> name >> type;
        argument.endStructure();
        found = found || names.contains(name);
    }
    argument.endArray();
    return found;
}

QDBusMessage askModemManager()
{
    const auto call =
        QDBusMessage::createMethodCall(modemManagerService, u"/org/freedesktop/ModemManager1"_s,
                                       u"org.freedesktop.DBus.ObjectManager"_s, u"GetManagedObjects"_s);
    return QDBusConnection::systemBus().call(call, QDBus::Block, busTimeoutMs);
}

bool modemManagerLists(const QString &port)
{
    const QDBusMessage reply = askModemManager();
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != "a{oa{sa{sv}}}"_L1)
        return false;
    Objects objects;
    reply.arguments().constFirst().value<QDBusArgument>() >> objects;
    const QStringList names = baseNames(port);
    return std::ranges::any_of(objects, [&](const Properties &interfaces) {
        return listsPort(interfaces.value(u"org.freedesktop.ModemManager1.Modem"_s).value(u"Ports"_s), names);
    });
}

/// A question to the bus itself ("NameHasOwner", ...) about ModemManager; an invalid value when there is no
/// bus.
QVariant askBus(const QString &method)
{
    auto call = QDBusMessage::createMethodCall(u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s,
                                               u"org.freedesktop.DBus"_s, method);
    call << QString(modemManagerService);
    const QDBusMessage reply = QDBusConnection::systemBus().call(call, QDBus::Block, busTimeoutMs);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments().value(0) : QVariant();
}

/// Programs that run as a service: closing them means stopping that.
struct ServiceRow {
    QLatin1StringView process;
    QLatin1StringView service;
    HolderAdvice advice;
};
constexpr std::array serviceRows{
    ServiceRow{modemManagerName, "ModemManager"_L1, HolderAdvice::StopModemManager},
    ServiceRow{"gammu-smsd"_L1, "gammu-smsd"_L1, HolderAdvice::StopMessageService},
    ServiceRow{"smsd"_L1, "smstools"_L1, HolderAdvice::StopMessageService}};

const ServiceRow *serviceOf(const PortHolder &holder)
{
    const auto *row =
        std::ranges::find_if(serviceRows, [&](const ServiceRow &r) { return r.process == holder.name; });
    return row == serviceRows.end() ? nullptr : row;
}

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PortHolder)
};

} // namespace

PortHolder holderByLockFile(const QString &port, const QString &lockFolder)
{
    for (const QString &name : baseNames(port)) {
        const qint64 pid = pidInLockFile(lockFolder + u"/LCK.."_s + name);
        if (pid > 0 && pid != getpid() && isRunning(pid))
            return holderByPid(pid);
    }
    return {};
}

PortHolder holderByOpenFile(const QString &port)
{
    const dev_t device = characterDevice(port);
    if (device == 0)
        return {};
    const QString self = QString::number(getpid());
    for (const QString &process : QDir(u"/proc"_s).entryList({u"[1-9]*"_s}, QDir::Dirs))
        if (process != self && hasOpen(process, device))
            return holderByPid(process.toLongLong());
    return {};
}

PortHolder holderByModemManager(const QString &port)
{
    if (!askBus(u"NameHasOwner"_s).toBool() || !modemManagerLists(port))
        return {};
    return {modemManagerName, askBus(u"GetConnectionUnixProcessID"_s).toLongLong()};
}

PortHolder findPortHolder(const QString &port)
{
    for (const PortHolder &holder : {holderByLockFile(port), holderByOpenFile(port)})
        if (holder.isKnown())
            return holder;
    return holderByModemManager(port);
}

HolderAdvice adviceFor(const PortHolder &holder)
{
    if (!holder.isKnown())
        return HolderAdvice::FindProgram;
    const ServiceRow *row = serviceOf(holder);
    return row ? row->advice : HolderAdvice::CloseProgram;
}

QString holderAdviceText(const PortHolder &holder, const QString &port)
{
    const QString name = holder.name.isEmpty() ? Texts::tr("process %1").arg(holder.pid) : holder.name;
    switch (adviceFor(holder)) {
    case HolderAdvice::StopModemManager:
        return Texts::tr(
                   "ModemManager is using the card on %1. Stop it with \"sudo systemctl stop ModemManager\", "
                   "or keep it off this card with the udev rule that comes with this program.")
            .arg(port);
    case HolderAdvice::StopMessageService:
        return Texts::tr(
                   "The message service %1 is using the card on %2. Stop it with \"sudo systemctl stop %3\".")
            .arg(name, port, serviceOf(holder)->service);
    case HolderAdvice::CloseProgram:
        return Texts::tr("%1 is using the card on %2. Close that program; the card is then found by itself.")
            .arg(name, port);
    case HolderAdvice::FindProgram: break;
    }
    return Texts::tr(
               "Another program is using the card on %1. \"sudo fuser -v %1\" names it; close it, and the "
               "card is found by itself.")
        .arg(port);
}

} // namespace corva

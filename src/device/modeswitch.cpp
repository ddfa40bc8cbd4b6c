// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modeswitch.h"

#include "device/modeswitchdata.h"
#include "device/plaintext.h"
#include "device/udevptr.h"
#include "shell/logging.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(ModeSwitch)
};

QString findProgram(const QString &name)
{
    const QString found = QStandardPaths::findExecutable(name);
    // A desktop session's PATH leaves out the administrator's folders.
    return found.isEmpty() ? QStandardPaths::findExecutable(name, {u"/usr/sbin"_s, u"/sbin"_s}) : found;
}

QString hex(quint16 number)
{
    return u"0x%1"_s.arg(number, 4, 16, QLatin1Char('0'));
}

QStringList idArguments(UsbId id)
{
    return {u"-v"_s, hex(id.vendor), u"-p"_s, hex(id.product)};
}

/// "-D" for a last line that says how it went. A stick that usb_modeswitch's data does not know is ejected as
/// a CD is, which is what most of them wait for.
QStringList arguments(const UsbIdentity &stick, const QByteArray &config)
{
    const QStringList how =
        config.isEmpty() ? QStringList{u"-K"_s} : QStringList{u"-f"_s, QString::fromUtf8(config)};
    return QStringList{u"-D"_s} + idArguments(stick.id) +
           QStringList{u"-b"_s, QString::number(stick.busNumber), u"-g"_s,
                       QString::number(stick.deviceNumber)} +
           how;
}

/// The same for a person to type.
QString command(const UsbIdentity &stick, const QByteArray &config)
{
    return config.isEmpty() ? u"sudo usb_modeswitch "_s + idArguments(stick.id).join(u' ') + u" -K"_s
                            : u"sudo usb_modeswitch_dispatcher --switch-mode "_s + stick.path;
}

/// 0 when this user may write to the stick, or errno.
int accessError(const UsbIdentity &stick)
{
    const UdevPtr<udev> context(udev_new());
    const UdevPtr<udev_device> device(context ? udev_device_new_from_subsystem_sysname(
                                                    context.get(), "usb", stick.path.toLatin1().constData())
                                              : nullptr);
    const char *devnode = device ? udev_device_get_devnode(device.get()) : nullptr;
    if (!devnode)
        return ENOENT;
    return access(devnode, R_OK | W_OK) == 0 ? 0 : errno;
}

SwitchResult failure(SwitchOutcome outcome, const QString &detail)
{
    qCWarning(lcDevice).noquote() << logTime() + u"mode switch:"_s << detail;
    return {outcome, detail};
}

SwitchResult resultOf(const QByteArray &output)
{
    if (output.contains("ok:"))
        return {SwitchOutcome::Switched, {}};
    if (output.contains("No devices in default mode found"))
        return failure(SwitchOutcome::NotThere,
                       Texts::tr("The stick is not there any more. Plug it in again."));
    return failure(
        SwitchOutcome::Failed,
        Texts::tr(
            "usb_modeswitch could not switch the stick: %1 Unplug it, wait a moment and plug it in again.")
            .arg(plainText(QString::fromLocal8Bit(output.trimmed().split('\n').constLast()))));
}

SwitchResult run(const QString &program, const QStringList &arguments, std::chrono::milliseconds timeout)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments, QIODevice::ReadOnly);
    if (process.waitForFinished(static_cast<int>(timeout.count())))
        return resultOf(process.readAll());
    if (process.error() != QProcess::Timedout)
        return failure(SwitchOutcome::Failed,
                       Texts::tr("usb_modeswitch did not run: %1").arg(process.errorString()));
    process.kill();
    process.waitForFinished();
    return failure(
        SwitchOutcome::TimedOut,
        Texts::tr(
            "usb_modeswitch did not finish in time. Unplug the stick, wait a moment and plug it in again."));
}

} // namespace

SwitchResult switchMode(const UsbIdentity &stick, const SwitchSettings &settings)
{
    const QString program = findProgram(settings.program);
    if (program.isEmpty())
        return failure(SwitchOutcome::NoProgram,
                       Texts::tr("The program usb_modeswitch is missing. Install it with "
                                 "\"sudo apt install usb-modeswitch\"."));
    const int error = accessError(stick);
    const QByteArray config = modeSwitchConfig(stick.id, stickTexts(stick), settings.dataFolders);
    if (error == EACCES || error == EPERM)
        return failure(
            SwitchOutcome::NoRights,
            Texts::tr(
                "You may not switch the stick yourself. Switch it with \"%1\", or unplug it and plug it "
                "in again: the system then switches it.")
                .arg(command(stick, config)));
    if (error != 0)
        return failure(SwitchOutcome::NotThere,
                       Texts::tr("The stick is not there any more. Plug it in again."));
    return run(program, arguments(stick, config), settings.timeout);
}

} // namespace corva

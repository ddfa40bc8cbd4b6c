// SPDX-License-Identifier: GPL-3.0-or-later
#include "emulatedcard.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QJsonDocument>
#include <QSocketNotifier>
#include <csignal>
#include <cstdio>
#include <sys/signalfd.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace
{

void say(FILE *where, const QString &text)
{
    std::fputs((text + u'\n').toLocal8Bit().constData(), where);
    std::fflush(where);
}

int fail(const QString &text)
{
    say(stderr, u"cardemu: "_s + text);
    return 1;
}

/// SIGINT and SIGTERM end the event loop, so that links and socket are taken away.
int signalDescriptor()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGINT);
    sigaddset(&set, SIGTERM);
    sigprocmask(SIG_BLOCK, &set, nullptr);
    return signalfd(-1, &set, SFD_CLOEXEC);
}

using Devices = QMap<QString, QString>;

/// Of "at=/dev/ttyGS0" and the like.
std::variant<Devices, cardemu::Complaint> deviceMap(const QStringList &words)
{
    static const QStringList ports{u"at"_s, u"modem"_s, u"voice"_s};
    Devices devices;
    for (const QString &word : words) {
        const QString port = word.section(u'=', 0, 0);
        const QString path = word.section(u'=', 1);
        if (!ports.contains(port) || !path.startsWith(u'/'))
            return u"--device %1: must be at=, modem= or voice= with a device's path"_s.arg(word);
        devices[port] = path;
    }
    return devices;
}

} // namespace

int main(int argc, char *argv[])
{
    const int signalled = signalDescriptor();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(u"cardemu"_s);
    QCoreApplication::setApplicationVersion(u"0.1.0"_s);

    QCommandLineParser parser;
    parser.setApplicationDescription(u"A USB data card without the hardware, on pseudo-terminals."_s);
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption dir(u"dir"_s, u"Folder for the links at, modem, voice and the socket control."_s,
                                 u"DIR"_s);
    const QCommandLineOption profileFile(
        u"profile"_s, u"Profile to be: a file, or wcdma (default), tdscdma, cdma, standard, locked, nosim."_s,
        u"FILE"_s, u"wcdma"_s);
    const QCommandLineOption device(
        u"device"_s,
        u"Serve a terminal device instead of a pseudo-terminal: at=/dev/ttyGS0, and modem=, voice=."_s,
        u"PORT=DEVICE"_s);
    const QCommandLineOption verbose(u"verbose"_s, u"Print what goes over the ports."_s);
    parser.addOptions({dir, profileFile, device, verbose});
    parser.process(application);
    if (!parser.isSet(dir) || !parser.positionalArguments().isEmpty())
        return fail(u"--dir DIR is needed; see --help"_s);

    const QString name = parser.value(profileFile);
    const bool isFile = name.contains(u'/') || name.contains(u'.');
    const auto profile = isFile ? cardemu::Profile::load(name) : cardemu::Profile::builtIn(name);
    if (const auto *complaint = std::get_if<cardemu::Complaint>(&profile))
        return fail(*complaint);

    const auto devices = deviceMap(parser.values(device));
    if (const auto *complaint = std::get_if<cardemu::Complaint>(&devices))
        return fail(*complaint);

    cardemu::EmulatedCard card(std::get<cardemu::Profile>(profile), std::get<Devices>(devices));
    if (const cardemu::Complaint complaint = card.start(parser.value(dir)); !complaint.isEmpty())
        return fail(complaint);
    if (parser.isSet(verbose))
        QObject::connect(&card.log(), &cardemu::TrafficLog::added, &card, [](const QJsonObject &entry) {
            say(stdout, QString::fromUtf8(QJsonDocument(entry).toJson(QJsonDocument::Compact)));
        });
    const QJsonObject ports = card.portsAsJson();
    for (auto port = ports.begin(); port != ports.end(); ++port)
        say(stdout,
            u"%1 -> %2"_s.arg(port.value()[u"link"_s].toString(), port.value()[u"device"_s].toString()));
    say(stdout, u"ready"_s);

    QSocketNotifier quitter(signalled, QSocketNotifier::Read);
    QObject::connect(&quitter, &QSocketNotifier::activated, &application, &QCoreApplication::quit);
    const int status = QCoreApplication::exec();
    ::close(signalled);
    return status;
}

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace corva
{

/// Where the system keeps what the dialler reads and leaves. The defaults are the real places; tests put all
/// of them below a folder of their own.
struct SystemFiles {
    QString wvdialConf = QStringLiteral("/etc/wvdial.conf");
    QString savedWvdialConf = QStringLiteral("/etc/tmpwvdial.conf");
    QString pppOptions = QStringLiteral("/etc/ppp/options");
    QString savedPppOptions = QStringLiteral("/etc/ppp/tmpoptions");
    QString peer = QStringLiteral("/etc/ppp/peers/wvdial");
    QString savedPeer = QStringLiteral("/etc/ppp/peers/tmpwvdial");
    QString resolvConf = QStringLiteral("/etc/resolv.conf");
    QString savedResolvConf = QStringLiteral("/etc/tmpresolv.conf");
    /// The resolver file where the layout of the package resolvconf exists.
    QString resolvconfFile = QStringLiteral("/etc/resolvconf/run/resolv.conf");

    /// pppd's secrets, into which wvdial writes those of each dial.
    QString papSecrets = QStringLiteral("/etc/ppp/pap-secrets");
    QString savedPapSecrets = QStringLiteral("/etc/ppp/tmppap-secrets");
    QString chapSecrets = QStringLiteral("/etc/ppp/chap-secrets");
    QString savedChapSecrets = QStringLiteral("/etc/ppp/tmpchap-secrets");

    /// The files of which one says that the link is built.
    QStringList pppLinkFiles = {QStringLiteral("/etc/ppp/ppp0.lnk"), QStringLiteral("/tmp/ppp0.lnk")};
    QString routeHelper = QStringLiteral("/etc/ppp/get_route_info");

    QString connectInfo = QStringLiteral("/tmp/connect_info");
    QString issue = QStringLiteral("/etc/issue");
    QString wvdialProgram = QStringLiteral("/usr/bin/wvdial");

    /// What `DiallerFiles` has done so far; there only while files are saved.
    QString journal = QStringLiteral("/etc/ppp/corva-saved.json");
    /// What is known of files whose copies were lost: a note for the next saving, and nothing to put back.
    QString lost = QStringLiteral("/etc/ppp/corva-lost.json");
    /// Locked while a program has the files in hand.
    QString lock = QStringLiteral("/run/corva-dialler.lock");

    /// The same places below `root`, except the dialler's program. Folders are not made.
    static SystemFiles below(const QString &root);

    /// The file that says which name servers the system asks.
    QString resolver() const;
};

} // namespace corva

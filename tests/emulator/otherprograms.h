// SPDX-License-Identifier: GPL-3.0-or-later
// Programs of others that use a card: what they know of it is the standard.
#pragma once

#include "testcard.h"

#include <QDir>
#include <QProcess>

/// What gammu prints for these commands, all in one session; connecting takes it seconds.
inline QString gammu(const TestCard &card, const QStringList &commands)
{
    const QString configuration = card.path(u"gammurc"_s);
    const QString batch = card.path(u"batch"_s);
    putFile(configuration,
            "[gammu]\ndevice = " + QFile::encodeName(card.path(u"at"_s)) + "\nconnection = at115200\n");
    putFile(batch, commands.join(u'\n').toUtf8() + '\n');
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    process.setProcessEnvironment(environment);
    process.start(u"gammu"_s, {u"-c"_s, configuration, u"batch"_s, batch});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        return u"gammu failed: "_s + process.errorString() + QString::fromUtf8(process.readAll());
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// smsd with its spool in the card's folder; it ends with this.
class Server
{
public:
    explicit Server(const TestCard &card) : m_card(card)
    {
        QByteArray settings =
            "devices = GSM1\nloglevel = 7\ndelaytime = 1\nerrorsleeptime = 1\nblocktime = 1\n"
            "autosplit = 3\nincoming_utf8 = yes\n";
        for (const QString &folder :
             {u"outgoing"_s, u"checked"_s, u"incoming"_s, u"failed"_s, u"sent"_s, u"report"_s}) {
            QDir().mkpath(card.path(folder));
            settings += setting(folder, folder);
        }
        settings += setting(u"logfile"_s, u"log"_s) + setting(u"infofile"_s, u"running"_s) +
                    setting(u"pidfile"_s, u"pid"_s);
        settings += "[GSM1]\n" + setting(u"device"_s, u"at"_s) +
                    "incoming = yes\npre_init = no\nmemory_start = 1\ncheck_memory_method = 31\n"
                    "init = AT+CPMS=\"SM\",\"SM\";+CSMS=1;+CNMI=2,1,0,1,0\n"
                    "using_routed_status_report = yes\nrouted_status_report_cnma = yes\n";
        write(u"smsd.conf"_s, settings);
        m_process.start(u"/usr/sbin/smsd"_s, {u"-t"_s, u"-c"_s, card.path(u"smsd.conf"_s)});
    }
    ~Server()
    {
        m_process.terminate();
        m_process.waitForFinished(20000);
    }
    Server(const Server &) = delete;
    Server &operator=(const Server &) = delete;

    void write(const QString &name, const QByteArray &text) const { putFile(m_card.path(name), text); }
    /// All files of a folder of the spool, one behind the other.
    QByteArray spool(const QString &folder) const
    {
        const QDir dir(m_card.path(folder));
        QByteArray texts;
        for (const QString &name : dir.entryList(QDir::Files))
            texts += contentOf(dir.filePath(name)) + '\n';
        return texts;
    }

private:
    QByteArray setting(const QString &key, const QString &name) const
    {
        return key.toLatin1() + " = " + QFile::encodeName(m_card.path(name)) + '\n';
    }

    const TestCard &m_card;
    QProcess m_process;
};

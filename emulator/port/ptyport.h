// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "port/cardport.h"
#include "port/openwatch.h"

#include <QTimer>

namespace cardemu
{

/// A port on a pseudo-terminal with a link to its device file. A client that sets the speed to 0, which is
/// how DTR is dropped, is noticed while that is watched for.
class PtyPort : public CardPort
{
    Q_OBJECT

public:
    explicit PtyPort(QObject *parent = nullptr);
    ~PtyPort() override { close(); }

    /// Makes a new pseudo-terminal in raw mode and the link to it. A link that is in the way is replaced, any
    /// other file is left alone, and that is the complaint.
    Complaint open(const QString &link) override;
    /// Who has the port open meets the end of file, and the link is gone.
    void close() override;

    bool isOpen() const override { return m_master >= 0; }
    QString link() const override { return m_link; }
    QString device() const override { return m_device; }
    bool hasClient() override;

    /// Bytes for the client; dropped while no client has the port open, as a real port does.
    void write(const QByteArray &bytes) override;
    qsizetype unwritten() const override { return m_unwritten.size(); }
    void setReading(bool reading) override;
    void watchForHangUp(bool watches) override;

private:
    Complaint openPair();
    Complaint makeLink(const QString &link);
    bool isOpenElsewhere() const;
    void look();
    QByteArray read() const;
    void noticeClients();
    void flush();
    void leave();

    int m_master = -1;
    QString m_link;
    QString m_device;
    QByteArray m_unwritten;
    bool m_hasClient = false;
    bool m_reading = true;
    QTimer m_hangUpWatch; ///< nothing tells of a changed speed
    std::unique_ptr<OpenWatch> m_watch;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
};

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/fields.h"
#include "port/openwatch.h"

#include <QObject>

namespace cardemu
{

/// One serial port of the card: a pseudo-terminal with a link to its device file.
class PtyPort : public QObject
{
    Q_OBJECT

public:
    explicit PtyPort(QObject *parent = nullptr) : QObject(parent) {}
    ~PtyPort() override { close(); }

    /// Makes a new pseudo-terminal in raw mode and the link to it. A link that is in the way is replaced, any
    /// other file is left alone, and that is the complaint.
    Complaint open(const QString &link);
    /// As pulling the stick: who has the port open meets the end of file, and the link is gone.
    void close();

    bool isOpen() const { return m_master >= 0; }
    QString link() const { return m_link; }
    QString device() const { return m_device; }
    /// A client has the port open now.
    bool hasClient();

    /// Bytes for the client; dropped while no client has the port open, as a real port does.
    void write(const QByteArray &bytes);
    /// Written but not yet taken by the kernel.
    qsizetype unwritten() const { return m_unwritten.size(); }
    void setReading(bool reading);

Q_SIGNALS:
    void received(const QByteArray &bytes);
    /// The kernel has taken everything.
    void flushed();
    /// The last client closed the port. The next one may be there already.
    void clientLeft();

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
    std::unique_ptr<OpenWatch> m_watch;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
};

} // namespace cardemu

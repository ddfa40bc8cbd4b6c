// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/fields.h"

#include <QObject>
#include <QProcess>
#include <QSocketNotifier>
#include <memory>

namespace cardemu
{

/// The network's side of a data call: a program whose standard input and output are the line, such as
/// "pppd notty noauth 10.64.64.64:10.1.2.3".
class DataPeer : public QObject
{
    Q_OBJECT

public:
    explicit DataPeer(QObject *parent = nullptr) : QObject(parent) {}
    /// A program that still runs is killed.
    ~DataPeer() override;

    /// Starts a command line of the shell.
    Complaint start(const QString &command);
    /// The line is dead from now on; the program is told to end, and this object goes once it has.
    void hangUp();
    qint64 processId() const { return m_process.processId(); }

    void write(const QByteArray &bytes);
    qsizetype unwritten() const { return m_unwritten.size(); }
    void setReading(bool reading);

Q_SIGNALS:
    void received(const QByteArray &bytes);
    void flushed();
    /// The program has closed its end.
    void ended();

private:
    void read();
    void flush();
    void closeLine();

    QProcess m_process;
    int m_line = -1;
    QByteArray m_unwritten;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
};

} // namespace cardemu

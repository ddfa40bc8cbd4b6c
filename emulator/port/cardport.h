// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "card/fields.h"

#include <QObject>

namespace cardemu
{

/// One serial port of the card, whatever carries it.
class CardPort : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Brings the port up at `link`, the path under which clients, or the port's device, are found.
    virtual Complaint open(const QString &link) = 0;
    /// As pulling the stick.
    virtual void close() = 0;

    virtual bool isOpen() const = 0;
    virtual QString link() const = 0;
    virtual QString device() const = 0;
    /// A client has the port open now, as far as that can be seen.
    virtual bool hasClient() = 0;

    virtual void write(const QByteArray &bytes) = 0;
    /// Written but not yet taken by the kernel.
    virtual qsizetype unwritten() const = 0;
    virtual void setReading(bool reading) = 0;
    /// Looks out for a dropped DTR (`hungUp`), where the port shows it.
    virtual void watchForHangUp(bool watches) = 0;

Q_SIGNALS:
    void received(const QByteArray &bytes);
    /// The kernel has taken everything.
    void flushed();
    /// The last client closed the port. The next one may be there already.
    void clientLeft();
    /// The client dropped DTR.
    void hungUp();
    /// The computer's end of the cable is gone; the port waits for it to come back.
    void pulled();
};

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/storefile.h"

#include "shell/logging.h"
#include "shell/safefile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 largestFile = 512LL * 1024 * 1024;

QString sentence(const char *text)
{
    return QCoreApplication::translate("MessageStore", text);
}

/// The bytes under a name beside the file that is not taken; empty when they cannot be written.
QString keepCopy(const QString &path, const QByteArray &bytes, QString *error)
{
    const QString start = path + u".broken-"_s + QDateTime::currentDateTime().toString(u"yyyyMMdd-hhmmss"_s);
    QString name = start;
    for (int i = 2; QFileInfo::exists(name); ++i)
        name = start + u'-' + QString::number(i);
    return writeFileSafely(name, bytes, error) ? name : QString();
}

QByteArray storeBytes(const PlaceOwners &owners, const std::vector<RecordPtr> &records)
{
    StoreFile::prepare(records);
    const QByteArray head = storeXmlHead(owners);
    qsizetype size = head.size() + storeXmlTail().size();
    for (const RecordPtr &record : records)
        size += record->xml.size();
    QByteArray bytes;
    bytes.reserve(size);
    bytes += head;
    for (const RecordPtr &record : records)
        bytes += record->xml;
    return bytes += storeXmlTail();
}

} // namespace

void StoreTicket::settle(bool isWritten)
{
    if (!isWritten)
        m_isWritten = false;
    if (--m_open > 0)
        return;
    m_promise.addResult(m_isWritten.load());
    m_promise.finish();
}

StoreFile::StoreFile(const QString &path, QThreadPool &pool, Listener listener)
    : m_path(path), m_pool(pool), m_listener(std::move(listener))
{
}

void StoreFile::prepare(const std::vector<RecordPtr> &records)
{
    for (const RecordPtr &record : records) {
        if (record->xml.isEmpty())
            record->xml = messageXml(record->message);
    }
}

std::vector<Message> StoreFile::read()
{
    if (!QFileInfo::exists(m_path))
        return {};
    QByteArray bytes = readAtMost(m_path, largestFile + 1);
    if (bytes.size() > largestFile)
        bytes = QByteArray();
    ParsedMessages parsed;
    if (!bytes.isNull())
        parsed = parseStoreXml(bytes);
    setOwners(parsed.owners);
    if (!bytes.isNull() && parsed.problem.isEmpty())
        return parsed.messages;
    qCWarning(lcShell).noquote() << logTime() + m_path << parsed.problem;
    m_isDamaged = true;
    m_isKept = false;
    m_damagedBytes = bytes;
    QString error;
    if (!keepDamaged(&error))
        m_listener.sayError(error);
    return parsed.messages;
}

bool StoreFile::keepDamaged(QString *error)
{
    const QString name = QFileInfo(m_path).fileName();
    if (!m_damagedBytes.isNull() && m_damagedBytes.isEmpty()) {
        m_listener.sayError(sentence(QT_TRANSLATE_NOOP("MessageStore", "%1 was empty.")).arg(name));
        m_isKept = true;
        return true;
    }
    const QString kept =
        m_damagedBytes.isNull() ? keepBrokenFile(m_path) : keepCopy(m_path, m_damagedBytes, error);
    m_isKept = !kept.isEmpty();
    if (m_isKept) {
        m_damagedBytes = QByteArray();
        m_listener.sayError(
            sentence(QT_TRANSLATE_NOOP("MessageStore",
                                       "%1 could not be read in full. What stood in it is kept as %2."))
                .arg(name, QFileInfo(kept).fileName()));
    } else if (error->isEmpty()) {
        *error =
            sentence(QT_TRANSLATE_NOOP("MessageStore", "%1 can neither be read nor moved aside.")).arg(name);
    }
    return m_isKept;
}

void StoreFile::setOwners(const PlaceOwners &owners)
{
    const std::scoped_lock lock(m_mutex);
    m_owners = owners;
}

PlaceOwners StoreFile::owners() const
{
    const std::scoped_lock lock(m_mutex);
    return m_owners;
}

void StoreFile::write(const QList<RecordPtr> &records, const TicketPtr &ticket)
{
    const std::scoped_lock lock(m_mutex);
    enqueue(records, ticket);
}

void StoreFile::settle(const QList<RecordPtr> &records, const TicketPtr &ticket)
{
    const std::scoped_lock lock(m_mutex);
    if (!m_isWritten || m_isRunning || m_order)
        enqueue(records, ticket);
}

void StoreFile::enqueue(const QList<RecordPtr> &records, const TicketPtr &ticket)
{
    if (!m_order)
        m_order.emplace();
    m_order->owners = m_owners;
    m_order->records.assign(records.begin(), records.end());
    ticket->hold();
    m_order->waiting.push_back(ticket);
    if (!m_isRunning)
        m_pool.start([this] { run(); });
    m_isRunning = true;
}

std::optional<StoreFile::Order> StoreFile::next()
{
    const std::scoped_lock lock(m_mutex);
    std::optional<Order> order = std::move(m_order);
    m_order.reset();
    m_isRunning = order.has_value();
    return order;
}

void StoreFile::run()
{
    while (std::optional<Order> order = next()) {
        const bool isWritten = carryOut(*order);
        {
            const std::scoped_lock lock(m_mutex);
            m_isWritten = isWritten;
        }
        for (const TicketPtr &ticket : order->waiting)
            ticket->settle(isWritten);
    }
}

bool StoreFile::carryOut(const Order &order)
{
    QString error;
    const bool isWritten = (m_isKept || keepDamaged(&error)) &&
                           writeFileSafely(m_path, storeBytes(order.owners, order.records), &error);
    // Said once, not with every message that comes while the disk is full.
    if (!isWritten && error != m_lastError) {
        qCWarning(lcShell).noquote() << logTime() + error;
        m_listener.sayError(error);
    }
    m_lastError = error;
    if (!isWritten)
        m_listener.notWritten();
    else if (std::exchange(m_hasFailed, false))
        m_listener.writtenAgain();
    m_hasFailed = !isWritten;
    return isWritten;
}

} // namespace corva

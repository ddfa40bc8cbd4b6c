// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/messagetransfer.h"

#include "shell/safefile.h"
#include "shell/whendone.h"
#include "sms/messageexport.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPromise>
#include <QThreadPool>
#include <QTimer>
#include <algorithm>
#include <iterator>
#include <memory>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 largestFile = 512LL * 1024 * 1024;
constexpr size_t addedAtOnce = 200; ///< what takes a few milliseconds

QString sentence(const char *text)
{
    return QCoreApplication::translate("MessageTransfer", text);
}

/// A running import; it lives as long as a step of it waits.
struct Import {
    MessageStore *store;
    QString name;
    ExportedMessages read;
    size_t done = 0;
    ImportOutcome outcome;
    QPromise<ImportOutcome> promise;

    void finish()
    {
        promise.addResult(outcome);
        promise.finish();
    }
};
using ImportPtr = std::shared_ptr<Import>;

void read(const ImportPtr &import, const QString &path)
{
    const QByteArray bytes = readAtMost(path, largestFile + 1);
    if (!bytes.isNull() && bytes.size() <= largestFile)
        import->read = parseExport(bytes);
    import->outcome.unreadable = import->read.unreadable;
    if (bytes.isNull() || bytes.size() > largestFile)
        import->outcome.error = sentence(QT_TRANSLATE_NOOP("MessageTransfer", "%1 cannot be read."));
    else if (!import->read.isKnown)
        import->outcome.error =
            sentence(QT_TRANSLATE_NOOP("MessageTransfer", "%1 is not a file of messages."));
}

void finishWhenStored(const ImportPtr &import, const QFuture<bool> &stored)
{
    whenDone(stored, import->store, [import](std::optional<bool> isStored) {
        if (!isStored.value_or(false))
            import->outcome.error =
                sentence(QT_TRANSLATE_NOOP("MessageTransfer", "The messages of %1 could not be saved."))
                    .arg(import->name);
        import->finish();
    });
}

void addSome(const ImportPtr &import)
{
    std::vector<Message> &all = import->read.messages;
    const size_t end = std::min(all.size(), import->done + addedAtOnce);
    std::vector<Message> some(std::make_move_iterator(all.begin() + std::ptrdiff_t(import->done)),
                              std::make_move_iterator(all.begin() + std::ptrdiff_t(end)));
    const MessageStore::Imported added = import->store->import(std::move(some));
    import->outcome.added += added.added;
    import->outcome.present += added.present;
    import->done = end;
    if (end == all.size())
        return finishWhenStored(import, added.stored);
    QTimer::singleShot(0, import->store, [import] { addSome(import); });
}

/// What is here already is known only once the store is loaded, and behind what waited for that too.
void addWhenLoaded(const ImportPtr &import)
{
    if (import->store->isLoaded())
        return addSome(import);
    constexpr auto onceLater = Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection);
    QObject::connect(
        import->store, &MessageStore::sigLoaded, import->store, [import] { addSome(import); }, onceLater);
}

} // namespace

QFuture<QString> exportMessages(const std::vector<Message> &messages, const QString &path)
{
    const auto promise = std::make_shared<QPromise<QString>>();
    promise->start();
    QThreadPool::globalInstance()->start([promise, path, messages = messages]() mutable {
        for (Message &message : messages) // whose SIM it was is nobody else's business
            message.subscriber.clear();
        const bool isTable = QFileInfo(path).suffix().compare("csv"_L1, Qt::CaseInsensitive) == 0;
        QString error;
        writeFileSafely(path, isTable ? messagesCsv(messages) : messagesJson(messages), &error);
        promise->addResult(error);
        promise->finish();
    });
    return promise->future();
}

QFuture<ImportOutcome> importMessages(MessageStore *store, const QString &path)
{
    const auto import = std::make_shared<Import>();
    import->store = store;
    import->name = QFileInfo(path).fileName();
    import->promise.start();
    QFuture<ImportOutcome> future = import->promise.future();
    const auto wasRead = std::make_shared<QPromise<bool>>();
    wasRead->start();
    whenDone(wasRead->future(), store, [import](std::optional<bool>) {
        if (import->outcome.error.isEmpty())
            return addWhenLoaded(import);
        import->outcome.error = import->outcome.error.arg(import->name);
        import->finish();
    });
    QThreadPool::globalInstance()->start([import, wasRead, path] {
        read(import, path);
        wasRead->addResult(true);
        wasRead->finish();
    });
    return future;
}

} // namespace corva

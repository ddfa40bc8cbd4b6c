// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFuture>
#include <QFutureWatcher>
#include <QObject>
#include <optional>

namespace corva
{

/// Calls `function` in the thread of `context` with the future's result, or with std::nullopt when it ended
/// without one. An object that is gone by then gets nothing. (`QFuture::then` with a context does not survive
/// that: before Qt 6.6 it calls into the object that was.)
template <typename Result, typename Function>
void whenDone(const QFuture<Result> &future, QObject *context, Function function)
{
    auto *watcher = new QFutureWatcher<Result>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context, [watcher, function] {
        watcher->deleteLater();
        const QFuture<Result> done = watcher->future();
        function(done.resultCount() > 0 ? std::optional<Result>(done.result()) : std::nullopt);
    });
    watcher->setFuture(future);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFuture>
#include <QFutureWatcher>

namespace corva
{

/// Calls `then(value)` on the thread of `context` once the future has its value, or `otherwise()` when it was
/// cancelled. Calls neither when `context` is gone by then: a dialog may be closed while its job runs.
template <typename Value, typename Then, typename Otherwise>
void deliver(const QFuture<Value> &future, QObject *context, Then then, Otherwise otherwise)
{
    auto *watcher = new QFutureWatcher<Value>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, context, [=] {
        watcher->deleteLater();
        if (watcher->isCanceled())
            otherwise();
        else
            then(watcher->result());
    });
    watcher->setFuture(future);
}

/// The same where a cancelled job needs no word.
template <typename Value, typename Then>
void deliver(const QFuture<Value> &future, QObject *context, Then then)
{
    deliver(future, context, std::move(then), [] {});
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
// The message store with 20,000 messages, each with its PDU.
#include "row.h"
#include "sms/messagestore.h"
#include "storedmessages.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <algorithm>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

/// Runs the event loop until it holds; returns the longest time that one round of it took.
Clock::duration longestRoundUntil(auto &&holds)
{
    Clock::duration longest{};
    while (!holds()) {
        const auto start = Clock::now();
        QCoreApplication::processEvents();
        longest = std::max(longest, Clock::now() - start);
        std::this_thread::yield();
    }
    return longest;
}

/// A folder with that many messages.
const QString &fullFolder()
{
    static const QTemporaryDir folder;
    static const bool isFilled = fillStore(folder.path(), storedMessages);
    static const QString path = isFilled ? folder.path() : QString();
    return path;
}

/// A store that has read that folder.
struct FullStore {
    FullStore()
    {
        store.load();
        longestRoundUntil([this] { return store.isLoaded(); });
        store.flush();
    }
    MessageStore store{fullFolder(), 9};
};

/// Of the samples of each round the median.
void measure(benchmark::State &state, double bar, auto &&round)
{
    Samples samples;
    for (auto _ : state) {
        const Clock::duration time = round();
        samples.add(time);
        state.SetIterationTime(std::chrono::duration<double>(time).count());
    }
    setRow(state, samples.median() * 1000, "ms", bar);
}

void load(benchmark::State &state)
{
    fullFolder();
    measure(state, 200, [] {
        MessageStore store(fullFolder(), 9);
        const auto start = Clock::now();
        store.load();
        longestRoundUntil([&] { return store.isLoaded(); });
        return Clock::now() - start;
    });
}

void pauseOfLoading(benchmark::State &state)
{
    fullFolder();
    measure(state, 5, [] {
        MessageStore store(fullFolder(), 9);
        store.load();
        return longestRoundUntil([&] { return store.isLoaded(); });
    });
}

void addToDisk(benchmark::State &state)
{
    FullStore full;
    int number = storedMessages;
    measure(state, 300, [&] {
        const auto start = Clock::now();
        const QFuture<bool> stored = full.store.add({messageOf(number++)});
        longestRoundUntil([&] { return stored.isFinished(); });
        return Clock::now() - start;
    });
}

void pauseOfAdding(benchmark::State &state)
{
    FullStore full;
    int number = storedMessages + 1000;
    measure(state, 5, [&] {
        const auto start = Clock::now();
        const QFuture<bool> stored = full.store.add({messageOf(number++)});
        const Clock::duration call = Clock::now() - start;
        return std::max(call, longestRoundUntil([&] { return stored.isFinished(); }));
    });
}

/// What the card lists at the start of a day.
void addTwoHundred(benchmark::State &state)
{
    FullStore full;
    int number = storedMessages + 2000;
    measure(state, 20, [&] {
        std::vector<Message> messages;
        for (int i = 0; i < 200; ++i)
            messages.push_back(messageOf(number++));
        const auto start = Clock::now();
        const QFuture<bool> stored = full.store.add(std::move(messages));
        const Clock::duration call = Clock::now() - start;
        return std::max(call, longestRoundUntil([&] { return stored.isFinished(); }));
    });
}

void changeAll(benchmark::State &state)
{
    FullStore full;
    const QStringList ids = full.store.ids(MessagePlace::Computer);
    bool isRead = false;
    measure(state, 100, [&] {
        const auto start = Clock::now();
        full.store.setRead(ids, std::exchange(isRead, !isRead));
        return Clock::now() - start;
    });
}

void slowestKey(benchmark::State &state)
{
    FullStore full;
    const QString typed = u"München later 17"_s;
    measure(state, 50, [&] {
        Clock::duration slowest{};
        for (qsizetype i = 1; i <= typed.size(); ++i) {
            const auto start = Clock::now();
            benchmark::DoNotOptimize(full.store.search(typed.first(i)));
            slowest = std::max(slowest, Clock::now() - start);
        }
        return slowest;
    });
}

void conversationsAnew(benchmark::State &state)
{
    FullStore full;
    const QString id = full.store.ids(MessageBox::Inbox).front();
    bool isRead = false;
    measure(state, 50, [&] {
        full.store.setRead({id}, std::exchange(isRead, !isRead));
        const auto start = Clock::now();
        benchmark::DoNotOptimize(full.store.conversations());
        return Clock::now() - start;
    });
}

} // namespace

BENCHMARK(load)->Name("20000 messages: from the start to there, median")->Iterations(9)->UseManualTime();
BENCHMARK(pauseOfLoading)
    ->Name("  the window's longest pause in that, median")
    ->Iterations(9)
    ->UseManualTime();
BENCHMARK(addToDisk)
    ->Name("  one more: until it is flushed to disk, median")
    ->Iterations(20)
    ->UseManualTime();
BENCHMARK(pauseOfAdding)
    ->Name("  the window's longest pause in that, median")
    ->Iterations(20)
    ->UseManualTime();
BENCHMARK(addTwoHundred)
    ->Name("  200 more: the window's longest pause, median")
    ->Iterations(9)
    ->UseManualTime();
BENCHMARK(changeAll)->Name("  all of them marked as read, median")->Iterations(9)->UseManualTime();
BENCHMARK(slowestKey)->Name("  search as typed: the slowest key, median")->Iterations(9)->UseManualTime();
BENCHMARK(conversationsAnew)->Name("  conversations by person, median")->Iterations(9)->UseManualTime();

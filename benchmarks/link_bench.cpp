// SPDX-License-Identifier: GPL-3.0-or-later
// The link over a pseudo-terminal whose far side is a thread of this program.
#include "link/cardworker.h"
#include "link/serialthread.h"
#include "linktest.h"
#include "row.h"
#include "shell/commoncfg.h"

#include <QSemaphore>
#include <ctime>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

/// A link with its card's side.
struct OpenLink {
    OpenLink()
    {
        resetLinkGlobals();
        link.openPort(pty.name());
        foundPortFlag = true;
    }
    ~OpenLink() { link.closePortNormal(link.descriptor()); }
    Q_DISABLE_COPY_MOVE(OpenLink)

    Pty pty;
    FakeOwner owner;
    SerialThread link{&owner};
    std::vector<char> reply = std::vector<char>(SerialThread::replyBufferSize);
};

/// Lets `read` wait on the port, then writes `bytes` there; from the write's begin to the end of `read`.
template <typename Read> Clock::duration timeToRead(OpenLink &open, const QByteArray &bytes, Read read)
{
    Clock::time_point sent;
    auto card = inBackground([&] {
        std::this_thread::sleep_for(300us); // until the reader waits
        sent = Clock::now();
        open.pty.write(bytes);
    });
    read();
    const auto arrived = Clock::now();
    card.wait();
    return arrived - sent;
}

double median(benchmark::State &state, auto measure)
{
    Samples samples;
    for (auto _ : state) {
        const Clock::duration time = measure();
        samples.add(time);
        state.SetIterationTime(std::chrono::duration<double>(time).count());
    }
    return samples.median();
}

const QByteArray reply = "\r\n+CSQ: 20,99\r\n\r\nOK\r\n";
double replyMedian = 0;

void replyToReturn(benchmark::State &state)
{
    OpenLink open;
    replyMedian = median(state, [&open] {
        return timeToRead(open, reply,
                          [&open] { open.link.resAtStr(open.link.descriptor(), open.reply.data(), 1, 0); });
    });
    setRow(state, replyMedian * 1000, "ms", 1);
}

void bareRead(benchmark::State &state)
{
    OpenLink open;
    const double bare = median(state, [&open] {
        return timeToRead(open, reply, [&open] {
            const ssize_t got = ::read(open.link.descriptor(), open.reply.data(), open.reply.size());
            benchmark::DoNotOptimize(got);
        });
    });
    setRow(state, bare * 1000, "ms");
}

void replyBesideBareRead(benchmark::State &state)
{
    OpenLink open;
    const double bare = median(state, [&open] {
        return timeToRead(open, reply, [&open] {
            const ssize_t got = ::read(open.link.descriptor(), open.reply.data(), open.reply.size());
            benchmark::DoNotOptimize(got);
        });
    });
    setRow(state, replyMedian / bare, "x");
}

double threadCpuSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
}

/// CPU of the reading thread for one reply of so many bytes, its trace included.
double cpuOfReply(benchmark::State &state, int bytes)
{
    OpenLink open;
    const QByteArray text = QByteArray(bytes - 6, 'x') + "\r\nOK\r\n";
    Samples samples;
    for (auto _ : state) {
        auto card = inBackground([&] { open.pty.write(text); });
        const double before = threadCpuSeconds();
        if (open.link.resAtStr(open.link.descriptor(), open.reply.data(), 5, 0) != 1)
            state.SkipWithError("the reply was not taken");
        const double spent = threadCpuSeconds() - before;
        card.wait();
        samples.add(spent);
        state.SetIterationTime(spent);
    }
    return samples.median();
}

void longReply(benchmark::State &state)
{
    setRow(state, cpuOfReply(state, 100'000) * 1000, "ms", 20);
}

void growthOfLongReplies(benchmark::State &state)
{
    const double ten = cpuOfReply(state, 10'000);
    OpenLink open;
    const QByteArray text = QByteArray(100'000 - 6, 'x') + "\r\nOK\r\n";
    Samples hundred;
    for (int i = 0; i < 50; ++i) {
        auto card = inBackground([&] { open.pty.write(text); });
        const double before = threadCpuSeconds();
        open.link.resAtStr(open.link.descriptor(), open.reply.data(), 5, 0);
        hundred.add(threadCpuSeconds() - before);
        card.wait();
    }
    setRow(state, hundred.median() / ten, "x", 12);
}

void ringToReceiver(benchmark::State &state)
{
    cmcfg.setValue(u"call"_s, u"enable"_s, u"1"_s);
    OpenLink open;
    Clock::time_point heard;
    QSemaphore rang;
    open.owner.onCall = [&] {
        heard = Clock::now();
        rang.release();
    };
    corva::CardWorker worker(open.link);
    worker.start();
    const double seconds = median(state, [&] {
        std::this_thread::sleep_for(1ms); // until the worker waits
        const auto sent = Clock::now();
        open.pty.write("\r\nRING\r\n");
        rang.acquire();
        return heard - sent;
    });
    worker.stop();
    setRow(state, seconds * 1000, "ms", 20);
}

} // namespace

BENCHMARK(replyToReturn)
    ->Name("last byte of a reply to the return of resAtStr, median")
    ->Iterations(1000)
    ->UseManualTime();
BENCHMARK(bareRead)
    ->Name("  the same bytes, a bare read(2) on the same pseudo-terminal")
    ->Iterations(1000)
    ->UseManualTime();
BENCHMARK(replyBesideBareRead)->Name("  resAtStr beside the bare read")->Iterations(1000)->UseManualTime();
BENCHMARK(longReply)
    ->Name("reply of 100000 bytes at once: CPU of the reader, median")
    ->Iterations(50)
    ->UseManualTime();
BENCHMARK(growthOfLongReplies)
    ->Name("  its growth from 10000 to 100000 bytes")
    ->Iterations(50)
    ->UseManualTime();
BENCHMARK(ringToReceiver)
    ->Name("RING while idle: from the byte to the receiver, median")
    ->Iterations(200)
    ->UseManualTime();

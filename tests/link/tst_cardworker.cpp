// SPDX-License-Identifier: GPL-3.0-or-later
#include "link/cardworker.h"
#include "link/serialthread.h"
#include "linktest.h"

#include <QSemaphore>
#include <QTest>

using namespace Qt::StringLiterals;
using corva::CardWorker;

class TestCardWorker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_descriptors = openDescriptors();
        m_threads = threads();
    }
    void init()
    {
        resetLinkGlobals();
        m_pty = std::make_unique<Pty>();
        m_link = std::make_unique<SerialThread>(&m_owner);
        QVERIFY(m_link->openPort(m_pty->name()) > 0);
        foundPortFlag = true;
        m_worker = std::make_unique<CardWorker>(*m_link);
        m_owner.takeCalls();
    }
    void cleanup()
    {
        m_worker.reset();
        m_link->closePortNormal(m_link->descriptor());
        m_link.reset();
        m_pty.reset();
        QCOMPARE(openDescriptors(), m_descriptors);
        QTRY_COMPARE(threads(), m_threads);
    }

    void jobsRunInOrder()
    {
        QList<int> order;
        QList<QFuture<int>> futures;
        for (int i = 0; i < 50; ++i)
            futures += m_worker->submit([&order, i](SerialThread &) {
                order += i;
                return i * i;
            });
        m_worker->start();
        QFuture<void> last = m_worker->submit([](SerialThread &) {});
        last.waitForFinished();
        for (int i = 0; i < 50; ++i) {
            QCOMPARE(order[i], i);
            QCOMPARE(futures[i].result(), i * i);
        }
    }

    void pollThatRunsIsNotQueuedAgain()
    {
        QSemaphore begun;
        QSemaphore go;
        int polls = 0;
        const auto poll = [&](SerialThread &) {
            ++polls;
            begun.release();
            go.acquire();
        };
        m_worker->submitOnce("poll", poll);
        m_worker->start();
        begun.acquire();
        m_worker->submitOnce("poll", poll);
        go.release(2);
        m_worker->submit([](SerialThread &) {}).waitForFinished();
        QCOMPARE(polls, 1);
    }

    void stopCancelsWhatWaits()
    {
        m_worker->start();
        auto running =
            m_worker->submit([](SerialThread &link) { return link.sendCmdAndRec("AT\r\n", 60, 0); });
        auto waiting = m_worker->submit([](SerialThread &) { return 1; });
        QCOMPARE(m_pty->readUntil("\n"), "AT\r\n");
        m_worker->stop(); // returns though the card is silent for a minute
        QCOMPARE(running.result(), 102);
        QVERIFY(!m_link->isPortLost());
        QVERIFY(waiting.isCanceled() && waiting.isFinished());
        QVERIFY(m_worker->submit([](SerialThread &) { return 1; }).isCanceled());
        m_worker->stop();
    }

    void reportBehindAReplyIsSeenAtOnce()
    {
        m_worker->start();
        for (int i = 0; i < 10; ++i) {
            auto code =
                m_worker->submit([](SerialThread &link) { return link.sendCmdAndRec("AT\r\n", 60, 0); });
            m_pty->readUntil("\n");
            m_pty->write("\r\nOK\r\n\r\n+CMTI: \"SM\",1\r\n"); // one piece
            QCOMPARE(code.result(), 86);
            QTRY_COMPARE(m_owner.calls(), QStringList{u"getSmsAndVoice(\r\n+CMTI: \"SM\",1\r\n)"_s});
            m_owner.takeCalls();
        }
    }

    void lostPortIsCheckedAndLeftAlone()
    {
        std::atomic<int> rounds = 0;
        std::atomic<bool> lost = false;
        m_worker->setAfterEach([&](SerialThread &link) {
            ++rounds;
            lost = lost || link.isPortLost();
        });
        m_worker->start();
        m_pty->unplug();
        QTRY_VERIFY(lost);
        const int before = rounds;
        m_worker->submit([](SerialThread &) {}).waitForFinished();
        QVERIFY2(rounds - before < 10, "the worker sleeps beside a dead port");
    }

private:
    ScratchFolder m_folder;
    FakeOwner m_owner;
    std::unique_ptr<Pty> m_pty;
    std::unique_ptr<SerialThread> m_link;
    std::unique_ptr<CardWorker> m_worker;
    qsizetype m_descriptors = 0;
    qsizetype m_threads = 0;
};

QTEST_GUILESS_MAIN(TestCardWorker)
#include "tst_cardworker.moc"

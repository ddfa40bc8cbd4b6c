// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "shell/endsignals.h"

#include <QSignalSpy>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

using corva::EndSignals;

namespace
{

const Rows<int> eachSignalBecomesAnEventRows{
    {"asked to end", SIGTERM},
    {"Ctrl+C", SIGINT},
    {"the terminal closed", SIGHUP},
};

} // namespace

class TestEndSignals : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachSignalBecomesAnEvent_data() { addRows(eachSignalBecomesAnEventRows); }
    void eachSignalBecomesAnEvent()
    {
        const auto &[name, number] = currentRow(eachSignalBecomesAnEventRows);
        const EndSignals signals_;
        QSignalSpy ends(&signals_, &EndSignals::sigEnd);
        ::raise(number);
        QCOMPARE(ends.size(), 0); // never from within the handler
        QTRY_COMPARE(ends.size(), 1);
        ::raise(number);
        QTRY_COMPARE(ends.size(), 2);
    }

    void endsAtOnceAgainWhenNobodyListensAnyMore()
    {
        const pid_t child = ::fork();
        if (child == 0) {
            {
                const EndSignals over;
            }
            ::raise(SIGTERM);
            ::_exit(0);
        }
        int status = 0;
        QCOMPARE(::waitpid(child, &status, 0), child);
        QVERIFY(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM);
    }
};

QTEST_GUILESS_MAIN(TestEndSignals)
#include "tst_endsignals.moc"

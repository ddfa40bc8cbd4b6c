// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "child.h"
#include "shell/endsignals.h"

#include <QSignalSpy>
#include <csignal>
#include <optional>

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
        const int status = inChild([] {
            std::optional<EndSignals> over(std::in_place);
            over.reset();
            return ::raise(SIGTERM);
        });
        QVERIFY(endedBy(status, SIGTERM));
    }
};

QTEST_GUILESS_MAIN(TestEndSignals)
#include "tst_endsignals.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "linktest.h"
#include "row.h"

#include <QCoreApplication>
#include <cstdio>

namespace
{

/// One line a row: what was measured, what it came to, and the bar that it has to stay under.
class Table : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override
    {
        for (const Run &run : runs)
            print(run);
        std::fflush(stdout);
    }

    bool isAnyMissed() const { return m_isMissed; }

private:
    void print(const Run &run)
    {
        const std::string name = run.run_name.function_name;
        if (run.error_occurred) {
            std::printf("%-62s %s\n", name.c_str(), run.error_message.c_str());
            return;
        }
        const double value = run.counters.at("value");
        const double bar = run.counters.at("bar");
        const char *unit = run.report_label.c_str();
        const bool isMissed = bar != noBar && value > bar;
        std::printf("%-62s %11.3f %-2s", name.c_str(), value, unit);
        if (bar != noBar)
            std::printf("   bar %g %s%s", bar, unit, isMissed ? ", MISSED" : "");
        std::printf("\n");
        m_isMissed = m_isMissed || isMissed;
    }

    bool m_isMissed = false;
};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const ScratchFolder folder;
    // The trace is made as always, and shown to nobody.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    benchmark::Initialize(&argc, argv);
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return table.isAnyMissed() ? 1 : 0;
}

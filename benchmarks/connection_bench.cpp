// SPDX-License-Identifier: GPL-3.0-or-later
// What is read before a connection.
#include "connection/apnproposals.h"
#include "row.h"

using namespace Qt::StringLiterals;

namespace
{

void proposalsForSim(benchmark::State &state)
{
    Samples samples;
    for (auto _ : state) {
        const auto begin = Clock::now();
        const auto proposals = corva::apnProposals(u"310260123456789"_s);
        const auto time = Clock::now() - begin;
        if (proposals.empty())
            return state.SkipWithError("mobile-broadband-provider-info is not installed");
        samples.add(time);
        state.SetIterationTime(std::chrono::duration<double>(time).count());
    }
    setRow(state, samples.median() * 1000, "ms", 100);
}

} // namespace

BENCHMARK(proposalsForSim)
    ->Name("APN proposals for a SIM, from the database of operators, median")
    ->Iterations(9)
    ->UseManualTime();

// SPDX-License-Identifier: GPL-3.0-or-later
// Any database of operators gives proposals that make profiles, or none.
#include "connection/apnproposals.h"
#include "connection/profilechecks.h"
#include "connection/profilestore.h"
#include "inputfile.h"

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const InputFile file(data, size);
    for (const ApnProposal &proposal :
         apnProposals(QStringLiteral("310260123456789"), QString::fromUtf8(file.path()))) {
        demand(profileRefusal(ProfileStore::profileOf(proposal)).isEmpty());
        demand(proposal.network.startsWith(QStringLiteral("31026")));
    }
    return 0;
}

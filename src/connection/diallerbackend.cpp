// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/diallerbackend.h"

#include "connection/dialleroptions.h"
#include "connection/helperbackend.h"
#include "connection/ownbackend.h"

#include <unistd.h>

namespace corva
{

std::unique_ptr<DiallerBackend> makeDiallerBackend()
{
    if (geteuid() == 0)
        return std::make_unique<OwnBackend>(systemFilesFromConfiguration());
    return std::make_unique<HelperBackend>(HelperBackend::installedCommand());
}

} // namespace corva

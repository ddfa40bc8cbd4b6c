// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/portprobing.h"

#include "device/portaccess.h"
#include "shell/logging.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <sys/stat.h>
#include <sys/sysmacros.h>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// The terminal of the process, the console and the maker of pseudo-terminals are everybody's; a card is
/// behind none of them. Source: the kernel's list of devices, character major 5.
bool isEverybodys(dev_t device)
{
    constexpr unsigned terminalMajor = 5;
    constexpr unsigned lastMinor = 2;
    return major(device) == terminalMajor && minor(device) <= lastMinor;
}

bool mayBeSerial(const struct stat &status)
{
    return S_ISCHR(status.st_mode) && !isEverybodys(status.st_rdev);
}

bool mayBeSerial(const QString &port)
{
    struct stat status = {};
    return stat(QFile::encodeName(port).constData(), &status) == 0 && mayBeSerial(status);
}

struct ErrorRow {
    int error;
    CardPresence presence;
};
/// Every other error means that there is no working port (unplugged meanwhile, as a rule).
constexpr std::array errorRows{
    ErrorRow{EACCES, CardPresence::NoRights}, ErrorRow{EPERM, CardPresence::NoRights},
    ErrorRow{EBUSY, CardPresence::PortBusy}, ErrorRow{EWOULDBLOCK, CardPresence::PortBusy}};

CardPresence presenceOf(const ProbeResult &result)
{
    switch (result.verdict) {
    case ProbeResult::Verdict::Answered: return CardPresence::Ready;
    case ProbeResult::Verdict::Silent: return CardPresence::Silent;
    case ProbeResult::Verdict::CannotOpen: break;
    }
    const auto *row =
        std::ranges::find_if(errorRows, [&](const ErrorRow &r) { return r.error == result.error; });
    return row == errorRows.end() ? CardPresence::Absent : row->presence;
}

/// The steps from nothing to a working card. A disk that is known to be a card comes before a silent port,
/// which may well be something else.
constexpr std::array steps{CardPresence::Absent,   CardPresence::Silent,   CardPresence::StorageMode,
                           CardPresence::NoRights, CardPresence::PortBusy, CardPresence::Ready};

auto step(const FoundCard &card)
{
    return std::ranges::find(steps, card.presence);
}

} // namespace

FoundCard probePort(const QString &port, const PortProbe &probe)
{
    FoundCard card;
    card.port = port;
    if (!mayBeSerial(port))
        return card;
    if (holderByLockFile(port).isKnown()) {
        card.presence = CardPresence::PortBusy;
        return card;
    }
    card.presence = presenceOf(probe(port));
    if (card.presence == CardPresence::Ready)
        card.ports.at = port;
    return card;
}

PortFault portFault(const QString &port, int openError)
{
    struct stat status = {};
    if (stat(QFile::encodeName(port).constData(), &status) != 0)
        return errno == EACCES ? PortFault::None : PortFault::Missing;
    const bool isTerminal = mayBeSerial(status) && openError != ENOTTY && openError != EINVAL;
    return isTerminal ? PortFault::None : PortFault::NotSerial;
}

FoundCard probePorts(const QStringList &ports, const PortProbe &probe)
{
    FoundCard best;
    for (const QString &port : ports) {
        FoundCard card = probePort(port, probe);
        if (card.presence == CardPresence::Ready && best.presence == CardPresence::Ready) {
            card.ports.modem = best.port;
            return card;
        }
        best = nearer(best, card);
    }
    best.ports.modem = best.ports.at;
    return best;
}

FoundCard nearer(const FoundCard &first, const FoundCard &second)
{
    return step(second) > step(first) ? second : first;
}

FoundCard withReason(FoundCard card)
{
    if (card.presence == CardPresence::NoRights)
        card.group = portGroup(card.port);
    if (card.presence != CardPresence::PortBusy && card.presence != CardPresence::Silent)
        return card;
    card.holder = findPortHolder(card.port);
    if (card.holder.isKnown())
        card.presence = CardPresence::PortBusy;
    return card;
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/errors.h"

#include <algorithm>
#include <array>
#include <span>

namespace cardemu
{

namespace
{

struct Words {
    int number;
    const char *text;
};

constexpr std::array cmeTable = {
    Words{0, "phone failure"},
    Words{1, "no connection to phone"},
    Words{2, "phone-adaptor link reserved"},
    Words{3, "operation not allowed"},
    Words{4, "operation not supported"},
    Words{5, "PH-SIM PIN required"},
    Words{10, "SIM not inserted"},
    Words{11, "SIM PIN required"},
    Words{12, "SIM PUK required"},
    Words{13, "SIM failure"},
    Words{14, "SIM busy"},
    Words{15, "SIM wrong"},
    Words{16, "incorrect password"},
    Words{17, "SIM PIN2 required"},
    Words{18, "SIM PUK2 required"},
    Words{20, "memory full"},
    Words{21, "invalid index"},
    Words{22, "not found"},
    Words{23, "memory failure"},
    Words{24, "text string too long"},
    Words{25, "invalid characters in text string"},
    Words{26, "dial string too long"},
    Words{27, "invalid characters in dial string"},
    Words{30, "no network service"},
    Words{31, "network timeout"},
    Words{32, "network not allowed - emergency calls only"},
    Words{50, "Incorrect parameters"},
    Words{100, "unknown"},
    Words{133, "requested service option not subscribed"},
    Words{148, "unspecified GPRS error"},
};

constexpr std::array cmsTable = {
    Words{1, "Unassigned (unallocated) number"},
    Words{8, "Operator determined barring"},
    Words{10, "Call barred"},
    Words{21, "Short message transfer rejected"},
    Words{27, "Destination out of service"},
    Words{28, "Unidentified subscriber"},
    Words{29, "Facility rejected"},
    Words{30, "Unknown subscriber"},
    Words{38, "Network out of order"},
    Words{41, "Temporary failure"},
    Words{42, "Congestion"},
    Words{47, "Resources unavailable, unspecified"},
    Words{50, "Requested facility not subscribed"},
    Words{69, "Requested facility not implemented"},
    Words{111, "Protocol error, unspecified"},
    Words{300, "ME failure"},
    Words{301, "SMS service of ME reserved"},
    Words{302, "operation not allowed"},
    Words{303, "operation not supported"},
    Words{304, "invalid PDU mode parameter"},
    Words{305, "invalid text mode parameter"},
    Words{310, "SIM not inserted"},
    Words{311, "SIM PIN required"},
    Words{312, "PH-SIM PIN required"},
    Words{313, "SIM failure"},
    Words{314, "SIM busy"},
    Words{315, "SIM wrong"},
    Words{316, "SIM PUK required"},
    Words{320, "memory failure"},
    Words{321, "invalid memory index"},
    Words{322, "memory full"},
    Words{330, "SMSC address unknown"},
    Words{331, "no network service"},
    Words{332, "network timeout"},
    Words{340, "no +CNMA acknowledgement expected"},
    Words{500, "unknown error"},
};

QByteArray words(std::span<const Words> table, int number)
{
    const auto row = std::ranges::find(table, number, &Words::number);
    return row == table.end() ? QByteArray("unknown") : QByteArray(row->text);
}

struct Twin {
    int cme;
    int cms;
};

constexpr std::array twins = {
    Twin{cme::simNotInserted, cms::simNotInserted},
    Twin{cme::simPinRequired, cms::simPinRequired},
    Twin{cme::simPukRequired, cms::simPukRequired},
    Twin{cme::simFailure, cms::simFailure},
    Twin{cme::simBusy, cms::simBusy},
};

} // namespace

QByteArray cmeWords(int number)
{
    return words(cmeTable, number);
}

QByteArray cmsWords(int number)
{
    return words(cmsTable, number);
}

int cmsFromCme(int number)
{
    const auto *const row = std::ranges::find(twins, number, &Twin::cme);
    return row == twins.end() ? cms::unknown : row->cms;
}

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
// The dispatcher with a receiver that only counts. The first byte sets the conditions.
#include "link/serialthread.h"
#include "linktest.h"
#include "require.h"
#include "shell/commoncfg.h"

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const ScratchFolder folder;
    static const bool callsAreOn = (cmcfg.setValue(u"call"_s, u"enable"_s, u"1"_s), true);
    static FakeOwner owner;
    static SerialThread link(&owner);
    if (size < 1 || !callsAreOn)
        return 0;
    owner.ready = data[0] & 1;
    owner.deliveryReports = data[0] & 2;
    owner.stkSmsState = data[0] & 4;
    const QString text =
        QString::fromLatin1(QByteArrayView(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1));
    link.findUpReportAtCmd(text);

    const QStringList calls = owner.takeCalls();
    REQUIRE(calls.size() <= 19); // rows without a data-call state; the second ring-back excludes the first
    REQUIRE(link.dataCallState() >= 0 && link.dataCallState() <= 3);
    REQUIRE(!text.isEmpty() || calls.isEmpty());
    const auto holds = [&text](const char *mark) { return text.contains(QLatin1StringView(mark)); };
    REQUIRE(holds("ANSWER\r\n") == calls.contains(u"peerPickupPhone"_s));
    REQUIRE(holds("STOPRING\r\n") == calls.contains(u"cancelRing"_s));
    REQUIRE(!holds("RING\r\n") || calls.contains(u"getSmsAndVoice(%1)"_s.arg(text)));
    REQUIRE((holds("+CCWA:") && !holds("OK")) == calls.contains(u"callIsWaiting(%1)"_s.arg(text)));
    REQUIRE((holds("+JSMSR") && owner.stkSmsState) == calls.contains(u"stkReportSmsState(%1)"_s.arg(text)));
    return 0;
}

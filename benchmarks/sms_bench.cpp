// SPDX-License-Identifier: GPL-3.0-or-later
// Reading messages, beside another's decoder on the same list.
#include "row.h"
#include "sms/smspdu.h"

#include <QByteArrayList>
#include <QList>
#include <gammu.h>

using namespace corva;

namespace
{

/// How many times as fast as the other, the other's share of the time: at most this.
constexpr double share = 0.2;

/// What a card holds after a while: texts, notices and advertisements, long messages, reports, senders with
/// names.
QByteArrayList mixedPdus()
{
    return {
        "07917283010010F5040BC87238880900F10000993092516195800AE8329BFD4697D9EC37",
        "07919471060040F5040B919471214365F700004250624175048075C8340B44479741747938ED06A5E720190CD44EBBEB"
        "F4F21CC40ED3CB2E5012344787D96C90B80C0AD34174741934A787E9E9B71B14A68362381D0D066A81EEE1341D647ECB"
        "41ED3228ED06D1D165D0386C2EB0407076393C2FFF405474D8BD9E83C220F69B1E02",
        "07919471060040F5040BD0C3B7DC1EC6660100004250624175048083D9775D0E4ABBEDEFF4B80C7A9B41321AA819CE83"
        "D27390BC1C26E775A058CE95AB81366517284907DDD36C36485C06C1C36932C82C7FB741F9775D0E0A8FC7EFBA9B0EDA"
        "F088455C0EE472B9363ED0DB0D8A81947577D9052296E9E1347B0E4ABB41F9775D0E1AD7E7F477BB2C0785E5E5B00B",
        "07919471060040F5440B919471214365F7000042506241750480A0050003CC0201A8E8F41C949E83C220F6DB7D2ECB41"
        "F4329E0EA2A3C374D0FCDD2E8BDFE43CE82E7FD3CBA0B71B44479741F7701E847EB7CB2CD03D4D4783C26C36888E0ED3"
        "41E8301C5E7697C9A0B71B4447A7E7207238CF0285DD64D01D9D1EA3417474190447BFDD65D0B84E07A5DD20FAFD0D12"
        "97C7E1FABC0C4AD341F7779D4D06B9DF7490394D07A5DD",
        "07919471060040F5440B919471214365F700004250624175048034050003CC0202CC693A28ED06BDDD6517E8F87E9341"
        "EEF4194D6781C26E32685E2E83F2EF3A88FE6EBFE5F2F7DD05",
        "07919471060040F5040B919471214365F700084250624175048064041F04400438043204350442002100200412044104"
        "420440043504420438043C0441044F00200437043004320442044004300020043200200448043504410442044C002004"
        "4704300441043E04320020044300200432043E043A04370430043B0430003F",
        "07919471060040F5440B919471214365F700084250624175048082050003AB020160A8597DFF0C60A876849A8C8BC178"
        "01662F56DB516B4E8C4E5D4E004E94FF0C8BF7572853415206949F51854F7F752830025982975E672C4EBA64CD4F5CFF"
        "0C8BF75FFD7565672C77ED4FE1FF0C8C228C2260A87684652F6301300260A8597DFF0C60A876849A8C8BC17801662F56"
        "DB516B4E8C4E5D4E004E948BF7",
        "07919471060040F50414D0C4F23C7D760390EF761900004250624175048013D9775D0E1ABFC965507A0EA2E164B9580D",
        "07919471060040F5040B919471214365F700C84250624175048029D9771D840EDBCB2019C85DBE83ECEFF4B80C6A97E7"
        "F3F0B93C77818661361B349BC5622E",
        "07919471060040F506B50B919471214365F7515042800051805150428010258000",
        "07919471060040F511070B919471214365F70000AD05E8329BFD06",
    };
}

constexpr int rounds = 2000;

double secondsOfOurs(const QByteArrayList &pdus)
{
    const auto begin = Clock::now();
    for (int round = 0; round < rounds; ++round) {
        for (const QByteArray &pdu : pdus)
            benchmark::DoNotOptimize(decodeSms(pdu, SmsDirection::OnCard));
    }
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

double secondsOfGammu(const QByteArrayList &pdus)
{
    QByteArrayList octets;
    for (const QByteArray &pdu : pdus)
        octets += QByteArray::fromHex(pdu);
    const auto begin = Clock::now();
    for (int round = 0; round < rounds; ++round) {
        for (const QByteArray &pdu : octets) {
            GSM_SMSMessage message;
            std::size_t end = 0;
            GSM_DecodePDUFrame(GSM_GetGlobalDebug(), &message,
                               reinterpret_cast<const unsigned char *>(pdu.data()), std::size_t(pdu.size()),
                               &end, TRUE);
            benchmark::DoNotOptimize(message);
        }
    }
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// Both must read every message of the list, or their times say nothing.
bool areAllRead(const QByteArrayList &pdus)
{
    return std::ranges::all_of(pdus, [](const QByteArray &pdu) {
        const QByteArray octets = QByteArray::fromHex(pdu);
        GSM_SMSMessage message;
        std::size_t end = 0;
        const bool isOurs = std::holds_alternative<DecodedSms>(decodeSms(pdu, SmsDirection::OnCard));
        const bool isTheirs = GSM_DecodePDUFrame(GSM_GetGlobalDebug(), &message,
                                                 reinterpret_cast<const unsigned char *>(octets.data()),
                                                 std::size_t(octets.size()), &end, TRUE) == ERR_NONE;
        return isOurs && isTheirs;
    });
}

void decodeMixed(benchmark::State &state)
{
    const QByteArrayList pdus = mixedPdus();
    if (!areAllRead(pdus))
        return state.SkipWithError("a message of the list cannot be read");
    Samples ours;
    Samples theirs;
    for (auto _ : state) {
        ours.add(secondsOfOurs(pdus));
        theirs.add(secondsOfGammu(pdus));
        state.SetIterationTime(0.1);
    }
    setRow(state, ours.median() / theirs.median(), "", share);
}

} // namespace

BENCHMARK(decodeMixed)
    ->Name("messages decoded, share of libgammu's time on the same list")
    ->Iterations(9)
    ->UseManualTime();

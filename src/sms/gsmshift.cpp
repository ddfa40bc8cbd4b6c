// SPDX-License-Identifier: GPL-3.0-or-later
// The extension table and the national ones that stand for it: runs of characters by the septet of the first.
// 3GPP TS 23.038 6.2.1.1 and A.2.
#include "sms/gsmalphabet.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <string_view>

namespace corva
{

namespace
{

struct Run {
    std::size_t at;
    std::u16string_view characters;
};

constexpr GsmTable with(GsmTable base, std::initializer_list<Run> runs)
{
    for (const Run &run : runs)
        std::copy(run.characters.begin(), run.characters.end(), base.begin() + run.at);
    return base;
}

constexpr GsmTable extensionTable = with(
    {},
    {{0x0a, u"\f"}, {0x14, u"^"}, {0x28, u"{}"}, {0x2f, u"\\"}, {0x3c, u"[~]"}, {0x40, u"|"}, {0x65, u"€"}});

constexpr GsmTable turkishShift =
    with(extensionTable,
         {{0x47, u"Ğ"}, {0x49, u"İ"}, {0x53, u"Ş"}, {0x63, u"ç"}, {0x67, u"ğ"}, {0x69, u"ı"}, {0x73, u"ş"}});

constexpr GsmTable spanishShift = with(extensionTable, {{0x09, u"ç"},
                                                        {0x41, u"Á"},
                                                        {0x49, u"Í"},
                                                        {0x4f, u"Ó"},
                                                        {0x55, u"Ú"},
                                                        {0x61, u"á"},
                                                        {0x69, u"í"},
                                                        {0x6f, u"ó"},
                                                        {0x75, u"ú"}});

constexpr GsmTable portugueseShift = with(extensionTable, {{0x05, u"ê"},
                                                           {0x09, u"ç"},
                                                           {0x0b, u"Ôô"},
                                                           {0x0e, u"Áá"},
                                                           {0x12, u"ΦΓ^ΩΠΨΣΘ"},
                                                           {0x1f, u"Ê"},
                                                           {0x41, u"À"},
                                                           {0x49, u"Í"},
                                                           {0x4f, u"Ó"},
                                                           {0x55, u"Ú"},
                                                           {0x5b, u"ÃÕ"},
                                                           {0x61, u"Â"},
                                                           {0x69, u"í"},
                                                           {0x6f, u"ó"},
                                                           {0x75, u"ú"},
                                                           {0x7b, u"ãõ"},
                                                           {0x7f, u"â"}});

/// Languages without Latin letters have signs and capitals here.
constexpr GsmTable signsAndCapitals =
    with(extensionTable,
         {{0x00, u"@£$¥¿\"¤%&'\f*+"}, {0x0e, u"-/<=>¡^¡_#*"}, {0x41, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ"}});

constexpr GsmTable bengaliShift = with(
    signsAndCapitals, {{0x19, u"\u09e6\u09e7"},
                       {0x1c, u"\u09e8\u09e9\u09ea\u09eb\u09ec\u09ed\u09ee\u09ef\u09df\u09e0\u09e1\u09e2"},
                       {0x2a, u"\u09e3\u09f2\u09f3\u09f4\u09f5"},
                       {0x30, u"\u09f6\u09f7\u09f8\u09f9\u09fa"}});

constexpr GsmTable gujaratiShift =
    with(signsAndCapitals,
         {{0x19, u"\u0964\u0965"}, {0x1c, u"\u0ae6\u0ae7\u0ae8\u0ae9\u0aea\u0aeb\u0aec\u0aed\u0aee\u0aef"}});

constexpr GsmTable hindiShift = with(
    signsAndCapitals, {{0x19, u"\u0964\u0965"},
                       {0x1c, u"\u0966\u0967\u0968\u0969\u096a\u096b\u096c\u096d\u096e\u096f\u0951\u0952"},
                       {0x2a, u"\u0953\u0954\u0958\u0959\u095a"},
                       {0x30, u"\u095b\u095c\u095d\u095e\u095f\u0960\u0961\u0962\u0963\u0970\u0971"}});

constexpr GsmTable kannadaShift = with(
    signsAndCapitals, {{0x19, u"\u0964\u0965"},
                       {0x1c, u"\u0ce6\u0ce7\u0ce8\u0ce9\u0cea\u0ceb\u0cec\u0ced\u0cee\u0cef\u0cde\u0cf1"},
                       {0x2a, u"\u0cf2"}});

constexpr GsmTable malayalamShift = with(
    signsAndCapitals, {{0x19, u"\u0964\u0965"},
                       {0x1c, u"\u0d66\u0d67\u0d68\u0d69\u0d6a\u0d6b\u0d6c\u0d6d\u0d6e\u0d6f\u0d70\u0d71"},
                       {0x2a, u"\u0d72\u0d73\u0d74\u0d75\u0d7a"},
                       {0x30, u"\u0d7b\u0d7c\u0d7d\u0d7e\u0d7f"}});

constexpr GsmTable oriyaShift = with(
    signsAndCapitals, {{0x19, u"\u0964\u0965"},
                       {0x1c, u"\u0b66\u0b67\u0b68\u0b69\u0b6a\u0b6b\u0b6c\u0b6d\u0b6e\u0b6f\u0b5c\u0b5d"},
                       {0x2a, u"\u0b5f\u0b70\u0b71"}});

constexpr GsmTable punjabiShift = with(
    signsAndCapitals, {{0x19, u"\u0964\u0965"},
                       {0x1c, u"\u0a66\u0a67\u0a68\u0a69\u0a6a\u0a6b\u0a6c\u0a6d\u0a6e\u0a6f\u0a59\u0a5a"},
                       {0x2a, u"\u0a5b\u0a5c\u0a5e\u0a75"}});

constexpr GsmTable tamilShift = with(
    signsAndCapitals, {{0x19, u"\u0964\u0965"},
                       {0x1c, u"\u0be6\u0be7\u0be8\u0be9\u0bea\u0beb\u0bec\u0bed\u0bee\u0bef\u0bf3\u0bf4"},
                       {0x2a, u"\u0bf5\u0bf6\u0bf7\u0bf8\u0bfa"}});

constexpr GsmTable teluguShift = with(
    signsAndCapitals, {{0x1c, u"\u0c66\u0c67\u0c68\u0c69\u0c6a\u0c6b\u0c6c\u0c6d\u0c6e\u0c6f\u0c58\u0c59"},
                       {0x2a, u"\u0c78\u0c79\u0c7a\u0c7b\u0c7c"},
                       {0x30, u"\u0c7d\u0c7e\u0c7f"}});

constexpr GsmTable urduShift = with(
    signsAndCapitals, {{0x19, u"\u0600\u0601"},
                       {0x1c, u"\u06f0\u06f1\u06f2\u06f3\u06f4\u06f5\u06f6\u06f7\u06f8\u06f9\u060c\u060d"},
                       {0x2a, u"\u060e\u060f\u0610\u0611\u0612"},
                       {0x30, u"\u0613\u0614\u061b\u061f\u0640\u0652\u0658\u066b\u066c\u0672\u0673\u06cd"},
                       {0x3f, u"\u06d4"}});

/// By language identifier.
constexpr const GsmTable *shiftTables[] = {
    &extensionTable, &turkishShift, &spanishShift, &portugueseShift, &bengaliShift,
    &gujaratiShift,  &hindiShift,   &kannadaShift, &malayalamShift,  &oriyaShift,
    &punjabiShift,   &tamilShift,   &teluguShift,  &urduShift,
};

} // namespace

const GsmTable &gsmShiftTable(int language)
{
    return language >= 0 && language < int(std::size(shiftTables)) ? *shiftTables[language] : extensionTable;
}

} // namespace corva

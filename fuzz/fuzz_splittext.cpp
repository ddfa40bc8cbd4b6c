// SPDX-License-Identifier: GPL-3.0-or-later
// The first byte picks the language; the text behind it, once taken for UTF-8 and once for UTF-16, comes back
// from the PDUs that it is sent in.
#include "pducheck.h"
#include "sms/splittext.h"
#include "sms/submit.h"

using namespace corva;
using namespace Qt::StringLiterals;

namespace
{

QString received(const SplitText &split, int index)
{
    SM_PARAM message = smParamFor(split, index, u"+4917112345"_s, u"49171"_s, 255, true);
    const bool isUcs2 = split.alphabet == Alphabet::Ucs2;
    const QByteArray pdu = encodeSubmit(message, split.parts[std::size_t(index)], {0, true, isUcs2});
    const SmsResult result = decodeSms(pdu, SmsDirection::OnCard);
    REQUIRE(std::holds_alternative<DecodedSms>(result));
    const auto &part = std::get<DecodedSms>(result);
    REQUIRE(part.userDataLength <= (isUcs2 ? 140 : 160));
    REQUIRE(part.concatenation.has_value() == (split.parts.size() > 1));
    REQUIRE(part.asksReport == (index + 1 == int(split.parts.size())));
    return part.text;
}

void check(const QString &text, int language)
{
    const SplitText split = splitText(text, {language});
    REQUIRE(!split.parts.empty() && int(split.parts.size()) >= split.formulaParts);
    REQUIRE((split.alphabet == Alphabet::Ucs2) == !split.whyUcs2.isEmpty());
    if (!split.isSendable())
        return;
    QString joined;
    for (int i = 0; i < int(split.parts.size()); ++i) {
        joined += received(split, i);
        const bool isCut = i + 1 < int(split.parts.size());
        REQUIRE(!isCut || !joined.back().isHighSurrogate() ||
                !split.parts[std::size_t(i) + 1].front().isLowSurrogate());
    }
    REQUIRE(joined == text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const int language = data[0] % 4;
    const QByteArray bytes(reinterpret_cast<const char *>(data + 1), qsizetype(size - 1));
    check(QString::fromUtf8(bytes), language);
    QString units(bytes.size() / 2, Qt::Uninitialized);
    std::copy_n(bytes.constData(), units.size() * 2, reinterpret_cast<char *>(units.data()));
    check(units, language);
    return 0;
}

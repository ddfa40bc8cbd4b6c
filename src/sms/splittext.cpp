// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/splittext.h"

#include <algorithm>
#include <cstring>
#include <span>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// What a message and a part of a long one hold, in septets or code units.
struct Room {
    int single;
    int part;
};

constexpr Room ucs2Room{70, 67};
constexpr Room nationalRoom{155, 149};
constexpr Room gsmRoom{160, 153};

/// A way to code the text.
struct Candidate {
    Alphabet alphabet = Alphabet::Gsm7;
    int locking = DefaultLanguage;
    int single = DefaultLanguage;

    bool isNational() const { return locking != DefaultLanguage || single != DefaultLanguage; }
    Room room() const
    {
        if (alphabet == Alphabet::Ucs2)
            return ucs2Room;
        return isNational() ? nationalRoom : gsmRoom;
    }
};

/// Code units of the character at `i`: 2 for a pair.
qsizetype unitsAt(QStringView text, qsizetype i)
{
    const bool isPair = text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    return isPair ? 2 : 1;
}

/// What each character takes, in the units of `Room`.
class Measure
{
public:
    explicit Measure(const Candidate &candidate)
        : m_isUcs2(candidate.alphabet == Alphabet::Ucs2),
          m_coding(GsmCoding::forLanguages(candidate.locking, candidate.single))
    {
    }

    /// 0 for a character that cannot be coded.
    int operator()(QStringView text, qsizetype i) const
    {
        return m_isUcs2 ? int(unitsAt(text, i)) : m_coding.septets(text[i]);
    }

private:
    bool m_isUcs2;
    GsmCoding m_coding;
};

/// Where the first character stands that cannot be coded; the text's size when all can. `length` receives
/// what the text takes up to there.
qsizetype codable(QStringView text, const Candidate &candidate, int &length)
{
    const Measure measure(candidate);
    length = 0;
    qsizetype i = 0;
    while (i < text.size()) {
        const int taken = measure(text, i);
        if (taken == 0)
            break;
        length += taken;
        i += unitsAt(text, i);
    }
    return i;
}

std::vector<QString> cut(const QString &text, const Candidate &candidate, int room)
{
    const Measure measure(candidate);
    std::vector<QString> parts;
    qsizetype start = 0;
    int used = 0;
    for (qsizetype i = 0; i < text.size(); i += unitsAt(text, i)) {
        const int taken = measure(text, i);
        if (used + taken > room) {
            parts.push_back(text.mid(start, i - start));
            start = i;
            used = 0;
        }
        used += taken;
    }
    parts.push_back(text.mid(start));
    return parts;
}

/// In order of preference. A single shift table keeps every character of the default one, so it goes first
/// among those that take the same room.
std::vector<Candidate> septetCandidates(int language)
{
    std::vector<Candidate> candidates{{}};
    if (language != DefaultLanguage)
        candidates.push_back({Alphabet::Gsm7, DefaultLanguage, language});
    if (hasLockingTable(language))
        candidates.push_back({Alphabet::Gsm7, language, DefaultLanguage});
    return candidates;
}

struct Choice {
    Candidate candidate;
    int length = 0;
    qsizetype firstUncodable = 0; ///< by any septet candidate
};

Choice choose(const QString &text, const TextCoding &coding)
{
    Choice best;
    best.length = -1;
    for (const Candidate &candidate : septetCandidates(coding.language)) {
        int length = 0;
        const qsizetype coded = codable(text, candidate, length);
        best.firstUncodable = std::max(best.firstUncodable, coded);
        if (coded < text.size() || (best.length >= 0 && length >= best.length))
            continue;
        best.candidate = candidate;
        best.length = length;
        if (!candidate.isNational())
            break;
    }
    if (best.length < 0) {
        best.candidate.alphabet = Alphabet::Ucs2;
        best.length = int(text.size());
    }
    return best;
}

template <std::size_t size> void setText(char (&field)[size], const QString &text)
{
    qstrncpy(field, text.toLatin1().constData(), size);
}

/// The header's octets, length octet first. 3GPP TS 23.040 9.2.3.24.
Octets headerOf(const SplitText &split, int index, int reference)
{
    Octets header{0};
    if (split.parts.size() > 1) {
        const auto total = quint8(split.parts.size());
        for (const quint8 octet : {quint8(0x00), quint8(0x03), quint8(reference), total, quint8(index + 1)})
            header.append(octet);
    }
    if (split.isNational) {
        for (const quint8 octet :
             {quint8(split.isLocking ? 0x25 : 0x24), quint8(0x01), quint8(split.languageCode)})
            header.append(octet);
    }
    header[0] = quint8(header.size() - 1);
    return header;
}

} // namespace

GsmCoding gsmCodingOf(const SplitText &split)
{
    const int language = split.languageCode;
    return split.isLocking ? GsmCoding::forLanguages(language, DefaultLanguage)
                           : GsmCoding::forLanguages(DefaultLanguage, language);
}

TextCoding TextCoding::fromSpecialCode(const QString &value)
{
    if (value == "gsm7ex_spanish"_L1)
        return {Spanish};
    return {value == "gsm7ex_portuguese"_L1 ? Portuguese : Turkish};
}

SplitText splitText(const QString &text, const TextCoding &coding)
{
    const auto [candidate, length, firstUncodable] = choose(text, coding);
    const Room room = candidate.room();
    const bool isLong = length > room.single;
    SplitText split;
    split.alphabet = candidate.alphabet;
    split.isNational = candidate.isNational();
    split.isLocking = candidate.locking != DefaultLanguage;
    split.languageCode = split.isNational ? coding.language : 0;
    split.length = length;
    split.formulaParts = isLong ? (length - 1) / room.part + 1 : 1;
    split.parts = isLong ? cut(text, candidate, room.part) : std::vector<QString>{text};
    if (candidate.alphabet == Alphabet::Ucs2)
        split.whyUcs2 = text.mid(firstUncodable, unitsAt(text, firstUncodable));
    return split;
}

SM_PARAM smParamFor(const SplitText &split, int index, const QString &number, const QString &serviceCentre,
                    int concatReference, bool asksReport)
{
    const QString &text = split.parts.at(std::size_t(index));
    SM_PARAM record;
    setText(record.SCA, serviceCentre);
    setText(record.TPA, number);
    const bool isUcs2 = split.alphabet == Alphabet::Ucs2;
    const bool hasHeader = split.parts.size() > 1 || split.isNational;
    Septets userData = hasHeader ? headerOf(split, index, concatReference) : Septets();
    record.concatenated = hasHeader;
    record.ucs2Header = isUcs2 && hasHeader;
    record.national = split.isNational;
    record.reportPart = hasHeader && asksReport && index + 1 == int(split.parts.size());
    if (isUcs2) {
        record.tp_udlength = int(userData.size() + text.size());
    } else {
        if (fillBitsBehind(userData.size()) > 0)
            userData.append(0);
        const GsmCoding coding = gsmCodingOf(split);
        for (const QChar character : text)
            coding.append(character, userData);
        record.tp_udlength = int(userData.size());
    }
    std::memcpy(record.TP_UD, userData.data(), std::min(sizeof record.TP_UD, std::size_t(userData.size())));
    return record;
}

} // namespace corva

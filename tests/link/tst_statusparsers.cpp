// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "link/simprovider.h"
#include "link/statusparsers.h"

using namespace corva;
using namespace Qt::StringLiterals;

namespace
{

/// A value as a text. (Members of a class, so that each stands on one line.)
struct Say {
    static QString of(const QString &text) { return text; }
    static QString of(int number) { return QString::number(number); }
    static QString of(SimState state) { return of(int(state)); }
    static QString of(const std::optional<int> &number) { return number ? of(*number) : u"-"_s; }
    static QString of(std::optional<bool> flag) { return flag ? of(int(*flag)) : u"-"_s; }
    static QString of(const QDateTime &time) { return time.toString(Qt::ISODate); }
    static QString of(const SignalQuality &q) { return of(q.rssi) + u' ' + of(q.dbm); }
    static QString of(const RadioQuality &q) { return u"%1 %2 %3"_s.arg(q.rssi).arg(q.ecio).arg(q.rscp); }
    static QString of(const AttemptsLeft &left) { return of(left.pin) + u' ' + of(left.puk); }
    static QString of(const OperatorSelection &s)
    {
        return u"%1 [%2] %3 %4"_s.arg(of(s.mode), s.name, s.code, of(int(s.networkType)));
    }
    static QString of(const RegistrationState &s)
    {
        return u"%1 %2 %3 %4"_s.arg(of(int(s.stat)), of(s.lac), of(s.cellId), of(int(s.networkType)));
    }
    static QString of(const SimProvider &p)
    {
        return u"[%1] %2 %3"_s.arg(p.name, of(int(p.wantsNetworkAtHome)), of(int(p.isSilentAbroad)));
    }
    static QString of(const SystemInformation &s)
    {
        return u"%1 %2 %3"_s.arg(of(int(s.service)), of(s.roaming), of(int(s.networkType)));
    }
};

/// The value, or the error as "!kind detail".
template <typename T> QString said(const ReplyResult<T> &result)
{
    static const char *const kinds[] = {"no reply", "refused", "no line", "bad field"};
    if (result)
        return Say::of(*result);
    return u"!%1 %2"_s
        .arg(QLatin1StringView(kinds[result.error().kind]), QString::fromLatin1(result.error().detail))
        .trimmed();
}

template <auto parse> QString parsed(const QByteArray &reply)
{
    return said(parse(reply));
}
template <auto parse> QString parsedLine(const QByteArray &reply)
{
    // The first word is the prefix.
    const qsizetype blank = reply.indexOf(' ');
    return said(parse(reply.sliced(blank + 1), QByteArrayView(reply).first(blank)));
}

using Parser = QString (*)(const QByteArray &);

constexpr Parser csq = parsed<&parseSignalQuality>;
constexpr Parser jrssi = parsed<&parseRadioQuality>;
constexpr Parser cops = parsed<&parseOperator>;
constexpr Parser creg = parsedLine<&parseRegistration>;
constexpr Parser sysinfo = parsed<&parseSysInfo>;
constexpr Parser jpas = parsed<&parseJpas>;
constexpr Parser jtime = parsedLine<&parseNetworkTime>;
constexpr Parser jant = parsed<&parseAntenna>;
constexpr Parser attempts = parsed<&parseAttempts>;
constexpr Parser cpin = parsed<&parseSimState>;
constexpr Parser identity = parsedLine<&parseIdentity>;
constexpr Parser cimi = parsed<&parseImsi>;
constexpr Parser iccid = parsed<&parseIccid>;
constexpr Parser provider = parsed<&parseProvider>;
constexpr Parser cnum = parsed<&parseOwnNumber>;
constexpr Parser cpbr = parsed<&parsePhonebookCapacity>;

// Parser; reply, with "|" for CR LF; value.
const Rows<Parser, QByteArray, const char *> rows{
    {"signal, weakest", csq, "|+CSQ: 0,99||OK|", "0 -113"},
    {"signal, strongest, echoed", csq, "AT+CSQ|+CSQ: 31,0||OK|", "31 -51"},
    {"signal unknown", csq, "|+CSQ: 99,99||OK|", "99 -"},
    {"signal beside reports", csq, "RING||+CREG: 1|+CSQ: 5,0||+CMTI: \"SM\",1|OK|", "5 -103"},
    {"signal below zero", csq, "|+CSQ: -1,99||OK|", "!bad field rssi"},
    {"signal is a word", csq, "|+CSQ: 20x,99||OK|", "!bad field rssi"},
    {"signal refused", csq, "|+CME ERROR: no network service|", "!refused no network service"},
    {"signal of nobody", csq, "|OK|", "!no line +CSQ:"},
    {"no reply", csq, "", "!no reply"},
    {"pending signal", jrssi, "|+JRSSI: -71,-6,-80|", "-71 -6 -80"},
    {"pending signal, huge", jrssi, "|+JRSSI: 99999999999,1,1|", "!bad field rssi"},
    {"operator by name", cops, "|+COPS: 0,0,\"Test, \"\"Net\",2|OK|", "0 [Test, Net]  5"},
    {"operator in UCS2", cops, "|+COPS: 0,0,\"00540065007300740020004E\",0|OK|", "0 [Test N]  2"},
    {"operator that looks like hex", cops, "|+COPS: 0,0,\"CAFE\",0|OK|", "0 [CAFE]  2"},
    {"operator in UCS2 with what nobody sees", cops,
     "|+COPS: 0,0,\"202E00540065D80000730074200F00000000\",0|OK|", "0 [Test]  2"},
    {"operator in UCS2 with a pair", cops, "|+COPS: 0,0,\"00540065D83DDE00\",0|OK|", "0 [Te\U0001F600]  2"},
    {"operator with half a pair", cops, "|+COPS: 0,0,\"D800D800\"|OK|", "0 [D800D800]  0"},
    {"operator by number", cops, "|+COPS: 1,2,\"26201\",7|OK|", "1 [] 26201 15"},
    {"operator by number as name", cops, "|+COPS: 0,0,\"310410\"|OK|", "0 [] 310410 0"},
    {"operator, open quote", cops, "|+COPS: 0,0,\"Test|OK|", "0 [Test]  0"},
    {"operator without mode", cops, "|+COPS: ,0,\"Test\"|OK|", "!bad field mode"},
    {"registered at home", creg, "+CREG: AT+CREG?|+CREG: 2,1,\"1234\",\"ABCD\",2|OK|", "1 4660 43981 5"},
    {"registered, long cell", creg, "+CGREG: |+CGREG: 2,5,\"00FF\",\"0ABCDEF0\"|OK|", "5 255 180150000 0"},
    {"registration report", creg, "+CREG: |+CREG: 1,\"1234\",\"ABCD\"|", "1 4660 43981 0"},
    {"registration report without quotes", creg, "+CREG: |+CREG: 1,00C3|", "1 195 - 0"},
    {"registration report without quotes, all digits", creg, "+CREG: |+CREG: 5,0001,0002,2|", "5 1 2 5"},
    {"registration without quotes", creg, "+CREG: |+CREG: 2,1,00C3,BEEF|OK|", "1 195 48879 0"},
    {"registration for messages only", creg, "+CREG: |+CREG: 0,7|OK|", "5 - - 0"},
    {"registration, wild area", creg, "+CREG: |+CREG: 2,1,\"12345\",\"GHIJ\"|OK|", "1 - - 0"},
    {"registration beyond the list", creg, "+CREG: |+CREG: 2,11|OK|", "!bad field stat"},
    {"data registration is another line", creg, "+CREG: |+CGREG: 0,1|OK|", "!no line +CREG:"},
    {"service on 3G", sysinfo, "|^SYSINFO:2,3,0,5,1,0,5|OK|", "2 0 6"},
    {"service abroad, CDMA form", sysinfo, "|^SYSINFO: 2,255,1,4,1|OK|", "2 1 13"},
    {"no service, no SIM", sysinfo, "|^SYSINFO:0,0,0,0,255|OK|", "0 0 1"},
    {"service beyond the list", sysinfo, "|^SYSINFO:9,0,7,99,1,,99|OK|", "255 - 0"},
    {"access without service", jpas, "|+JPAS: 3|OK|", "255 - 2"},
    {"access, nothing", jpas, "|+JPAS: |OK|", "!bad field mode"},
    {"time with zone", jtime, "+JTIME: |+JTIME: \"26/02/28,23:59:59+08\"|OK|", "2026-02-28T23:59:59+02:00"},
    {"time west, summer time behind", jtime, "+CCLK: |+CCLK: \"24/02/29,00:00:00-20,1\"|OK|",
     "2024-02-29T00:00:00-05:00"},
    {"time without quotes", jtime, "+JTIME: |+JTIME: 26/02/28,01:02:03+00|OK|", "2026-02-28T01:02:03+00:00"},
    {"time without zone", jtime, "+JTIME: |+JTIME: \"26/02/28,01:02:03\"|OK|", "2026-02-28T01:02:03"},
    {"no such day", jtime, "+JTIME: |+JTIME: \"26/02/29,01:02:03+00\"|OK|", "!bad field time"},
    {"antenna, neither", jant, "|+JANT: 2|OK|", "!bad field antenna"},
    {"attempts", attempts, "|+JPINPUK: 3,10|OK|", "3 10"},
    {"SIM ready", cpin, "|+CPIN: READY|OK|", "1"},
    {"SIM wants PIN2 only", cpin, "|+CPIN: SIM PIN2|OK|", "1"},
    {"SIM locked to a network", cpin, "|+CPIN: PH-NET PIN|OK|", "!bad field code"},
    {"no SIM, number", cpin, "|+CME ERROR: 10|", "6"},
    {"model behind its prefix", identity, "+CGMM: |+CGMM: \"EM7\"|OK|", "EM7"},
    {"model that begins with AT", identity, "+CGMM: |ATLAS 3|OK|", "ATLAS 3"},
    {"model beside reports", identity, "+CGMM: |STOPRING||^MODE: 5|EM7|OK|", "EM7"},
    {"model with controls", identity, "+CGMM: |EM\0337\x7f|OK|", "EM7"},
    {"model missing", identity, "+CGMM: |OK|", "!no line +CGMM:"},
    {"subscriber, too long", cimi, "|0010101234567890|OK|", "!bad field IMSI"},
    {"SIM's number, odd", iccid, "|+CRSM: 144,0,\"980010102143658709F1\"|OK|", "8900010112345678901"},
    {"SIM's number, no such file", iccid, "|+CRSM: 148,4|OK|", "!refused 148"},
    {"SIM's number, cut", iccid, "|+CRSM: 144,0,9800|OK|", "!bad field ICCID"},
    {"SIM's number, letters", iccid, "|+CRSM: 144,0,\"ABCDEABCDEABCDEABCDE\"|OK|", "!bad field ICCID"},
    {"provider", provider, "|+CRSM: 144,0,\"0154657374204EF7FFFFFFFFFFFFFFFFFF\"|OK|", "[Test N] 1 0"},
    {"provider, at home alone", provider, "|+CRSM: 144,0,0254656CFF|OK|", "[Tel] 0 1"},
    {"provider, letters and an extension", provider, "|+CRSM: 144,0,005B1B651B5E0009FF|OK|",
     "[\u00c4\u20ac\u00dc@\u00c7] 0 0"},
    {"provider, UCS2", provider, "|+CRSM: 144,0,00804E2D56FDFFFFFF|OK|", "[\u4e2d\u56fd] 0 0"},
    {"provider, UCS2, half a character", provider, "|+CRSM: 144,0,00804E2D56|OK|", "[\u4e2d] 0 0"},
    {"provider, near a base octet", provider, "|+CRSM: 144,0,00810508C2D045C6FFFF|OK|",
     "[\u0442\u0450E\u0446\u047f] 0 0"},
    {"provider, near a base", provider, "|+CRSM: 144,0,0082030410844180FF|OK|", "[\u0414A\u0410] 0 0"},
    {"provider, more told than there is", provider, "|+CRSM: 144,0,0082FF041084|OK|", "[\u0414] 0 0"},
    {"provider, base cut", provider, "|+CRSM: 144,0,00820104|OK|", "[] 0 0"},
    {"provider, a turn of the writing", provider, "|+CRSM: 144,0,0080202E0041000A0042|OK|", "[AB] 0 0"},
    {"provider, none", provider, "|+CRSM: 144,0,\"00FFFFFFFF\"|OK|", "[] 0 0"},
    {"provider, half an octet", provider, "|+CRSM: 144,0,\"00546\"|OK|", "!bad field provider"},
    {"own number abroad", cnum, "|+CNUM: \"me, here\",\"12025550123\",145|OK|", "+12025550123"},
    {"own number, no number", cnum, "|+CNUM: \"\",\"call me\",129|OK|", "!bad field number"},
    {"phonebook from 0", cpbr, "|+CPBR: ( 0 - 249 ),40,14|OK|", "249"},
    {"phonebook without end", cpbr, "|+CPBR: (1-99999999),40|OK|", "!bad field range"},
};

} // namespace

class TestStatusParsers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void forms_data() { addRows(rows); }
    void forms()
    {
        const auto &[name, parser, reply, value] = currentRow(rows);
        QCOMPARE(parser(QByteArray(reply).replace('|', "\r\n")), QString::fromUtf8(value));
    }
};

QTEST_APPLESS_MAIN(TestStatusParsers)
#include "tst_statusparsers.moc"

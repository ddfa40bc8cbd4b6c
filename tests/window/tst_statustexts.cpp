// SPDX-License-Identifier: GPL-3.0-or-later
#include "fakecardmonitor.h"
#include "window/linkreport.h"
#include "window/operatorname.h"
#include "window/statustexts.h"
#include "window/windowplace.h"

#include <QTest>
#include <thread>

using namespace Qt::StringLiterals;
using namespace corva;

class TestStatusTexts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesTheNetwork_data()
    {
        QTest::addColumn<NetworkType>("type");
        QTest::addColumn<QString>("asThreeG");
        QTest::addColumn<QString>("asH");
        QTest::newRow("not known") << NetworkType::Unknown << QString() << QString();
        QTest::newRow("EDGE is its own name") << NetworkType::Edge << u"EDGE"_s << u"EDGE"_s;
        QTest::newRow("plain 3G stays 3G") << NetworkType::Umts << u"3G"_s << u"3G"_s;
        QTest::newRow("HSPA") << NetworkType::Hspa << u"3G"_s << u"H"_s;
        QTest::newRow("HSPA+") << NetworkType::HspaPlus << u"3G"_s << u"H+"_s;
        QTest::newRow("EV-DO is no H") << NetworkType::Evdo << u"3G"_s << u"3G"_s;
        QTest::newRow("LTE") << NetworkType::Lte << u"4G"_s << u"4G"_s;
    }

    void namesTheNetwork()
    {
        QFETCH(const NetworkType, type);
        QTEST(networkTypeShort(type, naming3GFromNumber(0)), "asThreeG");
        QTEST(networkTypeShort(type, naming3GFromNumber(1)), "asH");
        QTEST(networkTypeShort(type, naming3GFromNumber(2)), "asThreeG");
    }

    void operatorNames_data()
    {
        using Rules = OperatorNameRules;
        constexpr auto home = Registration::Home;
        constexpr auto abroad = Registration::Roaming;
        QTest::addColumn<SimProvider>("provider");
        QTest::addColumn<Registration>("registration");
        QTest::addColumn<Rules>("rules");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const SimProvider &provider, Registration registration,
                            const Rules &rules, const QString &shown) {
            QTest::newRow(name) << provider << registration << rules << shown;
        };
        const SimProvider plain{u"Tel"_s, false, false};
        const SimProvider both{u"Tel"_s, true, false};
        const SimProvider homeOnly{u"Tel"_s, false, true};
        row("no provider's name", {}, home, {}, u"Netz"_s);
        row("home", plain, home, {}, u"Tel"_s);
        row("home, both wanted", both, home, {}, u"Tel (Netz)"_s);
        row("home, both the same", {u"Netz"_s, true, false}, home, {}, u"Netz"_s);
        row("abroad", plain, abroad, {}, u"Tel (Netz)"_s);
        row("abroad, not wanted", homeOnly, abroad, {}, u"Netz"_s);
        row("network always", plain, home, {.networkAlways = true}, u"Tel (Netz)"_s);
        row("network never", both, abroad, {.networkNever = true}, u"Tel"_s);
        row("network never, and no other", {}, home, {.networkNever = true}, u"26201"_s);
        row("provider always", homeOnly, abroad, {.providerAlways = true}, u"Tel (Netz)"_s);
        row("provider never", plain, home, {.providerNever = true}, u"Netz"_s);
        row("never goes over always", plain, home, {.providerAlways = true, .providerNever = true},
            u"Netz"_s);
    }

    void operatorNames()
    {
        QFETCH(const SimProvider, provider);
        QFETCH(const Registration, registration);
        QFETCH(const OperatorNameRules, rules);
        CardState state = fakecard::registeredCard();
        state.operatorName = u"Netz"_s;
        state.identity.provider = provider;
        state.registration = registration;
        QTEST(operatorNameOf(state, rules), "shown");
        state.operatorName.clear();
        state.operatorCode.clear();
        QCOMPARE(operatorNameOf(state, rules), QString()); // a SIM without a network names none
    }

    void notices_data()
    {
        QTest::addColumn<LinkReport>("report");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("body");
        QTest::addColumn<QString>("ends");
        QTest::newRow("a ring") << LinkReport::RingOrMessage << u"\r\nRING\r\n"_s << u"The card is ringing."_s
                                << QString();
        QTest::newRow("a message is the message service's")
            << LinkReport::RingOrMessage << u"\r\n+CMTI: \"SM\",3\r\n"_s << QString() << QString();
        QTest::newRow("the end of a call")
            << LinkReport::RingOrMessage << QString() << QString() << u"call"_s;
        QTest::newRow("the caller gave up") << LinkReport::RingStopped << QString() << QString() << u"call"_s;
        QTest::newRow("a waiting call") << LinkReport::CallWaiting << u"+CCWA: \"0170\",129,1"_s
                                        << u"Another call is waiting."_s << QString();
        QTest::newRow("a SIM menu is the page's")
            << LinkReport::StkMainMenu << u"+JPSTM: 1"_s << QString() << QString();
    }

    void notices()
    {
        QFETCH(const LinkReport, report);
        QFETCH(const QString, text);
        const auto notice = noticeFor(report, text);
        QTEST(notice ? notice->body : QString(), "body");
        QTEST(noticeEndedBy(report, text), "ends");
    }

    void reportsStepOverToTheGuiThreadInOrder()
    {
        ReportHub hub;
        QStringList seen;
        bool isOnGuiThread = true;
        connect(&hub, &ReportHub::sigReport, &hub, [&](LinkReport, const QString &text) {
            seen += text;
            isOnGuiThread =
                isOnGuiThread && QThread::currentThread() == QCoreApplication::instance()->thread();
        });
        std::thread card([&] {
            for (const QString &text : {u"one"_s, u"two"_s, u"three"_s})
                hub.post(LinkReport::Ussd, text);
        });
        card.join();
        QVERIFY(seen.isEmpty());
        QTRY_COMPARE(seen, QStringList({u"one"_s, u"two"_s, u"three"_s}));
        QVERIFY(isOnGuiThread);
    }

    void placeText_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QRect>("place");
        QTest::newRow("as written") << u"32,50,960,600"_s << QRect(32, 50, 960, 600);
        QTest::newRow("left of the first screen") << u"-1900,10,900,600"_s << QRect(-1900, 10, 900, 600);
        QTest::newRow("nothing stored") << QString() << QRect();
        QTest::newRow("no numbers") << u"a,b,c,d"_s << QRect();
        QTest::newRow("three of four") << u"1,2,3"_s << QRect();
        QTest::newRow("no area") << u"1,2,0,600"_s << QRect();
        QTest::newRow("out of all reason") << u"1,2,2147483647,2147483647"_s << QRect();
    }

    void placeText()
    {
        QFETCH(const QString, text);
        QFETCH(const QRect, place);
        const auto read = placeFromText(text);
        QCOMPARE(read.has_value(), place.isValid());
        if (read)
            QCOMPARE(*read, place);
        if (read)
            QCOMPARE(placeToText(*read), text);
    }

    void placeOnScreens_data()
    {
        QTest::addColumn<QRect>("place");
        QTest::addColumn<QList<QRect>>("screens");
        QTest::addColumn<QRect>("fitted");
        const QRect small(0, 0, 1024, 600);
        const QRect right(1024, 0, 1920, 1080);
        QTest::newRow("still there") << QRect(10, 20, 960, 560) << QList{small} << QRect(10, 20, 960, 560);
        QTest::newRow("its screen was unplugged") << QRect(1500, 20, 960, 560) << QList{small} << QRect();
        QTest::newRow("half over the edge")
            << QRect(500, 100, 960, 560) << QList{small} << QRect(64, 40, 960, 560);
        QTest::newRow("larger than the screen") << QRect(0, 0, 1800, 1000) << QList{small} << small;
        QTest::newRow("smaller than usable") << QRect(5, 5, 100, 80) << QList{small} << QRect(5, 5, 800, 520);
        QTest::newRow("most of it on the second")
            << QRect(1000, 10, 900, 600) << QList{small, right} << QRect(1024, 10, 900, 600);
        QTest::newRow("no screen at all") << QRect(0, 0, 900, 600) << QList<QRect>{} << QRect();
    }

    void placeOnScreens()
    {
        QFETCH(const QRect, place);
        QFETCH(const QList<QRect>, screens);
        QTEST(fitPlace(place, screens, QSize(800, 520)).value_or(QRect()), "fitted");
    }
};

QTEST_GUILESS_MAIN(TestStatusTexts)
#include "tst_statustexts.moc"

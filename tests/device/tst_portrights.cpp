// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/portaccess.h"

#include <QtTest>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

class TestPortRights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ports_data();
    void ports();
    void groups_data();
    void groups();
};

void TestPortRights::ports_data()
{
    QTest::addColumn<QString>("port");
    QTest::addColumn<QString>("group");
    QTest::newRow("none") << u"/nowhere"_s << QString();
    QTest::newRow("administrator's own") << u"/dev/null"_s << u"root"_s;
}

void TestPortRights::ports()
{
    QFETCH(QString, port);
    QFETCH(QString, group);
    QCOMPARE(portGroup(port), group);
    QCOMPARE(rightsAdvice(port), RightsAdvice::AskAdministrator);
    QVERIFY(!rightsAdviceText(port).contains(u"usermod"_s));
}

void TestPortRights::groups_data()
{
    QTest::addColumn<gid_t>("group");
    QTest::addColumn<mode_t>("mode");
    QTest::addColumn<RightsAdvice>("advice");
    constexpr gid_t without = 54321; // nobody is in it
    QTest::newRow("may do both") << without << mode_t(0660) << RightsAdvice::JoinGroup;
    QTest::newRow("may only read") << without << mode_t(0640) << RightsAdvice::AskAdministrator;
    QTest::newRow("may only write") << without << mode_t(0620) << RightsAdvice::AskAdministrator;
    QTest::newRow("administrator's own") << gid_t(0) << mode_t(0660) << RightsAdvice::AskAdministrator;
    QTest::newRow("had already") << getegid() << mode_t(0660) << RightsAdvice::AskAdministrator;
}

void TestPortRights::groups()
{
    QFETCH(gid_t, group);
    QFETCH(mode_t, mode);
    QFETCH(RightsAdvice, advice);
    QCOMPARE(rightsAdvice(group, mode), advice);
}

QTEST_GUILESS_MAIN(TestPortRights)
#include "tst_portrights.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/portaccess.h"

#include <QTemporaryDir>
#include <QtTest>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

class TestPortRights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void noSuchPort();
    void ownGroupIsNoWayIn();
    void groups_data();
    void groups();

private:
    QTemporaryDir m_folder;
    QString m_port;
};

void TestPortRights::initTestCase()
{
    m_port = m_folder.filePath(u"port"_s);
    QFile node(m_port);
    QVERIFY(node.open(QIODevice::WriteOnly));
}

void TestPortRights::noSuchPort()
{
    QCOMPARE(portGroup(u"/nowhere"_s), QString());
    QCOMPARE(rightsAdvice(u"/nowhere"_s), RightsAdvice::AskAdministrator);
}

/// A session that has the group already gains nothing by joining it.
void TestPortRights::ownGroupIsNoWayIn()
{
    QCOMPARE(chmod(m_port.toLocal8Bit().constData(), 0660), 0);
    QCOMPARE(rightsAdvice(m_port), RightsAdvice::AskAdministrator);
    QVERIFY(!portGroup(m_port).isEmpty());
}

void TestPortRights::groups_data()
{
    QTest::addColumn<gid_t>("group");
    QTest::addColumn<unsigned>("mode");
    QTest::addColumn<RightsAdvice>("advice");
    QTest::addColumn<QString>("name");
    constexpr gid_t dialout = 20; // Debian's fixed numbers
    QTest::newRow("serial ports' usual group") << dialout << 0660U << RightsAdvice::JoinGroup << u"dialout"_s;
    QTest::newRow("group may only read")
        << dialout << 0640U << RightsAdvice::AskAdministrator << u"dialout"_s;
    QTest::newRow("administrator's own group")
        << gid_t(0) << 0660U << RightsAdvice::AskAdministrator << u"root"_s;
    QTest::newRow("group without a name") << gid_t(54321) << 0660U << RightsAdvice::JoinGroup << u"54321"_s;
}

void TestPortRights::groups()
{
    if (geteuid() != 0)
        QSKIP("only an administrator may give a file to any group");
    QFETCH(gid_t, group);
    QFETCH(unsigned, mode);
    QFETCH(RightsAdvice, advice);
    QFETCH(QString, name);
    const QByteArray port = m_port.toLocal8Bit();
    QCOMPARE(chown(port.constData(), 0, group), 0);
    QCOMPARE(chmod(port.constData(), mode), 0);
    QCOMPARE(rightsAdvice(m_port), advice);
    QCOMPARE(portGroup(m_port), name);
    const QString step = u"sudo usermod -aG %1 root"_s.arg(name);
    QCOMPARE(rightsAdviceText(m_port).contains(step), advice == RightsAdvice::JoinGroup);
}

QTEST_GUILESS_MAIN(TestPortRights)
#include "tst_portrights.moc"

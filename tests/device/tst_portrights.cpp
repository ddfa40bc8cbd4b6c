// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "device/portaccess.h"

#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const Rows<QString, QString> portsRows{
    {"none", u"/nowhere"_s, {}},
    {"administrator's own", u"/dev/null"_s, u"root"_s},
};

constexpr gid_t without = 54321; // nobody is in it

const Rows<gid_t, mode_t, RightsAdvice> groupsRows{
    {"may do both", without, mode_t(0660), RightsAdvice::JoinGroup},
    {"may only read", without, mode_t(0640), RightsAdvice::AskAdministrator},
    {"may only write", without, mode_t(0620), RightsAdvice::AskAdministrator},
    {"administrator's own", gid_t(0), mode_t(0660), RightsAdvice::AskAdministrator},
    {"had already", getegid(), mode_t(0660), RightsAdvice::AskAdministrator},
};

} // namespace

class TestPortRights : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ports_data() { addRows(portsRows); }
    void ports()
    {
        const auto &[name, port, group] = currentRow(portsRows);
        QCOMPARE(portGroup(port), group);
        QCOMPARE(rightsAdvice(port), RightsAdvice::AskAdministrator);
        QVERIFY(!rightsAdviceText(port).contains(u"usermod"_s));
    }

    void groups_data() { addRows(groupsRows); }
    void groups()
    {
        const auto &[name, group, mode, advice] = currentRow(groupsRows);
        QCOMPARE(rightsAdvice(group, mode), advice);
    }
};

QTEST_GUILESS_MAIN(TestPortRights)
#include "tst_portrights.moc"

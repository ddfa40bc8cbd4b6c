// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "connection/profilerecords.h"
#include "connection/profilestore.h"

#include <QSignalSpy>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using namespace corva;

using F = ProfileField;

namespace
{

// Every line, as the program makes it.
constexpr char wholeRecord[] = "[ the record of <Home> ]\n"
                               "config file name = Home-|-\n"
                               "Phone = *99#-|-\n"
                               "Username = me-|-\n"
                               "Password = secret-|-\n"
                               "save user name = 1-|-\n"
                               "ask user name = 0-|-\n"
                               "obtain APN = 0-|-\n"
                               "use APN = 1-|-\n"
                               "APN = internet-|-\n"
                               "IP modal = IP-|-\n"
                               "PPP modal = -|-\n"
                               "PAP modal = 1-|-\n"
                               "CHAP modal = 0-|-\n"
                               "None modal = 0-|-\n"
                               "obtain DNS = 1-|-\n"
                               "use DNS = 0-|-\n"
                               "preNameserver 8.8.8.8-|-\n"
                               "altNameserver -|-\n"
                               "obtain PDP = 1-|-\n"
                               "user PDP = 0-|-\n"
                               "PDP = -|-\n"
                               "delete Enable = can&edit-|-\n"
                               "IMSI = 26201-|-\n"
                               "defaultOpenURL = -|-\n"
                               "sectionShow = 1-|-\n"
                               "defaultUsernameEditable = 1-|-\n";

ConnectionProfile wholeProfile()
{
    ConnectionProfile profile = ProfileStore::newProfile();
    profile.setText(F::Name, u"Home"_s);
    profile.setText(F::UserName, u"me"_s);
    profile.setText(F::Password, u"secret"_s);
    profile.setText(F::Apn, u"internet"_s);
    profile.setText(F::PreferredDns, u"8.8.8.8"_s);
    profile.setText(F::Imsi, u"26201"_s);
    return profile;
}

ConnectionProfile named(const QString &name, const QString &imsi = {})
{
    ConnectionProfile profile = wholeProfile();
    profile.setText(F::Name, name);
    profile.setText(F::Imsi, imsi);
    return profile;
}

const Rows<QByteArray, QString, QString> readingRows{
    {"field before header", "[ the record of <A> ]\nconfig file name = B-|-\n", u"B"_s, {}},
    {"header without the field", "[ the record of <A> ]\nAPN = a-|-\n", u"A"_s, u"a"_s},
    {"brackets in the name", "[ the record of <a> ]>b> ]\r\nAPN = x-|-\r\n", u"a> ]>b"_s, u"x"_s},
    {"line doubled", "[ the record of <A> ]\nAPN = 1-|-\nAPN = 2-|-\n", u"A"_s, u"1"_s},
    {"other APN lines", QByteArray("[ the record of <A> ]\nuse APN = 1-|-\nobtain APN = 0-|-\n"), u"A"_s, {}},
};

} // namespace

class TestProfileStore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

    void writtenForm()
    {
        ProfileStore store(m_folder->path());
        QVERIFY(store.add(wholeProfile()));
        QCOMPARE(content(u"totalRecord.conf"_s), QByteArray(wholeRecord));
        QCOMPARE(ProfileStore(m_folder->path()).list(), QList{wholeProfile()});
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(path(u"totalRecord.conf"_s)).constData(), &status), 0);
        QCOMPARE(status.st_mode & 0777, 0600u);
    }

    /// What people and other programs write into the file stays, byte by byte.
    void unedited()
    {
        const QByteArray whole = wholeRecord;
        const QByteArray odd = "\xEF\xBB\xBF; mine\n\n" + QByteArray(whole).replace("\n", "\r\n") +
                               "# between\n" +
                               QByteArray(whole).replace("Home", "H\xF6me\xFF").replace("-|-", "-|- x-|-y") +
                               "[ the record of <> ]\n" + QByteArray(whole).replace("-|-", "").chopped(1);
        for (const QByteArray &text : {QByteArray(), odd}) {
            ProfileRecords records(text);
            QVERIFY(records.isReadable());
            QCOMPARE(records.toBytes(), text);
            for (qsizetype i = 0; i < records.size(); ++i)
                records.change(i, records.at(i));
            QCOMPARE(records.toBytes(), text);
        }
    }

    void reading_data() { addRows(readingRows); }
    void reading()
    {
        const auto &[title, text, name, apn] = currentRow(readingRows);
        const ProfileRecords records(text);
        QCOMPARE(records.size(), 1);
        QCOMPARE(records.at(0).name(), name);
        QCOMPARE(records.at(0).text(F::Apn), apn);
    }

    void oneChange()
    {
        const QByteArray text = "[ the record of <A> ]\r\nPhone = 1-|- x\r\nmine\r\nIMSI = 2\r\n\r\n";
        ProfileRecords records(text);
        ConnectionProfile profile = records.at(0);
        profile.setText(F::Name, u"B"_s);
        profile.setText(F::Phone, u"3"_s);
        profile.setText(F::Apn, u"new"_s);
        profile.setText(F::Imsi, u"4"_s);
        records.change(0, profile);
        QCOMPARE(records.toBytes(),
                 QByteArray("[ the record of <B> ]\r\nconfig file name = B-|-\r\nPhone = 3-|- x\r\n"
                            "APN = new-|-\r\nmine\r\nIMSI = 4-|-\r\n\r\n"));
        QCOMPARE(ProfileRecords(records.toBytes()).at(0), profile);
    }

    void removal()
    {
        ProfileRecords records("[ the record of <A> ]\nAPN = a-|-\n# B's\n[ the record of <B> ]\nAPN = b-|-");
        records.remove(0);
        QCOMPARE(records.toBytes(), QByteArray("# B's\n[ the record of <B> ]\nAPN = b-|-"));
        records.append(named(u"C"_s));
        QCOMPARE(records.all().size(), 2);
        QCOMPARE(records.at(0).text(F::Apn), u"b"_s);
    }

    void editing()
    {
        put(u"extendTotalRecord.conf"_s, "[ the record of <Given> ]\ndelete Enable = cannot&edit-|-\n");
        ProfileStore store(m_folder->path());
        const QSignalSpy changed(&store, &ProfileStore::sigChanged);
        QVERIFY(store.add(wholeProfile()));
        QVERIFY(store.add(named(u"Work> ]"_s)));
        QVERIFY(store.change(u"Home"_s, named(u"House"_s)));
        QVERIFY(store.remove(u"Work> ]"_s));
        QCOMPARE(changed.size(), 4);
        const QList<ConnectionProfile> list = ProfileStore(m_folder->path()).list();
        QCOMPARE(list, store.list());
        QCOMPARE(list.size(), 2);
        QCOMPARE(list[0], named(u"House"_s));
        QVERIFY(!list[1].isEditable());
    }

    void refusals()
    {
        put(u"extendTotalRecord.conf"_s, "[ the record of <Given> ]\ndelete Enable = cannot&edit-|-\n");
        ProfileStore store(m_folder->path());
        QVERIFY(store.add(wholeProfile()));
        const auto refused = [](bool isDone, const QString &error, const QString &begin) {
            QVERIFY(!isDone);
            QVERIFY2(error.startsWith(begin), qPrintable(error));
        };
        QString error;
        refused(store.add(wholeProfile(), &error), error, u"There is a profile with this name"_s);
        refused(store.add(named(u"Given"_s), &error), error, u"There is a profile with this name"_s);
        refused(store.change(u"Home"_s, named(u"Given"_s), &error), error,
                u"There is a profile with this name"_s);
        refused(store.change(u"Given"_s, wholeProfile(), &error), error,
                u"This profile may not be changed"_s);
        refused(store.remove(u"Given"_s, &error), error, u"This profile may not be deleted"_s);
        refused(store.setDefault(u"Gone"_s, &error), error, u"There is no profile"_s);
        refused(store.add(named(u"a-|-b"_s), &error), error, u"A value holds"_s);
        QCOMPARE(content(u"totalRecord.conf"_s), QByteArray(wholeRecord));
    }

    void defaultFollows()
    {
        put(u"totalRecord.conf"_s, QByteArray(wholeRecord) + "mine\n");
        ProfileStore store(m_folder->path());
        QVERIFY(!store.defaultProfile());
        QVERIFY(store.setDefault(u"Home"_s));
        QCOMPARE(content(u"defaultRecord.conf"_s), QByteArray(wholeRecord) + "mine\n");
        QVERIFY(store.change(u"Home"_s, named(u"House"_s)));
        QCOMPARE(store.defaultProfile(), std::optional(named(u"House"_s)));
        QVERIFY(store.remove(u"House"_s));
        QVERIFY(!ProfileStore(m_folder->path()).defaultProfile());
    }

    void simPicksProfile()
    {
        ProfileStore store(m_folder->path());
        for (const ConnectionProfile &profile :
             {named(u"any"_s), named(u"network"_s, u"26201"_s), named(u"person"_s, u"262019"_s),
              named(u"again"_s, u"26201"_s)})
            QVERIFY(store.add(profile));
        const auto nameFor = [&store](const QString &imsi) {
            const auto profile = store.profileFor(imsi);
            return profile ? profile->name() : QString();
        };
        QCOMPARE(nameFor(u"262019000000001"_s), u"person"_s);
        QCOMPARE(nameFor(u"262010000000001"_s), u"network"_s);
        QCOMPARE(nameFor(u"262020000000001"_s), QString());
        QCOMPARE(nameFor(QString()), QString());
    }

    void proposalTwice()
    {
        ProfileStore store(m_folder->path());
        ApnProposal proposal;
        proposal.operatorName = u"Tele"_s;
        proposal.apn = u"internet"_s;
        proposal.network = u"26201"_s;
        QVERIFY(store.takeProposal(proposal));
        QVERIFY(store.takeProposal(proposal));
        QCOMPARE(store.list().size(), 1);
        QCOMPARE(store.defaultProfile()->name(), u"Tele - internet"_s);
        QCOMPARE(store.profileFor(u"262010000000001"_s), store.defaultProfile());
        QVERIFY(content(u"extendTotalRecord.conf"_s).startsWith("[ the record of <Tele - internet> ]\n"));
        proposal.network = u"26203"_s;
        QVERIFY(store.takeProposal(proposal));
        QCOMPARE(store.defaultProfile()->name(), u"Tele - internet 2"_s);
    }

    void unreadableFileIsKept()
    {
        put(u"totalRecord.conf"_s, "no record at all\n");
        ProfileStore store(m_folder->path());
        QVERIFY(!store.problem().isEmpty());
        QCOMPARE(content(u"totalRecord.conf"_s), QByteArray("no record at all\n"));
        QVERIFY(store.add(wholeProfile()));
        QCOMPARE(store.problem(), QString());
        const QStringList kept = QDir(m_folder->path()).entryList({u"totalRecord.conf.broken-*"_s});
        QCOMPARE(kept.size(), 1);
        QCOMPARE(content(kept.first()), QByteArray("no record at all\n"));
    }

    /// The list was written, the file of the default profile cannot be: the list is as before.
    void halfWritten()
    {
        ProfileStore store(m_folder->path());
        QVERIFY(store.add(wholeProfile()) && store.setDefault(u"Home"_s));
        QVERIFY(QFile::remove(path(u"defaultRecord.conf"_s)));
        QVERIFY(QDir().mkpath(path(u"defaultRecord.conf"_s)));
        QString error;
        QVERIFY(!store.change(u"Home"_s, named(u"House"_s), &error));
        QVERIFY(!store.remove(u"Home"_s));
        QCOMPARE(store.problem(), error);
        QCOMPARE(store.list(), QList{wholeProfile()});
        QCOMPARE(content(u"totalRecord.conf"_s), QByteArray(wholeRecord));
    }

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QByteArray content(const QString &name) const { return contentOf(path(name)); }
    void put(const QString &name, const QByteArray &text) const { putFile(path(name), text); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(TestProfileStore)
#include "tst_profilestore.moc"

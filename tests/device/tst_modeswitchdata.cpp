// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modeswitchdata.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;
using namespace corva;

class TestModeSwitchData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void configurations_data();
    void configurations();
    void brokenPack();
    void installedData();

private:
    QTemporaryDir m_own;    // the person's files
    QTemporaryDir m_packed; // the distribution's archive
};

namespace
{

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

} // namespace

void TestModeSwitchData::initTestCase()
{
    const QTemporaryDir content;
    write(content.filePath(u"abcd:0001"_s), "packed");
    write(content.filePath(u"abcd:0002"_s), "any");
    write(content.filePath(u"abcd:0002:uMa=Test_Maker"_s), "maker");
    write(content.filePath(u"abcd:0002:uMa=Test_Maker:sMo=CD"_s), "maker and disk");
    write(content.filePath(u"abcd:0003:sVe=Acme"_s), "disk vendor");
    write(content.filePath(u"abcd:0004:xYz=Acme"_s), "a condition nobody knows");
    write(content.filePath(u"abcd:0005"_s), QByteArray(1024 * 1024, 'x'));
    const QStringList names = QDir(content.path()).entryList(QDir::Files);
    QCOMPARE(QProcess::execute(u"tar"_s, QStringList{u"-C"_s, content.path(), u"-czf"_s,
                                                     m_packed.filePath(u"configPack.tar.gz"_s)} +
                                             names),
             0);
    write(m_own.filePath(u"abcd:0001"_s), "own");
}

void TestModeSwitchData::configurations_data()
{
    QTest::addColumn<UsbId>("id");
    QTest::addColumn<StickTexts>("texts");
    QTest::addColumn<QByteArray>("config");

    StickTexts maker;
    maker.manufacturer = u"The Test Maker Ltd"_s;
    StickTexts disk = maker;
    disk.diskModel = u"A CD drive"_s;
    StickTexts vendor;
    vendor.diskVendor = u"Acme"_s;
    QTest::newRow("own file before the archive") << UsbId{0xabcd, 1} << StickTexts() << QByteArray("own");
    QTest::newRow("no condition") << UsbId{0xabcd, 2} << StickTexts() << QByteArray("any");
    QTest::newRow("condition holds") << UsbId{0xabcd, 2} << maker << QByteArray("maker");
    QTest::newRow("both conditions hold") << UsbId{0xabcd, 2} << disk << QByteArray("maker and disk");
    QTest::newRow("disk's condition holds") << UsbId{0xabcd, 3} << vendor << QByteArray("disk vendor");
    QTest::newRow("only with a condition that fails") << UsbId{0xabcd, 3} << maker << QByteArray();
    QTest::newRow("unknown condition") << UsbId{0xabcd, 4} << vendor << QByteArray();
    QTest::newRow("too large to be true") << UsbId{0xabcd, 5} << vendor << QByteArray(16 * 1024, 'x');
    QTest::newRow("unknown stick") << UsbId{0xabcd, 6} << disk << QByteArray();
}

void TestModeSwitchData::configurations()
{
    QFETCH(UsbId, id);
    QFETCH(StickTexts, texts);
    QFETCH(QByteArray, config);
    QCOMPARE(modeSwitchConfig(id, texts, {m_own.path(), m_packed.path(), u"/nowhere"_s}), config);
}

void TestModeSwitchData::brokenPack()
{
    QFile pack(m_packed.filePath(u"configPack.tar.gz"_s));
    QVERIFY(pack.open(QIODevice::ReadOnly));
    const QByteArray whole = pack.readAll();
    const QTemporaryDir folder;
    for (const QByteArray &broken :
         {QByteArray(), QByteArray("not an archive"), whole.first(whole.size() / 8)}) {
        write(folder.filePath(u"configPack.tar.gz"_s), broken);
        QCOMPARE(modeSwitchConfig({0xabcd, 6}, {}, {folder.path()}), QByteArray());
    }
}

/// The form of the distribution's own data, which the rows above imitate.
void TestModeSwitchData::installedData()
{
    const QStringList folders{u"/usr/share/usb_modeswitch"_s};
    if (!QFile::exists(folders.constFirst() + u"/configPack.tar.gz"_s))
        QSKIP("usb-modeswitch-data is not installed");
    QVERIFY(modeSwitchConfig({0x0af0, 0x6711}, {}, folders).contains("TargetClass"));
}

QTEST_GUILESS_MAIN(TestModeSwitchData)
#include "tst_modeswitchdata.moc"

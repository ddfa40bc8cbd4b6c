// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "device/modeswitchdata.h"

#include <QProcess>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

StickTexts texts(const QString &manufacturer, const QString &diskVendor = {}, const QString &diskModel = {})
{
    StickTexts texts;
    texts.manufacturer = manufacturer;
    texts.diskVendor = diskVendor;
    texts.diskModel = diskModel;
    return texts;
}

const StickTexts maker = texts(u"The Test Maker Ltd"_s);
const StickTexts vendor = texts({}, u"Acme"_s);
const StickTexts disk = texts(maker.manufacturer, {}, u"A CD drive"_s);

const Rows<UsbId, StickTexts, QByteArray> configurationsRows{
    {"own file before the archive", UsbId{0xabcd, 1}, StickTexts(), "own"},
    {"no condition", UsbId{0xabcd, 2}, StickTexts(), "any"},
    {"condition holds", UsbId{0xabcd, 2}, maker, "maker"},
    {"both conditions hold", UsbId{0xabcd, 2}, disk, "maker and disk"},
    {"disk's condition holds", UsbId{0xabcd, 3}, vendor, "disk vendor"},
    {"only with a condition that fails", UsbId{0xabcd, 3}, maker, {}},
    {"unknown condition", UsbId{0xabcd, 4}, vendor, {}},
    {"too large to be true", UsbId{0xabcd, 5}, vendor, QByteArray(16 * 1024, 'x')},
    {"unknown stick", UsbId{0xabcd, 6}, disk, {}},
};

} // namespace

class TestModeSwitchData : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QTemporaryDir content;
        putFile(content.filePath(u"abcd:0001"_s), "packed");
        putFile(content.filePath(u"abcd:0002"_s), "any");
        putFile(content.filePath(u"abcd:0002:uMa=Test_Maker"_s), "maker");
        putFile(content.filePath(u"abcd:0002:uMa=Test_Maker:sMo=CD"_s), "maker and disk");
        putFile(content.filePath(u"abcd:0003:sVe=Acme"_s), "disk vendor");
        putFile(content.filePath(u"abcd:0004:xYz=Acme"_s), "a condition nobody knows");
        putFile(content.filePath(u"abcd:0005"_s), QByteArray(1024 * 1024, 'x'));
        const QStringList names = QDir(content.path()).entryList(QDir::Files);
        QCOMPARE(QProcess::execute(u"tar"_s, QStringList{u"-C"_s, content.path(), u"-czf"_s,
                                                         m_packed.filePath(u"configPack.tar.gz"_s)} +
                                                 names),
                 0);
        putFile(m_own.filePath(u"abcd:0001"_s), "own");
    }

    void configurations_data() { addRows(configurationsRows); }
    void configurations()
    {
        const auto &[name, id, texts, config] = currentRow(configurationsRows);
        QCOMPARE(modeSwitchConfig(id, texts, {m_own.path(), m_packed.path(), u"/nowhere"_s}), config);
    }

    void brokenPack()
    {
        QFile pack(m_packed.filePath(u"configPack.tar.gz"_s));
        QVERIFY(pack.open(QIODevice::ReadOnly));
        const QByteArray whole = pack.readAll();
        const QTemporaryDir folder;
        for (const QByteArray &broken :
             {QByteArray(), QByteArray("not an archive"), whole.first(whole.size() / 8)}) {
            putFile(folder.filePath(u"configPack.tar.gz"_s), broken);
            QCOMPARE(modeSwitchConfig({0xabcd, 6}, {}, {folder.path()}), QByteArray());
        }
    }

    /// The form of the distribution's own data, which the rows above imitate.
    void installedData()
    {
        const QStringList folders{u"/usr/share/usb_modeswitch"_s};
        if (!QFile::exists(folders.constFirst() + u"/configPack.tar.gz"_s))
            QSKIP("usb-modeswitch-data is not installed");
        QVERIFY(modeSwitchConfig({0x0af0, 0x6711}, {}, folders).contains("TargetClass"));
    }

private:
    QTemporaryDir m_own;    // the person's files
    QTemporaryDir m_packed; // the distribution's archive
};

QTEST_GUILESS_MAIN(TestModeSwitchData)
#include "tst_modeswitchdata.moc"

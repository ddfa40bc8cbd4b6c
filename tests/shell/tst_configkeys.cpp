// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/configkeys.h"

#include "shell/configxml.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

QByteArray shipped(const char *name)
{
    QFile file(QStringLiteral(CORVA_SOURCE_DIR) + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// "section/key=value" of every key, in the order of the file.
QStringList linesOfFile(const QByteArray &xml)
{
    QStringList lines;
    QDomDocument document;
    if (!parseConfigXml(xml, document).isEmpty())
        return {};
    const QDomElement root = document.documentElement();
    for (QDomElement s = root.firstChildElement(); !s.isNull(); s = s.nextSiblingElement()) {
        for (QDomElement k = s.firstChildElement(); !k.isNull(); k = k.nextSiblingElement())
            lines += s.tagName() + u'/' + k.tagName() + u'=' + k.text();
    }
    return lines;
}

} // namespace

class TestConfigKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedFileHoldsTheTable()
    {
        QStringList lines;
        for (const ConfigKey &key : configKeys())
            lines += key.section + u'/' + key.name + u'=' + key.value;
        QCOMPARE(linesOfFile(shipped("/Data/common-config.xml")), lines);
    }

    void manualHoldsTheTable() { QCOMPARE(shipped("/docs/manual/configuration-keys.md"), configKeysPage()); }

    void everyRowIsSound()
    {
        QSet<QString> seen;
        for (const ConfigKey &key : configKeys()) {
            const QString name = key.section + u'/' + key.name;
            QVERIFY2(!seen.contains(name), qPrintable(name));
            seen.insert(name);
            QVERIFY2(isXmlName(key.section) && isXmlName(key.name), qPrintable(name));
            QVERIFY2(isValueOf(key.type, key.value), qPrintable(name));
            QVERIFY2(key.meaning.endsWith(u'.') || key.meaning.endsWith(u')'), qPrintable(name));
        }
    }

    void whatTheSourcesReadIsDeclared()
    {
        QSet<QString> declared;
        for (const ConfigKey &key : configKeys())
            declared += key.section + u'/' + key.name;
        static const QRegularExpression use(
            uR"re(cmcfg\.(?:getNumber|getValue|setValue)\(\s*u"([^"]+)"_s,\s*u"([^"]+)"_s)re"_s);
        int uses = 0;
        QDirIterator files(QStringLiteral(CORVA_SOURCE_DIR) + u"/src"_s, {u"*.cpp"_s}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            QVERIFY(file.open(QIODevice::ReadOnly));
            for (const auto &match : use.globalMatch(QString::fromUtf8(file.readAll()))) {
                const QString name = match.captured(1) + u'/' + match.captured(2);
                QVERIFY2(declared.contains(name), qPrintable(file.fileName() + u": "_s + name));
                ++uses;
            }
        }
        QVERIFY(uses > 10);
    }

    void valuesHaveForms_data()
    {
        QTest::addColumn<ConfigType>("type");
        QTest::addColumn<QString>("value");
        QTest::addColumn<bool>("fits");
        QTest::newRow("flag") << ConfigType::Flag << u"1"_s << true;
        QTest::newRow("flag two") << ConfigType::Flag << u"2"_s << false;
        QTest::newRow("not set") << ConfigType::Number << QString() << true;
        QTest::newRow("number with unit") << ConfigType::Number << u"3s"_s << false;
        QTest::newRow("negative time") << ConfigType::Seconds << u"-1"_s << false;
        QTest::newRow("colour") << ConfigType::Colour << u"1,20,255"_s << true;
        QTest::newRow("colour of two") << ConfigType::Colour << u"1,20"_s << false;
        QTest::newRow("relative path") << ConfigType::File << u"ttyS0"_s << false;
    }

    void valuesHaveForms()
    {
        QFETCH(ConfigType, type);
        QFETCH(QString, value);
        QTEST(isValueOf(type, value), "fits");
    }
};

QTEST_APPLESS_MAIN(TestConfigKeys)
#include "tst_configkeys.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "shell/configkeys.h"
#include "shell/configxml.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const QString source = QStringLiteral(CORVA_SOURCE_DIR);

const Rows<ConfigType, QString, bool> valuesHaveFormsRows{
    {"flag", ConfigType::Flag, u"1"_s, true},
    {"flag two", ConfigType::Flag, u"2"_s, false},
    {"not set", ConfigType::Number, {}, true},
    {"number with unit", ConfigType::Number, u"3s"_s, false},
    {"negative time", ConfigType::Seconds, u"-1"_s, false},
    {"colour", ConfigType::Colour, u"1,20,255"_s, true},
    {"colour of two", ConfigType::Colour, u"1,20"_s, false},
    {"relative path", ConfigType::File, u"ttyS0"_s, false},
};

} // namespace

class TestConfigKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shippedFilesHoldTheTable()
    {
        QCOMPARE(contentOf(source + u"/Data/common-config.xml"_s), shippedConfigXml());
        QCOMPARE(contentOf(source + u"/docs/manual/configuration-keys.md"_s), configKeysPage());
    }

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
        QDirIterator files(source + u"/src"_s, {u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString file = files.next();
            for (const auto &match : use.globalMatch(QString::fromUtf8(contentOf(file)))) {
                const QString name = match.captured(1) + u'/' + match.captured(2);
                QVERIFY2(declared.contains(name), qPrintable(file + u": "_s + name));
                ++uses;
            }
        }
        QVERIFY(uses > 10);
    }

    void valuesHaveForms_data() { addRows(valuesHaveFormsRows); }
    void valuesHaveForms()
    {
        const auto &[name, type, value, fits] = currentRow(valuesHaveFormsRows);
        QCOMPARE(isValueOf(type, value), fits);
    }
};

QTEST_APPLESS_MAIN(TestConfigKeys)
#include "tst_configkeys.moc"

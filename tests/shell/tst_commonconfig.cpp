// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "shell/commonconfig.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

namespace
{

const QString data = QStringLiteral(CORVA_SOURCE_DIR "/Data/");

/// The record that the shipped file becomes with its lines from `first` on replaced.
CommonConfig readWith(int first, const QByteArrayList &replacement)
{
    QByteArrayList lines = contentOf(data + u"config"_s).split('\n');
    for (const QByteArray &line : replacement)
        lines[first++] = line;
    putFile(u"config"_s, lines.join('\n'));
    CommonConfig config;
    readConfigFile(config, u"config"_s);
    return config;
}

CommonConfig changed(const std::function<void(CommonConfig &)> &change)
{
    CommonConfig config;
    change(config);
    return config;
}

/// The share of light, 0 black to 1 white. WCAG 2.1, "relative luminance".
double luminance(const QColor &color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// 1 to 21. WCAG 2.1, "contrast ratio".
double contrast(const QColor &a, const QColor &b)
{
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

// The line counted from 0 where the replacement begins, the replacement, and what it changes.
const Rows<int, QByteArrayList, std::function<void(CommonConfig &)>> readsRows{
    {"labels mean nothing", 0, {"12"}, [](CommonConfig &) {}},
    {"number with blanks and line end", 1, {" 1024 \r"}, [](CommonConfig &c) { c.windowWidth = 1024; }},
    {"no number", 1, {"wide"}, [](CommonConfig &) {}},
    {"number too small", 1, {"-5"}, [](CommonConfig &c) { c.windowWidth = 320; }},
    {"number beyond counting", 1, {"99999999999999999999"}, [](CommonConfig &) {}},
    {"size of text beyond what fits", 114, {"72"}, [](CommonConfig &c) { c.textSize = 24; }},
    {"colour", 5, {"1", "2", "3"}, [](CommonConfig &c) { c.window = QColor(1, 2, 3); }},
    {"colour out of range", 5, {"-1", "256", "3"}, [](CommonConfig &c) { c.window = QColor(0, 255, 3); }},
    {"colour with a hole", 5, {"1", "", "3"}, [](CommonConfig &) {}},
    {"text", 25, {"  Mine "}, [](CommonConfig &c) { c.skinName = u"  Mine "_s; }},
    {"empty text", 25, {""}, [](CommonConfig &c) { c.skinName = QString(); }},
    {"text not set", 25, {"null"}, [](CommonConfig &) {}},
};

} // namespace

class TestCommonConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder.emplace(); }

    void shippedFilesHoldTheTable()
    {
        for (const QString &name : {u"config"_s, u"skins/light"_s, u"skins/dark"_s}) {
            CommonConfig config;
            QVERIFY2(readConfigFile(config, data + name), qPrintable(name));
            QVERIFY(writeConfig(config, u"written"_s));
            QCOMPARE(contentOf(u"written"_s), contentOf(data + name));
            QCOMPARE(config == CommonConfig(), name != "skins/dark"_L1);
        }
    }

    void colorsCanBeRead()
    {
        constexpr double forText = 4.5;
        constexpr double forLines = 3.0;
        for (const QString &name : {u"light"_s, u"dark"_s}) {
            CommonConfig c;
            QVERIFY(readConfigFile(c, data + u"skins/"_s + name));
            const auto check = [&name](const QList<QColor> &fronts, const QList<QColor> &backs,
                                       double least) {
                for (const QColor &front : fronts) {
                    for (const QColor &back : backs)
                        QVERIFY2(contrast(front, back) >= least,
                                 qPrintable(u"%1: %2 on %3"_s.arg(name, front.name(), back.name())));
                }
            };
            const QList<QColor> states{c.good, c.warning, c.bad};
            QList<QColor> backs{c.window, c.surface, c.raised};
            for (const SkinArea &area : {c.topBar, c.navigation, c.statusStrip}) {
                backs += area.background.color;
                check({area.text, area.mutedText}, {area.background.color}, forText);
            }
            check(QList{c.text, c.mutedText, c.accent} + states, backs, forText);
            check(QList{c.onSelection, c.mutedText} + states, {c.selection}, forText);
            check({c.onAccent}, {c.accent}, forText);
            check({c.line, c.focus}, backs, forLines);
        }
    }

    void reads_data() { addRows(readsRows); }
    void reads()
    {
        const auto &[name, line, replacement, change] = currentRow(readsRows);
        QVERIFY(readWith(line, replacement) == changed(change));
    }

    void pictureTakesOneLine()
    {
        CommonConfig config;
        config.topBar.background.picture = u"/res/bar.png"_s;
        config.statusStrip.text = QColor(9, 8, 7);
        config.cardFamily = u"CDMA"_s;
        QVERIFY(writeConfig(config, u"config"_s));
        CommonConfig read;
        QVERIFY(readConfigFile(read, u"config"_s));
        QVERIFY(read == config);
    }

    void cutAnywhereKeepsTheRest()
    {
        CommonConfig dark;
        QVERIFY(readConfigFile(dark, data + u"skins/dark"_s));
        const QByteArrayList lines = contentOf(data + u"skins/dark"_s).split('\n');
        int filled = 0;
        for (qsizetype count = 0; count < lines.size(); ++count) {
            putFile(u"cut"_s, lines.first(count).join('\n'));
            CommonConfig config;
            QVERIFY(readConfigFile(config, u"cut"_s));
            QCOMPARE(config.skinName, count > 25 ? dark.skinName : CommonConfig().skinName);
            QCOMPARE(config.bad, count > lines.indexOf("Bad") + 3 ? dark.bad : CommonConfig().bad);
            filled += config == dark ? 1 : 0;
        }
        // The numbers and the family at the end are the same in both; the last colour is not.
        QCOMPARE(filled, int(lines.size() - lines.indexOf("Text on the selection") - 4));
    }

    void missingFileKeepsDefaults()
    {
        QTest::ignoreMessage(QtDebugMsg,
                             QRegularExpression(uR"(^\d\d-\d\d-\d\d \d\d:\d\d:\d\d  read file error!$)"_s));
        CommonConfig config;
        config.windowWidth = 777;
        readConfig(config);
        QVERIFY(config == changed([](CommonConfig &c) { c.windowWidth = 777; }));
    }

private:
    std::optional<ScratchFolder> m_folder;
};

QTEST_APPLESS_MAIN(TestCommonConfig)
#include "tst_commonconfig.moc"

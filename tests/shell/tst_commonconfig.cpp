// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/commonconfig.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace
{

QByteArray shipped(const char *name)
{
    QFile file(QStringLiteral(CORVA_SOURCE_DIR) + u"/Data/"_s + QString::fromLatin1(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The record that the shipped file becomes with its lines from `first` on replaced.
CommonConfig readWith(int first, const QByteArrayList &replacement)
{
    QByteArrayList lines = shipped("config").split('\n');
    for (const QByteArray &line : replacement)
        lines[first++] = line;
    QFile file(u"config"_s);
    CommonConfig config;
    if (file.open(QIODevice::WriteOnly))
        file.write(lines.join('\n'));
    file.close();
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

struct Pair {
    QString name;
    QColor front;
    QColor back;
    double least;
};

using Named = QPair<const char *, QColor>;

void addPairs(QList<Pair> &pairs, const QList<Named> &fronts, const QList<Named> &backs, double least)
{
    for (const Named &front : fronts) {
        for (const Named &back : backs)
            pairs += {QString::fromLatin1(front.first) + " on "_L1 + QString::fromLatin1(back.first),
                      front.second, back.second, least};
    }
}

/// All colours that meet in the window.
QList<Pair> pairsOf(const CommonConfig &c)
{
    constexpr double forText = 4.5;
    constexpr double forLines = 3.0;
    const QList<Named> planes{{"window", c.window}, {"surface", c.surface}, {"raised", c.raised}};
    const QList<Named> areas{{"top bar", c.topBar.background.color},
                             {"navigation", c.navigation.background.color},
                             {"status strip", c.statusStrip.background.color}};
    const QList<Named> states{{"good", c.good}, {"warning", c.warning}, {"bad", c.bad}};
    const QList<Named> words{{"text", c.text}, {"muted text", c.mutedText}, {"accent", c.accent}};
    QList<Pair> pairs;
    addPairs(pairs, words + states, planes + areas, forText);
    addPairs(pairs,
             states + QList<Named>{{"text on the selection", c.onSelection}, {"muted text", c.mutedText}},
             {{"selection", c.selection}}, forText);
    addPairs(pairs, {{"text on the accent", c.onAccent}}, {{"accent", c.accent}}, forText);
    addPairs(pairs, {{"line", c.line}, {"focus", c.focus}}, planes + areas, forLines);
    for (const SkinArea &area : {c.topBar, c.navigation, c.statusStrip})
        addPairs(pairs, {{"area text", area.text}, {"muted area text", area.mutedText}},
                 {{"its area", area.background.color}}, forText);
    return pairs;
}

} // namespace

class TestCommonConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        QVERIFY(QDir::setCurrent(m_folder->path()));
    }

    void cleanup() { QDir::setCurrent(QDir::rootPath()); }

    void shippedFilesHoldTheTable_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"config", "skins/light", "skins/dark"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void shippedFilesHoldTheTable()
    {
        QFETCH(QString, name);
        const QByteArray content = shipped(name.toLatin1().constData());
        CommonConfig config;
        QVERIFY(readConfigFile(config, QStringLiteral(CORVA_SOURCE_DIR) + u"/Data/"_s + name));
        QVERIFY(writeConfig(config, u"written"_s));
        QFile written(u"written"_s);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), content);
        QCOMPARE(config == CommonConfig(), name != "skins/dark"_L1);
    }

    void colorsCanBeRead_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("light") << u"light"_s;
        QTest::newRow("dark") << u"dark"_s;
    }

    void colorsCanBeRead()
    {
        QFETCH(QString, name);
        CommonConfig config;
        QVERIFY(readConfigFile(config, QStringLiteral(CORVA_SOURCE_DIR) + u"/Data/skins/"_s + name));
        for (const Pair &pair : pairsOf(config)) {
            const double ratio = contrast(pair.front, pair.back);
            QVERIFY2(ratio >= pair.least, qPrintable(u"%1: %2"_s.arg(pair.name).arg(ratio)));
        }
    }

    void reads_data()
    {
        QTest::addColumn<int>("line"); // counted from 0, where the replacement begins
        QTest::addColumn<QByteArrayList>("replacement");
        QTest::addColumn<CommonConfig>("config");
        const auto row = [](const char *name, int line, const QByteArrayList &lines,
                            const std::function<void(CommonConfig &)> &change) {
            QTest::newRow(name) << line << lines << changed(change);
        };
        row("labels mean nothing", 0, {"12"}, [](CommonConfig &) {});
        row("number", 1, {"1024"}, [](CommonConfig &c) { c.windowWidth = 1024; });
        row("number with blanks and line end", 1, {" 1024 \r"},
            [](CommonConfig &c) { c.windowWidth = 1024; });
        row("no number", 1, {"wide"}, [](CommonConfig &) {});
        row("number too small", 1, {"-5"}, [](CommonConfig &c) { c.windowWidth = 320; });
        row("number beyond counting", 1, {"99999999999999999999"}, [](CommonConfig &) {});
        row("size of text beyond what fits", 114, {"72"}, [](CommonConfig &c) { c.textSize = 24; });
        row("colour", 5, {"1", "2", "3"}, [](CommonConfig &c) { c.window = QColor(1, 2, 3); });
        row("colour out of range", 5, {"-1", "256", "3"},
            [](CommonConfig &c) { c.window = QColor(0, 255, 3); });
        row("colour with a hole", 5, {"1", "", "3"}, [](CommonConfig &) {});
        row("text", 25, {"  Mine "}, [](CommonConfig &c) { c.skinName = u"  Mine "_s; });
        row("empty text", 25, {""}, [](CommonConfig &c) { c.skinName = QString(); });
        row("text not set", 25, {"null"}, [](CommonConfig &) {});
    }

    void reads()
    {
        QFETCH(int, line);
        QFETCH(QByteArrayList, replacement);
        QFETCH(CommonConfig, config);
        QVERIFY(readWith(line, replacement) == config);
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
        QVERIFY(readConfigFile(dark, QStringLiteral(CORVA_SOURCE_DIR) + u"/Data/skins/dark"_s));
        const QByteArrayList lines = shipped("skins/dark").split('\n');
        int filled = 0;
        for (qsizetype count = 0; count < lines.size(); ++count) {
            QFile file(u"cut"_s);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(lines.first(count).join('\n'));
            file.close();
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
    std::unique_ptr<QTemporaryDir> m_folder;
};

QTEST_APPLESS_MAIN(TestCommonConfig)
#include "tst_commonconfig.moc"

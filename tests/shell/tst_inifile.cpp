// SPDX-License-Identifier: GPL-3.0-or-later
#include "../files.h"
#include "../rows.h"
#include "shell/inifile.h"

#include "shell/globals.h"
#include "shell/updatecfg.h"

#include <cstdio>
#include <optional>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

constexpr auto absent = "(absent)";

/// What `work` prints to the standard output.
template <typename Work> QByteArray printedBy(Work work)
{
    std::fflush(stdout);
    const int saved = ::dup(STDOUT_FILENO);
    if (!std::freopen("printed", "w", stdout))
        return "(cannot redirect)";
    work();
    std::fflush(stdout);
    ::dup2(saved, STDOUT_FILENO);
    ::close(saved);
    return contentOf(u"printed"_s);
}

const Rows<QByteArray, QByteArray, QByteArray, QByteArray> loadsRows{
    {"plain", "[s]\nk=v\n", "s", "k", "v"},
    {"letter case", "[Sec]\nKey=v\n", "sEC", "kEY", "v"},
    {"letter case beyond ASCII counts", "[s]\n\xc3\x84=v\n", "s", "\xc3\xa4", absent},
    {"blanks everywhere", " [ s ] \r\n\t k \t=\t v w \r\n", "s", "k", "v w"},
    {"first equals sign splits", "[s]\nk=a=b\n", "s", "k", "a=b"},
    {"no key", "[s]\n=v\n", "s", "", "v"},
    {"before the first section", "k=v\n[s]\n", "", "k", "v"},
    {"section without name", "[s]\n[]\nk=v\n", "", "k", "v"},
    {"later value wins", "[s]\nk=1\n[t]\nk=2\n[S]\nK=3\n", "s", "k", "3"},
    {"semicolon comment", "[s]\n ;k=v\n", "s", ";k", absent},
    {"hash inside is none", "[s]\nk=v # w\n", "s", "k", "v # w"},
    {"bracket not closed, with equals sign", "[s]\n[t=v\n", "s", "[t", "v"},
    {"letters above 127 are no blanks", "[s]\nk=\xa0\xff\n", "s", "k", "\xa0\xff"},
    {"256 bytes are cut", "[s]\nk=" + QByteArray(254, 'x') + "\n", "s", "k", QByteArray(253, 'x')},
    {"the second piece is a line", "[s]\nk=" + QByteArray(253, 'x') + "l=v\n", "s", "l", "v"},
    {"a cut comment goes on as a line", "[s]\n#" + QByteArray(254, 'x') + "l=v\n", "s", "l", "v"},
    {"blanks at a cut vanish", "[s]\nk=" + QByteArray(252, 'x') + "  y\n", "s", "k", QByteArray(252, 'x')},
};

const Rows<QByteArray, int> updateKeepsWhatWouldBeLostRows{
    {"pairs and comments", "; c\n[UPDATE]\n k = v\r\n[update]\nDEVICE=d=e\n\n", 0},
    {"the longest line", "[UPDATE]\nk=" + QByteArray(252, 'x') + "\n", 0},
    {"a longer line", "[UPDATE]\nk=" + QByteArray(253, 'x') + "\n", 1},
    {"no pair", "[UPDATE]\nsome words\n", 1},
    {"two values", "[UPDATE]\nk=1\nK=2\n", 1},
    {"NUL", QByteArray("[UPDATE]\nk=1\0002\n", 15), 1},
};

} // namespace

class TestIniFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder.emplace();
        basePath = m_folder->path();
    }

    void loads_data() { addRows(loadsRows); }
    void loads()
    {
        const auto &[name, content, section, key, value] = currentRow(loadsRows);
        putFile(u"file.ini"_s, content);
        CIniFile ini;
        QCOMPARE(ini.Load("file.ini"), 0);
        QCOMPARE(QByteArray(ini.Get(section.constData(), key.constData(), absent)), value);

        // The first saving cuts lines that are too long; from the second on nothing changes.
        QCOMPARE(ini.Save("first.ini"), 0);
        CIniFile("first.ini").Save("second.ini");
        CIniFile("second.ini").Save("third.ini");
        QCOMPARE(contentOf(u"third.ini"_s), contentOf(u"second.ini"_s));
    }

    void savesInOrder()
    {
        putFile(u"file.ini"_s, "; gone\n\nz=0\n[Two]\nb = 1\n[One]\na=2\n[two]\nB=3\nc=4\n");
        const CIniFile ini("file.ini");
        QCOMPARE(ini.Save("file.ini"), 0);
        QCOMPARE(contentOf(u"file.ini"_s), QByteArray("[]\nz=0\n\n[Two]\nb=3\nc=4\n\n[One]\na=2\n\n"));
    }

    void setTrimsOnlyNewPairs()
    {
        CIniFile ini;
        ini.Set("s", " k ", " v ");
        QCOMPARE(ini.Get("s", "k", absent), "v");
        ini.Set("s", "k", " w ");
        QCOMPARE(ini.Get("s", "k", absent), " w ");
        ini.Set("s", " k ", "x"); // looked up untrimmed: a second pair, which is never reached
        QCOMPARE(ini.Get("s", "k", absent), " w ");
        QCOMPARE(ini.Get("s", " k ", absent), absent);
    }

    void setTakesItsOwnTexts()
    {
        CIniFile ini;
        ini.Set("s", "k", "a rather long value that has its own memory");
        for (int i = 0; i < 100; ++i)
            ini.Set("s", QByteArray::number(i).constData(), ini.Get("s", "k", absent));
        ini.Set("s", "k", ini.Get("s", "k", absent) + 2);
        QCOMPARE(ini.Get("s", "99", absent), "a rather long value that has its own memory");
        QCOMPARE(ini.Get("s", "k", absent), "rather long value that has its own memory");
    }

    void nullIsEmpty()
    {
        CIniFile ini;
        ini.Set(nullptr, nullptr, nullptr);
        QCOMPARE(ini.Get("", "", absent), "");
        QCOMPARE(ini.Get("s", "k", nullptr), nullptr);
        QCOMPARE(ini.Load(nullptr), 1);
        QCOMPARE(ini.Save(nullptr), 1);
    }

    void failuresArePrinted()
    {
        CIniFile ini;
        int result = -1;
        QCOMPARE(printedBy([&] { result = ini.Load("no/such.ini"); }), "cannot load ini file no/such.ini\n");
        QCOMPARE(result, 1);
        QCOMPARE(printedBy([&] { result = ini.Load("."); }), "cannot load ini file .\n");
        QCOMPARE(result, 1);
        QCOMPARE(printedBy([&] { result = ini.Save("."); }), "cannot save to INI file: .\n");
        QCOMPARE(result, 1);
    }

    void loadReplaces()
    {
        putFile(u"one.ini"_s, "[s]\nk=1\n");
        putFile(u"two.ini"_s, "[t]\nl=2\n");
        CIniFile ini("one.ini");
        QCOMPARE(ini.Load("two.ini"), 0);
        QCOMPARE(ini.Get("s", "k", absent), absent);
        QCOMPARE(ini.Get("t", "l", absent), "2");
        ini.FreeAllTheStuff();
        QCOMPARE(ini.Get("t", "l", absent), absent);
    }

    void updateValuesCannotBreakOut()
    {
        QVERIFY(UpdateCfg::setValue(UpdateKey::Device, u"x\r\n[UPDATE]\nDeviceReady=1"_s));
        QCOMPARE(UpdateCfg::value(UpdateKey::DeviceReady), QString());
        QCOMPARE(UpdateCfg::value(UpdateKey::Device), u"x  [UPDATE] DeviceReady=1"_s);
    }

    void updateKeepsOthersKeys()
    {
        putFile(u"UpdateCfg.ini"_s, "[OTHER]\nk=v\n[UPDATE]\nUPDATE_FREQUENCE=7\nDEVICE=old\n");
        QVERIFY(UpdateCfg::setValues({{UpdateKey::Device, u"new"_s}, {UpdateKey::ImeiId, u"123"_s}}));
        QCOMPARE(contentOf(u"UpdateCfg.ini"_s),
                 QByteArray("[OTHER]\nk=v\n\n[UPDATE]\nUPDATE_FREQUENCE=7\nDEVICE=new\nIMEI_ID=123\n\n"));
        QCOMPARE(UpdateCfg::value(UpdateKey::UpdateFrequence), u"7"_s);
    }

    void updateKeepsWhatWouldBeLost_data() { addRows(updateKeepsWhatWouldBeLostRows); }
    void updateKeepsWhatWouldBeLost()
    {
        const auto &[name, content, copies] = currentRow(updateKeepsWhatWouldBeLostRows);
        for (int round = 0; round < 2; ++round) { // once, however often it is written
            putFile(u"UpdateCfg.ini"_s, content);
            QVERIFY(UpdateCfg::setValue(UpdateKey::Device, u"new"_s));
            const QStringList kept = QDir().entryList({u"UpdateCfg.ini.before-*"_s});
            QCOMPARE(kept.size(), copies);
            if (!kept.isEmpty())
                QCOMPARE(contentOf(kept.first()), content);
        }
    }

    void updateFromTwoThreadsLosesNothing()
    {
        constexpr int rounds = 20;
        const auto count = [](UpdateKey key) {
            for (int i = 1; i <= rounds; ++i)
                UpdateCfg::setValue(key, QString::number(UpdateCfg::value(key).toInt() + 1));
        };
        std::thread link(count, UpdateKey::DeviceReady);
        std::thread dialler(count, UpdateKey::Wvdial);
        link.join();
        dialler.join();
        QCOMPARE(UpdateCfg::value(UpdateKey::DeviceReady).toInt(), rounds);
        QCOMPARE(UpdateCfg::value(UpdateKey::Wvdial).toInt(), rounds);
    }

private:
    std::optional<ScratchFolder> m_folder;
};

QTEST_APPLESS_MAIN(TestIniFile)
#include "tst_inifile.moc"

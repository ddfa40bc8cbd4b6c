// SPDX-License-Identifier: GPL-3.0-or-later
// How long the GUI thread is away while the card is silent or talks without end, and how soon the whole state
// is on screen.
#include "cardthread.h"
#include "guibeat.h"
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/globals.h"
#include "widgets/cdestyle.h"
#include "window/wtmainwindow.h"

#include <QApplication>
#include <QJsonObject>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace
{

double longestGap(std::chrono::milliseconds time)
{
    const GuiBeat beat;
    processFor(time);
    return beat.longestGap();
}

bool showsText(const QWidget &window, const QString &text)
{
    const auto labels = window.findChildren<QLabel *>();
    return std::ranges::any_of(labels,
                               [&](const QLabel *each) { return each->isVisible() && each->text() == text; });
}

double timeUntilShown(const QWidget &window, const QStringList &texts)
{
    return timeUntil([&] {
        return std::ranges::all_of(texts, [&](const QString &text) { return showsText(window, text); });
    });
}

void setUp(const QString &cardFolder)
{
    for (const QString &port : {u"at"_s, u"modem"_s, u"voice"_s})
        cmcfg.setValue(u"device"_s, port + u"_port"_s, cardFolder + u'/' + port);
    basePath = QString::fromLocal8Bit(CORVA_APP_DIR);
    corva::installCdeStyle();
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    const QString cardFolder = folder.path() + u"/card"_s;
    setUp(cardFolder);

    cardemu::CardThread card{std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s))};
    if (const auto complaint = card.start(cardFolder); !complaint.isEmpty()) {
        std::fputs(qPrintable(complaint), stderr);
        return 1;
    }
    card.control(R"({"command": "pace", "delay": 20})");
    card.control(R"({"command": "unplug"})");

    WTMainWindow window(nullptr, "wtmainwindowbase", Qt::Window | Qt::FramelessWindowHint);
    window.show();
    window.showPage(u"card"_s);
    processFor(3s); // the echo is set, the window has settled

    card.control(R"({"command": "plug"})");
    bool isMet = printRow(
        "card plugged in to its whole state on screen, 20 ms a command",
        timeUntilShown(window, {u"Test Network"_s, u"001012345678902"_s, u"001010123456789"_s}), 1000);

    card.control(R"({"command": "silence"})");
    isMet &= printRow("longest gap of a 10 ms timer, card silent for 3 s", longestGap(3s), 50);
    card.control(R"({"command": "speak"})");
    processFor(2s);

    const QByteArray flood = QByteArray(100000, 'x');
    QTimer::singleShot(200, &window,
                       [&] { card.control(R"({"command": "raw", "text": ")" + flood + R"("})"); });
    isMet &= printRow("longest gap of a 10 ms timer, card sends 100 KB", longestGap(3s), 50);
    window.stopLink();
    return isMet ? 0 : 1;
}

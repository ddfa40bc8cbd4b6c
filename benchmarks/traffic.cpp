// SPDX-License-Identifier: GPL-3.0-or-later
// How long the traffic page takes to be on screen with years behind it, and what a second of a link costs.
#include "sampletraffic.h"

#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "statistics/ui/tabstrip.h"
#include "statistics/ui/trafficpage.h"
#include "widgets/cdestyle.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QWindow>
#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace
{

constexpr int rounds = 7;
bool isAnyMissed = false;

/// Milliseconds that `action` takes, the middle of several rounds.
template <typename Action> double median(Action action)
{
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer time;
        time.start();
        action();
        times.push_back(double(time.nsecsElapsed()) / 1e6);
    }
    std::ranges::nth_element(times, times.begin() + rounds / 2);
    return times[rounds / 2];
}

void row(const char *name, double value, double bar)
{
    std::printf("%-62s %11.1f ms   bar %g ms%s\n", name, value, bar, value > bar ? ", MISSED" : "");
    std::fflush(stdout);
    isAnyMissed = isAnyMissed || value > bar;
}

/// The page in a window that is on screen already, painted.
std::unique_ptr<corva::Page> openPage(SampleTraffic &traffic, QWidget *window)
{
    corva::PageContext context;
    context.traffic = traffic.service.get();
    const corva::PageEntry entry = corva::trafficPageEntry();
    std::unique_ptr<corva::Page> page(entry.create(entry.info, context, window));
    page->setGeometry(window->rect());
    page->show();
    page->repaint();
    return page;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    basePath = QString::fromLocal8Bit(CORVA_APP_DIR);
    cmcfg.setValue(u"statistics_widget"_s, u"graphic_enabled"_s, u"1"_s);
    corva::installCdeStyle();
    SampleTraffic traffic(3 * 365, 1000);
    QWidget window;
    window.resize(760, 528);
    window.show();
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);

    row("1,000 connections and 3 years of days are read at the start", median([&] { traffic.makeService(); }),
        50);
    row("the traffic page is on screen", median([&] { openPage(traffic, &window); }), 200);
    row("... with its days, its months and its history", median([&] {
            const auto page = openPage(traffic, &window);
            for (const QString &tab : {u"days"_s, u"months"_s, u"history"_s}) {
                page->findChild<corva::TabButton *>(tab)->setChecked(true);
                page->repaint();
            }
        }),
        200);
    const auto page = openPage(traffic, &window);
    traffic.run(600);
    row("one second of a link with the page open, ten minutes shown", median([&] {
            traffic.carry({400'000, 30'000});
            traffic.tick();
            page->repaint();
        }),
        16);
    return isAnyMissed ? 1 : 0;
}

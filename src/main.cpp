// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/debuglog.h"
#include "shell/globals.h"
#include "shell/instance.h"
#include "widgets/cdestyle.h"
#include "widgets/skin.h"
#include "window/frmdisclaimer.h"
#include "window/splash.h"
#include "window/startup.h"
#include "window/wtmainwindow.h"

#include <QApplication>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace
{

/// Shows the splash until the card is ready; the main window takes its place two seconds later.
void showSplash(WTMainWindow &window, const QString &version)
{
    auto *dialog = new corva::SplashDialog(version);
    corva::SplashWait wait = corva::configuredSplashWait();
    wait.modemReady = [&] { return window.getModemState(); };
    wait.firmwareVersion = [&] { return window.getFirmwareVersion(); };
    corva::centre(dialog);
    dialog->show();
    splash = dialog;
    corva::waitForCard(*dialog, wait);
    window.wait2secsToShow();
}

/// True unless the configuration asks for the disclaimer and it is declined.
bool acceptsDisclaimer()
{
    return !FrmDisclaimer::isWanted() || FrmDisclaimer().exec() != 0;
}

} // namespace

int main(int argc, char **argv)
{
    // The toolkit gets no arguments: it would take its own out of them, and may end the process over them.
    int ownNameOnly = std::min(argc, 1);
    if (argc > 1)
        qputenv("QT_QPA_PLATFORM", "offscreen"); // ends below without a window, so it needs no display either
    const QApplication app(ownNameOnly, argv);
    qSetMessagePattern(u"%{message}"_s); // the lines bring their time along, and begin with it
    const corva::DebugLog debugLog;
    corva::installCdeStyle();
    readConfig(comcfg);
    basePath = QApplication::applicationDirPath();
    corva::installDefaultFont();
    corva::applySkin();
    corva::installTranslation();
    const QString version = readVersionInfo();
    if (argc > 1)
        return 0;
    if (already_running() != 0)
        return 0;

    WTMainWindow window(nullptr, "wtmainwindowbase",
                        Qt::Window | Qt::CustomizeWindowHint | Qt::FramelessWindowHint);
    const auto stopLink = qScopeGuard([&] { window.stopLink(); });
    corva::centre(&window);
    window.hide();
    corva::makeMainWidget(&window);
    if (!acceptsDisclaimer())
        return 0;

    if (cmcfg.getNumber(u"function"_s, u"splash_hide"_s) == 1)
        window.show();
    else
        showSplash(window, version);
    return QApplication::exec();
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The real window over a card that is only told: to look at every state without any hardware.
//     windowdemo STATE [page | offline | about] [picture.png]
// CORVA_DEMO_SKIN, CORVA_DEMO_SIZE=800x520 and CORVA_DEMO_RTL=1 change its looks, CORVA_DEMO_CONNECTION
// (connected, connecting, redial, refused) what the data connection does.
#include "fakecardmonitor.h"
#include "fakeconnection.h"

#include "settings/skinchooser.h"
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/globals.h"
#include "widgets/cdestyle.h"
#include "widgets/skin.h"
#include "window/startup.h"
#include "window/wtmainwindow.h"

#include <QApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace
{

void takeSkin()
{
    const QString skin = qEnvironmentVariable("CORVA_DEMO_SKIN");
    CommonConfig colours;
    if (!skin.isEmpty() && readConfigFile(colours, basePath + u"/Data/skins/"_s + skin))
        comcfg = corva::withColoursOf(comcfg, colours);
}

void takeSize(QWidget &window)
{
    const QStringList size = qEnvironmentVariable("CORVA_DEMO_SIZE").split(u'x');
    if (size.size() == 2)
        window.resize(size.at(0).toInt(), size.at(1).toInt());
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    corva::installCdeStyle();
    basePath = QStringLiteral(CORVA_APP_DIR);
    takeSkin();
    corva::applySkin();
    corva::installTranslation();
    if (qEnvironmentVariableIsSet("CORVA_DEMO_RTL"))
        QApplication::setLayoutDirection(Qt::RightToLeft);
    const QStringList arguments = QCoreApplication::arguments();
    WTMainWindow window(nullptr, "wtmainwindowbase", Qt::Window | Qt::FramelessWindowHint);
    fakecard::put(fakecard::namedState(arguments.value(1)));
    fakeconnection::put(fakeconnection::namedStatus(qEnvironmentVariable("CORVA_DEMO_CONNECTION")));
    takeSize(window);
    corva::centre(&window);
    window.show();

    const QString page = arguments.value(2);
    if (page == "offline"_L1)
        window.showOfflinePanel();
    else if (page == "about"_L1)
        window.aboutShow();
    else if (!page.isEmpty())
        window.showPage(page);
    const QString picture = arguments.value(3);
    if (!picture.isEmpty())
        QTimer::singleShot(600, &window, [&] {
            const bool saved = window.grab().save(picture);
            QCoreApplication::exit(saved ? 0 : 1);
        });
    return QApplication::exec();
}

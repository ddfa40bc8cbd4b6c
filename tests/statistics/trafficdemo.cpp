// SPDX-License-Identifier: GPL-3.0-or-later
// The traffic page or its settings over made-up years, to look at them.
//     trafficdemo [overview | days | months | history | settings] [picture.png]
// CORVA_DEMO_SKIN, CORVA_DEMO_SIZE=744x448, CORVA_DEMO_RTL=1, CORVA_DEMO_EMPTY=1 and CORVA_DEMO_OFFLINE=1
// change its looks.
#include "sampletraffic.h"

#include "settings/skinchooser.h"
#include "shell/globals.h"
#include "statistics/ui/tabstrip.h"
#include "statistics/ui/trafficpage.h"
#include "statistics/ui/trafficsettingspage.h"
#include "widgets/cdestyle.h"
#include "widgets/focusring.h"
#include "widgets/skin.h"
#include "window/startup.h"

#include <QApplication>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace
{

void takeLooks()
{
    const QString skin = qEnvironmentVariable("CORVA_DEMO_SKIN");
    CommonConfig colours;
    if (!skin.isEmpty() && readConfigFile(colours, basePath + u"/Data/skins/"_s + skin))
        comcfg = corva::withColoursOf(comcfg, colours);
    corva::applySkin();
    corva::installTranslation();
    if (qEnvironmentVariableIsSet("CORVA_DEMO_RTL"))
        QApplication::setLayoutDirection(Qt::RightToLeft);
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    corva::installCdeStyle();
    basePath = QStringLiteral(CORVA_APP_DIR);
    takeLooks();
    const QString tab = QCoreApplication::arguments().value(1, u"overview"_s);
    const bool isEmpty = qEnvironmentVariableIsSet("CORVA_DEMO_EMPTY");
    SampleTraffic traffic(isEmpty ? 0 : 1100, isEmpty ? 0 : 1000);
    if (!isEmpty) {
        traffic.settings.quota = 10'000 * corva::bytesPerMegabyte;
        traffic.settings.roamingQuota = 1000 * corva::bytesPerMegabyte;
        traffic.run(75);
        if (qEnvironmentVariableIsSet("CORVA_DEMO_OFFLINE"))
            traffic.service->sessionEnded(corva::historyend::Person);
    }

    QWidget window;
    corva::PageContext context;
    context.traffic = traffic.service.get();
    const corva::PageEntry entry = corva::trafficPageEntry();
    QWidget *shown = tab == "settings"_L1
                         ? static_cast<QWidget *>(corva::trafficSettingsEntry().create(&window))
                         : entry.create(entry.info, context, &window);
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(shown);
    const QStringList size = qEnvironmentVariable("CORVA_DEMO_SIZE", u"760x528"_s).split(u'x');
    window.resize(size.value(0).toInt(), size.value(1).toInt());
    window.show();
    if (auto *button = window.findChild<corva::TabButton *>(tab))
        button->setChecked(true);
    const QString picture = QCoreApplication::arguments().value(2);
    if (!picture.isEmpty())
        QTimer::singleShot(400, &window,
                           [&] { QCoreApplication::exit(window.grab().save(picture) ? 0 : 1); });
    return QApplication::exec();
}

// SPDX-License-Identifier: GPL-3.0-or-later
// The message page over made-up messages, to look at it.
//     messagesdemo [inbox | persons | person | write | select | search | sim | broken | empty | class0 |
//     settings]
//                  [picture.png]
// CORVA_DEMO_SKIN, CORVA_DEMO_SIZE=744x448, CORVA_DEMO_RTL=1 and CORVA_DEMO_MANY=20000 change its looks.
#include "fakemessageservice.h"
#include "samplemessages.h"

#include "settings/skinchooser.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "sms/ui/class0dialog.h"
#include "sms/ui/cshortmsg.h"
#include "sms/ui/messagesettings.h"
#include "sms/ui/mytextedit.h"
#include "widgets/cdestyle.h"
#include "widgets/focusring.h"
#include "widgets/messagequeue.h"
#include "widgets/skin.h"
#include "window/startup.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

void takeLooks()
{
    const QString skin = qEnvironmentVariable("CORVA_DEMO_SKIN");
    CommonConfig colours;
    if (!skin.isEmpty() && readConfigFile(colours, basePath + u"/Data/skins/"_s + skin))
        comcfg = withColoursOf(comcfg, colours);
    applySkin();
    installTranslation();
    if (qEnvironmentVariableIsSet("CORVA_DEMO_RTL"))
        QApplication::setLayoutDirection(Qt::RightToLeft);
}

QString nameOf(const QString &number)
{
    if (number.endsWith(u"511234567"_s))
        return u"Anna Weber"_s;
    return number.endsWith(u"501234567"_s) ? u"سارة"_s : number;
}

void fill(MessageStore &store, const QString &state)
{
    const int many = qEnvironmentVariableIntValue("CORVA_DEMO_MANY");
    if (state != "empty"_L1)
        store.add(many > 0 ? sample::many(many) : sample::messages(QDateTime::currentDateTime()));
    store.replaceMirror(MessagePlace::Sim, sample::onSim(QDateTime::currentDateTime()));
    fakesms::put(MessagePlace::Sim, {.isRead = true, .error = {}, .capacity = StoreCapacity{18, 20}});
    fakesms::put(MessagePlace::Card, {.isRead = true, .error = {}, .capacity = StoreCapacity{5, 23}});
}

/// The first row of the list gets the keyboard and is chosen.
void choose(QWidget &window, int row)
{
    auto *list = window.findChild<QListView *>(u"messages"_s);
    list->setFocus(Qt::TabFocusReason);
    list->setCurrentIndex(list->model()->index(row, 0));
}

void write(QWidget &window)
{
    window.findChild<QPushButton *>(u"newMessage"_s)->click();
    window.findChild<QLineEdit *>(u"recipients"_s)->setText(u"+49 151 1234567, 0172-9876543"_s);
    window.findChild<MyTextEdit *>(u"messageText"_s)->setPlainText(u"See you at eight – bring the map"_s);
}

void open(CShortMsg &page, const QString &state)
{
    auto *boxes = page.findChild<BoxChooser *>();
    const auto show = [&](const MessageView &view) {
        boxes->choose(view);
        Q_EMIT boxes->sigChosen(view);
    };
    if (state.startsWith("person"_L1))
        show({.isByPerson = true});
    if (state == "sim"_L1)
        show({.filter = {.kind = MessageFilter::Kind::Place, .place = MessagePlace::Sim}});
    if (state == "search"_L1)
        page.findChild<QLineEdit *>(u"messageSearch"_s)->setText(u"ticket"_s);
    if (state == "write"_L1)
        write(page);
    else if (state == "select"_L1 || state == "person"_L1 || state == "search"_L1)
        choose(page, 0);
    else if (state == "broken"_L1)
        choose(page, 6);
    if (state == "arabic"_L1)
        choose(page, 1);
    if (state == "sending"_L1)
        fakesms::put(SendProgress{true, u"+491511234567"_s, 2, 5});
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication app(argc, argv);
    installCdeStyle();
    basePath = QStringLiteral(CORVA_APP_DIR);
    takeLooks();
    const FocusRing ring(qApp);
    const QString state = QCoreApplication::arguments().value(1, u"inbox"_s);
    const QTemporaryDir folder;
    MessageStore store(folder.path(), 7);
    MessageService service(nullptr, &store);
    service.setNameLookup(nameOf);
    QWidget window;
    MessageQueue messages(&window);
    QObject::connect(&store, &MessageStore::sigLoaded, &window, [&] { fill(store, state); });
    store.load();
    if (!QTest::qWaitFor([&] { return store.isLoaded(); }))
        return 1;

    store.flush(); // the opening alone is measured

    QElapsedTimer opening;
    opening.start();
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    if (state == "settings"_L1) {
        layout->addWidget(messageSettingsEntry().create(&window));
    } else {
        auto *page =
            new CShortMsg({u"messages"_s, u"Messages"_s, u"message"_s}, &service, &messages, &window);
        layout->addWidget(page);
        qInfo() << "built in" << opening.elapsed() << "ms";
        QTimer::singleShot(0, page, [page, state] { open(*page, state); });
    }
    const QStringList size = qEnvironmentVariable("CORVA_DEMO_SIZE", u"758x524"_s).split(u'x');
    window.resize(size.value(0).toInt(), size.value(1).toInt());
    window.show();
    QApplication::processEvents();
    qInfo() << "opened in" << opening.elapsed() << "ms";
    Class0Dialog class0(&store, &window);
    if (state == "class0"_L1) {
        class0.add({u"Operator"_s, u"Operator"_s, u"You have used 80 % of your volume."_s, {}});
        class0.add({u"Operator"_s, u"Operator"_s, u"Another one."_s, {}});
    }
    const QString picture = QCoreApplication::arguments().value(2);
    if (!picture.isEmpty())
        QTimer::singleShot(500, &window, [&] {
            QWidget *shown = state == "class0"_L1 ? static_cast<QWidget *>(&class0) : &window;
            QCoreApplication::exit(shown->grab().save(picture) ? 0 : 1);
        });
    return QApplication::exec();
}

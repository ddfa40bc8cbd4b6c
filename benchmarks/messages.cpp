// SPDX-License-Identifier: GPL-3.0-or-later
// The message page of the real window, with many messages and the emulated card: how soon it can be used, how
// soon a new message is on screen, and how long the GUI thread is away while much is done at once.
#include "cardthread.h"
#include "guibeat.h"
#include "shell/commoncfg.h"
#include "shell/commonconfig.h"
#include "shell/globals.h"
#include "sms/messagestore.h"
#include "sms/messagetransfer.h"
#include "sms/ui/messageexchange.h"
#include "sms/ui/messagerowdelegate.h"
#include "storedmessages.h"
#include "widgets/cdestyle.h"
#include "widgets/skin.h"
#include "window/startup.h"
#include "window/wtmainwindow.h"

#include <QApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QProcess>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <chrono>
#include <cstdio>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using namespace corva;

namespace
{

constexpr int rounds = 9;
constexpr int listed = 200;
constexpr int sentParts = 10;
constexpr int receivedOfStored = storedMessages - storedMessages / 4;

double milliseconds()
{
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

double median(std::vector<double> values)
{
    std::ranges::sort(values);
    return values.empty() ? -1 : values[values.size() / 2];
}

/// The program's directory with data of its own.
void makeProgramFolder(const QString &folder, const QString &cardFolder)
{
    QDir().mkpath(folder + u"/Data"_s);
    const QString app = QString::fromLocal8Bit(CORVA_APP_DIR);
    for (const QString &part : {u"res"_s, u"Language"_s})
        QFile::link(app + u'/' + part, folder + u'/' + part);
    for (const QString &part : {u"config"_s, u"common-config.xml"_s})
        QFile::copy(app + u"/Data/"_s + part, folder + u"/Data/"_s + part);
    QDir::setCurrent(folder);
    basePath = folder;
    for (const QString &port : {u"at"_s, u"modem"_s, u"voice"_s})
        cmcfg.setValue(u"device"_s, port + u"_port"_s, cardFolder + u'/' + port);
    cmcfg.setValue(u"window"_s, u"page"_s, u"messages"_s);
}

/// As the program starts.
void setUpApplication()
{
    installCdeStyle();
    readConfig(comcfg);
    installDefaultFont();
    applySkin();
    installTranslation();
}

/// The message page of a window, as a person sees it.
class MessagePage
{
public:
    MessagePage()
    {
        m_window.show();
        takeFocus();
    }
    ~MessagePage() { m_window.stopLink(); }

    void takeFocus()
    {
        m_window.activateWindow();
        timeUntil([this] { return m_window.isActiveWindow(); });
        list()->setFocus();
    }
    QListView *list() { return m_window.findChild<QListView *>(u"messages"_s); }
    bool isUnread(int row) { return list()->model()->index(row, 0).data(UnreadRole).toBool(); }
    int rows() { return list()->model()->rowCount(); }
    template <typename Widget> Widget *part(const QString &name)
    {
        return m_window.findChild<Widget *>(name);
    }
    MessageExchange *exchange() { return m_window.findChild<MessageExchange *>(); }
    void press(const QString &button) { part<QPushButton>(button)->click(); }
    /// Until the list has been painted with so many rows. Milliseconds, -1 when that never comes.
    double untilPainted(int count)
    {
        Painted painted(list()->viewport(), [&] { return rows() >= count; });
        return timeUntil([&] { return painted.isSeen; });
    }

private:
    /// Sees a widget painted while it holds.
    class Painted : public QObject
    {
    public:
        Painted(QWidget *widget, std::function<bool()> holds) : m_holds(std::move(holds))
        {
            widget->installEventFilter(this);
        }
        bool isSeen = false;

    protected:
        bool eventFilter(QObject *, QEvent *event) override
        {
            isSeen = isSeen || (event->type() == QEvent::Paint && m_holds());
            return false;
        }

    private:
        std::function<bool()> m_holds;
    };

    WTMainWindow m_window{nullptr, "wtmainwindowbase", Qt::Window | Qt::FramelessWindowHint};
};

/// What the child does: opens the window and says how long that took since it was launched.
int openWindow(const QString &folder, double launched)
{
    QDir::setCurrent(folder);
    basePath = folder;
    setUpApplication();
    MessagePage page;
    page.untilPainted(receivedOfStored);
    QTest::keyClick(page.list(), Qt::Key_Down);
    timeUntil([&] { return !page.part<QPlainTextEdit>(u"messageBody"_s)->toPlainText().isEmpty(); });
    std::printf("%f\n", milliseconds() - launched);
    return 0;
}

double timeToOpen(const QString &folder)
{
    std::vector<double> times;
    for (int i = 0; i <= rounds; ++i) {
        QProcess child;
        const double now = milliseconds();
        child.start(QCoreApplication::applicationFilePath(), {folder, QString::number(now, 'f', 3)});
        child.waitForFinished();
        times.push_back(child.readAllStandardOutput().toDouble());
    }
    times.erase(times.begin()); // it warmed up
    return median(times);
}

struct Route {
    QString newMessagesGoTo; ///< "newsmsLocation"
    const char *row;
};

/// Until a message that comes in is on screen.
bool measureNew(cardemu::CardThread &card, MessagePage &page, const Route &route)
{
    cmcfg.setValue(u"sms"_s, u"newsmsLocation"_s, route.newMessagesGoTo);
    processFor(5s); // the card has been told
    std::vector<double> times;
    for (int i = 0; i < rounds; ++i) {
        const int before = page.rows();
        const double start = milliseconds();
        card.control(R"({"command": "sms", "from": "+4917112345", "text": ")" +
                     route.newMessagesGoTo.toLatin1() + QByteArray::number(i) + R"("})");
        if (page.untilPainted(before + 1) < 0)
            return printRow(route.row, -1, 50);
        times.push_back(milliseconds() - start);
        processFor(500ms); // what follows on the card
    }
    return printRow(route.row, median(times), 50);
}

/// What the store of a folder holds, as a file to be taken in.
bool exportStore(const QString &folder, const QString &file)
{
    MessageStore store(folder, 9);
    store.load();
    timeUntil([&] { return store.isLoaded(); });
    return exportMessages(store.messages(store.ids([](const Message &) { return true; })), file)
        .result()
        .isEmpty();
}

void write(MessagePage &page, int parts)
{
    page.press(u"newMessage"_s);
    page.part<QLineEdit>(u"recipients"_s)->setText(u"+491721234567"_s);
    page.part<QPlainTextEdit>(u"messageText"_s)->setPlainText(u"ten parts "_s.repeated(parts * 153 / 10));
}

qsizetype sentFrom(cardemu::CardThread &card)
{
    return card.control(R"({"command": "sent"})").value(u"sent"_s).toArray().size();
}

/// Much at once: a file of messages is taken in, the SIM is listed anew, a long message is sent.
double gapOfMuchAtOnce(cardemu::CardThread &card, MessagePage &page, const QString &file)
{
    card.control(R"({"command": "set", "key": "messages.stores.SM.capacity", "value": 300})");
    card.control(R"({"command": "store", "name": "SM", "clear": true})");
    write(page, sentParts);
    processFor(500ms);

    bool isImported = false;
    const auto said =
        QObject::connect(page.exchange(), &MessageExchange::sigSaid, [&] { isImported = true; });
    card.control(R"({"command": "fill", "name": "SM", "count": 200})");
    const GuiBeat beat;
    page.exchange()->importFrom(file);
    page.press(u"send"_s);
    page.takeFocus();
    QTest::keyClick(page.list(), Qt::Key_F5);
    const double time = timeUntil([&] { return isImported && page.rows() == receivedOfStored + listed; });
    const bool isSent = timeUntil([&] { return sentFrom(card) == sentParts; }) >= 0;
    processFor(500ms);
    QObject::disconnect(said);
    return time >= 0 && isSent ? beat.longestGap() : -1;
}

double gapOfMarkingAll(MessagePage &page)
{
    page.list()->selectAll();
    processFor(500ms);
    const GuiBeat beat;
    QTest::keyClick(page.list(), Qt::Key_U, Qt::ControlModifier);
    const double time = timeUntil([&] { return page.isUnread(0) && page.isUnread(page.rows() - 1); });
    processFor(2s);
    return time < 0 ? time : beat.longestGap();
}

bool measureWindow(cardemu::CardThread &card, const QString &folder)
{
    cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, u"1"_s);
    setUpApplication();
    const QString file = folder + u"/messages.json"_s;
    if (!exportStore(folder + u"/full/Data"_s, file))
        return false;
    bool isMet = true;
    {
        MessagePage page;
        page.untilPainted(receivedOfStored);
        processFor(3s); // the card is found and read
        for (const Route &route : {Route{u"2"_s, "  one more, handed over by the card: on screen, median"},
                                   Route{u"1"_s, "  one more, announced on the SIM: on screen, median"}})
            isMet &= measureNew(card, page, route);
        isMet &= printRow("  longest gap of a 10 ms timer, all marked as unread", gapOfMarkingAll(page), 50);
    }
    makeProgramFolder(folder + u"/empty"_s, folder + u"/card"_s);
    MessagePage page;
    processFor(5s);
    isMet &= printRow("longest gap, 20000 imported, 200 listed, 10 parts sent at once",
                      gapOfMuchAtOnce(card, page, file), 50);
    return isMet;
}

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    if (argc == 3)
        return openWindow(QString::fromLocal8Bit(argv[1]), QByteArray(argv[2]).toDouble());
    const QTemporaryDir folder;
    const QString cardFolder = folder.filePath(u"card"_s);
    const QString program = folder.filePath(u"full"_s);
    cardemu::CardThread card{std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s))};
    if (const auto complaint = card.start(cardFolder); !complaint.isEmpty()) {
        std::fputs(qPrintable(complaint), stderr);
        return 1;
    }
    makeProgramFolder(program, cardFolder);
    if (!fillStore(program + u"/Data"_s, storedMessages))
        return 1;
    bool isMet = printRow("20000 messages: program started to page usable, median", timeToOpen(program), 300);
    return measureWindow(card, folder.path()) && isMet ? 0 : 1;
}

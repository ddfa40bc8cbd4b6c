// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cardthread.h"
#include "device/cardmonitor.h"
#include "link/serialthread.h"
#include "serviceowner.h"
#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "sms/messagestore.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace corva;

/// For what takes a moment on a busy machine.
#define SOON(condition) QTRY_VERIFY_WITH_TIMEOUT(condition, 30000)
#define SOON_IS(now, wanted) QTRY_COMPARE_WITH_TIMEOUT(now, wanted, 30000)

/// Messages between the emulated card and the store.
class ServiceFixture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        basePath = m_folder.path();
        cmcfg.setValue(u"device"_s, u"at_port"_s, m_folder.path() + u"/card/at"_s);
        cmcfg.setValue(u"device"_s, u"modem_port"_s, m_folder.path() + u"/card/modem"_s);
        cmcfg.setValue(u"network_dialer_setting"_s, u"send_nullatcommand_timer_100ms"_s, u"10"_s);
        m_owner.onFind = [this] { m_searcher.load()->findPorts(false); };
    }
    void init()
    {
        resetLinkGlobals();
        set("newsmsLocation", 2);
        set("deliveryReport", 1);
        set("deliveryReportMsgDlgShow", 1);
        set("deleteSimSmsWhenFull", 0);
        cmcfg.setValue(u"function"_s, u"modemSide_enabled"_s, u"1"_s);
        cmcfg.setValue(u"function"_s, u"cell_board_enabled"_s, u"1"_s);
        m_card = std::make_unique<cardemu::CardThread>(
            std::get<cardemu::Profile>(cardemu::Profile::builtIn(u"wcdma"_s)));
        QCOMPARE(m_card->start(m_folder.path() + u"/card"_s), QString());
        for (const char *store : {"SM", "ME", "SR"})
            tell(R"({"command": "store", "clear": true, "name": "@"})", store);
    }
    void cleanup()
    {
        end();
        m_card.reset();
        QDir(m_folder.path() + u"/Data"_s).removeRecursively();
    }

protected:
    void set(const char *key, int value)
    {
        cmcfg.setValue(u"sms"_s, QString::fromLatin1(key), QString::number(value));
    }
    void begin()
    {
        start();
        SOON(m_service->place(MessagePlace::Sim).isRead);
    }
    void start()
    {
        m_monitor = std::make_unique<CardMonitor>(&m_owner);
        m_searcher = m_monitor.get();
        m_store = std::make_unique<MessageStore>(m_folder.path() + u"/Data"_s);
        m_service = std::make_unique<MessageService>(m_monitor.get(), m_store.get());
        connect(m_service.get(), &MessageService::sigCardReady, m_service.get(), &MessageService::readCard);
        m_owner.service = m_service.get();
        m_notices.clear();
        for (const auto signal : {&MessageService::sigNotice, &MessageService::sigNearlyFull})
            connect(m_service.get(), signal, this,
                    [this](const QString &sentence) { m_notices += sentence; });
        m_unreadAtStart.clear();
        connect(m_service.get(), &MessageService::sigUnreadAtStart, this,
                [this](int count) { m_unreadAtStart += count; });
        m_store->load();
        m_monitor->start();
    }
    /// What an earlier run left.
    void leave(const std::vector<Message> &messages)
    {
        MessageStore store(m_folder.path() + u"/Data"_s);
        store.load();
        store.add(messages);
        QVERIFY(store.flush());
    }
    void end()
    {
        m_owner.service = nullptr;
        if (m_monitor)
            m_monitor->stop();
        m_service.reset();
        m_store.reset();
        m_monitor.reset();
    }
    QJsonObject ask(const QByteArray &json) { return m_card->control(json); }
    /// `at` takes the place of "@".
    void tell(QByteArray json, const QByteArray &at = {})
    {
        json.replace('@', at);
        const QJsonObject answer = ask(json);
        QVERIFY2(answer[u"ok"_s].toBool(),
                 qPrintable(answer[u"error"_s].toString() + QString::fromUtf8(json)));
    }
    std::vector<Message> inbox(MessagePlace place = MessagePlace::Computer)
    {
        return m_store->messages(m_store->ids(MessageBox::Inbox, place));
    }
    Message only(MessageBox box)
    {
        const auto messages = m_store->messages(m_store->ids(box));
        return messages.size() == 1 ? messages.front() : Message();
    }
    bool says(const QString &sentence) { return m_notices.join(u' ').contains(sentence); }
    static Message hello(const QString &number)
    {
        Message message;
        message.recipients = {number};
        message.time = message.arrived = QDateTime::currentDateTime();
        message.parts.emplace_back().text = u"hello"_s;
        return message;
    }
    static Message received(const QString &number)
    {
        Message message = hello(number);
        message.parts.front().pdu = u"0791947106004034040B919471325476F800004250112100000005E8329BFD06"_s;
        return message;
    }
    /// Whom they go to, the newest first.
    QStringList recipients(MessageBox box)
    {
        QStringList all;
        for (const Message &message : m_store->messages(m_store->ids(box)))
            all += message.recipients;
        return all;
    }
    /// How many lines with that text the card has taken in.
    qsizetype heard(const QString &text)
    {
        const QJsonArray log = ask(R"({"command": "log"})")[u"log"_s].toArray();
        return std::ranges::count_if(
            log, [&](QJsonValue each) { return each[u"received"_s].toString().contains(text); });
    }
    bool hears(const QString &text) { return heard(text) > 0; }
    int sent() { return int(ask(R"({"command": "sent"})")[u"sent"_s].toArray().size()); }
    /// Messages in a store of the card.
    int stored(const QString &name)
    {
        const QJsonObject state = ask(R"({"command": "show"})");
        return int(state[u"state"_s][u"messages"_s][u"stores"_s][name][u"entries"_s].toArray().size());
    }

    ScratchFolder m_folder;
    ServiceOwner m_owner;
    std::unique_ptr<cardemu::CardThread> m_card;
    std::unique_ptr<CardMonitor> m_monitor;
    std::atomic<CardMonitor *> m_searcher = nullptr;
    std::unique_ptr<MessageStore> m_store;
    std::unique_ptr<MessageService> m_service;
    QStringList m_notices;
    QList<int> m_unreadAtStart;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "../files.h"
#include "../rows.h"
#include "cardthread.h"

#include <QJsonArray>
#include <array>
#include <fcntl.h>
#include <poll.h>
#include <stdexcept>
#include <unistd.h>

using namespace Qt::StringLiterals;

/// A client of the card's ports with nothing between it and the bytes.
class TestPort
{
public:
    explicit TestPort(const QString &path)
        : m_descriptor(
              ::open(QFile::encodeName(path).constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        if (m_descriptor < 0)
            throw std::runtime_error("cannot open " + path.toStdString());
    }
    ~TestPort() { ::close(m_descriptor); }
    Q_DISABLE_COPY_MOVE(TestPort)

    bool write(const QByteArray &bytes)
    {
        return ::write(m_descriptor, bytes.data(), size_t(bytes.size())) == bytes.size();
    }

    /// What comes up to and with `end`; what came so far when nothing more comes for `patience` ms.
    QByteArray readUntil(const QByteArray &end, int patience = 5000)
    {
        QByteArray text;
        while (!text.endsWith(end) && waitForBytes(patience)) {
            std::array<char, 1> byte{};
            if (::read(m_descriptor, byte.data(), 1) != 1)
                break;
            text += byte[0];
        }
        return text;
    }
    /// How many bytes come up to `most`, or until nothing more comes.
    qsizetype count(qsizetype most)
    {
        qsizetype size = 0;
        std::array<char, 4096> chunk{};
        while (size < most && waitForBytes(5000)) {
            const ssize_t got = ::read(m_descriptor, chunk.data(), chunk.size());
            if (got <= 0)
                break;
            size += got;
        }
        return size;
    }
    QByteArray exchange(const QByteArray &line, const QByteArray &end)
    {
        write(line);
        return readUntil(end);
    }
    bool waitForBytes(int patience)
    {
        pollfd descriptor{m_descriptor, POLLIN, 0};
        return ::poll(&descriptor, 1, patience) == 1;
    }
    /// True once the port has hung up: reads come to the end of file.
    bool isAtEnd()
    {
        pollfd descriptor{m_descriptor, POLLIN, 0};
        ::poll(&descriptor, 1, 5000);
        std::array<char, 1> byte{};
        return (descriptor.revents & POLLHUP) != 0 && ::read(m_descriptor, byte.data(), 1) <= 0;
    }
    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

/// A card in a folder of its own.
class TestCard
{
public:
    explicit TestCard(const cardemu::Profile &profile) : m_card(profile)
    {
        if (const QString complaint = m_card.start(m_folder.path()); !complaint.isEmpty())
            throw std::runtime_error(complaint.toStdString());
    }
    explicit TestCard(const QString &builtIn = u"wcdma"_s)
        : TestCard(std::get<cardemu::Profile>(cardemu::Profile::builtIn(builtIn)))
    {
    }

    QString path(const QString &name) const { return m_folder.filePath(name); }
    QJsonObject control(const QByteArray &json) { return m_card.control(json); }
    QJsonObject state() { return control(R"({"command": "show"})")[u"state"_s].toObject(); }
    /// What the card handed to the network.
    QJsonArray sent() { return control(R"({"command": "sent"})")[u"sent"_s].toArray(); }
    /// True when the card did what it was told, with `value` in the place of "%1".
    bool tell(QByteArray json, const QByteArray &value = {})
    {
        const QJsonObject answer = control(json.replace("%1", value));
        if (!answer[u"ok"_s].toBool())
            qWarning("%s: %s", json.constData(), qPrintable(answer[u"error"_s].toString()));
        return answer[u"ok"_s].toBool();
    }
    /// Waits until the card has noticed that the last client closed the port.
    bool isLeft(const QString &role = u"at"_s)
    {
        return QTest::qWaitFor([&] { return !state()[u"ports"_s][role][u"open"_s].toBool(); });
    }
    /// Waits until the card has taken in `text`, as its log shows it, or has answered.
    bool hears(const QString &text)
    {
        return QTest::qWaitFor([&] {
            for (const QJsonValue entry : control(R"({"command": "log", "last": 2})")[u"log"_s].toArray()) {
                if (entry[u"received"_s].toString() == text)
                    return true;
            }
            return false;
        });
    }
    /// Moves the card's time on.
    bool advance(int ms) { return tell(R"({"command": "clock", "advance": %1})", QByteArray::number(ms)); }

    /// Everything the card has sent on the AT port until now, read by marking its end.
    QByteArray pending(TestPort &port)
    {
        tell(R"({"command": "raw", "text": "<mark>"})");
        QByteArray text = port.readUntil("<mark>");
        text.chop(6);
        return text;
    }

private:
    QTemporaryDir m_folder;
    cardemu::CardThread m_card;
};

/// A card with echo off and errors in words, and a client at its AT port.
struct Talk {
    explicit Talk(const QString &profile = u"wcdma"_s) : card(profile), port(card.path(u"at"_s))
    {
        port.exchange("ATE0+CMEE=2\r", "OK\r\n");
    }

    /// The reply without its line ends: "+CSQ: 20,99|OK".
    QByteArray ask(const QByteArray &command)
    {
        port.write(command + "\r\n");
        QByteArray reply;
        do {
            const QByteArray line = port.readUntil("\r\n").trimmed();
            if (!line.isEmpty())
                reply += (reply.isEmpty() ? "" : "|") + line;
        } while (!reply.endsWith("OK") && !reply.contains("ERROR") && !reply.endsWith("NO CARRIER") &&
                 !reply.endsWith("CONNECT") && port.waitForBytes(5000));
        return reply;
    }

    /// The reply to a message that is typed behind the prompt, with Ctrl-Z.
    QByteArray submit(const QByteArray &command, const QByteArray &pdu)
    {
        const QByteArray prompt = port.exchange(command + '\r', "> ");
        return prompt == "\r\n> " ? ask(pdu + '\x1a') : "no prompt: " + prompt;
    }

    /// What the card sends of its own accord once it was told this.
    QByteArray told(const QByteArray &json, const QByteArray &value = {})
    {
        return card.tell(json, value) ? card.pending(port) : "refused";
    }
    /// And once its time was moved on.
    QByteArray later(int ms) { return card.advance(ms) ? card.pending(port) : "refused"; }

    TestCard card;
    TestPort port;
};

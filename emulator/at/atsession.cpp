// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/atsession.h"

#include "at/replies.h"

namespace cardemu
{

using namespace Qt::StringLiterals;
using std::chrono::milliseconds;

AtSession::AtSession(const QString &name, Card &card, TrafficLog &log, Sink sink)
    : m_name(name), m_card(card), m_log(log), m_output(card.scheduler(), std::move(sink)),
      m_port(PortSettings::atPowerUp(card.state().line)), m_escape(card.scheduler(), [this] { escaped(); }),
      m_delay(card.scheduler())
{
    connect(&card, &Card::restarted, this, &AtSession::reset);
    connect(&card, &Card::fellSilent, this, [this] { m_output.clear(); });
    connect(&card, &Card::registrationChanged, this, &AtSession::registrationChanged);
}

void AtSession::receive(const QByteArray &bytes)
{
    if (m_card.isSilent())
        return;
    if (isDialling()) {
        // The line feed belongs to the dial's own line end.
        if (bytes != "\n")
            abortDial();
        return;
    }
    m_input += bytes;
    work();
}

bool AtSession::isDialling() const
{
    return m_busy && m_next > 0 && m_commands[m_next - 1].name == "D";
}

// Whatever is typed during a dial ends it, and is dropped. ITU-T V.250 5.6.1 and 6.3.1.
void AtSession::abortDial()
{
    m_delay.stop();
    finish({Final::Kind::NoCarrier});
}

// A card that is at work leaves what comes in lying, and looks at it afterwards.
void AtSession::work()
{
    while ((!m_busy || m_text.isActive()) && !m_input.isEmpty()) {
        const QByteArray input = std::exchange(m_input, {});
        if (m_online) {
            takeData(input);
            return;
        }
        qsizetype at = 0;
        while (at < input.size() && (!m_busy || m_text.isActive()) && !m_online)
            typed(input[at++]);
        m_input = input.mid(at) + m_input;
    }
}

// What goes to and from a network's side is not logged: that is its own business, and there is much of it.
void AtSession::takeData(const QByteArray &bytes)
{
    if (m_peer != nullptr)
        m_peer->write(bytes);
    else
        m_log.add(m_name, u"received"_s, bytes);
    m_escape.feed(bytes);
}

void AtSession::joinNetwork()
{
    const QString &program = m_card.state().data.peer;
    if (m_peer != nullptr || program.isEmpty() || m_card.state().line.dialResult != DialResult::Connect)
        return;
    m_peer = new DataPeer(this);
    connect(m_peer, &DataPeer::received, this, [this](const QByteArray &bytes) { send(bytes); });
    connect(m_peer, &DataPeer::flushed, this, &AtSession::callChanged);
    connect(m_peer, &DataPeer::ended, this, &AtSession::dropCall);
    if (const Complaint complaint = m_peer->start(program); !complaint.isEmpty()) {
        m_log.add(m_name, u"network"_s, complaint.toUtf8());
        dropCall();
    }
}

void AtSession::leaveNetwork()
{
    if (m_peer != nullptr)
        std::exchange(m_peer, nullptr)->hangUp();
}

void AtSession::setClientTakesMore(bool takes)
{
    if (m_peer != nullptr)
        m_peer->setReading(takes && m_online);
}

void AtSession::typed(char byte)
{
    if (m_text.isActive()) {
        typedText(byte);
        return;
    }
    const LineEditor::Step step = m_editor.feed(byte, m_port);
    if (m_port.echo)
        send(step.echo);
    if (step.body)
        runLine(*step.body);
}

// A text that is given up is no error. 3GPP TS 27.005 3.5.1.
void AtSession::typedText(char byte)
{
    const QByteArray echo = m_text.feed(byte);
    if (m_port.echo)
        send(echo);
    if (m_text.isActive())
        return;
    m_log.add(m_name, u"received"_s, m_text.text() + byte);
    if (m_text.state() == TextInput::State::GivenUp) {
        m_later.reset();
        finish({});
        return;
    }
    const QByteArray text = m_text.text();
    if (m_later->delay.count() == 0)
        goOn(text);
    else
        m_delay.start(m_later->delay, [this, text] {
            goOn(text);
            work();
        });
}

void AtSession::runLine(const QByteArray &body)
{
    m_log.add(m_name, u"received"_s, "AT" + body);
    m_echo = "AT" + body + m_port.lineEnd;
    m_information.clear();
    m_next = 0;
    m_busy = true;
    auto commands = body.size() > LineEditor::longestLine ? std::nullopt : parseCommandLine(body);
    m_commands = commands.value_or(std::vector<Command>());
    if (!commands)
        finish({Final::Kind::Error});
    else
        runCommands();
}

// Each command takes its time first and is carried out then, on what the card has become meanwhile.
void AtSession::runCommands()
{
    if (m_next == m_commands.size()) {
        finish({});
        return;
    }
    const Command command = m_commands[m_next++];
    const auto step = [this, command] { proceed(carryOut(command)); };
    const milliseconds delay = m_card.delayOf(command);
    if (delay.count() == 0) {
        step();
        return;
    }
    m_delay.start(delay, [this, step] {
        step();
        work();
    });
}

Answer AtSession::carryOut(const Command &command)
{
    if (const auto refusal = m_card.faults().takeRefusal(command)) {
        if (refusal->code >= 0)
            return isMessageCommand(command.name) ? cmsError(refusal->code) : cmeError(refusal->code);
        const QByteArray text = refusal->text.toUtf8();
        return {{}, {Final::Kind::Literal, 0, text.isEmpty() ? "ERROR" : text}};
    }
    return guarded([this, &command] { return execute({m_card, m_port, command}); });
}

// What the work sets off is reported when it has been answered.
Answer AtSession::guarded(const std::function<Answer()> &work)
{
    m_carryingOut = true;
    Answer answer = work();
    m_carryingOut = false;
    return answer;
}

void AtSession::proceed(const Answer &answer)
{
    m_information += informationText(answer.lines, m_port);
    if (answer.later)
        waitFor(*answer.later);
    else if (answer.final.isSuccess())
        runCommands();
    else if (answer.final.kind != Final::Kind::Pending)
        finish(answer.final);
}

void AtSession::waitFor(const Later &later)
{
    m_later = later;
    if (later.wantsText) {
        prompt();
        m_text.begin();
        return;
    }
    m_delay.start(later.delay, [this] {
        goOn({});
        work();
    });
}

// To faults it is the reply to a command of its own, ">".
void AtSession::prompt()
{
    Reply reply{"> ", "\r\n> ", 0};
    m_card.faults().apply({Command{">", Form::Exec, {}, ">"}}, reply);
    sendReply(reply);
}

void AtSession::sendReply(const Reply &reply)
{
    const qsizetype cut = reply.cutAt < 0 ? reply.bytes.size() : reply.cutAt;
    send(reply.bytes.left(cut), reply.before);
    if (cut < reply.bytes.size())
        send(reply.bytes.mid(cut), reply.pause);
    m_log.add(m_name, u"sent"_s, reply.bytes);
}

void AtSession::goOn(const QByteArray &text)
{
    const Later later = *std::exchange(m_later, {});
    proceed(guarded([&later, &text] { return later.go(text); }));
}

void AtSession::finish(const Final &final)
{
    Reply reply{m_echo, m_information, m_information.size()};
    reply.bytes += finalText(final, m_port);
    letArrive(reply);
    m_card.faults().apply(m_commands, reply);
    sendReply(reply);
    m_online = final.kind == Final::Kind::Connect;
    m_port.dataSuspended = m_port.dataSuspended && !m_online;
    m_escape.reset();
    m_text.reset();
    m_busy = false;
    if (m_online)
        joinNetwork();
    else if (!m_port.dataSuspended)
        leaveNetwork();
    Q_EMIT callChanged();
    for (const QByteArray &line : std::exchange(m_reports, {}))
        report(line);
    if (!m_online)
        reportKept();
}

// Reports of messages that come in at this very moment stand inside the reply.
void AtSession::letArrive(Reply &reply)
{
    for (const Arrival &arrival : m_card.mailbox().takeArrivals(m_commands)) {
        const QByteArrayList before = std::exchange(m_reports, {});
        m_carryingOut = true;
        for (const Incoming &message : arrival.messages)
            m_card.mailbox().receive(message);
        m_carryingOut = false;
        QByteArray lines;
        for (const QByteArray &line : std::exchange(m_reports, before))
            lines += reportText(line, m_port);
        const qsizetype middle = reply.bytes.indexOf('\n', reply.bytes.size() / 2) + 1;
        insert(reply, arrival.at < 0 ? middle : std::min<qsizetype>(arrival.at, reply.bytes.size()), lines);
    }
}

void AtSession::send(const QByteArray &bytes, milliseconds pause)
{
    if (m_card.isSilent())
        return;
    m_output.setBytesPerSecond(m_card.state().line.bytesPerSecond);
    m_output.add(bytes, pause);
}

void AtSession::report(const QByteArray &line)
{
    if (m_carryingOut || m_later)
        m_reports += line;
    else if (!m_online)
        sendRaw(reportText(line, m_port));
}

// <mode> 2 and 3; a technique for reports inside the data, which 3 also allows, is not known here.
void AtSession::indicate(const QByteArray &line)
{
    constexpr int keeps = 2;
    if (!m_online)
        report(line);
    else if (m_card.state().messages.indications.first() >= keeps)
        m_kept += line;
}

void AtSession::reportKept()
{
    for (const QByteArray &line : std::exchange(m_kept, {}))
        report(line);
}

void AtSession::sendRaw(const QByteArray &bytes)
{
    send(bytes);
    m_log.add(m_name, u"sent"_s, bytes);
}

void AtSession::reset()
{
    leaveNetwork();
    m_delay.stop();
    m_output.clear();
    m_escape.reset();
    m_editor.reset();
    m_text.reset();
    m_later.reset();
    m_input.clear();
    m_commands.clear();
    m_reports.clear();
    m_kept.clear();
    m_busy = m_online = false;
    m_port = PortSettings::atPowerUp(m_card.state().line);
    Q_EMIT callChanged();
}

void AtSession::clientLeft()
{
    leaveNetwork();
    m_output.clear();
    m_editor.reset();
    m_escape.reset();
    m_kept.clear();
    m_online = false;
    m_port.dataSuspended = false;
    if (isDialling() || m_text.isActive()) {
        m_delay.stop();
        m_text.reset();
        m_later.reset();
        m_reports.clear();
        m_busy = false;
    }
}

void AtSession::dropCall()
{
    leaveNetwork();
    m_online = false;
    m_port.dataSuspended = false;
    m_escape.reset();
    sendRaw(finalText({Final::Kind::NoCarrier}, m_port));
    Q_EMIT callChanged();
    reportKept();
}

void AtSession::registrationChanged()
{
    if (m_port.registrationReports > 0)
        report("+CREG: " + registrationText(m_card, m_port.registrationReports));
    if (m_port.packetRegistrationReports > 0)
        report("+CGREG: " + registrationText(m_card, m_port.packetRegistrationReports));
}

void AtSession::ring()
{
    report(m_port.extendedRing ? "+CRING: VOICE" : "RING");
    const QString &number = m_card.state().call.number;
    if (m_port.callerNumber)
        report("+CLIP: \"" + number.toLatin1() + "\"," + numberType(number));
}

void AtSession::escaped()
{
    m_online = false;
    m_port.dataSuspended = true;
    sendRaw(finalText({}, m_port));
    Q_EMIT callChanged();
    reportKept();
}

} // namespace cardemu

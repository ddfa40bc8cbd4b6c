// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/helperbackend.h"

#include "connection/rootowned.h"
#include "shell/globals.h"
#include "shell/logging.h"
#include "shell/updatecfg.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QThreadPool>
#include <utility>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr auto installedHelper = "/usr/libexec/corva/corva-dialhelper"_L1;

// How pkexec ends when it does not start the program. Source: pkexec(1), "RETURN VALUE".
constexpr int dismissed = 126;
constexpr int notAuthorised = 127;

/// The helper says its sentences in English, having no translation of its own.
QString translated(const QString &sentence)
{
    const QString file = sentence.section(u'\n', 1); // on a line of its own
    const QByteArray source = sentence.section(u'\n', 0, 0).toUtf8();
    for (const char *context :
         {"DiallerFiles", "corva::DialWork", "corva::DhcpClient", "WvdialProcess", "ProfileChecks"}) {
        QString text = QCoreApplication::translate(context, source.constData());
        if (text.toUtf8() != source)
            return file.isEmpty() ? text : text + u'\n' + file;
    }
    return sentence;
}

} // namespace

HelperBackend::HelperBackend(const QStringList &command, QObject *parent)
    : DiallerBackend(parent), m_command(command)
{
}

HelperBackend::~HelperBackend()
{
    shutDown();
}

/// The policy lets the installed path start without a question where an administrator wants it so: what lies
/// there must be his. Any other path is started by pkexec's own question alone.
QStringList HelperBackend::installedCommand()
{
    if (isAdministratorsOwn(installedHelper))
        return {u"pkexec"_s, installedHelper};
    const QString own = QFileInfo(basePath + u"/corva-dialhelper"_s).canonicalFilePath();
    const bool isOther = !own.isEmpty() && own != installedHelper;
    return isOther ? QStringList{u"pkexec"_s, own} : QStringList{u"/bin/false"_s};
}

/// After a refusal the rest of the same link is refused as well, without another question: only the next
/// saving, with which a link begins, asks again.
void HelperBackend::ask(const DialRequest &request, Answer answer)
{
    if (request.verb == DialVerb::Save)
        m_refusal.clear();
    m_pending.push_back({request, std::move(answer)});
    if (!m_refusal.isEmpty())
        refusePending();
    else if (!m_process)
        start();
    else if (m_isReady)
        m_process->write(toLine(request));
}

void HelperBackend::giveUpAsking()
{
    if (!m_process || m_isReady)
        return;
    m_refusal = tr("The right to connect was not given. Please connect again and enter the password.");
    letGo();
    refusePending();
}

void HelperBackend::refusePending()
{
    const auto answerAll = [pending = std::exchange(m_pending, {}), sentence = m_refusal] {
        for (const Pending &waiting : pending)
            waiting.answer({DialResult::Kind::NoRights, sentence});
    };
    QMetaObject::invokeMethod(this, answerAll, Qt::QueuedConnection);
}

/// A pkexec that still asks ends by the signal, and its question with it. One that has just got the rights
/// cannot be signalled, but the helper ends when nobody speaks to it.
void HelperBackend::letGo()
{
    QProcess *process = m_process.release();
    process->disconnect(this);
    connect(process, &QProcess::finished, process, &QObject::deleteLater);
    process->closeWriteChannel();
    process->terminate();
}

void HelperBackend::start()
{
    m_isReady = false;
    m_lines = {};
    m_process = std::make_unique<QProcess>();
    m_process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    connect(m_process.get(), &QProcess::readyReadStandardOutput, this, &HelperBackend::readOutput);
    connect(m_process.get(), &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended(tr("Connecting needs an administrator's rights, and the program \"pkexec\", which asks for "
                     "them, is missing. Please install it."));
    });
    connect(m_process.get(), &QProcess::finished, this, [this](int code) {
        readOutput();
        if (m_isReady)
            ended(tr("The program that dials has ended unexpectedly. Please try again."));
        else if (code == dismissed)
            ended(tr("The right to connect was not given. Please connect again and enter the password."));
        else if (code == notAuthorised)
            ended(tr("The right to connect could not be asked for. Ask an administrator to run "
                     "\"tools/install-dialhelper\", or start Corva in a desktop session."));
        else
            ended(tr("The program that dials could not be started. Ask an administrator to run "
                     "\"tools/install-dialhelper\"."));
    });
    m_process->start(m_command.at(0), m_command.mid(1));
}

void HelperBackend::readOutput()
{
    for (const QByteArray &line : m_lines.feed(m_process->readAllStandardOutput()))
        if (const auto event = eventFromLine(line))
            take(*event);
}

void HelperBackend::take(const DialEvent &event)
{
    switch (event.kind) {
    case DialEvent::Kind::Ready:
        m_isReady = true;
        for (const Pending &pending : m_pending)
            m_process->write(toLine(pending.request));
        break;
    case DialEvent::Kind::Output: Q_EMIT sigOutput(event.output); break;
    case DialEvent::Kind::DiallerGone: Q_EMIT sigDiallerGone(); break;
    case DialEvent::Kind::Done:
        if (m_pending.empty())
            break;
        const Pending done = std::move(m_pending.front());
        m_pending.pop_front();
        if (done.request.verb == DialVerb::Dial && event.result.isDone())
            QThreadPool::globalInstance()->start([] { UpdateCfg::setValue(UpdateKey::Wvdial, u"1"_s); });
        done.answer({event.result.kind, translated(event.result.error)});
        break;
    }
}

/// Everything that waits is answered, and the next request starts the helper anew, unless the right was
/// refused.
void HelperBackend::ended(const QString &sentence)
{
    qCWarning(lcConnection).noquote() << logTime() + sentence;
    const bool wasReady = std::exchange(m_isReady, false);
    m_process.release()->deleteLater(); // it may be speaking now
    if (!wasReady) {
        m_refusal = sentence;
        refusePending();
        return;
    }
    const std::deque<Pending> pending = std::exchange(m_pending, {});
    Q_EMIT sigLost(sentence);
    for (const Pending &waiting : pending)
        waiting.answer({DialResult::Kind::Failed, sentence});
}

void HelperBackend::shutDown()
{
    m_pending.clear();
    if (!m_process)
        return;
    if (!m_isReady) {
        letGo();
        return;
    }
    m_process->disconnect(this);
    m_process->closeWriteChannel();
    // One that does not end runs with rights that this program cannot end.
    if (!m_process->waitForFinished(int(longestShutDown.count())))
        (void)m_process.release();
    m_process.reset();
}

} // namespace corva

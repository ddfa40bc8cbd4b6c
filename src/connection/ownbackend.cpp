// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ownbackend.h"

#include "connection/dialwork.h"
#include "shell/updatecfg.h"

#include <QDeadlineTimer>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

OwnBackend::OwnBackend(const SystemFiles &files, QObject *parent)
    : DiallerBackend(parent),
      m_work(new DialWork(files, [] { UpdateCfg::setValue(UpdateKey::Wvdial, u"1"_s); }))
{
    m_work->moveToThread(&m_thread);
    connect(&m_thread, &QThread::finished, m_work, &QObject::deleteLater);
    connect(m_work, &DialWork::sigDone, this, &OwnBackend::takeResult);
    connect(m_work, &DialWork::sigOutput, this, &OwnBackend::sigOutput);
    connect(m_work, &DialWork::sigDiallerGone, this, &OwnBackend::sigDiallerGone);
    connect(m_work, &DialWork::sigShutDown, &m_thread, &QThread::quit, Qt::DirectConnection);
    m_thread.start();
}

OwnBackend::~OwnBackend()
{
    shutDown();
}

void OwnBackend::ask(const DialRequest &request, Answer answer)
{
    m_answers.push_back(std::move(answer));
    QMetaObject::invokeMethod(m_work, [work = m_work, request] { work->ask(request); });
}

void OwnBackend::shutDown()
{
    m_answers.clear();
    if (!m_thread.isRunning())
        return;
    QMetaObject::invokeMethod(m_work, &DialWork::shutDown);
    if (!m_thread.wait(QDeadlineTimer(longestShutDown))) {
        m_thread.quit();
        m_thread.wait();
    }
}

void OwnBackend::takeResult(const DialResult &result)
{
    if (m_answers.empty())
        return;
    const Answer answer = std::move(m_answers.front());
    m_answers.pop_front();
    answer(result);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/debuglog.h"

#include "shell/globals.h"
#include "shell/safefile.h"

#include <QMutex>
#include <QMutexLocker>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

QBuffer buf;

namespace
{

QMutex &bufferLock()
{
    static QMutex mutex;
    return mutex;
}

void appendToBuffer(const QString &message)
{
    const QMutexLocker locker(&bufferLock());
    if (!buf.isOpen() && !buf.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    buf.write(message.toUtf8() + "\r\n");
}

} // namespace

void myMessageOutput(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    switch (type) {
    case QtWarningMsg: return;
    case QtFatalMsg: std::fprintf(stderr, "%s\n", qUtf8Printable(message)); std::abort();
    case QtDebugMsg:
    case QtInfoMsg:
    case QtCriticalMsg: appendToBuffer(message);
    }
}

void outputLog2File()
{
    QMutexLocker locker(&bufferLock());
    const QByteArray content = buf.data();
    locker.unlock();
    QString error;
    if (!corva::writeFileSafely(basePath + u"/Data/debug.log"_s, content, &error))
        std::fprintf(stderr, "%s\n", qUtf8Printable(error));
}

#ifdef CORVA_DEBUG_LOG
corva::DebugLog::DebugLog()
{
    qInstallMessageHandler(myMessageOutput);
}

corva::DebugLog::~DebugLog()
{
    outputLog2File();
    qInstallMessageHandler(nullptr);
}
#else
corva::DebugLog::DebugLog() = default;
corva::DebugLog::~DebugLog() = default;
#endif

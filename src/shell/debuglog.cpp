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

#ifdef CORVA_DEBUG_LOG
constexpr bool isBuiltIn = true;
#else
constexpr bool isBuiltIn = false;
#endif

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

/// A copy, so that other threads can go on while it is written.
QByteArray collected()
{
    const QMutexLocker locker(&bufferLock());
    return buf.data();
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
    QString error;
    if (!corva::writeFileSafely(basePath + u"/Data/debug.log"_s, collected(), &error))
        std::fprintf(stderr, "%s\n", qUtf8Printable(error));
}

corva::DebugLog::DebugLog()
{
    if constexpr (isBuiltIn)
        qInstallMessageHandler(myMessageOutput);
}

corva::DebugLog::~DebugLog()
{
    if constexpr (isBuiltIn) {
        outputLog2File();
        qInstallMessageHandler(nullptr);
    }
}

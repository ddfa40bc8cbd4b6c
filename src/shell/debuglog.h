// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QBuffer>
#include <QString>
#include <QtGlobal>

/// What the debug log collected so far. Grows for the life of the process.
extern QBuffer buf;

/// A message handler for diagnosis in the field, from any thread: debug, information and critical messages
/// are appended to `buf`, each followed by "\r\n"; warnings are dropped; a fatal one is printed and ends the
/// process with SIGABRT.
void myMessageOutput(QtMsgType type, const QMessageLogContext &context, const QString &message);

/// Replaces `basePath` + "/Data/debug.log" by what was collected.
void outputLog2File();

namespace corva
{

/// Collects the debug log while it lives, and writes it at its end. Does nothing unless the program was built
/// with CORVA_DEBUG_LOG.
class DebugLog
{
public:
    DebugLog();
    ~DebugLog();
    Q_DISABLE_COPY_MOVE(DebugLog)
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/dialhelper/callerrights.h"
#include "connection/dialwire.h"
#include "connection/dialwork.h"

#include <QObject>
#include <QSocketNotifier>

namespace corva
{

/// The program's conversation: requests come in on one descriptor, events go out on another. When nobody
/// speaks any more, or a line is no request, or too many wait, the dialler is ended, the system's files are
/// put back and the program ends.
class DialHelper : public QObject
{
    Q_OBJECT

public:
    /// `stop` becomes readable when the program is asked to end.
    DialHelper(uid_t caller, int input, int output, int stop);

    void start();

private:
    DialResult check(DialRequest &request);
    void readInput();
    void say(const DialEvent &event);
    void end(int exitStatus);

    const uid_t m_caller;
    const int m_output;
    HeldPort m_port; ///< from the writing of the dialler's files until they go back
    DialWork m_work;
    QSocketNotifier m_input;
    QSocketNotifier m_stop;
    LineCutter m_lines;
    int m_exitStatus = 0;
};

} // namespace corva

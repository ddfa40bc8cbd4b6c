// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linktest.h"

#include <QByteArrayList>
#include <future>
#include <vector>

/// The card's side of a pseudo-terminal, with an answer for each command in order. A command ends at its line
/// end, a PDU at Ctrl-Z.
class ScriptedCard
{
public:
    struct Exchange {
        QByteArray command;
        QByteArray answer;
    };

    ScriptedCard(Pty &pty, std::vector<Exchange> script, bool echo)
        : m_heard(inBackground([&pty, script = std::move(script), echo] {
              QByteArrayList heard;
              for (const auto &[command, answer] : script) {
                  const char end = command.endsWith('\x1a') ? '\x1a' : command.back();
                  heard += pty.readUntil(QByteArrayView(&end, 1));
                  pty.write((echo ? heard.back().trimmed() + '\r' : QByteArray()) + answer);
              }
              return heard;
          }))
    {
    }

    /// What it heard, once it heard all.
    QByteArrayList heard() { return m_heard.get(); }

private:
    std::future<QByteArrayList> m_heard;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/diallerbackend.h"
#include "connection/dialwire.h"

#include <QProcess>
#include <deque>
#include <memory>

namespace corva
{

/// The dialler's side in the helper program, which pkexec starts with the rights that it needs. It is started
/// with the first request, asks for a password then, and stays until this program ends: a helper whose
/// program is gone ends the link and puts the system's files back.
class HelperBackend final : public DiallerBackend
{
    Q_OBJECT

public:
    /// `command` is what starts the helper: a program and its arguments.
    explicit HelperBackend(const QStringList &command, QObject *parent = nullptr);
    ~HelperBackend() override;

    void ask(const DialRequest &request, Answer answer) override;
    void giveUpAsking() override;
    void shutDown() override;

    /// "pkexec" and the helper: the installed one, otherwise the one beside this program.
    static QStringList installedCommand();

private:
    void start();
    void readOutput();
    void take(const DialEvent &event);
    void ended(const QString &sentence);
    void letGo();
    void refusePending();

    struct Pending {
        DialRequest request;
        Answer answer;
    };

    const QStringList m_command;
    std::unique_ptr<QProcess> m_process;
    LineCutter m_lines;
    std::deque<Pending> m_pending;
    bool m_isReady = false;
    QString m_refusal; ///< why the rights were not given; none since the last link began
};

} // namespace corva

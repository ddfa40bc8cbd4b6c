// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/diallerbackend.h"

#include <QThread>
#include <deque>

namespace corva
{

class DialWork;

/// The dialler's side in this process, on a thread of its own: for a program that runs as root.
class OwnBackend final : public DiallerBackend
{
    Q_OBJECT

public:
    explicit OwnBackend(const SystemFiles &files, QObject *parent = nullptr);
    ~OwnBackend() override;

    void ask(const DialRequest &request, Answer answer) override;
    void shutDown() override;

private:
    void takeResult(const DialResult &result);

    QThread m_thread;
    DialWork *m_work = nullptr; ///< belongs to the thread
    std::deque<Answer> m_answers;
};

} // namespace corva

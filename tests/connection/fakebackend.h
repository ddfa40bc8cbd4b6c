// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/diallerbackend.h"

#include <QList>
#include <map>
#include <optional>

/// Does what a test says, and notes what it was asked for.
class FakeBackend : public corva::DiallerBackend
{
    Q_OBJECT

public:
    void ask(const corva::DialRequest &request, Answer answer) override
    {
        asked += request.verb;
        last = request;
        if (holds == request.verb)
            held = std::move(answer);
        else
            reply(request.verb, std::move(answer));
    }
    void shutDown() override { isShutDown = true; }

    void reply(corva::DialVerb verb, Answer answer)
    {
        QMetaObject::invokeMethod(
            this, [this, verb, answer = std::move(answer)] { answer(results[verb]); }, Qt::QueuedConnection);
    }
    void say(const QByteArray &lines) { Q_EMIT sigOutput(lines); }
    void beGone() { Q_EMIT sigDiallerGone(); }

    QList<corva::DialVerb> asked;
    corva::DialRequest last;
    std::map<corva::DialVerb, corva::DialResult> results;
    std::optional<corva::DialVerb> holds;
    Answer held;
    bool isShutDown = false;
};

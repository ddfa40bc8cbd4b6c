// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "../storetest.h"

#include <QRandomGenerator>

namespace sample
{

using namespace Qt::StringLiterals;

/// Messages as a telephone has them: several scripts, long ones, delivered, failed, broken.
inline std::vector<corva::Message> messages(const QDateTime &now)
{
    using namespace corva;
    const auto came = [&](const QString &from, const QString &text, qint64 minutesAgo, bool isRead = true) {
        Message message = received(from, text, minutesAgo);
        message.time = now.addSecs(-60 * minutesAgo);
        message.isRead = isRead;
        return message;
    };
    const auto went = [&](const QString &to, const QString &text, DeliveryState state, qint64 minutesAgo) {
        Message message = came(to, text, minutesAgo);
        message.box = state == DeliveryState::Queued || state == DeliveryState::Failed ? MessageBox::Outbox
                                                                                       : MessageBox::Sent;
        message.parts.front().state = state;
        message.parts.front().sent = message.time;
        message.parts.front().asksReport = true;
        if (state == DeliveryState::Failed)
            message.parts.front().errorCode = 38;
        return message;
    };
    std::vector<Message> all{
        came(u"+491511234567"_s,
             u"Are we still meeting at eight? The place is on www.example.org/map, just around the corner "
             u"from the "
             "station. <b>Bring the tickets</b>, please."_s,
             4, false),
        came(u"+966501234567"_s, u"مرحبا! الاجتماع غداً الساعة 10:30 في المكتب (الطابق 3)."_s, 35, false),
        went(u"+491511234567"_s, u"Yes, eight is fine. I have the tickets 🎫"_s, DeliveryState::Delivered, 60),
        came(u"Bank"_s, u"Your TAN is 482 193. Never tell it to anybody."_s, 200),
        went(u"+905321234567"_s, u"Görüşürüz, iyi akşamlar!"_s, DeliveryState::Failed, 300),
        came(u"+491511234567"_s, u"Do you have the tickets?"_s, 24 * 60),
        went(u"+491511234567"_s, u"On my way to get them."_s, DeliveryState::Sent, 24 * 60 - 5),
        came(u"+33698765432"_s, u"À demain, j'espère que le train sera à l'heure."_s, 3 * 24 * 60),
        went(u"+33698765432"_s, u"À demain !"_s, DeliveryState::Queued, 2),
        came(u"+8613800138000"_s, u"明天见，别忘了带雨伞。"_s, 400 * 24 * 60),
    };
    Message torn =
        longPart(u"+491729876543"_s, 7, 3, 1, u"The first part of a long message that tells "_s, 90);
    torn.time = now.addSecs(-5400);
    all.push_back(torn);
    torn.parts.front().sequence = 3;
    torn.parts.front().pdu += u"03"_s;
    torn.parts.front().text = u"and here is how it ends."_s;
    all.push_back(torn);
    Message broken = came(u"+491700000000"_s, {}, 1500);
    broken.error = u"the user data is longer than the message (octet 27)."_s;
    broken.parts.front().pdu = u"07919471227210F3040C9194710000000000004250303221438023D4F29C0E"_s;
    all.push_back(broken);
    Message draft = came(u"+491511234567"_s, u"What I meant to say is"_s, 500);
    draft.box = MessageBox::Drafts;
    draft.parts.front().pdu.clear();
    all.push_back(draft);
    return all;
}

/// What lies on the SIM.
inline std::vector<corva::Message> onSim(const QDateTime &now)
{
    std::vector<corva::Message> all;
    for (int i = 0; i < 6; ++i) {
        corva::Message kept =
            received(u"+4915700000%1"_s.arg(i), u"A message that is kept on the SIM card (%1)"_s.arg(i));
        kept.time = now.addSecs(-60 * (5000 + 700 * i));
        kept.isRead = true;
        kept.parts.front().storageIndex = i + 1;
        all.push_back(kept);
    }
    return all;
}

/// So many messages of a few hundred persons.
inline std::vector<corva::Message> many(int count)
{
    QRandomGenerator random(7);
    std::vector<corva::Message> all;
    all.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i) {
        corva::Message message =
            received(u"+4915%1"_s.arg(random.bounded(300), 9, 10, QChar(u'0')),
                     u"Message number %1 about the %2th thing"_s.arg(i).arg(i % 97), i * 60);
        message.isRead = i % 20 != 0;
        all.push_back(message);
    }
    return all;
}

} // namespace sample

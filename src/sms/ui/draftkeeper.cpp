// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/draftkeeper.h"

#include "sms/messagetable.h"

#include <chrono>
#include <utility>

using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr auto pause = 700ms; ///< of typing, after which the draft is stored
constexpr auto longest = 5s;  ///< without a pause

void put(const DraftKeeper::Content &content, Message &draft)
{
    draft.recipients = content.recipients;
    draft.asksReport = content.asksReport;
    draft.time = QDateTime::currentDateTime();
    draft.total = 1;
    MessagePart part;
    part.text = content.text;
    draft.parts = {part};
}

Message newDraft()
{
    Message draft;
    draft.box = MessageBox::Drafts;
    draft.arrived = QDateTime::currentDateTime();
    draft.isRead = true;
    return draft;
}

} // namespace

DraftKeeper::DraftKeeper(MessageStore *store, QObject *parent) : QObject(parent), m_store(store)
{
    for (QTimer *timer : {&m_soon, &m_latest}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &DraftKeeper::save);
    }
    m_soon.setInterval(pause);
    m_latest.setInterval(longest);
    connect(store, &MessageStore::sigLoaded, &m_soon, qOverload<>(&QTimer::start));
    connect(store, &MessageStore::sigRemoved, this, [this](const QStringList &ids) {
        if (ids.contains(m_id))
            m_id.clear(); // what is written on is a new draft
    });
}

DraftKeeper::~DraftKeeper()
{
    flush();
}

void DraftKeeper::begin(const QString &id, const Content &content)
{
    flush();
    m_id = id;
    m_content = content;
    m_stored = content;
}

void DraftKeeper::setContent(const Content &content)
{
    m_content = content;
    m_soon.start();
    if (!m_latest.isActive())
        m_latest.start();
}

void DraftKeeper::flush()
{
    if (!m_store)
        return;
    if (m_content != m_stored && !m_content.isEmpty() && !m_store->isLoaded())
        handOver(MessageBox::Drafts); // there may be no later time
    save();
    removeEmpty();
}

void DraftKeeper::release()
{
    m_soon.stop();
    m_latest.stop();
    m_id.clear();
    m_content = m_stored = {};
}

QString DraftKeeper::discard()
{
    flush();
    if (m_store && !m_id.isEmpty() && !m_store->isLoaded()) {
        handOver(MessageBox::Deleted); // nobody finds it by its id before
        m_id.clear();
    }
    QString id = m_id;
    release();
    return id;
}

/// Has a store that is still being read take the draft behind that, in the place of what it was given before.
void DraftKeeper::handOver(MessageBox box)
{
    Message draft = newDraft();
    draft.box = box;
    draft.deletedFrom = MessageBox::Drafts;
    draft.id = newMessageId();
    put(m_content, draft);
    const QString former = std::exchange(m_id, draft.id);
    m_store->replace(former.isEmpty() ? QStringList() : QStringList(former), {draft});
    m_stored = m_content;
}

void DraftKeeper::save()
{
    m_soon.stop();
    m_latest.stop();
    // What is changed before the store is loaded is not: this is called again then.
    if (m_content == m_stored || !m_store->isLoaded() || (m_id.isEmpty() && m_content.isEmpty()))
        return;
    if (m_id.isEmpty()) {
        Message draft = newDraft();
        put(m_content, draft);
        m_id = m_store->insert({draft}).ids.value(0);
    } else {
        m_store->change(m_id, [this](Message &draft) { put(m_content, draft); });
    }
    m_stored = m_content;
}

void DraftKeeper::removeEmpty()
{
    if (!m_content.isEmpty() || m_id.isEmpty())
        return;
    m_store->replace({m_id}, {}); // in its turn: it may be given to the store and not be there yet
    release();
}

} // namespace corva

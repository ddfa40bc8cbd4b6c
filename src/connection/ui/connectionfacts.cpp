// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/connectionfacts.h"

#include "connection/ui/connectiontexts.h"
#include "widgets/factrow.h"
#include "widgets/skin.h"

#include <QVBoxLayout>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

struct Facts {
    const ConnectionStatus &status;
    const LinkTraffic &traffic;
    bool isUp;
};

QString duration(const Facts &facts)
{
    if (!facts.isUp || !facts.status.since.isValid())
        return {};
    return elapsedText(std::chrono::seconds(facts.status.since.secsTo(QDateTime::currentDateTime())));
}

struct FactSpec {
    FactRow::Copy copy;
    const char *group; ///< opens a new group where it differs from the row above
    const char *id;
    const char *caption;
    QString (*value)(const Facts &);
};

constexpr const char *link = QT_TRANSLATE_NOOP("corva::ConnectionFacts", "This connection");
constexpr const char *traffic = QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Traffic");
constexpr auto plain = FactRow::Copy::Room;
constexpr auto copied = FactRow::Copy::Yes;

const FactSpec factSpecs[] = {
    {plain, link, "profile", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Profile"),
     [](const Facts &facts) { return facts.isUp ? facts.status.profileName : QString(); }},
    {plain, link, "duration", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Duration"), duration},
    {copied, link, "address", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "IP address"),
     [](const Facts &facts) { return facts.isUp ? facts.status.localAddress : QString(); }},
    {copied, link, "peer", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Gateway"),
     [](const Facts &facts) { return facts.isUp ? facts.status.peerAddress : QString(); }},
    {copied, link, "nameServers", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Name servers"),
     [](const Facts &facts) { return facts.isUp ? facts.status.nameServers.join(u", "_s) : QString(); }},
    {plain, traffic, "receiving", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Receiving"),
     [](const Facts &facts) { return facts.isUp ? facts.traffic.receiving : QString(); }},
    {plain, traffic, "sending", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Sending"),
     [](const Facts &facts) { return facts.isUp ? facts.traffic.sending : QString(); }},
    {plain, traffic, "received", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Received"),
     [](const Facts &facts) { return facts.traffic.received; }},
    {plain, traffic, "sent", QT_TRANSLATE_NOOP("corva::ConnectionFacts", "Sent"),
     [](const Facts &facts) { return facts.traffic.sent; }},
};

} // namespace

ConnectionFacts::ConnectionFacts(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, metrics::HalfGrid, 0);
    layout->setSpacing(0);
    const char *group = "";
    for (const FactSpec &spec : factSpecs) {
        if (qstrcmp(group, spec.group) != 0) {
            if (*group != '\0')
                layout->addSpacing(2 * metrics::Grid);
            group = spec.group;
            layout->addWidget(new SectionHeader(tr(group), this));
        }
        m_rows.push_back(new FactRow(QString::fromLatin1(spec.id), tr(spec.caption), spec.copy, this));
        layout->addWidget(m_rows.back());
    }
    const int address = fontMetrics().horizontalAdvance(u"255.255.255.255"_s);
    m_neededWidth = FactRow::alignValues(m_rows) + address + metrics::Grid + metrics::ControlHeight;
    layout->addStretch(1);
    connect(&m_second, &QTimer::timeout, this, &ConnectionFacts::update);
    m_second.setInterval(1s);
    update();
}

void ConnectionFacts::setStatus(const ConnectionStatus &status)
{
    m_status = status;
    if (status.state == ConnectionState::Connected)
        m_second.start();
    else
        m_second.stop();
    update();
}

void ConnectionFacts::setTraffic(const LinkTraffic &traffic)
{
    m_traffic = traffic;
    update();
}

void ConnectionFacts::update()
{
    const Facts facts{m_status, m_traffic, m_status.state == ConnectionState::Connected};
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        m_rows[i]->setValue(factSpecs[i].value(facts));
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

namespace corva
{

/// What the link carries, as people read it: "1.25 MB/s", "340 MB". Empty while it is not known.
struct LinkTraffic {
    QString receiving;
    QString sending;
    QString received; ///< since the link came up
    QString sent;
    bool operator==(const LinkTraffic &) const = default;
};

/// The traffic for the connection's page, told by whoever counts it.
class LinkMeter final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    const LinkTraffic &traffic() const { return m_traffic; }
    void setTraffic(const LinkTraffic &traffic);

Q_SIGNALS:
    void sigChanged(const corva::LinkTraffic &traffic);

private:
    LinkTraffic m_traffic;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "at/trafficlog.h"

namespace cardemu
{

using namespace Qt::StringLiterals;

void TrafficLog::add(const QString &port, const QString &what, const QByteArray &bytes)
{
    if (bytes.isEmpty() && what == u"sent"_s)
        return;
    if (m_entries.size() == capacity)
        m_entries.removeFirst();
    m_entries += QJsonObject{{u"time"_s, m_scheduler.now().toString(Qt::ISODateWithMs)},
                             {u"port"_s, port},
                             {what, QString::fromLatin1(bytes.left(longestText))}};
    Q_EMIT added(m_entries.last());
}

QJsonArray TrafficLog::newest(qsizetype count) const
{
    QJsonArray array;
    for (qsizetype i = std::max<qsizetype>(0, m_entries.size() - count); i < m_entries.size(); ++i)
        array += m_entries[i];
    return array;
}

} // namespace cardemu

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "connection/ui/linkmeter.h"

#include <QTimer>
#include <QWidget>
#include <vector>

namespace corva
{

class FactRow;

/// Everything about the link: with which profile and since when, its addresses, and what it carries.
class ConnectionFacts final : public QWidget
{
    Q_OBJECT

public:
    explicit ConnectionFacts(QWidget *parent);

    /// What the captions and an address beside them take.
    int neededWidth() const { return m_neededWidth; }

    void setStatus(const ConnectionStatus &status);
    void setTraffic(const LinkTraffic &traffic);

private:
    void update();

    ConnectionStatus m_status;
    LinkTraffic m_traffic;
    QTimer m_second;
    int m_neededWidth = 0;
    std::vector<FactRow *> m_rows; ///< in the order of the table of facts
};

} // namespace corva

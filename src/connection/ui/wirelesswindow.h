// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "window/pageregistry.h"

namespace corva
{

class ConnectionFacts;
class ConnectionHead;
class ProfileList;
class TextLabel;

/// The connection's page: the button that connects and disconnects, the profiles, and everything about the
/// link.
class WirelessWindow final : public Page
{
    Q_OBJECT

public:
    WirelessWindow(const PageInfo &info, const PageContext &context, QWidget *parent);

    void refresh() override;

public Q_SLOTS:
    /// Connects, cancels or disconnects.
    void isConnectButton_clicked();

private:
    void build();
    void takeStatus();
    void say(const QString &sentence);
    QString hint() const;

    PageContext m_context;
    ConnectionHead *m_head;
    ProfileList *m_profiles;
    ConnectionFacts *m_facts;
    TextLabel *m_said;
};

PageEntry connectionPageEntry();

} // namespace corva

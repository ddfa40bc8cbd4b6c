// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"
#include "window/pageregistry.h"

class QBoxLayout;
class QScrollArea;

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

protected:
    void resizeEvent(QResizeEvent *event) override;

public Q_SLOTS:
    /// Connects, cancels or disconnects.
    void isConnectButton_clicked();

private:
    void build();
    void arrange();
    void takeStatus();
    void say(const QString &sentence);
    QString hint() const;

    PageContext m_context;
    ConnectionHead *m_head;
    ProfileList *m_profiles;
    ConnectionFacts *m_facts;
    QScrollArea *m_factsScroll = nullptr;
    QScrollArea *m_scroll = nullptr; ///< around all of it, for small windows and large fonts
    QBoxLayout *m_columns = nullptr;
    TextLabel *m_said;
};

PageEntry connectionPageEntry();

} // namespace corva

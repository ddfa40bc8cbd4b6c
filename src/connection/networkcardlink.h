// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/datalink.h"

namespace corva
{

/// A link over the card's own network interface: the card makes the data call, the system's DHCP client gets
/// the address.
class NetworkCardLink : public DataLink
{
    Q_OBJECT

public:
    using DataLink::DataLink;

    /// The card's reports tell of this context alone, whatever dial-up uses.
    static constexpr int contextId = 1;

    void abandon() override;

protected:
    void slotDelayMessageBox() override;
    void make() override;
    void takeDown() override;
    void look() override;

private:
    /// How the card was told to make the data call.
    enum class Activation { None, DataCall, Context };

    void activated(Activation by, int result);
    void lease();
    void deactivate();
    void refused();

    Activation m_activation = Activation::None;
    bool m_isActivating = false;
    bool m_isLeased = false;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/datacall.h"
#include "connection/datalink.h"

#include <memory>

namespace corva
{

/// A link over the card's own network interface: the card makes the data call, the system's DHCP client gets
/// the address.
class NetworkCardLink : public DataLink
{
    Q_OBJECT

public:
    using DataLink::DataLink;
    /// A call that comes about after this is ended again.
    ~NetworkCardLink() override;

    void abandon() override;

protected:
    void slotDelayMessageBox() override;
    void make() override;
    void takeDown() override;
    void look() override;

private:
    using Activation = DataCall::Activation;

    void activated(const DataCall::Answer &answer);
    void lease();
    void deactivate();
    void refused();

    std::shared_ptr<DataCall> m_call; ///< shared with the card worker
    Activation m_activation = Activation::None;
    bool m_isActivating = false;
    bool m_isLeased = false;
};

} // namespace corva

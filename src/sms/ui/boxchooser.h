// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/ui/messagelistmodel.h"

#include <QComboBox>
#include <QTimer>

namespace corva
{

/// What the list of the page shows: persons, or messages.
struct MessageView {
    bool isByPerson = false;
    MessageFilter filter = {}; ///< counts when it is not by person
    bool operator==(const MessageView &) const = default;
};

/// The boxes, and what lies on the SIM and the card, with how much is in them.
class BoxChooser final : public QComboBox
{
    Q_OBJECT

public:
    BoxChooser(MessageService *service, QWidget *parent);

    MessageView view() const;
    /// Opens a box, if it is offered.
    void choose(const MessageView &view);
    /// Offers what the settings and the card have now.
    void offer();

Q_SIGNALS:
    void sigChosen(const corva::MessageView &view);

private:
    std::vector<MessageView> offered() const;
    QString titleOf(const MessageView &view) const;
    void retell();

    MessageService *m_service;
    std::vector<MessageView> m_views;
    QTimer m_retelling; ///< to the end of a burst of changes
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QDialog>
#include <deque>

class QPushButton;

namespace corva
{

class MessageStore;
class PlainTextView;
class TextLabel;

/// Immediate messages (class 0): shown at once, one behind the other, and gone when they are closed, unless
/// the person keeps them. 3GPP TS 23.038 4.
class Class0Dialog final : public QDialog
{
    Q_OBJECT

public:
    struct Entry {
        QString sender; ///< as it is shown
        QString text;
        Message message; ///< as the store keeps it
    };

    Class0Dialog(MessageStore *store, QWidget *parent);

    /// Shown at once when nothing else is; otherwise when those before it were closed.
    void add(const Entry &entry);

protected:
    void done(int result) override;

private:
    void build();
    void makeRoom();
    void showFirst();
    void keepMessage();

    MessageStore *m_store;
    std::deque<Entry> m_entries;
    TextLabel *m_waiting;
    PlainTextView *m_text;
    QPushButton *m_close;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/ui/messagetexts.h"

#include <QWidget>

class QPlainTextEdit;
class QPushButton;

namespace corva
{

class ElidedLabel;
class MessageActions;
class MessageService;
class PlainTextView;
class TextLabel;

/// One message: who and when, its text, how it stands, and on request what it travelled in.
class ReadingPane final : public QWidget
{
    Q_OBJECT

public:
    ReadingPane(MessageService *service, MessageActions *actions, QWidget *parent);

    void show(const Message &message);
    /// The id of the message that is shown; empty when none was yet.
    const QString &shown() const { return m_shown; }
    /// Takes the keyboard into the text.
    void takeFocus();

private:
    void build();
    void openMenu(const QPoint &position);
    NameOf nameOf() const;
    void showHead(const Message &message);
    void showNotice(const Message &message);
    QString details(const Message &message) const;

    MessageService *m_service;
    MessageActions *m_actions;
    QString m_shown;
    ElidedLabel *m_people;
    ElidedLabel *m_about;
    TextLabel *m_notice; ///< missing parts, or why it cannot be read
    PlainTextView *m_text;
    TextLabel *m_delivery;
    QPushButton *m_more;
    QPlainTextEdit *m_details;
};

} // namespace corva

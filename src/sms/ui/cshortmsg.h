// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/smsdecoder.h"
#include "sms/ui/boxchooser.h"
#include "sms/ui/templatestore.h"
#include "window/pageregistry.h"

class QLineEdit;
class QMenu;
class QPushButton;
class QStackedWidget;

namespace corva
{
class BroadcastBar;
class Composer;
class MessageActions;
class MessageBrowser;
class MessageExchange;
class MessageQueue;
class NoticeBar;
class ReadingPane;
class TextLabel;
class ThreadPane;
} // namespace corva

/// The message page: boxes and conversations, the message that is read, the one that is written.
class CShortMsg final : public corva::Page, public SmsDecoder
{
    Q_OBJECT

public:
    CShortMsg(const corva::PageInfo &info, corva::MessageService *service, corva::MessageQueue *messages,
              QWidget *parent);

    /// Lists the SIM and the card anew.
    void refresh() override;
    /// Lists the SIM anew, in the background.
    void getSimAllSmsItem();
    /// Opens a message in the box that it is in.
    void showEntry(const QString &id) override;

public Q_SLOTS:
    /// Begins a message.
    void write(const QStringList &recipients = {}, const QString &text = {});

protected:
    void showEvent(QShowEvent *event) override;

private:
    void build();
    void buildHead();
    void buildDetail();
    void connectParts();
    void connectService();
    void addShortcuts();
    void fillMore();
    void openView(const corva::MessageView &view);
    void search(const QString &words);
    void follow();
    void followConversation();
    void showChosen(const QStringList &ids);
    void showHint();
    void activate();
    /// Opens a draft in the composer, and takes the keyboard into the text of anything else.
    void goInto(const QString &id);
    void leaveComposer();
    void setWriting(bool isWriting);
    void discard(const QString &draftId);
    void say(const QString &sentence, bool canUndo);
    void undo();
    void showPlace();
    void markRead(const QStringList &ids);
    void print(const QStringList &ids);

    corva::MessageService *m_service;
    corva::MessageQueue *m_messages;
    corva::TemplateStore m_templates;
    corva::MessageExchange *m_exchange;
    corva::MessageActions *m_actions;
    QPushButton *m_new;
    QMenu *m_more;
    corva::BoxChooser *m_boxes;
    QLineEdit *m_search;
    corva::BroadcastBar *m_channels;
    corva::NoticeBar *m_problem; ///< of the place that is shown
    corva::NoticeBar *m_said;
    corva::MessageBrowser *m_browser;
    QStackedWidget *m_detail;
    corva::TextLabel *m_hint;
    corva::ReadingPane *m_reading;
    corva::ThreadPane *m_thread;
    corva::Composer *m_composer;
    bool m_isWriting = false;
};

namespace corva
{
PageEntry messagesPageEntry();
}

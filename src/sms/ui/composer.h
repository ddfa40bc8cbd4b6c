// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/ui/draftkeeper.h"

#include <QWidget>

class MyTextEdit;
class QCheckBox;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace corva
{

class FormField;
class MessageService;
class TemplateStore;
class TextLabel;

/// Where a message is written: to whom, what, and how long that is. What is written is a draft all the while.
class Composer final : public QWidget
{
    Q_OBJECT

public:
    Composer(MessageService *service, TemplateStore *templates, QWidget *parent);

    /// Begins a message; what was being written stays a draft.
    void begin(const QStringList &recipients, const QString &text);
    /// Goes on with a draft.
    void open(const QString &draftId);
    /// The draft that is written on; empty when nothing of it is stored.
    const QString &draftId() const { return m_draft.id(); }
    /// Stores what was written, and lets go of it.
    void leave();

public Q_SLOTS:
    void send();

Q_SIGNALS:
    /// The message is on its way, or the person is done with it.
    void sigClosed();
    /// The person throws the draft away.
    void sigDiscarded(const QString &draftId);
    /// A sentence: what went wrong beside the message.
    void sigSaid(const QString &sentence);

protected:
    void hideEvent(QHideEvent *event) override;

private:
    void build();
    void buildButtons(QVBoxLayout *layout);
    void connectParts();
    void addShortcuts();
    void fill(const QString &draftId, const DraftKeeper::Content &content);
    DraftKeeper::Content content() const;
    void takeEdit();
    void showCount();
    void showNames();
    void fillTemplates();
    void discard();

    MessageService *m_service;
    TemplateStore *m_templates;
    DraftKeeper m_draft;
    TextLabel *m_title;
    FormField *m_recipients;
    TextLabel *m_names;
    MyTextEdit *m_text;
    TextLabel *m_count;  ///< "wordCount"
    TextLabel *m_notice; ///< "lengthNotice"
    QCheckBox *m_report;
    QMenu *m_templateMenu;
    QPushButton *m_send;
    bool m_isFilling = false;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QListWidget;
class QPushButton;

namespace corva
{

class MessageQueue;
class ProfileStore;
class TextLabel;

/// The profiles that are shown, and what can be done with the chosen one.
class ProfileList final : public QWidget
{
    Q_OBJECT

public:
    ProfileList(ProfileStore *profiles, MessageQueue *messages, QWidget *parent);

    /// The profile that has the cursor; empty when there is none.
    QString current() const;
    void takeFocus();

public Q_SLOTS:
    void add();
    void edit();
    /// The profile that is dialled; a new one where there is none.
    void editDefault();

Q_SIGNALS:
    /// A sentence: what was done, or why it was not.
    void sigSaid(const QString &sentence);

private:
    void build();
    void fill();
    void follow();
    void remove();
    void makeDefault();
    void openEditor(const QString &name);

    ProfileStore *m_profiles;
    MessageQueue *m_messages;
    QListWidget *m_list;
    TextLabel *m_empty;
    QPushButton *m_add;
    QPushButton *m_edit;
    QPushButton *m_remove;
    QPushButton *m_default;
};

} // namespace corva

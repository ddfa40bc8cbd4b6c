// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/message.h"

#include <QObject>

class QWidget;

namespace corva
{

class MessageStore;
struct ImportOutcome;

/// Messages to a file and from one, by dialogs of the page.
class MessageExchange final : public QObject
{
    Q_OBJECT

public:
    MessageExchange(MessageStore *store, QWidget *page);

    /// Asks for a file: its name decides between a table and JSON.
    void exportMessages(const QStringList &ids);
    /// Asks for a file that was exported, here or elsewhere.
    void importMessages();
    /// Takes in such a file.
    void importFrom(const QString &path);

Q_SIGNALS:
    /// What came of it; of an import once it is on disk.
    void sigSaid(const QString &sentence);

private:
    void write(const QString &path, const std::vector<Message> &messages);
    static QString sentenceFor(const ImportOutcome &outcome);

    MessageStore *m_store;
    QWidget *m_page;
};

} // namespace corva

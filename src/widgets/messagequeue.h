// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <deque>
#include <functional>

class QDialog;
class QMessageBox;
class QWidget;

namespace corva
{

/// The boxes of the program, one at a time, and none over another dialog. They never wait: what comes of a
/// question is told to a function. Texts are shown as plain text; one that waits or is shown already is not
/// said again.
class MessageQueue final : public QObject
{
    Q_OBJECT

public:
    /// `window` becomes the parent of the boxes.
    explicit MessageQueue(QWidget *window);

    /// A sentence with one button to close it.
    void tell(const QString &text);
    /// A question; `yes` is called once it is answered so, nothing otherwise.
    void ask(const QString &text, std::function<void()> yes);
    /// The same with a button that names what it does instead of Yes, and Cancel instead of No.
    void ask(const QString &text, const QString &verb, std::function<void()> yes);
    /// What the text is about is over: it goes unanswered, whether it waits or is shown.
    void withdraw(const QString &text);

private:
    struct Message {
        QString text;
        QString verb;              ///< of the button that goes on; empty: Yes
        std::function<void()> yes; ///< none: a sentence, not a question
    };

    void enqueue(Message message);
    void showNext();
    QMessageBox *build(const Message &message);
    void waitFor(QDialog *dialog);

    QWidget *m_window;
    std::deque<Message> m_waiting;
    QPointer<QMessageBox> m_shown;
    QPointer<QDialog> m_awaited; ///< somebody else's, that has to close first
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QPushButton;

namespace corva
{

class TextLabel;

/// A sentence about what just happened, with at most one action. Hidden while there is nothing to say.
class NoticeBar final : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeBar(QWidget *parent);
    void say(const QString &sentence, const QString &action = {});
    void clear() { say({}); }

Q_SIGNALS:
    void sigAction();

private:
    TextLabel *m_text;
    QPushButton *m_action;
};

} // namespace corva

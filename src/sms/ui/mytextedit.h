// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sms/splittext.h"

#include <QPlainTextEdit>

/// Where a message is written: plain text, that knows how long it is on its way.
class MyTextEdit final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit MyTextEdit(QWidget *parent = nullptr);

    /// Length as it is sent: septets for 7-bit text, an escape and its character counting two; else
    /// characters.
    int getExtentLength() const { return m_split.length; }
    /// The alphabet that the text needs, and the parts that it goes out in.
    const corva::SplitText &split() const { return m_split; }

Q_SIGNALS:
    /// The text changed, and with it what `split` says.
    void sigCounted();

protected:
    void focusInEvent(QFocusEvent *event) override;

private:
    void count();

    corva::SplitText m_split;
};

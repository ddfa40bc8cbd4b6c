// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "link/cardstate.h"
#include "widgets/skinareawidget.h"

#include <QTimer>

class QPushButton;

namespace corva
{

class ElidedLabel;

/// The line at the foot of the window: what is going on now, else what was just said, else how the card is
/// doing; and the way to the diagnosis while it is offline.
class StatusStrip final : public SkinAreaWidget
{
    Q_OBJECT

public:
    explicit StatusStrip(QWidget *parent);

    void setState(const CardState &state);
    /// What runs; an empty sentence when it is over.
    void setActivity(const QString &sentence);
    /// A sentence that stays for a few seconds.
    void say(const QString &sentence);

Q_SIGNALS:
    void sigWhy();

private:
    void update();

    QString m_state;
    QString m_activity;
    QString m_said;
    QTimer m_saidTimer;
    ElidedLabel *m_text;
    QPushButton *m_why;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/cardmonitor.h"

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QPushButton;

namespace corva
{

class FormScroller;
class PinField;
class TextLabel;

/// Unlocks the SIM: with its PIN (4 to 8 digits), or with the PUK (8 digits) and a new PIN. Follows the card:
/// it turns from the PIN to the PUK when the card does, and closes when the SIM is ready or the card is gone.
class CheckPIN final : public QDialog
{
    Q_OBJECT

public:
    CheckPIN(CardMonitor *monitor, QWidget *parent);

private:
    void build();
    void takeState(const CardState &state);
    void setAsksForPuk(bool asksForPuk);
    void showAttempts(const CardState &state);
    bool checkFields();
    void submit();
    void setBusy(bool busy);
    void takeOutcome(PinOutcome outcome);
    void clearFields();
    void say(const QString &sentence);

    CardMonitor *m_monitor;
    bool m_asksForPuk = false;
    bool m_isBusy = false;
    FormScroller *m_form;
    TextLabel *m_title;
    TextLabel *m_about;
    TextLabel *m_attempts;
    TextLabel *m_result;
    PinField *m_puk;
    PinField *m_pin;
    PinField *m_repeat;
    QCheckBox *m_show;
    QPushButton *m_unlock;
};

} // namespace corva

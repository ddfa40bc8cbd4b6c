// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/offlinediagnosis.h"

#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;
class QStackedWidget;

namespace corva
{

class SignalBars;
class TextLabel;

/// What the state of the card amounts to: a large picture, a headline, a sentence and at most one action.
/// Wide as the head of a page, or centred as all there is on it.
class StateHero final : public QWidget
{
    Q_OBJECT

public:
    enum class Form { Wide, Centred };
    StateHero(Form form, QWidget *parent);

    /// The card is in the network: bars, and who it is with.
    void showNetwork(const CardState &state);
    void showProblem(const DiagnosisStep &problem);

Q_SIGNALS:
    void sigMend(corva::MendAction action);
    void sigWhy();

protected:
    void changeEvent(QEvent *event) override;

private:
    void buildWide();
    void buildCentred();
    void drawPicture();

    DiagnosisStep m_problem;
    QStackedWidget *m_picture;
    QLabel *m_icon;
    SignalBars *m_bars;
    TextLabel *m_headline;
    TextLabel *m_sentence;
    QPushButton *m_mend;
    QPushButton *m_why;
};

} // namespace corva

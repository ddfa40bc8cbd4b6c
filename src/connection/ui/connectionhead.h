// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionstate.h"

#include <QTimer>
#include <QWidget>

class QBoxLayout;
class QLabel;
class QPushButton;

namespace corva
{

class TextLabel;

/// The connection in large: its picture, its state, a sentence about it, and the button that connects,
/// cancels or disconnects.
class ConnectionHead final : public QWidget
{
    Q_OBJECT

public:
    explicit ConnectionHead(QWidget *parent);

    /// `hint` is what is said while there is nothing of the connection itself to say.
    void setStatus(const ConnectionStatus &status, const QString &hint);
    void takeFocus();
    /// With the buttons below the words, where there is no room beside them.
    void setStacked(bool isStacked);

Q_SIGNALS:
    void sigPressed();
    void sigWhy();

private:
    void build();
    void showState(const ConnectionStatus &status);
    void showPicture(bool isUp);
    void growDots();
    void fitButton();

    QLabel *m_picture;
    TextLabel *m_dataState; ///< "dataState"
    TextLabel *m_sentence;
    QPushButton *m_button;
    QPushButton *m_why;
    QBoxLayout *m_layout = nullptr;
    QBoxLayout *m_actions = nullptr;
    QTimer m_dotsTimer;
    QString m_words; ///< what the dots stand behind
    int m_round = 0;
};

} // namespace corva

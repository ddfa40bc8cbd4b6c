// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "device/offlinediagnosis.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QScrollArea;

namespace corva
{

class CardMonitor;
class ConnectionService;
class ProfileStore;
class TextLabel;
struct PageContext;

/// One step of the diagnosis: its sign, its name and what was found; below it, for the step that keeps the
/// card offline, what to do and the button that does it.
class DiagnosisRow final : public QWidget
{
    Q_OBJECT

public:
    DiagnosisRow(DiagnosisStepId id, QWidget *parent);

    void setStep(const DiagnosisStep &step);

Q_SIGNALS:
    void sigMend(corva::MendAction action);

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void drawSign();

    DiagnosisStep m_step;
    QLabel *m_sign;
    TextLabel *m_title;
    TextLabel *m_found;
    TextLabel *m_sentence;
    QPushButton *m_mend;
};

/// "Why am I offline?": every step from the socket to the internet, as a list to check off. Follows the card
/// and the connection while it is shown.
class OfflinePanel final : public QWidget
{
    Q_OBJECT

public:
    OfflinePanel(const PageContext &context, QWidget *parent);

Q_SIGNALS:
    void sigBack();

protected:
    void showEvent(QShowEvent *event) override;

private:
    void update();
    std::vector<DiagnosisStep> steps() const;
    void showProblem();

    CardMonitor *m_monitor;
    ConnectionService *m_connection;
    ProfileStore *m_profiles;
    QScrollArea *m_scroll = nullptr;
    TextLabel *m_conclusion;
    QPushButton *m_back;
    std::vector<DiagnosisRow *> m_rows;
    std::optional<DiagnosisStepId> m_shownProblem; ///< the one that was scrolled to
};

} // namespace corva

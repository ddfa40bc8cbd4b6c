// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QPixmap>
#include <functional>

class QLabel;

/// The splash while it is on the screen. Set by `main`; the main window's `slotDelayShow` closes and deletes
/// it.
extern QDialog *splash;

namespace corva
{

/// The start picture with four lines of text: the program's name, its version, the card's firmware version
/// and what is going on. Frameless, 388 x 246.
class SplashDialog : public QDialog
{
    Q_OBJECT

public:
    explicit SplashDialog(const QString &softwareVersion);

    /// The firmware line: "Firmware Version:" and `version`.
    void setFirmwareVersion(const QString &version);
    /// The last line: "Initializing" and the dots of round `round`, which come and go in fives.
    void setRound(int round);

protected:
    void paintEvent(QPaintEvent *event) override;
    /// Escape does not close a splash.
    void keyPressEvent(QKeyEvent *event) override;

private:
    QLabel *addLine(const char *name);
    void setLine(QLabel *line, const QString &text);
    void shrinkToFit();

    QPixmap m_picture;
    QFont m_wantedFont;
    QLabel *m_name;
    QLabel *m_softwareVersion;
    QLabel *m_firmwareVersion;
    QLabel *m_activity;
};

/// What the splash waits for, and how.
struct SplashWait {
    bool showFirmware = false;   ///< wait for the firmware version, and show it, instead of for the modem
    int limit = 0;               ///< there are at most `limit` + 1 rounds
    std::function<void()> round; ///< lets one round of time go by
    std::function<bool()> modemReady;
    std::function<QString()> firmwareVersion; ///< empty until known
};

/// The wait of `main` for the card: its keys from the configuration, one second each round.
SplashWait configuredSplashWait();

/// Keeps the splash alive until what is waited for is there or the rounds are over.
void waitForCard(SplashDialog &dialog, const SplashWait &wait);

} // namespace corva

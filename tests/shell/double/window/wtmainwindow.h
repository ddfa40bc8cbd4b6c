// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

/// A main window that prints what is asked of it, one line each, and closes as soon as it is shown. The
/// environment steers it: DOUBLE_STAYS keeps it open; DOUBLE_ANSWER is the button ("accept", "decline") that
/// answers the disclaimer; DOUBLE_PIDFILE is the file of the instance lock.
class WTMainWindow : public QWidget
{
public:
    WTMainWindow(QWidget *parent, const char *name, Qt::WindowFlags flags);

    bool getModemState() const;
    QString getFirmwareVersion() const;
    void wait2secsToShow();
    void stopLink();

protected:
    void showEvent(QShowEvent *event) override;
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

/// What a person has to agree to before the program is used, where the configuration asks for it. The result
/// is 0 when it was declined, closed or left with Escape.
class FrmDisclaimer : public QDialog
{
    Q_OBJECT

public:
    explicit FrmDisclaimer(QWidget *parent = nullptr, const char *name = "disclaimer");

    /// Whether the configuration asks for it: "system_enabled" of section "setting" and "disclaimer_show" of
    /// section "systemsetting" are both numbers other than 0.
    static bool isWanted();
};

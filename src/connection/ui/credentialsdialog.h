// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"

#include <QDialog>

class QCheckBox;

namespace corva
{

class FormField;

/// Asks for the user name and the password of a profile that wants them asked for at connect time.
class CredentialsDialog final : public QDialog
{
    Q_OBJECT

public:
    CredentialsDialog(const ConnectionProfile &profile, QWidget *parent);

Q_SIGNALS:
    /// `keep`: the person wants them stored in the profile, and not to be asked again.
    void sigEntered(const QString &userName, const QString &password, bool keep);

private:
    void take();

    FormField *m_userName;
    FormField *m_password;
    QCheckBox *m_keep;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"

#include <QWidget>
#include <vector>

class QRadioButton;

namespace corva
{

/// Fields of a profile of which exactly one is on, as radio buttons side by side.
class FlagChoice final : public QWidget
{
    Q_OBJECT

public:
    struct Option {
        ProfileField field;
        QString text; ///< with its mnemonic
    };

    /// `name` is what a screen reader says for the group.
    FlagChoice(const QString &name, const std::vector<Option> &options, QWidget *parent);

    /// Takes the first that is on; the first of all where none is.
    void load(const ConnectionProfile &profile);
    /// Leaves the fields as they are unless another one was chosen.
    void store(ConnectionProfile &profile) const;
    ProfileField chosen() const;

Q_SIGNALS:
    void sigChosen();

private:
    std::vector<ProfileField> m_fields;
    std::vector<QRadioButton *> m_buttons;
};

} // namespace corva

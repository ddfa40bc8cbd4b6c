// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class QListWidget;

namespace corva
{

/// Something to choose from a list: with a double click, or with Enter.
class ChoiceDialog final : public QDialog
{
    Q_OBJECT

public:
    struct Choice {
        QString name;
        QString detail; ///< stands behind the name; may be empty
    };

    /// `verb` is the text of the button that takes the choice.
    ChoiceDialog(const QString &title, const QString &about, const QString &verb,
                 const std::vector<Choice> &choices, QWidget *parent);

Q_SIGNALS:
    /// The number of the choice, from 0 in the order given.
    void sigChosen(int index);

private:
    void take();

    QListWidget *m_list;
};

} // namespace corva

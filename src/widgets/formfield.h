// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QHBoxLayout;
class QLineEdit;

namespace corva
{

class IconButton;
class TextLabel;

/// A caption, a line to write in, and below it what is wrong with what stands there.
class FormField final : public QWidget
{
    Q_OBJECT

public:
    enum class Kind {
        Text,
        Code,  ///< numbers, addresses, names of the network: runs from left to right in every language
        Secret ///< not shown, with a button that shows it
    };

    /// `objectName` names the line; "<objectName>Error" the complaint.
    FormField(const QString &caption, const QString &objectName, Kind kind, QWidget *parent);

    QLineEdit *edit() { return m_edit; }
    QString text() const;
    void setText(const QString &text);
    void setReadOnly(bool readOnly);
    /// An empty text takes the complaint away.
    void setError(const QString &error);
    void takeFocus();

Q_SIGNALS:
    void sigEdited();

protected:
    void changeEvent(QEvent *event) override;

private:
    void addReveal(QHBoxLayout *row);

    TextLabel *m_caption;
    QLineEdit *m_edit;
    IconButton *m_reveal = nullptr;
    TextLabel *m_error;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QLineEdit;

namespace corva
{

class TextLabel;

/// A caption, a field for digits that are not shown, and a place for what is wrong with them.
class PinField final : public QWidget
{
    Q_OBJECT

public:
    PinField(const QString &objectName, QWidget *parent);

    void setCaption(const QString &caption);
    QString digits() const;
    void clear();
    void setDigitsShown(bool shown);
    /// An empty text takes the complaint away.
    void setError(const QString &error);
    void takeFocus();

Q_SIGNALS:
    void sigEdited();

private:
    TextLabel *m_caption;
    QLineEdit *m_edit;
    TextLabel *m_error;
};

} // namespace corva

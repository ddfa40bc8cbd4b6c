// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace corva
{

class TextLabel;

/// A number in large, with what it is above and what belongs to it below.
class Figure final : public QWidget
{
    Q_OBJECT

public:
    Figure(const QString &id, QWidget *parent);
    void setTexts(const QString &caption, const QString &value, const QString &detail);

private:
    TextLabel *m_caption;
    TextLabel *m_value;
    TextLabel *m_detail;
};

} // namespace corva

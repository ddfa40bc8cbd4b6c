// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <vector>

namespace corva
{

class ElidedLabel;
class IconButton;
class TextLabel;

/// One fact in a column of facts: what it is, its value, and a button that copies the value. An unknown value
/// is shown as a dash and cannot be copied.
class FactRow final : public QWidget
{
    Q_OBJECT

public:
    enum class Copy {
        No,
        Yes,
        Room ///< no button, but its room: for columns where other rows have one
    };

    /// `id` names the value label "<id>Value" and the button "<id>Copy".
    FactRow(const QString &id, const QString &caption, Copy copy, QWidget *parent = nullptr);

    /// Gives the values of a group of rows one common left edge. Returns how far it is from the captions'.
    static int alignValues(const std::vector<FactRow *> &rows);

    void setValue(const QString &value);
    QString value() const { return m_known; }
    bool isKnown() const { return !m_known.isEmpty(); }
    const QString &caption() const { return m_caption; }

private:
    QString m_caption;
    QString m_known;
    TextLabel *m_name;
    ElidedLabel *m_value;
    IconButton *m_copy = nullptr;
};

/// The heading of a group of facts, with a line below.
class SectionHeader final : public QWidget
{
    Q_OBJECT

public:
    explicit SectionHeader(const QString &title, QWidget *parent = nullptr);
};

} // namespace corva

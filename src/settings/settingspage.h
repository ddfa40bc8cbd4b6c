// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

namespace corva
{

/// One group of options, contributed by its subsystem. What a control shows is stored at once: there is
/// nothing to apply.
class SettingsPage : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

Q_SIGNALS:
    /// A sentence for the foot of the settings: what was stored, what takes effect when, or what went wrong.
    void sigSaid(const QString &sentence);

protected:
    /// Stores one setting at once. When the file could not be written the foot says why, the value holds
    /// until the program ends, and this returns false; else the foot is empty.
    bool store(const QString &section, const QString &key, const QString &value);
    /// What `store` says in the end, for a setting that is kept elsewhere: why it failed, or nothing.
    void sayStored(const QString &error);
};

/// A contribution to the settings: how the list of groups names it, and how it is built.
struct SettingsEntry {
    QString id;
    QString title;
    std::function<SettingsPage *(QWidget *parent)> create;
};

} // namespace corva

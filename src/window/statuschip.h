// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/skin.h"

#include <QWidget>

class QLabel;

namespace corva
{

class ElidedLabel;

/// An icon with a few words: one state in the top bar. Without words the icon stands alone, and its name says
/// it.
class StatusChip final : public QWidget
{
    Q_OBJECT

public:
    explicit StatusChip(QWidget *parent);

    void setChip(const QString &icon, const QString &words, const QString &name);

protected:
    void changeEvent(QEvent *event) override;

private:
    void drawIcon();

    QString m_iconName;
    QLabel *m_icon;
    ElidedLabel *m_words;
};

} // namespace corva

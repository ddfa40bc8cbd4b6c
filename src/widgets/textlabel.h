// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/skin.h"

#include <QLabel>

namespace corva
{

/// A label in one step of the type scale. Plain text always: what it shows may come from a card or a network.
class TextLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TextLabel(TextRole role, QWidget *parent = nullptr) : TextLabel(QString(), role, parent) {}
    TextLabel(const QString &text, TextRole role, QWidget *parent = nullptr);

    /// Muted text stands behind the other: captions, explanations.
    void setMuted(bool muted);
    /// Where the text stands in the label, in the layout's direction whatever script the text is in: a number
    /// in a window that runs from right to left stands on the right.
    void setPlace(Qt::Alignment place);

protected:
    void changeEvent(QEvent *event) override;

private:
    void align();

    TextRole m_role;
    Qt::Alignment m_place = Qt::AlignLeading | Qt::AlignVCenter;
};

/// A text that is put together of both writing directions, so that it reads in the window's: one that begins
/// with a number or a Latin name in a window from right to left would be read from left to right otherwise.
/// Other texts stay as they are.
QString inLayoutDirection(const QString &text);

/// A tool tip that shows a text of unknown origin: as it stands, whatever markup is in it, over several lines
/// where it is long, and not without end.
QString plainToolTip(const QString &text);

/// A label for one line of unknown length: it gives way to its neighbours and ends in "…", with the whole
/// text in the tool tip and for the screen reader.
class ElidedLabel final : public TextLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(TextRole role, QWidget *parent = nullptr);

    void setFullText(const QString &text);
    const QString &fullText() const { return m_fullText; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void elide();

    QString m_fullText;
};

} // namespace corva

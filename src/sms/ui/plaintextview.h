// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

class QMenu;

namespace corva
{

/// Puts an entry for each address into the menu, which copies it.
void addLinkCopies(QMenu *menu, const QStringList &links);

/// Shows the text of a message as it is: nothing in it is taken as markup. It reads in its own direction.
/// Addresses in it are underlined; the menu copies them, and nothing opens them.
class PlainTextView final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit PlainTextView(QWidget *parent);

    void setText(const QString &text);
    /// A menu with what there is to copy; the caller adds to it and shows it.
    QMenu *makeMenu();

protected:
    void changeEvent(QEvent *event) override;

private:
    void markLinks();
};

} // namespace corva

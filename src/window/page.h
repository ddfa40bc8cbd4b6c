// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class QAbstractButton;
class QHBoxLayout;
class QVBoxLayout;

namespace corva
{

class TextLabel;

/// What the navigation knows of a page before it is built.
struct PageInfo {
    QString id;            ///< stable, ASCII: remembered over starts, and the object name of the page
    QString title;         ///< as it is shown
    QString icon;          ///< name in the icon family
    int order = 0;         ///< smaller comes first
    bool isAtFoot = false; ///< stands at the lower end of the navigation
};

/// One page of the window: a title, at most one line about it, its actions at the end of the title row, and a
/// body.
class Page : public QWidget
{
    Q_OBJECT

public:
    explicit Page(const PageInfo &info, QWidget *parent = nullptr);

    const PageInfo &info() const { return m_info; }

    /// Fetches the shown data anew, beside the card's state ("F5").
    virtual void refresh() {}
    /// Shows one of its entries, if it has it.
    virtual void showEntry([[maybe_unused]] const QString &id) {}

protected:
    /// One sentence below the title, for pages that need it.
    void setAbout(const QString &sentence);
    /// Adds a button to the end of the title row. At most one of them is primary.
    void addAction(QAbstractButton *button);
    /// Where the page puts its content. It reaches `metrics::HalfGrid` over the title's edges, so that what
    /// scrolls has room for the focus ring: a page insets its content by as much.
    QVBoxLayout *body() { return m_body; }

private:
    PageInfo m_info;
    TextLabel *m_about;
    QHBoxLayout *m_titleRow;
    QVBoxLayout *m_body;
};

} // namespace corva

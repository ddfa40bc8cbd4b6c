// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "widgets/skinareawidget.h"
#include "window/page.h"

#include <QAbstractButton>
#include <vector>

class QButtonGroup;
class QVBoxLayout;

namespace corva
{

/// One page in the navigation: icon, title, badge; only the icon and a dot when the navigation is folded.
class NavigationButton final : public QAbstractButton
{
    Q_OBJECT

public:
    NavigationButton(const PageInfo &info, QWidget *parent);

    const QString &pageId() const { return m_pageId; }
    void setFolded(bool folded);
    void setBadge(const QString &badge);
    void setShortcutHint(const QString &shortcut);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    void name();
    void paintBackground(QPainter &painter) const;
    void paintBadge(QPainter &painter, QRect &room) const;
    QColor inkColor() const;

    QString m_pageId;
    QString m_iconName;
    QString m_badge;
    QString m_shortcut;
    bool m_isFolded = false;
};

/// The pages of the window, one below the other. Arrow keys walk them; Ctrl+1 to Ctrl+9 take them at once.
class Navigation final : public SkinAreaWidget
{
    Q_OBJECT

public:
    explicit Navigation(QWidget *parent);

    void addPage(const PageInfo &info);
    /// An id that is no page here leaves none of them chosen.
    void setCurrent(const QString &pageId);
    void setBadge(const QString &pageId, const QString &badge);
    void setFolded(bool folded);
    /// The ids in the order shown.
    QStringList pageIds() const;
    void takeFocus();

Q_SIGNALS:
    void sigChosen(const QString &pageId);

private:
    NavigationButton *button(const QString &pageId) const;

    QButtonGroup *m_group;
    QVBoxLayout *m_top;
    QVBoxLayout *m_foot;
    std::vector<NavigationButton *> m_buttons;
};

} // namespace corva

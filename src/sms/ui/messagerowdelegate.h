// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStyledItemDelegate>

namespace corva
{

/// What a row of messages or of conversations consists of. Qt::DisplayRole is who.
enum RowRole {
    IdRole = Qt::UserRole, ///< of the message; the number of a conversation
    PreviewRole,           ///< one line of text
    WhenRole,              ///< as people say it
    UnreadRole,            ///< bool
    IconRole,              ///< name in the icon family; empty for none
    NoteRole               ///< a short text in a frame: "2 of 3"; empty for none
};

/// Paints a row of two lines: who and when, what it says and how it stands. What is unread is bold and has a
/// dot.
class MessageRowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

namespace corva
{

/// A list in which the first key chooses the row that has the cursor, where none is chosen: that row is not
/// passed by.
class RowList final : public QListView
{
    Q_OBJECT

public:
    using QListView::QListView;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};

} // namespace corva

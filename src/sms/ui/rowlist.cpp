// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/rowlist.h"

namespace corva
{

QModelIndex RowList::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex current = currentIndex();
    if (!current.isValid() || selectionModel()->hasSelection())
        return QListView::moveCursor(action, modifiers);
    selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
    return current;
}

} // namespace corva

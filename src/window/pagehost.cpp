// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/pagehost.h"

#include "window/offlinepanel.h"

#include <QShortcut>
#include <algorithm>

namespace corva
{

PageHost::PageHost(PageRegistry registry, const PageContext &context, QWidget *parent)
    : QStackedWidget(parent), m_registry(std::move(registry)), m_context(context)
{
}

void PageHost::openPage(const QString &pageId)
{
    const auto &entries = m_registry.entries();
    const auto entry = std::find_if(entries.begin(), entries.end(),
                                    [&](const PageEntry &candidate) { return candidate.info.id == pageId; });
    if (entry == entries.end())
        return;
    Page *&page = m_pages[pageId];
    if (!page)
        page = build(*entry);
    m_currentPage = pageId;
    setCurrentWidget(page);
    Q_EMIT sigOpened(pageId);
}

void PageHost::openEntry(const QString &pageId, const QString &entryId)
{
    openPage(pageId);
    if (Page *page = m_pages.value(pageId))
        page->showEntry(entryId);
}

Page *PageHost::build(const PageEntry &entry)
{
    Page *page = entry.create(entry.info, m_context, this);
    addWidget(page);
    return page;
}

void PageHost::refresh()
{
    if (Page *page = m_pages.value(m_currentPage))
        page->refresh();
}

void PageHost::openDiagnosis()
{
    if (!m_diagnosis) {
        m_diagnosis = new OfflinePanel(m_context, this);
        addWidget(m_diagnosis);
        connect(m_diagnosis, &OfflinePanel::sigBack, this, &PageHost::leaveDiagnosis);
        auto *back = new QShortcut(Qt::Key_Escape, m_diagnosis);
        back->setContext(Qt::WidgetWithChildrenShortcut);
        connect(back, &QShortcut::activated, this, &PageHost::leaveDiagnosis);
    }
    setCurrentWidget(m_diagnosis);
    Q_EMIT sigOpened({});
}

void PageHost::leaveDiagnosis()
{
    openPage(m_currentPage);
    Q_EMIT sigDiagnosisLeft();
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "window/pageregistry.h"

#include <QHash>
#include <QStackedWidget>

namespace corva
{

class OfflinePanel;

/// Where the pages stand. Each is built when it is first opened and lives as long as the window; the
/// diagnosis opens over the page that was open, and leads back to it.
class PageHost final : public QStackedWidget
{
    Q_OBJECT

public:
    PageHost(PageRegistry registry, const PageContext &context, QWidget *parent);

    const PageRegistry &registry() const { return m_registry; }
    /// The page that is open, or lies under the diagnosis.
    const QString &currentPage() const { return m_currentPage; }
    /// An unknown id changes nothing.
    void openPage(const QString &pageId);
    void openEntry(const QString &pageId, const QString &entryId);
    void openDiagnosis();
    /// Has the page that is open fetch its data anew.
    void refresh();

Q_SIGNALS:
    /// `pageId` is empty for the diagnosis.
    void sigOpened(const QString &pageId);
    /// The person left the diagnosis.
    void sigDiagnosisLeft();

private:
    Page *build(const PageEntry &entry);
    void leaveDiagnosis();

    PageRegistry m_registry;
    PageContext m_context;
    QHash<QString, Page *> m_pages; ///< those that were built
    OfflinePanel *m_diagnosis = nullptr;
    QString m_currentPage;
};

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/ui/trafficpage.h"

#include "statistics/trafficcsv.h"
#include "statistics/trafficservice.h"
#include "statistics/ui/daystab.h"
#include "statistics/ui/historytab.h"
#include "statistics/ui/monthsmodel.h"
#include "statistics/ui/overviewtab.h"
#include "statistics/ui/tablelook.h"
#include "statistics/ui/tabstrip.h"
#include "widgets/noticebar.h"
#include "widgets/skin.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QPushButton>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QTableView>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int historyTab = 3;

/// A table that follows what it shows while it is on screen.
class MonthsTable final : public QTableView
{
public:
    MonthsTable(TrafficService *service, QWidget *parent) : QTableView(parent), m_service(service)
    {
        setModel(&m_model);
        connect(service, &TrafficService::sigChanged, this, [this] {
            if (isVisible())
                load();
        });
        load();
    }

protected:
    void showEvent(QShowEvent *event) override
    {
        QTableView::showEvent(event);
        load();
    }

private:
    void load() { m_model.setMonths(m_service->totals().everyMonth()); }

    TrafficService *m_service;
    MonthsModel m_model;
};

} // namespace

TrafficPage::TrafficPage(const PageInfo &info, const PageContext &context, QWidget *parent)
    : Page(info, parent), m_service(context.traffic), m_export(new QPushButton(tr("E&xport as CSV…"), this)),
      m_stack(new QStackedWidget(this)), m_tabs(new TabStrip(m_stack, this)), m_problems(new NoticeBar(this)),
      m_said(new NoticeBar(this))
{
    m_export->setObjectName(u"export"_s);
    addAction(m_export);
    connect(m_export, &QPushButton::clicked, this, &TrafficPage::exportTable);
    connect(m_tabs, &TabStrip::sigOpened, this, [this](int tab) {
        m_export->setToolTip(tab == historyTab
                                 ? tr("Writes the history to a file that spreadsheets read")
                                 : tr("Writes days and months to a file that spreadsheets read"));
    });
    m_tabs->addTab(u"overview"_s, tr("&Overview"), [this] { return new OverviewTab(m_service, m_stack); });
    m_tabs->addTab(u"days"_s, tr("Da&ys"), [this] { return new DaysTab(m_service, m_stack); });
    m_tabs->addTab(u"months"_s, tr("&Months"), [this] { return buildMonths(); });
    m_tabs->addTab(u"history"_s, tr("&History"), [this] { return new HistoryTab(m_service, m_stack); });

    body()->addWidget(m_problems);
    body()->addWidget(m_said);
    body()->addWidget(m_tabs);
    body()->addWidget(m_stack, 1);
    connect(m_service, &TrafficService::sigChanged, this, &TrafficPage::showProblems);
    connect(m_service, &TrafficService::sigExported, this, &TrafficPage::exported);
    showProblems();
}

QWidget *TrafficPage::buildMonths()
{
    auto *framed = new QWidget(m_stack);
    auto *table = new MonthsTable(m_service, framed);
    table->setObjectName(u"monthsTable"_s);
    table->setAccessibleName(tr("Volume of each month"));
    takeTableLook(table, MonthsModel::Month);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    auto *layout = new QVBoxLayout(framed);
    layout->setContentsMargins(metrics::HalfGrid, metrics::HalfGrid, metrics::HalfGrid, 0);
    layout->addWidget(table);
    return framed;
}

void TrafficPage::refresh()
{
    m_service->readNow();
}

void TrafficPage::showProblems()
{
    m_problems->say(m_service->problems().join(u'\n'));
}

void TrafficPage::exportTable()
{
    const bool isHistory = m_tabs->current() == historyTab;
    const QString day = m_service->now().date().toString(Qt::ISODate);
    auto *dialog = new QFileDialog(this, isHistory ? tr("Export the history") : tr("Export days and months"));
    dialog->setObjectName(u"exportDialog"_s);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setNameFilter(tr("CSV tables (*.csv)"));
    dialog->setDefaultSuffix(u"csv"_s);
    dialog->setDirectory(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    dialog->selectFile((isHistory ? u"connections-%1.csv"_s : u"traffic-%1.csv"_s).arg(day));
    connect(dialog, &QFileDialog::fileSelected, this, [this, isHistory](const QString &path) {
        m_service->exportFile(path,
                              isHistory ? historyCsv(m_service->history()) : totalsCsv(m_service->totals()));
    });
    dialog->open();
}

void TrafficPage::exported(const QString &path, const QString &error)
{
    m_said->say(error.isEmpty() ? tr("Written to %1.").arg(QDir::toNativeSeparators(path))
                                : tr("The table could not be written: %1").arg(error));
}

PageEntry trafficPageEntry()
{
    PageInfo info{u"traffic"_s, TrafficPage::tr("Traffic"), u"traffic"_s, 60, false};
    return {info, [](const PageInfo &page, const PageContext &context, QWidget *parent) -> Page * {
                return new TrafficPage(page, context, parent);
            }};
}

} // namespace corva

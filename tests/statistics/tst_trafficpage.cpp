// SPDX-License-Identifier: GPL-3.0-or-later
#include "../rows.h"
#include "sampletraffic.h"

#include "shell/commoncfg.h"
#include "shell/globals.h"
#include "statistics/ui/chartbase.h"
#include "statistics/ui/dayschart.h"
#include "statistics/ui/historymodel.h"
#include "statistics/ui/quotabar.h"
#include "statistics/ui/rategraph.h"
#include "statistics/ui/tabstrip.h"
#include "statistics/ui/trafficpage.h"
#include "statistics/ui/trafficsettingspage.h"
#include "widgets/cdestyle.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QLineSeries>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableView>
#include <QTest>
#include <QToolButton>

using namespace Qt::StringLiterals;
using namespace corva;

namespace
{

const Rows<quint64, quint64> scalesInRoundStepsRows{
    {"nothing", 0ULL, 1ULL},
    {"exactly four", 400ULL, 100ULL},
    {"a little more", 401ULL, 200ULL},
    {"to the next power", 2'001ULL, 1000ULL},
    {"largest", ~0ULL, 5'000'000'000'000'000'000ULL},
};

} // namespace

class TestTrafficPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QDir::setCurrent(m_folder.path());
        basePath = QStringLiteral(CORVA_SOURCE_DIR);
        installCdeStyle();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        cmcfg.setValue(u"statistics_widget"_s, u"graphic_enabled"_s, u"1"_s);
        cmcfg.setValue(u"statistics_widget"_s, u"usage_statistic_enabled"_s, u"1"_s);
    }

    void init() { open(40, 30); }

    void cleanup()
    {
        m_page.reset();
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }

    void followsTheLink()
    {
        const auto *graph = m_page->findChild<RateGraph *>();
        const auto shownPoints = [&] {
            qsizetype most = 0;
            for (const auto *line : graph->findChildren<QLineSeries *>())
                most = std::max<qsizetype>(most, line->count());
            return most;
        };
        QVERIFY(label(u"rates"_s).contains(u"while a connection is up"_s));
        m_traffic->run(30);
        QCOMPARE(label(u"todayValue"_s), label(u"sessionValue"_s));
        QVERIFY2(label(u"rates"_s).startsWith(u"Down "_s), qPrintable(label(u"rates"_s)));
        const qsizetype before = shownPoints();
        m_traffic->service->sessionEnded(historyend::Person);
        QCOMPARE(shownPoints(), before); // still, and not gone
        QVERIFY(label(u"rates"_s).contains(u"while a connection is up"_s));
    }

    void showsTheQuota()
    {
        QVERIFY(!m_page->findChild<QuotaBar *>()->isVisible());
        QVERIFY(label(u"forecast"_s).contains(u"Say in the settings"_s));
        const quint64 used = m_traffic->service->periodUse().carried.total();
        m_traffic->settings.quota = used * 2;
        m_page->refresh();
        m_traffic->run(1);
        const auto *bar = m_page->findChild<QuotaBar *>();
        QVERIFY(bar->isVisible());
        QCOMPARE(bar->value(), 50);
        QVERIFY2(label(u"quota0"_s).contains(u"(50"_s), qPrintable(label(u"quota0"_s)));
        m_traffic->settings.quota = 1;
        m_traffic->tick();
        QVERIFY2(label(u"forecast"_s).startsWith(u"The volume is used up."_s),
                 qPrintable(label(u"forecast"_s)));
    }

    void walksThroughDaysAndPeriods()
    {
        openTab(u"days"_s);
        auto *chart = m_page->findChild<DaysChart *>();
        QCOMPARE(chart->days().size(), 31U);
        QVERIFY(label(u"daySentence"_s).startsWith(u"In all: "_s));
        chart->setFocus();
        QTest::keyClick(chart, Qt::Key_Home);
        QTest::keyClick(chart, Qt::Key_Right);
        QVERIFY2(label(u"daySentence"_s).startsWith(u"2 May: "_s), qPrintable(label(u"daySentence"_s)));
        QVERIFY(!button<QToolButton>(u"later"_s)->isEnabled());
        QTest::keyClick(chart, Qt::Key_PageUp);
        QCOMPARE(chart->days().front().day, QDate(2024, 4, 1));
        QVERIFY(!button<QToolButton>(u"earlier"_s)->isEnabled()); // nothing is known before
        QTest::keyClick(chart, Qt::Key_PageDown);
        QCOMPARE(chart->days().front().day, QDate(2024, 5, 1));
    }

    void reversesTimeFromRightToLeft()
    {
        QApplication::setLayoutDirection(Qt::RightToLeft);
        open(40, 30);
        openTab(u"days"_s);
        auto *chart = m_page->findChild<DaysChart *>();
        QVERIFY(chart->chart()->axes(Qt::Horizontal).front()->isReverse());
        QCOMPARE(chart->chart()->axes(Qt::Vertical).front()->alignment(), Qt::AlignRight);
        QTest::keyClick(chart, Qt::Key_Home);
        QTest::keyClick(chart, Qt::Key_Left); // later stands on the left
        QCOMPARE(chart->chosen(), 1);
    }

    void findsAndSorts()
    {
        QTableView *table = openHistory();
        QCOMPARE(table->model()->rowCount(), 30);
        QTest::keyClick(m_page.get(), Qt::Key_F, Qt::ControlModifier);
        auto *search = m_page->findChild<QLineEdit *>(u"historySearch"_s);
        QTRY_VERIFY(search->hasFocus());
        QTest::keyClicks(search, u"network company"_s);
        QCOMPARE(table->model()->rowCount(), 10);
        QTest::keyClicks(search, u" zebra"_s);
        QCOMPARE(table->model()->rowCount(), 0);
        QVERIFY(!label(u"historyEmpty"_s).isEmpty());
        QTest::keyClick(search, Qt::Key_Escape);
        QCOMPARE(table->model()->rowCount(), 30);

        table->sortByColumn(HistoryModel::Received, Qt::DescendingOrder); // by bytes and not by letters
        quint64 last = ~quint64(0);
        for (int row = 0; row < 30; ++row) {
            const auto bytes =
                table->model()->index(row, HistoryModel::Received).data(HistoryModel::SortRole).toULongLong();
            QVERIFY(bytes <= last);
            last = bytes;
        }
    }

    void deletesAndBringsBack()
    {
        QTableView *table = openHistory();
        const auto before = m_traffic->service->history();
        table->setFocus();
        table->selectRow(0);
        QTest::keyClick(table, Qt::Key_Delete);
        QCOMPARE(m_traffic->service->history().size(), 29U);
        QCOMPARE(table->currentIndex().row(), 0); // the next one is at hand
        QTest::keyClick(table, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(m_traffic->service->history() == before);
        button<QPushButton>(u"historyDeleteAll"_s)->click();
        QVERIFY(m_traffic->service->history().empty());
        QVERIFY(label(u"historyEmpty"_s).contains(u"No connection was made yet"_s));
        QCOMPARE(label(u"notice"_s), u"30 entries were deleted."_s);
        button<QPushButton>(u"noticeAction"_s)->click();
        QVERIFY(m_traffic->service->history() == before);
    }

    void exportsWhatIsOpen()
    {
        openHistory();
        QSignalSpy exported(m_traffic->service.get(), &TrafficService::sigExported);
        button<QPushButton>(u"export"_s)->click();
        auto *dialog = m_page->findChild<QFileDialog *>(u"exportDialog"_s);
        QVERIFY(dialog);
        const QString path = m_folder.filePath(u"out.csv"_s);
        Q_EMIT dialog->fileSelected(path);
        dialog->close();
        QVERIFY(exported.wait());
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll().count('\n'), 31);
        QCOMPARE(label(u"notice"_s), u"Written to %1."_s.arg(path));
    }

    void saysThatAFileWasBroken()
    {
        m_page.reset();
        QFile file(m_traffic->folder() + u"/historyRecord.xml"_s);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("<?xml") > 0);
        file.close();
        m_traffic->makeService();
        makePage();
        QVERIFY2(label(u"notice"_s).contains(u"historyRecord.xml.broken-"_s), qPrintable(label(u"notice"_s)));
    }

    void namesEveryControl()
    {
        for (const QString &tab : {u"overview"_s, u"days"_s, u"months"_s, u"history"_s})
            openTab(tab);
        const auto settings = std::unique_ptr<SettingsPage>(trafficSettingsEntry().create(nullptr));
        settings->show();
        for (QWidget *root : {static_cast<QWidget *>(m_page.get()), static_cast<QWidget *>(settings.get())})
            for (const QWidget *control : root->findChildren<QWidget *>()) {
                const bool isInner = control->objectName().startsWith(u"qt_"_s);
                if (control->focusPolicy() == Qt::NoFocus || isInner || !control->isVisible())
                    continue;
                const auto *asButton = qobject_cast<const QAbstractButton *>(control);
                const bool isNamed =
                    !control->accessibleName().isEmpty() || (asButton && !asButton->text().isEmpty());
                QVERIFY2(isNamed, qPrintable(control->objectName() +
                                             QLatin1String(control->metaObject()->className())));
            }
    }

    void storesTheSettings()
    {
        cmcfg.setValue(u"statistics"_s, u"quota_mb"_s, u"1500"_s);
        const auto settings = std::unique_ptr<SettingsPage>(trafficSettingsEntry().create(nullptr));
        auto *amount = settings->findChild<QDoubleSpinBox *>(u"quota"_s);
        auto *unit = settings->findChild<QComboBox *>(u"quotaUnit"_s);
        QCOMPARE(amount->value(), 1.5);
        QCOMPARE(unit->currentText(), u"GB"_s);
        unit->setCurrentIndex(0);
        Q_EMIT unit->activated(0);
        QCOMPARE(amount->value(), 1500.0); // another unit is no other volume
        amount->setValue(750);
        QCOMPARE(readTrafficSettings().quota, 750 * bytesPerMegabyte);
        settings->findChild<QSpinBox *>(u"billing_day"_s)->setValue(31);
        settings->findChild<QCheckBox *>(u"end_at_quota"_s)->setChecked(true);
        QCOMPARE(readTrafficSettings().billingDay, 31);
        QVERIFY(readTrafficSettings().endsConnection);
    }

    void scalesInRoundSteps_data() { addRows(scalesInRoundStepsRows); }
    void scalesInRoundSteps()
    {
        const auto &[name, most, step] = currentRow(scalesInRoundStepsRows);
        QCOMPARE(niceStep(most), step);
    }

private:
    void open(int days, int records)
    {
        m_page.reset();
        m_traffic = std::make_unique<SampleTraffic>(days, records);
        makePage();
    }

    void makePage()
    {
        PageContext context;
        context.traffic = m_traffic->service.get();
        const PageEntry entry = trafficPageEntry();
        m_page.reset(entry.create(entry.info, context, nullptr));
        m_page->resize(760, 528);
        m_page->show();
        QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    }

    void openTab(const QString &id) { m_page->findChild<TabButton *>(id)->setChecked(true); }

    QTableView *openHistory()
    {
        openTab(u"history"_s);
        return m_page->findChild<QTableView *>(u"historyTable"_s);
    }

    template <typename Button> Button *button(const QString &name) const
    {
        return m_page->findChild<Button *>(name);
    }

    /// What the shown label of that name says.
    QString label(const QString &name) const
    {
        const auto labels = m_page->findChildren<QLabel *>(name);
        for (const QLabel *each : labels)
            if (each->isVisible())
                return each->text();
        return {};
    }

    QTemporaryDir m_folder;
    std::unique_ptr<SampleTraffic> m_traffic;
    std::unique_ptr<Page> m_page;
};

QTEST_MAIN(TestTrafficPage)
#include "tst_trafficpage.moc"

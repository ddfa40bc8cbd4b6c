// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/statisticsstore.h"
#include "statistics/trafficservice.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <cmath>

/// A counting service over made-up years, with a clock and an interface that only move when told: for
/// looking, for measuring, and for tests of the pages.
class SampleTraffic
{
public:
    /// `days` with traffic up to today, and `records` of the history.
    SampleTraffic(int days, int records)
    {
        using namespace Qt::StringLiterals;
        using namespace corva;
        StatisticsChange change;
        change.totals.emplace();
        for (int i = 1; i <= days; ++i) {
            const auto volume = [i](int more) { return quint64(i * 7919 * more % 997) * 430'000; };
            change.totals->totals.add(now.date().addDays(-i), {volume(1), volume(3) / 9}, false);
            if (i % 11 == 3)
                change.totals->totals.add(now.date().addDays(-i), {volume(2) / 2, volume(5) / 30}, true);
        }
        change.history.emplace();
        static constexpr QLatin1StringView ends[] = {historyend::Person, historyend::Peer, historyend::Idle,
                                                     historyend::LinkLost, historyend::Unexpected};
        for (int i = records; i >= 1; --i) {
            HistoryRecord record;
            record.id = QString::number(i);
            record.start = now.addSecs(-i * 30'011);
            record.duration = std::chrono::seconds(i * 977 % 20'000);
            record.end = record.start.addSecs(record.duration.count());
            record.profileName = i % 3 ? u"Mobile Internet"_s : u"Company network <b>&amp;</b>"_s;
            record.isRoaming = i % 7 == 0;
            record.volumes.of(record.isRoaming) = {quint64(i * 7919 % 997) * 330'000, quint64(i) * 47'000};
            record.ended = ends[i % 5];
            change.history->push_back(record);
        }
        QDir(m_folder.path()).mkpath(u"net/ppp0/statistics"_s);
        StatisticsStore(m_folder.path()).saveNow(change);
        carry({});
        makeService();
    }

    /// Reads the files anew, as a start of the program does.
    void makeService()
    {
        corva::TrafficSurroundings around;
        around.dataFolder = m_folder.path();
        around.countersFolder = m_folder.filePath(QStringLiteral("net"));
        around.now = [this] { return now; };
        around.uptime = [this] { return uptime; };
        around.settings = [this] { return settings; };
        service = std::make_unique<corva::TrafficService>(around);
    }

    QString folder() const { return m_folder.path(); }

    /// `seconds` of a link with a lively rate.
    void run(int seconds)
    {
        service->sessionStarted({QStringLiteral("Mobile Internet"), QStringLiteral("ppp0"), false});
        for (int i = 0; i < seconds; ++i) {
            const double wave = 1 + std::sin(i / 4.0) + 0.5 * std::sin(i * 1.7);
            carry({quint64(std::max(0.0, wave) * 420'000), quint64(40'000 + 30'000 * std::cos(i / 3.0))});
            tick();
        }
    }

    void tick()
    {
        uptime += std::chrono::seconds(1);
        now = now.addSecs(1);
        service->readNow();
    }

    void carry(const corva::TrafficVolume &volume)
    {
        m_carried += volume;
        const auto put = [this](const QString &name, quint64 bytes) {
            QFile file(m_folder.filePath(QStringLiteral("net/ppp0/statistics/") + name));
            if (file.open(QIODevice::WriteOnly))
                file.write(QByteArray::number(bytes));
        };
        put(QStringLiteral("rx_bytes"), m_carried.received);
        put(QStringLiteral("tx_bytes"), m_carried.sent);
    }

    QDateTime now{{2024, 5, 17}, {16, 20}};
    std::chrono::milliseconds uptime{1'000'000};
    corva::TrafficSettings settings;
    std::unique_ptr<corva::TrafficService> service;

private:
    QTemporaryDir m_folder;
    corva::TrafficVolume m_carried;
};

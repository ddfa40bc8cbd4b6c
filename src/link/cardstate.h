// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <optional>

namespace corva
{

/// The card's family, as "Data/config" or "Data/modem_types.xml" names it.
enum class CardFamily { Wcdma, TdScdma, Cdma };

/// The family that a text names, compared as a prefix; WCDMA for anything else.
CardFamily familyFromText(const QString &text);

/// How far the search for a card has come.
enum class CardPresence {
    Absent,      ///< no known card and no port to probe
    StorageMode, ///< the stick still shows itself as a CD-ROM or disk
    NoRights,    ///< the port exists and may not be opened by this user
    PortBusy,    ///< another program holds the port
    Silent,      ///< the port opens and nothing answers "AT"
    Ready        ///< the AT port answers
};

/// What is wrong with a port that the configuration names.
enum class PortFault { None, Missing, NotSerial };

/// The SIM's state. Source: 3GPP TS 27.007 8.3 "+CPIN", and the "^CPIN" form of CDMA cards.
enum class SimState { Unknown, Ready, PinNeeded, PukNeeded, Busy, Failure, Absent };

/// Registration. Source: 3GPP TS 27.007 7.2 "+CREG: <n>,<stat>", values in the standard's order.
enum class Registration { NotSearching = 0, Home = 1, Searching = 2, Denied = 3, Unknown = 4, Roaming = 5 };

/// Service state. Source: the first field of "^SYSINFO:".
enum class ServiceState {
    None = 0,
    Limited = 1,
    Full = 2,
    LimitedRegional = 3,
    PowerSave = 4,
    Unknown = 255
};

/// Radio access technology, in the steps that a person distinguishes.
enum class NetworkType {
    Unknown,
    None,
    Gsm,
    Gprs,
    Edge,
    Umts,
    Hsdpa,
    Hsupa,
    Hspa,
    HspaPlus,
    TdScdma,
    TdHspa,
    Cdma1x,
    Evdo,
    Hybrid,
    Lte
};

/// What the SIM says about the name of its provider. 3GPP TS 31.102 4.2.12.
struct SimProvider {
    QString name;                    ///< empty when the SIM holds none
    bool wantsNetworkAtHome = false; ///< at home the network's own name belongs beside it
    bool isSilentAbroad = false;     ///< abroad the network's name stands alone
    bool operator==(const SimProvider &) const = default;
};

/// Who the card is. Read once after it was found; an empty text means "not known".
struct CardIdentity {
    QString manufacturer;
    QString model;
    QString imei;
    QString firmware;
    QString internalVersion;
    QString imsi;
    QString iccid;
    QString ownNumber;
    SimProvider provider = {};
    bool operator==(const CardIdentity &) const = default;
};

/// Everything about the card that the window shows. A plain value: made on the card worker, shown on the GUI
/// thread. `std::nullopt` means "not known".
struct CardState {
    CardPresence presence = CardPresence::Absent;
    QString deviceName;    ///< what people call the stick, from USB or the types file
    QString portName;      ///< e.g. "/dev/ttyUSB2"; empty when there is none
    QString modemPortName; ///< the data port, where known
    QString portHolder;    ///< PortBusy: the other program's name; may be empty when it cannot be told
    qint64 portHolderPid = 0;
    QString portGroup; ///< NoRights: the group that owns the port, e.g. "dialout"
    PortFault portFault =
        PortFault::None; ///< Absent: what is wrong with the port that the configuration names
    CardFamily family = CardFamily::Wcdma;

    CardIdentity identity;
    SimState sim = SimState::Unknown;
    std::optional<int> pinAttempts;   ///< attempts left for the PIN
    std::optional<int> pukAttempts;   ///< attempts left for the PUK
    std::optional<int> functionality; ///< "+CFUN: <fun>": 1 full, 0 or 4 radio off
    Registration registration = Registration::Unknown;
    std::optional<bool> roaming;
    ServiceState service = ServiceState::Unknown;
    NetworkType networkType = NetworkType::Unknown;
    QString operatorName;
    QString operatorCode;            ///< MCC and MNC, e.g. "26201"
    int signalCode = 35;             ///< 30..34 for levels 1..5, 35 no signal
    std::optional<int> signalDbm;    ///< -113..-51
    std::optional<int> locationArea; ///< LAC
    std::optional<int> cellId;
    QDateTime networkTime;

    /// True once the card has answered and its PIN state is settled.
    bool modemReady = false;

    /// 0..5 bars.
    int signalBars() const { return signalCode >= 30 && signalCode <= 34 ? signalCode - 29 : 0; }
    bool operator==(const CardState &) const = default;
};

} // namespace corva

Q_DECLARE_METATYPE(corva::CardState)

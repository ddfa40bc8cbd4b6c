// SPDX-License-Identifier: GPL-3.0-or-later
#include "device/modemtypes.h"

#include "shell/logging.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr qint64 maximumFileSize = 1'048'576; // 1 MiB: thousands of cards; a larger file is a mistake
constexpr qsizetype maximumWarnings = 50;     // enough to mend a file by
constexpr qsizetype maximumNameLength = 64;

struct FamilyName {
    QLatin1StringView name;
    CardFamily family;
};
constexpr std::array familyNames{FamilyName{"WCDMA"_L1, CardFamily::Wcdma},
                                 FamilyName{"TD-SCDMA"_L1, CardFamily::TdScdma},
                                 FamilyName{"CDMA"_L1, CardFamily::Cdma}};

/// Reads the entries one by one. No tree is built, so that neither depth nor size of a hostile file costs
/// anything; a document type declaration, the one way to make a small file large, ends the reading.
class Reader
{
    Q_DECLARE_TR_FUNCTIONS(ModemTypes)

public:
    Reader(const QByteArray &xml, ModemTypes &types) : m_xml(xml), m_types(types) {}

    void read()
    {
        while (!m_xml.atEnd()) {
            const auto token = m_xml.readNext();
            if (token == QXmlStreamReader::DTD) {
                warn(tr("The file has a document type declaration, which is not allowed here. "
                        "What follows is not read."));
                return;
            }
            if (token == QXmlStreamReader::StartElement)
                readElement();
            else if (token == QXmlStreamReader::EndElement)
                --m_depth;
        }
        if (m_xml.hasError())
            warn(tr("The file is not well-formed here: %1 What follows is not read.")
                     .arg(m_xml.errorString()));
    }

private:
    using Handler = void (Reader::*)();
    struct Element {
        QLatin1StringView name;
        Handler handler;
    };

    void readElement()
    {
        static constexpr std::array elements{Element{"card"_L1, &Reader::readCard},
                                             Element{"rule"_L1, &Reader::readRule},
                                             Element{"ignore"_L1, &Reader::readIgnore}};
        const int depth = m_depth++;
        const auto name = m_xml.name();
        if (depth == 0) {
            if (name != "modem_types"_L1)
                warn(tr("The outermost element is \"%1\"; it should be \"modem_types\".").arg(name));
            return;
        }
        const auto *element =
            std::ranges::find_if(elements, [&](const Element &e) { return e.name == name; });
        if (depth > 1 || element == elements.end())
            warn(tr("\"%1\" is not known at this place.").arg(name));
        else
            (this->*element->handler)();
    }

    void readCard()
    {
        m_failed = false;
        CardType card;
        card.id.vendor = hexNumber("vendor"_L1).value_or(0);
        card.anyProduct = !has("product"_L1);
        if (!card.anyProduct)
            card.id.product = hexNumber("product"_L1).value_or(0);
        card.name = attribute("name"_L1).simplified().left(maximumNameLength);
        card.family = family();
        card.atInterface = interfaceNumber("at"_L1);
        card.modemInterface = interfaceNumber("modem"_L1);
        card.voiceInterface = interfaceNumber("voice"_L1);
        card.storageIds = storageIds();
        if (m_failed)
            return;
        const auto same = [&](const CardType &c) {
            return c.id == card.id && c.anyProduct == card.anyProduct;
        };
        if (std::ranges::any_of(m_types.cards, same))
            warn(tr("The card %1 is listed already; this entry is left out.").arg(card.id.toString()));
        else
            m_types.cards.append(card);
    }

    void readRule()
    {
        m_failed = false;
        ProbeRule rule;
        rule.drivers = attribute("drivers"_L1).simplified().split(u' ', Qt::SkipEmptyParts);
        if (rule.drivers.isEmpty())
            fail(tr("A rule needs the attribute \"drivers\", with the names of kernel drivers."));
        if (has("ports"_L1))
            rule.minimumPorts = number("ports"_L1, 1, 255).value_or(0);
        if (!m_failed)
            m_types.rules.append(rule);
    }

    void readIgnore()
    {
        m_failed = false;
        const auto vendor = hexNumber("vendor"_L1);
        const auto product = hexNumber("product"_L1);
        if (!m_failed)
            m_types.ignored.append({*vendor, *product});
    }

    std::optional<quint16> hexNumber(QLatin1StringView name)
    {
        const QString text = attribute(name);
        const QStringView digits =
            text.startsWith("0x"_L1, Qt::CaseInsensitive) ? QStringView(text).mid(2) : text;
        // The reader of whole ids is strict about its digits.
        const auto id = UsbId::fromString(digits.toString() + u":0000"_s);
        if (id && id->vendor != 0)
            return id->vendor;
        fail(has(name) ? tr("\"%1\" is \"%2\"; it should be four hexadecimal digits other than 0000, as "
                            "lsusb shows them.")
                             .arg(name, text)
                       : tr("The attribute \"%1\" is missing.").arg(name));
        return std::nullopt;
    }

    std::optional<int> number(QLatin1StringView name, int least, int most)
    {
        const QString text = attribute(name);
        bool ok = false;
        const int value = text.toInt(&ok);
        if (ok && value >= least && value <= most)
            return value;
        fail(tr("\"%1\" is \"%2\"; it should be a number from %3 to %4.")
                 .arg(name, text, QString::number(least), QString::number(most)));
        return std::nullopt;
    }

    std::optional<int> interfaceNumber(QLatin1StringView name)
    {
        return has(name) ? number(name, 0, 254) : std::nullopt;
    }

    std::optional<CardFamily> family()
    {
        if (!has("family"_L1))
            return std::nullopt;
        const QString text = attribute("family"_L1);
        const auto *row =
            std::ranges::find_if(familyNames, [&](const FamilyName &f) { return f.name == text; });
        if (row != familyNames.end())
            return row->family;
        fail(tr("\"family\" is \"%1\"; it should be WCDMA, TD-SCDMA or CDMA.").arg(text));
        return std::nullopt;
    }

    QList<UsbId> storageIds()
    {
        QList<UsbId> ids;
        const QStringList texts = attribute("storage"_L1).simplified().split(u' ', Qt::SkipEmptyParts);
        for (const QString &text : texts) {
            const auto id = UsbId::fromString(text);
            if (id)
                ids.append(*id);
            else
                fail(tr("\"storage\" holds \"%1\"; it should be ids such as 1209:0002.").arg(text));
        }
        return ids;
    }

    bool has(QLatin1StringView name) const { return m_xml.attributes().hasAttribute(name); }
    QString attribute(QLatin1StringView name) const { return m_xml.attributes().value(name).toString(); }

    void fail(const QString &reason)
    {
        m_failed = true;
        warn(tr("This entry is left out. %1").arg(reason));
    }

    void warn(const QString &reason)
    {
        if (m_types.warnings.size() < maximumWarnings)
            m_types.warnings.append({m_xml.lineNumber(), reason});
    }

    QXmlStreamReader m_xml;
    ModemTypes &m_types;
    int m_depth = 0;
    bool m_failed = false;
};

ModemTypes unusableFile(const QString &reason)
{
    ModemTypes types;
    types.warnings.append({0, reason});
    return types;
}

ModemTypes readFile(const QString &path)
{
    QFile file(path);
    const QFileInfo info(path);
    if (info.exists() && !info.isFile())
        return unusableFile(QCoreApplication::translate("SafeFile", "%1 is not a plain file").arg(path));
    if (!file.open(QIODevice::ReadOnly))
        return unusableFile(Reader::tr("The file cannot be read: %1").arg(file.errorString()));
    // One byte more than allowed: the file may grow meanwhile.
    const QByteArray xml = file.read(maximumFileSize + 1);
    if (xml.size() > maximumFileSize)
        return unusableFile(Reader::tr("The file is larger than 1 MiB and is not read."));
    return ModemTypes::parse(xml);
}

} // namespace

ModemTypes ModemTypes::load(const QString &path)
{
    ModemTypes types = readFile(path);
    for (const TypesWarning &warning : std::as_const(types.warnings))
        qCWarning(lcDevice).noquote()
            << logTime() + path + u':' + QString::number(warning.line) + u':' << warning.reason;
    return types;
}

ModemTypes ModemTypes::parse(const QByteArray &xml)
{
    ModemTypes types;
    Reader(xml, types).read();
    return types;
}

const CardType *ModemTypes::cardFor(UsbId id) const
{
    const CardType *ofVendor = nullptr;
    for (const CardType &card : cards) {
        if (card.id == id && !card.anyProduct)
            return &card;
        if (card.anyProduct && card.id.vendor == id.vendor)
            ofVendor = &card;
    }
    return ofVendor;
}

const CardType *ModemTypes::cardForStorage(UsbId id) const
{
    const auto card =
        std::ranges::find_if(cards, [id](const CardType &c) { return c.storageIds.contains(id); });
    return card == cards.end() ? nullptr : &*card;
}

const ProbeRule *ModemTypes::ruleFor(UsbId id, const QStringList &portDrivers) const
{
    if (ignored.contains(id))
        return nullptr;
    const auto rule = std::ranges::find_if(rules, [&](const ProbeRule &r) {
        const auto driven = [&](const QString &driver) { return r.drivers.contains(driver); };
        return std::ranges::count_if(portDrivers, driven) >= r.minimumPorts;
    });
    return rule == rules.end() ? nullptr : &*rule;
}

} // namespace corva

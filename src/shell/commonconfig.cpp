// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/commonconfig.h"

#include "shell/logging.h"
#include "shell/safefile.h"

#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <optional>
#include <variant>

using namespace Qt::StringLiterals;

CommonConfig comcfg;

namespace
{

constexpr qint64 largestFile = 65'536;
constexpr int largestFont = 24; ///< with which every dialog fits the smallest window
constexpr auto notSet = "null"_L1;

struct Number {
    int CommonConfig::*field;
    int smallest; ///< what lies outside is brought to the nearer end
    int largest;
};
using Colour = QColor CommonConfig::*;
using String = QString CommonConfig::*;
struct AreaBrush {
    SkinArea CommonConfig::*area;
};
struct AreaColour {
    SkinArea CommonConfig::*area;
    QColor SkinArea::*field;
};

/// One entry of the file: its label, for the human reader, and what the lines below it fill.
struct Entry {
    QLatin1StringView label;
    std::variant<Number, Colour, String, AreaBrush, AreaColour> target;
};

/// The file, from top to bottom. Only the order counts.
const Entry entries[] = {
    {"Window width, pixels"_L1, Number{&CommonConfig::windowWidth, 320, 16384}},
    {"Window height, pixels"_L1, Number{&CommonConfig::windowHeight, 240, 16384}},
    {"Window"_L1, &CommonConfig::window},
    {"Surface: lists, text fields"_L1, &CommonConfig::surface},
    {"Raised: cards, menus, buttons"_L1, &CommonConfig::raised},
    {"Line"_L1, &CommonConfig::line},
    {"Text"_L1, &CommonConfig::text},
    {"Name of the skin"_L1, &CommonConfig::skinName},
    {"Muted text"_L1, &CommonConfig::mutedText},
    {"Accent"_L1, &CommonConfig::accent},
    {"Text on the accent"_L1, &CommonConfig::onAccent},
    {"Selection"_L1, &CommonConfig::selection},
    {"Font family, null for the desktop's"_L1, &CommonConfig::fontFamily},
    {"Name of the program"_L1, &CommonConfig::softwareName},
    {"Good"_L1, &CommonConfig::good},
    {"Warning"_L1, &CommonConfig::warning},
    {"Top bar: null and a colour, or a picture"_L1, AreaBrush{&CommonConfig::topBar}},
    {"Top bar: text"_L1, AreaColour{&CommonConfig::topBar, &SkinArea::text}},
    {"Top bar: muted text"_L1, AreaColour{&CommonConfig::topBar, &SkinArea::mutedText}},
    {"Navigation: null and a colour, or a picture"_L1, AreaBrush{&CommonConfig::navigation}},
    {"Navigation: text"_L1, AreaColour{&CommonConfig::navigation, &SkinArea::text}},
    {"Navigation: muted text"_L1, AreaColour{&CommonConfig::navigation, &SkinArea::mutedText}},
    {"Status strip: null and a colour, or a picture"_L1, AreaBrush{&CommonConfig::statusStrip}},
    {"Status strip: text"_L1, AreaColour{&CommonConfig::statusStrip, &SkinArea::text}},
    {"Status strip: muted text"_L1, AreaColour{&CommonConfig::statusStrip, &SkinArea::mutedText}},
    {"Bad"_L1, &CommonConfig::bad},
    {"Focus ring"_L1, &CommonConfig::focus},
    {"Disabled text"_L1, &CommonConfig::disabledText},
    {"Text on the selection"_L1, &CommonConfig::onSelection},
    {"Corner radius, pixels"_L1, Number{&CommonConfig::cornerRadius, 0, 16}},
    {"Size of page titles"_L1, Number{&CommonConfig::titleSize, 6, largestFont}},
    {"Size of text"_L1, Number{&CommonConfig::textSize, 6, largestFont}},
    {"Size of captions"_L1, Number{&CommonConfig::captionSize, 6, largestFont}},
    {"Contacts read from the card at a time"_L1, Number{&CommonConfig::phonebookBatchSize, 0, 1000}},
    {"Digits compared when a name is looked up"_L1, Number{&CommonConfig::numberMatchingLength, 0, 40}},
    {"Card family: WCDMA, TD-SCDMA or CDMA"_L1, &CommonConfig::cardFamily},
};

/// Takes the lines one after another; past the end there are none.
class Lines
{
public:
    explicit Lines(const QStringList &lines) : m_lines(lines) {}

    std::optional<QString> next()
    {
        return m_place < m_lines.size() ? std::optional(m_lines.at(m_place++)) : std::nullopt;
    }

    std::optional<int> nextNumber(int smallest, int largest)
    {
        const std::optional<QString> line = next();
        bool isNumber = false;
        const qlonglong number = line.value_or(QString()).toLongLong(&isNumber);
        if (!isNumber)
            return {};
        return int(std::clamp<qlonglong>(number, smallest, largest));
    }

    std::optional<QColor> nextColour()
    {
        const auto red = nextNumber(0, 255);
        const auto green = nextNumber(0, 255);
        const auto blue = nextNumber(0, 255);
        if (!red || !green || !blue)
            return {};
        return QColor(*red, *green, *blue);
    }

private:
    QStringList m_lines;
    qsizetype m_place = 0;
};

/// Reads the lines of one entry into the record; what is missing or makes no sense leaves the default.
class Reader
{
public:
    Reader(CommonConfig &config, Lines &lines) : m_config(config), m_lines(lines) {}

    void operator()(const Number &number)
    {
        m_config.*number.field =
            m_lines.nextNumber(number.smallest, number.largest).value_or(m_config.*number.field);
    }
    void operator()(Colour colour) { readInto(m_config.*colour); }
    void operator()(const AreaColour &colour) { readInto(m_config.*colour.area.*colour.field); }
    void operator()(String string)
    {
        const QString line = m_lines.next().value_or(notSet);
        if (line != notSet)
            m_config.*string = line;
    }
    void operator()(const AreaBrush &brush)
    {
        SkinBrush &background = (m_config.*brush.area).background;
        const std::optional<QString> line = m_lines.next();
        if (!line)
            return;
        background.picture = *line == notSet ? QString() : *line;
        if (background.picture.isEmpty())
            readInto(background.color);
    }

private:
    void readInto(QColor &color) { color = m_lines.nextColour().value_or(color); }

    CommonConfig &m_config;
    Lines &m_lines;
};

/// The lines of one entry, below its label.
class Writer
{
public:
    explicit Writer(const CommonConfig &config) : m_config(config) {}

    QStringList operator()(const Number &number) const { return {QString::number(m_config.*number.field)}; }
    QStringList operator()(Colour colour) const { return linesOf(m_config.*colour); }
    QStringList operator()(const AreaColour &colour) const
    {
        return linesOf(m_config.*colour.area.*colour.field);
    }
    QStringList operator()(String string) const { return {oneLine(m_config.*string)}; }
    QStringList operator()(const AreaBrush &brush) const
    {
        const SkinBrush &background = (m_config.*brush.area).background;
        const QStringList first{oneLine(background.picture)};
        return background.picture.isEmpty() ? first + linesOf(background.color) : first;
    }

private:
    static QStringList linesOf(const QColor &color)
    {
        return {QString::number(color.red()), QString::number(color.green()), QString::number(color.blue())};
    }
    static QString oneLine(QString text)
    {
        text.replace(u'\n', u' ').replace(u'\r', u' ');
        return text.isEmpty() ? QString(notSet) : text;
    }

    const CommonConfig &m_config;
};

/// The lines without their ends; an end behind the last line does not begin another.
QStringList linesOf(const QByteArray &bytes)
{
    QString text = QString::fromUtf8(bytes);
    text.replace("\r\n"_L1, "\n"_L1);
    if (text.endsWith(u'\n'))
        text.chop(1);
    return text.isEmpty() ? QStringList() : text.split(u'\n');
}

} // namespace

CommonConfig::CommonConfig()
    : windowWidth(960), windowHeight(600), window(0xF5, 0xF6, 0xF8), surface(0xFF, 0xFF, 0xFF),
      raised(0xFF, 0xFF, 0xFF), line(0x7F, 0x86, 0x91), text(0x1D, 0x23, 0x2B), skinName(u"Light"_s),
      mutedText(0x59, 0x62, 0x6F), accent(0x0B, 0x6E, 0x75), onAccent(0xFF, 0xFF, 0xFF),
      selection(0xD3, 0xEB, 0xEA), softwareName(u"Corva"_s), good(0x1C, 0x74, 0x3C),
      warning(0x8A, 0x52, 0x00), topBar{{{0xFF, 0xFF, 0xFF}, {}}, {0x1D, 0x23, 0x2B}, {0x59, 0x62, 0x6F}},
      navigation{{{0xEB, 0xED, 0xF1}, {}}, {0x1D, 0x23, 0x2B}, {0x53, 0x5C, 0x69}},
      statusStrip{{{0xEB, 0xED, 0xF1}, {}}, {0x1D, 0x23, 0x2B}, {0x53, 0x5C, 0x69}}, bad(0xB3, 0x26, 0x1E),
      focus(0x0B, 0x6E, 0x75), disabledText(0x8D, 0x94, 0x9E), onSelection(0x0F, 0x2F, 0x32), cornerRadius(6),
      titleSize(20), textSize(13), captionSize(11), phonebookBatchSize(20), numberMatchingLength(9),
      cardFamily(u"WCDMA"_s)
{
}

bool readConfigFile(CommonConfig &config, const QString &path)
{
    QFile file(path);
    if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would never end
        return false;
    Lines lines(linesOf(file.read(largestFile)));
    for (const Entry &entry : entries) {
        if (!lines.next()) // the label
            break;
        std::visit(Reader(config, lines), entry.target);
    }
    return true;
}

void readConfig(CommonConfig &config)
{
    if (!readConfigFile(config, u"Data/config"_s))
        qCDebug(lcShell).noquote() << corva::logTime() + u"read file error!"_s;
}

bool writeConfig(const CommonConfig &config, const QString &path, QString *error)
{
    QStringList lines;
    for (const Entry &entry : entries)
        lines += QStringList{entry.label} + std::visit(Writer(config), entry.target);
    return corva::writeFileSafely(path, (lines.join(u'\n') + u'\n').toUtf8(), error);
}

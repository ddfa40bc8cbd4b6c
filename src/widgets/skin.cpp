// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/skin.h"

#include "shell/commoncfg.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

struct RoleRow {
    SkinRole role;
    const QColor &color;
};

const QColor &colorOf(SkinRole role)
{
    // In the order of the enumeration.
    static const std::array rows{
        RoleRow{SkinRole::Window, comcfg.window},
        RoleRow{SkinRole::Surface, comcfg.surface},
        RoleRow{SkinRole::Raised, comcfg.raised},
        RoleRow{SkinRole::Line, comcfg.line},
        RoleRow{SkinRole::Text, comcfg.text},
        RoleRow{SkinRole::MutedText, comcfg.mutedText},
        RoleRow{SkinRole::DisabledText, comcfg.disabledText},
        RoleRow{SkinRole::Accent, comcfg.accent},
        RoleRow{SkinRole::OnAccent, comcfg.onAccent},
        RoleRow{SkinRole::Selection, comcfg.selection},
        RoleRow{SkinRole::OnSelection, comcfg.onSelection},
        RoleRow{SkinRole::Focus, comcfg.focus},
        RoleRow{SkinRole::Good, comcfg.good},
        RoleRow{SkinRole::Warning, comcfg.warning},
        RoleRow{SkinRole::Bad, comcfg.bad},
        RoleRow{SkinRole::TopBarText, comcfg.topBar.text},
        RoleRow{SkinRole::TopBarMutedText, comcfg.topBar.mutedText},
        RoleRow{SkinRole::NavigationText, comcfg.navigation.text},
        RoleRow{SkinRole::NavigationMutedText, comcfg.navigation.mutedText},
        RoleRow{SkinRole::StripText, comcfg.statusStrip.text},
        RoleRow{SkinRole::StripMutedText, comcfg.statusStrip.mutedText},
    };
    const RoleRow &row = rows.at(static_cast<std::size_t>(role));
    Q_ASSERT(row.role == role);
    return row.color;
}

int pixelsOf(TextRole role)
{
    switch (role) {
    case TextRole::Title: return comcfg.titleSize;
    case TextRole::Caption: return comcfg.captionSize;
    case TextRole::Strong:
    case TextRole::Text: break;
    }
    return comcfg.textSize;
}

QPalette basePalette()
{
    QPalette palette;
    palette.setColor(QPalette::Window, comcfg.window);
    palette.setColor(QPalette::Base, comcfg.surface);
    palette.setColor(QPalette::AlternateBase, comcfg.raised);
    palette.setColor(QPalette::Button, comcfg.raised);
    palette.setColor(QPalette::ToolTipBase, comcfg.raised);
    palette.setColor(QPalette::Highlight, comcfg.selection);
    palette.setColor(QPalette::HighlightedText, comcfg.onSelection);
    palette.setColor(QPalette::Link, comcfg.accent);
    palette.setColor(QPalette::LinkVisited, comcfg.accent);
    palette.setColor(QPalette::BrightText, comcfg.bad);
    palette.setColor(QPalette::PlaceholderText, comcfg.mutedText);
    for (const auto role :
         {QPalette::Light, QPalette::Midlight, QPalette::Mid, QPalette::Dark, QPalette::Shadow})
        palette.setColor(role, comcfg.line);
    return palette;
}

void setTextColors(QPalette &palette, const QColor &text, const QColor &disabled)
{
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, disabled);
    }
}

} // namespace

QColor skinColor(SkinRole role)
{
    return colorOf(role);
}

QColor disabledButtonColor()
{
    const QStringList parts = cmcfg.getValue(u"setting"_s, u"mybutton_disable_color"_s).split(u',');
    if (parts.size() != 3)
        return comcfg.disabledText;
    const QColor configured(parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt());
    return configured.isValid() ? configured : comcfg.disabledText;
}

QColor blend(const QColor &base, const QColor &over, qreal amount)
{
    const auto mix = [amount](float from, float to) { return float(from + (to - from) * amount); };
    return QColor::fromRgbF(mix(base.redF(), over.redF()), mix(base.greenF(), over.greenF()),
                            mix(base.blueF(), over.blueF()));
}

QPalette skinPalette()
{
    QPalette palette = basePalette();
    setTextColors(palette, comcfg.text, comcfg.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::PlaceholderText, comcfg.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, comcfg.disabledText);
    return palette;
}

QPalette skinPalette(const SkinArea &area)
{
    QPalette palette = skinPalette();
    palette.setColor(QPalette::Window, area.background.color);
    palette.setColor(QPalette::PlaceholderText, area.mutedText);
    setTextColors(palette, area.text, comcfg.disabledText);
    return palette;
}

QFont skinFont(TextRole role)
{
    QFont font = QApplication::font();
    const QString family = cmcfg.getValue(u"fontsetting"_s, u"mainwindow_fontname"_s);
    if (!family.isEmpty())
        font.setFamily(family);
    else if (!comcfg.fontFamily.isEmpty())
        font.setFamily(comcfg.fontFamily);

    constexpr qreal pointsPerPixel = 72.0 / 96.0;
    constexpr int smallestPoints = 6;
    constexpr int largestPoints = 24;
    const int configured = cmcfg.getNumber(u"fontsetting"_s, u"mainwindow_fontsize"_s);
    const qreal textPoints = configured > 0 ? std::clamp(configured, smallestPoints, largestPoints)
                                            : comcfg.textSize * pointsPerPixel;
    font.setPointSizeF(textPoints * pixelsOf(role) / comcfg.textSize);
    font.setWeight(role == TextRole::Title || role == TextRole::Strong ? QFont::DemiBold : QFont::Normal);
    return font;
}

void applySkin()
{
    QApplication::setPalette(skinPalette());
    if (QApplication::font() != skinFont(TextRole::Text))
        QApplication::setFont(skinFont(TextRole::Text));
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget *widget : widgets) {
        QEvent change(QEvent::StyleChange);
        QApplication::sendEvent(widget, &change);
    }
}

} // namespace corva

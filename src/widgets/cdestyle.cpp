// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/cdestyle.h"

#include "widgets/buttonkind.h"
#include "widgets/cdepaint.h"
#include "widgets/skin.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QComboBox>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyleOption>

using namespace Qt::StringLiterals;
namespace metrics = corva::metrics;
namespace paint = corva::paint;

namespace
{

constexpr int scrollBarExtent = 12;
constexpr int shortestHandle = 32;

template <typename Element> struct PaintRow {
    Element element;
    paint::Function function;
};

constexpr PaintRow<QStyle::PrimitiveElement> primitives[] = {
    {QStyle::PE_PanelButtonCommand, paint::buttonPanel},
    {QStyle::PE_PanelButtonTool, paint::toolButtonPanel},
    {QStyle::PE_FrameButtonTool, paint::nothing},
    {QStyle::PE_FrameDefaultButton, paint::nothing},
    {QStyle::PE_PanelLineEdit, paint::fieldPanel},
    {QStyle::PE_FrameLineEdit, paint::nothing},
    {QStyle::PE_Frame, paint::frame},
    {QStyle::PE_FrameGroupBox, paint::nothing},
    {QStyle::PE_PanelMenu, paint::menuPanel},
    {QStyle::PE_FrameMenu, paint::nothing},
    {QStyle::PE_PanelTipLabel, paint::menuPanel},
    {QStyle::PE_IndicatorCheckBox, paint::checkBox},
    {QStyle::PE_IndicatorItemViewItemCheck, paint::checkBox},
    {QStyle::PE_IndicatorRadioButton, paint::radioButton},
    {QStyle::PE_PanelItemViewRow, paint::nothing},
    {QStyle::PE_PanelItemViewItem, paint::itemPanel},
    {QStyle::PE_FrameFocusRect, paint::itemFocus},
    {QStyle::PE_IndicatorArrowDown, paint::arrowDown},
    {QStyle::PE_IndicatorArrowUp, paint::arrowUp},
    {QStyle::PE_IndicatorArrowLeft, paint::arrowLeft},
    {QStyle::PE_IndicatorArrowRight, paint::arrowRight},
};

constexpr PaintRow<QStyle::ControlElement> controls[] = {
    {QStyle::CE_FocusFrame, paint::focusRing},
    {QStyle::CE_Splitter, paint::nothing},
    {QStyle::CE_HeaderSection, paint::headerSection},
    {QStyle::CE_ProgressBarGroove, paint::progressGroove},
    {QStyle::CE_ProgressBarContents, paint::progressContents},
};

struct MetricRow {
    QStyle::PixelMetric metric;
    int pixels;
};

constexpr MetricRow pixelMetrics[] = {
    {QStyle::PM_FocusFrameHMargin, metrics::FocusGap + metrics::FocusWidth},
    {QStyle::PM_FocusFrameVMargin, metrics::FocusGap + metrics::FocusWidth},
    {QStyle::PM_ScrollBarExtent, scrollBarExtent},
    {QStyle::PM_ScrollBarSliderMin, shortestHandle},
    {QStyle::PM_SmallIconSize, metrics::IconSize},
    {QStyle::PM_ButtonIconSize, metrics::IconSize},
    {QStyle::PM_ListViewIconSize, metrics::IconSize},
    {QStyle::PM_ToolBarIconSize, metrics::IconSize},
    {QStyle::PM_IndicatorWidth, 18},
    {QStyle::PM_IndicatorHeight, 18},
    {QStyle::PM_ExclusiveIndicatorWidth, 18},
    {QStyle::PM_ExclusiveIndicatorHeight, 18},
    {QStyle::PM_HeaderMargin, metrics::Grid},
    {QStyle::PM_CheckBoxLabelSpacing, metrics::Grid},
    {QStyle::PM_RadioButtonLabelSpacing, metrics::Grid},
    {QStyle::PM_ButtonShiftHorizontal, 0},
    {QStyle::PM_ButtonShiftVertical, 0},
    {QStyle::PM_MenuPanelWidth, 1},
    {QStyle::PM_MenuHMargin, 0},
    {QStyle::PM_MenuVMargin, metrics::HalfGrid},
    {QStyle::PM_LayoutHorizontalSpacing, metrics::Grid},
    {QStyle::PM_LayoutVerticalSpacing, metrics::RowGap},
    {QStyle::PM_LayoutLeftMargin, metrics::PageMargin},
    {QStyle::PM_LayoutTopMargin, metrics::PageMargin},
    {QStyle::PM_LayoutRightMargin, metrics::PageMargin},
    {QStyle::PM_LayoutBottomMargin, metrics::PageMargin},
    {QStyle::PM_ToolTipLabelFrameWidth, 1},
};

struct HintRow {
    QStyle::StyleHint hint;
    int value;
};

constexpr HintRow styleHints[] = {
    {QStyle::SH_FocusFrame_AboveWidget, 1},
    {QStyle::SH_ScrollBar_Transient, 0},
    {QStyle::SH_DialogButtonBox_ButtonsHaveIcons, 0},
    {QStyle::SH_EtchDisabledText, 0},
    {QStyle::SH_DitherDisabledText, 0},
    {QStyle::SH_ToolTipLabel_Opacity, 255},
    {QStyle::SH_ComboBox_Popup, 0},
    {QStyle::SH_ItemView_ShowDecorationSelected, 1},
    {QStyle::SH_Widget_Animate, 0},
    {QStyle::SH_Widget_Animation_Duration, 0},
    {QStyle::SH_Menu_SubMenuPopupDelay, 120},
};

template <typename Row, typename Key>
const Row *find(const Row *begin, const Row *end, Key Row::*member, Key key)
{
    const Row *row = std::find_if(begin, end, [=](const Row &candidate) { return candidate.*member == key; });
    return row == end ? nullptr : row;
}

/// A primary or dangerous button is written on in the colour that belongs to its filling.
QColor labelColor(const QStyleOption &option, const QWidget *widget)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return corva::disabledButtonColor();
    switch (corva::buttonKind(widget)) {
    case corva::ButtonKind::Primary: return corva::skinColor(corva::SkinRole::OnAccent);
    case corva::ButtonKind::Dangerous: return corva::skinColor(corva::SkinRole::Bad);
    case corva::ButtonKind::Flat: return corva::skinColor(corva::SkinRole::Accent);
    case corva::ButtonKind::Plain: break;
    }
    return option.palette.color(QPalette::ButtonText);
}

/// Thin scroll bars have no buttons at their ends; the handle runs in the whole length.
QRect scrollBarPart(const QStyleOptionSlider &option, QStyle::SubControl part)
{
    if (part == QStyle::SC_ScrollBarGroove)
        return option.rect;
    const bool horizontal = option.orientation == Qt::Horizontal;
    const int length = horizontal ? option.rect.width() : option.rect.height();
    const qint64 range = qint64(option.maximum) - option.minimum;
    int handle = length;
    if (range > 0)
        handle = int(qint64(option.pageStep) * length / (range + option.pageStep));
    handle = qBound(qMin(shortestHandle, length), handle, length);
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      length - handle, option.upsideDown);
    const auto piece = [&](int from, int to) {
        const QRect rect = horizontal ? QRect(from, 0, to - from, option.rect.height())
                                      : QRect(0, from, option.rect.width(), to - from);
        return QStyle::visualRect(option.direction, option.rect, rect.translated(option.rect.topLeft()));
    };
    switch (part) {
    case QStyle::SC_ScrollBarSlider: return piece(start, start + handle);
    case QStyle::SC_ScrollBarSubPage: return piece(0, start);
    case QStyle::SC_ScrollBarAddPage: return piece(start + handle, length);
    default: return {};
    }
}

} // namespace

CdeStyle::CdeStyle() : QProxyStyle(QStyleFactory::create(u"fusion"_s)) {}

QPalette CdeStyle::standardPalette() const
{
    return corva::skinPalette();
}

void CdeStyle::polish(QWidget *widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QAbstractButton *>(widget) || qobject_cast<QComboBox *>(widget) ||
        qobject_cast<QScrollBar *>(widget))
        widget->setAttribute(Qt::WA_Hover);
    // The frame fills its round corners itself; a filled viewport would stand out of them.
    auto *view = qobject_cast<QAbstractScrollArea *>(widget);
    if (view && paint::isFilled(view) && view->frameShape() != QFrame::NoFrame)
        view->viewport()->setAutoFillBackground(false);
}

void CdeStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    const auto *row =
        find(std::begin(primitives), std::end(primitives), &PaintRow<PrimitiveElement>::element, element);
    if (row)
        row->function(*option, *painter, widget);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void CdeStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                           const QWidget *widget) const
{
    const auto *row =
        find(std::begin(controls), std::end(controls), &PaintRow<ControlElement>::element, element);
    if (row) {
        row->function(*option, *painter, widget);
        return;
    }
    const auto *button = qstyleoption_cast<const QStyleOptionButton *>(option);
    if (element == CE_PushButtonLabel && button) {
        QStyleOptionButton colored = *button;
        colored.palette.setColor(QPalette::ButtonText, labelColor(*option, widget));
        QProxyStyle::drawControl(element, &colored, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void CdeStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                  QPainter *painter, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider) {
        QStyleOptionSlider handle = *slider;
        handle.rect = scrollBarPart(*slider, SC_ScrollBarSlider);
        handle.state.setFlag(State_MouseOver, slider->activeSubControls.testFlag(SC_ScrollBarSlider));
        if (slider->maximum > slider->minimum)
            paint::scrollBar(handle, *painter);
        return;
    }
    const auto *combo = qstyleoption_cast<const QStyleOptionComboBox *>(option);
    if (control == CC_ComboBox && combo) {
        paint::comboBox(*combo, *painter, subControlRect(CC_ComboBox, option, SC_ComboBoxArrow, widget));
        return;
    }
    const auto *spin = qstyleoption_cast<const QStyleOptionSpinBox *>(option);
    if (control == CC_SpinBox && spin) {
        paint::spinBox(*spin, *painter, subControlRect(CC_SpinBox, option, SC_SpinBoxUp, widget),
                       subControlRect(CC_SpinBox, option, SC_SpinBoxDown, widget));
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect CdeStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option,
                               SubControl subControl, const QWidget *widget) const
{
    const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
    if (control == CC_ScrollBar && slider)
        return scrollBarPart(*slider, subControl);
    const QRect rect = QProxyStyle::subControlRect(control, option, subControl, widget);
    if (control == CC_ComboBox && subControl == SC_ComboBoxEditField)
        return rect.adjusted(metrics::HalfGrid, 0, -metrics::HalfGrid, 0);
    return rect;
}

QSize CdeStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                                 const QWidget *widget) const
{
    QSize result = QProxyStyle::sizeFromContents(type, option, size, widget);
    const int controlHeight = qMax(metrics::ControlHeight, size.height() + metrics::Grid);
    switch (type) {
    case CT_PushButton:
        return {qMax(size.width() + 2 * metrics::Grid + metrics::Grid, controlHeight), controlHeight};
    case CT_ComboBox: return {result.width() + 2 * metrics::Grid, controlHeight};
    case CT_LineEdit: return {result.width(), controlHeight};
    case CT_ItemViewItem: return {result.width() + metrics::Grid, qMax(metrics::RowHeight, result.height())};
    case CT_MenuItem: {
        const auto *item = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (item && item->menuItemType != QStyleOptionMenuItem::Separator)
            result.setHeight(qMax(metrics::RowHeight - metrics::HalfGrid, result.height()));
        return result;
    }
    default: return result;
    }
}

QRect CdeStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    if (element == SE_ItemViewItemFocusRect) // around the row, its icon and all
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

int CdeStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    // The room beside the text of a row.
    if (metric == PM_FocusFrameHMargin && qobject_cast<const QAbstractItemView *>(widget))
        return metrics::Grid;
    const auto *row = find(std::begin(pixelMetrics), std::end(pixelMetrics), &MetricRow::metric, metric);
    return row ? row->pixels : QProxyStyle::pixelMetric(metric, option, widget);
}

int CdeStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                        QStyleHintReturn *returnData) const
{
    // The line below one letter would part it from the letters that it joins in Arabic.
    if (hint == SH_UnderlineShortcut && QGuiApplication::isRightToLeft())
        return 0;
    const auto *row = find(std::begin(styleHints), std::end(styleHints), &HintRow::hint, hint);
    return row ? row->value : QProxyStyle::styleHint(hint, option, widget, returnData);
}

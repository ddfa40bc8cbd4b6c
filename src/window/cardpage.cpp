// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/cardpage.h"

#include "device/cardmonitor.h"
#include "widgets/contentscroll.h"
#include "widgets/factrow.h"
#include "widgets/line.h"
#include "widgets/skin.h"
#include "window/mender.h"
#include "window/statehero.h"
#include "window/statustexts.h"

#include <QLocale>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

QString number(std::optional<int> value)
{
    return value ? QString::number(*value) : QString();
}

QString roamingText(const CardState &state)
{
    if (!state.roaming)
        return {};
    return *state.roaming ? CardPage::tr("Yes") : CardPage::tr("No");
}

QString deviceText(const CardState &state)
{
    QStringList parts{state.identity.manufacturer, state.identity.model};
    parts.removeAll(QString());
    return parts.isEmpty() ? state.deviceName : parts.join(u' ');
}

struct FactSpec {
    int column;
    FactRow::Copy copy;
    const char *group; ///< opens a new group where it differs from the row above
    const char *id;
    const char *caption;
    QString (*value)(const CardState &);
};

constexpr const char *networkGroup = QT_TRANSLATE_NOOP("corva::CardPage", "Network");
constexpr const char *simGroup = QT_TRANSLATE_NOOP("corva::CardPage", "SIM card");
constexpr const char *deviceGroup = QT_TRANSLATE_NOOP("corva::CardPage", "Device");
constexpr auto plain = FactRow::Copy::No;
constexpr auto copied = FactRow::Copy::Yes;

const FactSpec factSpecs[] = {
    {0, plain, networkGroup, "operator", QT_TRANSLATE_NOOP("corva::CardPage", "Operator"), operatorText},
    {0, plain, networkGroup, "networkType", QT_TRANSLATE_NOOP("corva::CardPage", "Network type"),
     [](const CardState &state) { return networkTypeName(state.networkType); }},
    {0, plain, networkGroup, "registration", QT_TRANSLATE_NOOP("corva::CardPage", "Registration"),
     [](const CardState &state) { return registrationText(state.registration); }},
    {0, plain, networkGroup, "service", QT_TRANSLATE_NOOP("corva::CardPage", "Service"),
     [](const CardState &state) { return serviceText(state.service); }},
    {0, plain, networkGroup, "roaming", QT_TRANSLATE_NOOP("corva::CardPage", "Roaming"), roamingText},
    {0, plain, networkGroup, "signal", QT_TRANSLATE_NOOP("corva::CardPage", "Signal"), signalWithBarsText},
    {0, plain, networkGroup, "operatorCode", QT_TRANSLATE_NOOP("corva::CardPage", "Network code"),
     [](const CardState &state) { return state.operatorCode; }},
    {0, plain, networkGroup, "area", QT_TRANSLATE_NOOP("corva::CardPage", "Area"),
     [](const CardState &state) { return number(state.locationArea); }},
    {0, plain, networkGroup, "cell", QT_TRANSLATE_NOOP("corva::CardPage", "Cell"),
     [](const CardState &state) { return number(state.cellId); }},
    {0, plain, networkGroup, "networkTime", QT_TRANSLATE_NOOP("corva::CardPage", "Network time"),
     [](const CardState &state) { return QLocale().toString(state.networkTime, QLocale::ShortFormat); }},
    {1, FactRow::Copy::Room, simGroup, "sim", QT_TRANSLATE_NOOP("corva::CardPage", "State"),
     [](const CardState &state) { return simText(state.sim); }},
    {1, copied, simGroup, "ownNumber", QT_TRANSLATE_NOOP("corva::CardPage", "Phone number"),
     [](const CardState &state) { return state.identity.ownNumber; }},
    {1, copied, simGroup, "imsi", QT_TRANSLATE_NOOP("corva::CardPage", "IMSI"),
     [](const CardState &state) { return state.identity.imsi; }},
    {1, copied, simGroup, "iccid", QT_TRANSLATE_NOOP("corva::CardPage", "Card number"),
     [](const CardState &state) { return state.identity.iccid; }},
    {1, copied, deviceGroup, "device", QT_TRANSLATE_NOOP("corva::CardPage", "Model"), deviceText},
    {1, copied, deviceGroup, "imei", QT_TRANSLATE_NOOP("corva::CardPage", "IMEI"),
     [](const CardState &state) { return state.identity.imei; }},
    {1, copied, deviceGroup, "firmware", QT_TRANSLATE_NOOP("corva::CardPage", "Firmware"),
     [](const CardState &state) { return state.identity.firmware; }},
    {1, copied, deviceGroup, "port", QT_TRANSLATE_NOOP("corva::CardPage", "Port"),
     [](const CardState &state) { return state.portName; }},
};

} // namespace

CardPage::CardPage(const PageInfo &info, const PageContext &context, QWidget *parent)
    : Page(info, parent), m_context(context), m_refresh(new QPushButton(tr("&Refresh"), this)),
      m_stack(new QStackedWidget(this)), m_empty(new StateHero(StateHero::Form::Centred, this)),
      m_hero(new StateHero(StateHero::Form::Wide, this))
{
    m_refresh->setObjectName(u"refresh"_s);
    m_refresh->setToolTip(tr("%1 (%2)").arg(tr("Ask the card for everything anew"), u"F5"_s));
    addAction(m_refresh);
    connect(m_refresh, &QPushButton::clicked, m_context.monitor, &CardMonitor::refreshNow);
    m_stack->addWidget(m_empty);
    m_stack->addWidget(buildFacts());
    body()->addWidget(m_stack, 1);

    for (StateHero *hero : {m_empty, m_hero}) {
        connect(hero, &StateHero::sigMend, context.mender, &Mender::mend);
        connect(hero, &StateHero::sigWhy, context.mender, &Mender::sigDiagnosisWanted);
    }
    connect(context.monitor, &CardMonitor::sigStateChanged, this, &CardPage::takeState);
    takeState(context.monitor->state());
}

QWidget *CardPage::buildFacts()
{
    auto *facts = new QWidget(this);
    m_columns = new QHBoxLayout;
    m_columns->setSpacing(metrics::GroupGap);
    for (const int column : {0, 1}) {
        QWidget *built = buildColumn(column);
        m_columns->addWidget(built, m_columnWidths[column]);
    }

    auto *layout = new QVBoxLayout(facts);
    layout->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0);
    layout->setSpacing(2 * metrics::Grid);
    layout->addWidget(m_hero);
    layout->addLayout(m_columns);
    layout->addStretch(1);

    QScrollArea *scroll = scrollAreaFor(facts, this);
    scroll->setObjectName(u"facts"_s);
    return scroll;
}

QWidget *CardPage::buildColumn(int column)
{
    auto *widget = new QWidget(this);
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const char *group = "";
    std::vector<FactRow *> rows;
    for (const FactSpec &spec : factSpecs) {
        if (spec.column != column)
            continue;
        if (qstrcmp(group, spec.group) != 0) {
            if (*group != '\0')
                layout->addSpacing(2 * metrics::Grid);
            group = spec.group;
            layout->addWidget(new SectionHeader(tr(group), widget));
        }
        auto *row = new FactRow(QString::fromLatin1(spec.id), tr(spec.caption), spec.copy, widget);
        m_rows.push_back(row);
        rows.push_back(row);
        layout->addWidget(row);
    }
    // Room for a few words, or for the twenty digits of a SIM card's number and the button beside: whatever
    // the data is, so that nothing jumps when it arrives.
    const int digit = fontMetrics().horizontalAdvance(u'0');
    const int value = column == 0 ? 24 * digit : 20 * digit + metrics::Grid + metrics::ControlHeight;
    m_columnWidths[column] = FactRow::alignValues(rows) + value;
    layout->addStretch(1);
    return widget;
}

void CardPage::takeState(const CardState &state)
{
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        m_rows[i]->setValue(factSpecs[i].value(state));

    const auto steps = diagnose(state);
    const DiagnosisStep *problem = firstProblem(steps);
    const bool hasCard = state.presence == CardPresence::Ready;
    if (!problem)
        m_hero->showNetwork(state);
    else
        (hasCard ? m_hero : m_empty)->showProblem(*problem);
    m_stack->setCurrentIndex(hasCard ? 1 : 0);
    m_refresh->setVisible(hasCard);
}

void CardPage::resizeEvent(QResizeEvent *event)
{
    Page::resizeEvent(event);
    const int needed = m_columnWidths[0] + m_columnWidths[1] + m_columns->spacing();
    const bool isWide = width() >= needed + 2 * metrics::PageMargin;
    m_columns->setDirection(isWide ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

PageEntry cardPageEntry()
{
    PageInfo info{u"card"_s, CardPage::tr("Card"), u"card"_s, 10, false};
    return {info, [](const PageInfo &page, const PageContext &context, QWidget *parent) -> Page * {
                return new CardPage(page, context, parent);
            }};
}

} // namespace corva

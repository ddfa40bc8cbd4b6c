// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/checkpin.h"

#include "shell/whendone.h"
#include "widgets/buttonkind.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"
#include "window/pinfield.h"

#include <QApplication>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr int fewestPinDigits = 4;
constexpr int pukDigits = 8;
constexpr int dialogWidth = 400;
constexpr int smallestWindowHeight = 520;

} // namespace

/// The fields and texts above the buttons: as large as they are while the dialog fits into the window, then
/// they scroll.
class FormScroller final : public QScrollArea
{
public:
    explicit FormScroller(QWidget *parent) : QScrollArea(parent)
    {
        setFrameShape(QFrame::NoFrame);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setFocusPolicy(Qt::NoFocus);
        setWidgetResizable(true);
        viewport()->setAutoFillBackground(false);
    }

    QSize sizeHint() const override
    {
        const QLayout *form = widget()->layout();
        const int width = form->totalMinimumSize().width();
        const int height =
            form->hasHeightForWidth() ? form->totalHeightForWidth(width) : form->totalSizeHint().height();
        const int room = mostHeight();
        return height <= room ? QSize(width, height)
                              : QSize(width + verticalScrollBar()->sizeHint().width(), room);
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == widget() && event->type() == QEvent::LayoutRequest)
            updateGeometry();
        return QScrollArea::eventFilter(watched, event);
    }

private:
    /// What the window leaves above the buttons.
    int mostHeight() const
    {
        const QWidget *behind = window()->parentWidget();
        const int window = behind ? behind->window()->height() : 0;
        const int button = std::max(metrics::ControlHeight, 2 * fontMetrics().height());
        const int gaps = 3 * metrics::RowGap + 2 * metrics::PageMargin;
        return std::max(window, smallestWindowHeight) - button - gaps;
    }
};

CheckPIN::CheckPIN(CardMonitor *monitor, QWidget *parent)
    : QDialog(parent), m_monitor(monitor), m_form(new FormScroller(this)),
      m_title(new TextLabel(TextRole::Title, this)), m_about(new TextLabel(TextRole::Text, this)),
      m_attempts(new TextLabel(TextRole::Text, this)), m_result(new TextLabel(TextRole::Text, this)),
      m_puk(new PinField(u"puk"_s, this)), m_pin(new PinField(u"pin"_s, this)),
      m_repeat(new PinField(u"pinRepeat"_s, this)), m_show(new QCheckBox(tr("&Show the digits"), this)),
      m_unlock(new QPushButton(this))
{
    setObjectName(u"checkPin"_s);
    build();
    setAsksForPuk(monitor->state().sim == SimState::PukNeeded);
    takeState(monitor->state());
    connect(monitor, &CardMonitor::sigStateChanged, this, &CheckPIN::takeState);
}

void CheckPIN::build()
{
    m_title->setWordWrap(true);
    m_about->setWordWrap(true);
    m_about->setMuted(true);
    m_attempts->setObjectName(u"attempts"_s);
    m_attempts->setWordWrap(true);
    m_result->setObjectName(u"pinResult"_s);
    m_result->setWordWrap(true);
    m_unlock->setObjectName(u"unlock"_s);
    m_unlock->setDefault(true);
    setButtonKind(m_unlock, ButtonKind::Primary);
    auto *cancel = new QPushButton(tr("La&ter"), this);
    cancel->setObjectName(u"later"_s);
    cancel->setAutoDefault(false);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(m_unlock);

    auto *form = new QWidget(m_form);
    auto *rows = new QVBoxLayout(form);
    rows->setContentsMargins(metrics::HalfGrid, 0, metrics::HalfGrid, 0); // for the focus ring
    rows->setSpacing(metrics::RowGap);
    rows->addWidget(m_title);
    rows->addWidget(m_about);
    rows->addSpacing(metrics::Grid);
    for (PinField *field : {m_puk, m_pin, m_repeat})
        rows->addWidget(field);
    rows->addWidget(m_show);
    rows->addWidget(m_attempts);
    rows->addWidget(m_result);
    rows->addStretch(1);
    m_form->setWidget(form);
    form->setAutoFillBackground(false);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(metrics::RowGap);
    layout->addWidget(m_form);
    layout->addSpacing(metrics::Grid);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    m_title->setMinimumWidth(dialogWidth - 2 * metrics::PageMargin);

    connect(m_show, &QCheckBox::toggled, this, [this](bool shown) {
        for (PinField *field : {m_puk, m_pin, m_repeat})
            field->setDigitsShown(shown);
    });
    connect(qApp, &QApplication::focusChanged, this, [this, form](QWidget *, QWidget *now) {
        if (now && form->isAncestorOf(now))
            m_form->ensureWidgetVisible(now);
    });
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_unlock, &QPushButton::clicked, this, &CheckPIN::submit);
}

void CheckPIN::setAsksForPuk(bool asksForPuk)
{
    m_asksForPuk = asksForPuk;
    m_title->setText(asksForPuk ? tr("The SIM card is blocked") : tr("The SIM card is locked"));
    setWindowTitle(asksForPuk ? tr("Enter PUK") : tr("Enter PIN"));
    m_about->setText(asksForPuk ? tr("Enter the PUK, which came with the SIM card, and choose a new PIN.")
                                : tr("Enter its PIN to use the card."));
    m_puk->setCaption(tr("P&UK, 8 digits"));
    m_pin->setCaption(asksForPuk ? tr("New &PIN, 4 to 8 digits") : tr("&PIN, 4 to 8 digits"));
    m_repeat->setCaption(tr("&Repeat the new PIN"));
    m_puk->setVisible(asksForPuk);
    m_repeat->setVisible(asksForPuk);
    m_unlock->setText(asksForPuk ? tr("Un&block") : tr("Un&lock"));
    (asksForPuk ? m_puk : m_pin)->takeFocus();
}

void CheckPIN::takeState(const CardState &state)
{
    const bool needsPuk = state.sim == SimState::PukNeeded;
    const bool needsPin = state.sim == SimState::PinNeeded;
    if (state.presence != CardPresence::Ready || state.sim == SimState::Absent) {
        reject();
        return;
    }
    if (state.sim == SimState::Ready) {
        accept();
        return;
    }
    if ((needsPuk || needsPin) && needsPuk != m_asksForPuk) {
        clearFields();
        setAsksForPuk(needsPuk);
    }
    showAttempts(state);
}

void CheckPIN::showAttempts(const CardState &state)
{
    const std::optional<int> left = m_asksForPuk ? state.pukAttempts : state.pinAttempts;
    m_attempts->setVisible(left.has_value());
    if (!left)
        return;
    if (*left > 1)
        m_attempts->setText(tr("%n attempts left", nullptr, *left));
    else if (m_asksForPuk)
        m_attempts->setText(tr("Last attempt: after another wrong PUK the SIM card is lost for good."));
    else
        m_attempts->setText(tr("Last attempt: after another wrong PIN the SIM card asks for its PUK."));
}

bool CheckPIN::checkFields()
{
    const bool pukIsWhole = !m_asksForPuk || m_puk->digits().size() == pukDigits;
    const bool pinIsWhole = m_pin->digits().size() >= fewestPinDigits;
    const bool isRepeated = !m_asksForPuk || m_repeat->digits() == m_pin->digits();
    m_puk->setError(pukIsWhole ? QString() : tr("A PUK has 8 digits."));
    m_pin->setError(pinIsWhole ? QString() : tr("A PIN has 4 to 8 digits."));
    m_repeat->setError(isRepeated ? QString() : tr("The two PINs differ."));
    if (!pukIsWhole)
        m_puk->takeFocus();
    else if (!pinIsWhole)
        m_pin->takeFocus();
    else if (!isRepeated)
        m_repeat->takeFocus();
    return pukIsWhole && pinIsWhole && isRepeated;
}

void CheckPIN::submit()
{
    if (m_isBusy || !checkFields())
        return;
    setBusy(true);
    say(tr("Asking the SIM card"));
    const QFuture<PinOutcome> answer = m_asksForPuk ? m_monitor->enterPuk(m_puk->digits(), m_pin->digits())
                                                    : m_monitor->enterPin(m_pin->digits());
    whenDone(answer, this, [this, askedForPuk = m_asksForPuk](const std::optional<PinOutcome> &outcome) {
        setBusy(false);
        m_result->clear();
        // The card may have told its new state before the answer was here; then the fields ask for something
        // else already.
        if (askedForPuk == m_asksForPuk)
            takeOutcome(outcome.value_or(PinOutcome::NoAnswer));
    });
}

void CheckPIN::setBusy(bool busy)
{
    m_isBusy = busy;
    for (QWidget *widget : std::initializer_list<QWidget *>{m_puk, m_pin, m_repeat, m_show, m_unlock})
        widget->setEnabled(!busy);
    if (!busy) // a field that is disabled loses the focus, or did not get it
        (m_asksForPuk ? m_puk : m_pin)->takeFocus();
}

void CheckPIN::takeOutcome(PinOutcome outcome)
{
    if (outcome == PinOutcome::Accepted) {
        accept();
        m_monitor->refreshNow();
        return;
    }
    clearFields();
    PinField *field = m_asksForPuk ? m_puk : m_pin;
    switch (outcome) {
    case PinOutcome::Wrong:
        field->setError(m_asksForPuk ? tr("The PUK is wrong.") : tr("The PIN is wrong."));
        break;
    case PinOutcome::PukNeeded:
        if (m_asksForPuk)
            field->setError(tr("The PUK is wrong."));
        else
            setAsksForPuk(true);
        break;
    case PinOutcome::SimFailure:
        say(tr("The SIM card cannot be read. Take it out and put it in again."));
        break;
    case PinOutcome::SimBusy: say(tr("The SIM card is still starting. Try again in a moment.")); break;
    case PinOutcome::Refused: say(tr("The card refused the entry, without saying that it is wrong.")); break;
    case PinOutcome::NoAnswer:
    case PinOutcome::Accepted:
        say(tr("The card did not answer in time. It is not known whether it took the entry; the "
               "attempts left are shown as far as the card tells them."));
        break;
    }
    // A wrong attempt costs one, and the last one turns the PIN into the PUK: the card knows.
    m_monitor->refreshNow();
}

void CheckPIN::say(const QString &sentence)
{
    m_result->setText(sentence);
    // Behind the new layout, which the text has only asked for.
    QMetaObject::invokeMethod(
        m_form, [this] { m_form->ensureWidgetVisible(m_result); }, Qt::QueuedConnection);
}

void CheckPIN::clearFields()
{
    for (PinField *field : {m_puk, m_pin, m_repeat}) {
        field->clear();
        field->setError({});
    }
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/connectionhead.h"

#include "connection/ui/connectiontexts.h"
#include "shell/globals.h"
#include "widgets/buttonkind.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <array>
#include <chrono>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace corva
{

namespace
{

constexpr int pictureSize = 64;
constexpr int buttonWidth = 144;
constexpr int buttonHeight = 44;
constexpr int smallestHeight = 96;

bool isOnTheWay(ConnectionState state)
{
    return state == ConnectionState::Connecting || state == ConnectionState::Disconnecting;
}

} // namespace

ConnectionHead::ConnectionHead(QWidget *parent)
    : QWidget(parent), m_picture(new QLabel(this)), m_dataState(new TextLabel(TextRole::Title, this)),
      m_sentence(new TextLabel(TextRole::Text, this)), m_button(new QPushButton(this)),
      m_why(new QPushButton(tr("&Why am I offline?"), this))
{
    setObjectName(u"connectionHead"_s);
    m_dataState->setObjectName(u"dataState"_s);
    m_sentence->setObjectName(u"connectionSentence"_s);
    m_button->setObjectName(u"isConnectButton"_s);
    m_why->setObjectName(u"whyOffline"_s);
    m_sentence->setMuted(true);
    m_sentence->setWordWrap(true);
    m_dataState->setWordWrap(true);
    m_picture->setFixedSize(pictureSize, pictureSize);
    m_picture->setScaledContents(true);
    m_button->setFont(skinFont(TextRole::Strong));
    setButtonKind(m_why, ButtonKind::Flat);
    build();
    connect(m_button, &QPushButton::clicked, this, &ConnectionHead::sigPressed);
    connect(m_why, &QPushButton::clicked, this, &ConnectionHead::sigWhy);
    connect(&m_dotsTimer, &QTimer::timeout, this, &ConnectionHead::growDots);
    m_dotsTimer.setInterval(500ms);
    setStatus({}, {});
}

void ConnectionHead::build()
{
    auto *words = new QVBoxLayout;
    words->setSpacing(metrics::HalfGrid);
    words->addStretch(1);
    words->addWidget(m_dataState);
    words->addWidget(m_sentence);
    words->addStretch(1);
    m_actions = new QVBoxLayout;
    m_actions->setSpacing(metrics::HalfGrid);
    m_actions->addStretch(1);
    m_actions->addWidget(m_button);
    m_actions->addWidget(m_why);
    m_actions->addStretch(1);
    auto *state = new QHBoxLayout;
    state->setSpacing(2 * metrics::Grid);
    state->addWidget(m_picture, 0, Qt::AlignVCenter);
    state->addLayout(words, 1);
    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(2 * metrics::Grid);
    m_layout->addLayout(state, 1);
    m_layout->addLayout(m_actions);
    m_layout->addStrut(smallestHeight);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Minimum);
}

void ConnectionHead::setStacked(bool isStacked)
{
    m_layout->setDirection(isStacked ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    m_actions->setDirection(isStacked ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
}

void ConnectionHead::fitButton()
{
    const QSize needed = m_button->sizeHint();
    m_button->setMinimumSize(needed.expandedTo({buttonWidth, buttonHeight}));
}

void ConnectionHead::setStatus(const ConnectionStatus &status, const QString &hint)
{
    showState(status);
    const QString sentence = statusSentence(status);
    m_sentence->setText(sentence.isEmpty() ? hint : sentence);
    m_sentence->setVisible(!m_sentence->text().isEmpty());
    m_why->setVisible(isWorthAsking(status));
    const bool isUp = status.state == ConnectionState::Connected;
    const bool isEnding = status.state == ConnectionState::Disconnecting;
    const bool canCancel =
        status.state == ConnectionState::Connecting || (!isUp && !isEnding && status.redial > 0);
    m_button->setText(isUp || isEnding ? tr("&Disconnect") : canCancel ? tr("&Cancel") : tr("&Connect"));
    fitButton();
    m_button->setEnabled(!isEnding);
    setButtonKind(m_button, isUp || isEnding || canCancel ? ButtonKind::Plain : ButtonKind::Primary);
    m_button->setAccessibleDescription(m_sentence->text());
}

void ConnectionHead::showState(const ConnectionStatus &status)
{
    showPicture(status.state == ConnectionState::Connected);
    if (isOnTheWay(status.state)) {
        m_words = status.state == ConnectionState::Connecting ? tr("Initializing") : tr("Disconnecting");
        m_dataState->setAccessibleName(m_words); // the dots are no news to those who listen
        if (!m_dotsTimer.isActive()) {
            m_round = 0;
            m_dotsTimer.start();
        }
        growDots();
        return;
    }
    m_dotsTimer.stop();
    m_dataState->setText(status.state == ConnectionState::Connected ? tr("Status: Connected")
                                                                    : tr("Status: Disconnected"));
    m_dataState->setAccessibleName(m_dataState->text());
}

void ConnectionHead::showPicture(bool isUp)
{
    const QPixmap picture(basePath +
                          (isUp ? u"/res/component/datastate1.png"_s : u"/res/component/datastate0.png"_s));
    m_picture->setPixmap(picture);
}

void ConnectionHead::growDots()
{
    static const std::array rows{u". ."_s, u". . ."_s, u". . . ."_s};
    m_dataState->setText(m_words + rows.at(std::size_t(m_round)));
    m_round = (m_round + 1) % int(rows.size());
}

void ConnectionHead::takeFocus()
{
    m_button->setFocus(Qt::OtherFocusReason);
}

} // namespace corva

// SPDX-License-Identifier: GPL-3.0-or-later
#include "window/aboutbox.h"

#include "shell/commonconfig.h"
#include "shell/globals.h"
#include "widgets/factrow.h"
#include "widgets/skinicon.h"
#include "widgets/textlabel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int markSize = 48;
constexpr int boxWidth = 480;
} // namespace

AboutBox::AboutBox(const CardState &state, QWidget *parent) : QDialog(parent)
{
    setObjectName(u"aboutBox"_s);
    setWindowTitle(tr("About %1").arg(comcfg.softwareName));

    auto *mark = new QLabel(this);
    mark->setPixmap(skinPixmap(u"corva"_s, skinColor(SkinRole::Accent), markSize, devicePixelRatioF()));
    auto *about = new TextLabel(tr("Connection manager for USB data cards"), TextRole::Text, this);
    about->setMuted(true);
    auto *words = new QVBoxLayout;
    words->setSpacing(metrics::HalfGrid);
    words->addWidget(new TextLabel(comcfg.softwareName, TextRole::Title, this));
    words->addWidget(about);
    auto *head = new QHBoxLayout;
    head->setSpacing(2 * metrics::Grid);
    head->addWidget(mark);
    head->addLayout(words, 1);

    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->addLayout(head);
    layout->addSpacing(2 * metrics::Grid);
    const auto addFact = [&](const QString &id, const QString &caption, const QString &value) {
        m_rows.push_back(new FactRow(id, caption, FactRow::Copy::Yes, this));
        m_rows.back()->setValue(value);
        layout->addWidget(m_rows.back());
    };
    layout->addWidget(new SectionHeader(tr("Program"), this));
    addFact(u"version"_s, tr("Version"), readVersionInfo());
    addFact(u"toolkit"_s, tr("Toolkit"), u"Qt %1"_s.arg(QString::fromLatin1(qVersion())));
    addFact(u"licence"_s, tr("Licence"), u"GPL-3.0-or-later"_s);
    layout->addSpacing(2 * metrics::Grid);
    layout->addWidget(new SectionHeader(tr("Card"), this));
    addFact(u"model"_s, tr("Model"), state.identity.model);
    addFact(u"imei"_s, tr("IMEI"), state.identity.imei);
    addFact(u"firmware"_s, tr("Firmware"), state.identity.firmware);
    addFact(u"internalVersion"_s, tr("Internal version"), state.identity.internalVersion);
    FactRow::alignValues(m_rows);
    layout->addSpacing(metrics::GroupGap);

    auto *copyAll = new QPushButton(tr("&Copy all"), this);
    copyAll->setObjectName(u"copyAll"_s);
    auto *close = new QPushButton(tr("C&lose"), this);
    close->setDefault(true);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addWidget(copyAll);
    buttons->addStretch(1);
    buttons->addWidget(close);
    layout->addLayout(buttons);
    setMinimumWidth(boxWidth);
    connect(copyAll, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(allFacts()); });
    connect(close, &QPushButton::clicked, this, &QDialog::accept);
    close->setFocus();
}

QString AboutBox::allFacts() const
{
    QStringList lines;
    for (const FactRow *row : m_rows)
        if (row->isKnown())
            lines += u"%1: %2"_s.arg(row->caption(), row->value());
    return lines.join(u'\n');
}

} // namespace corva

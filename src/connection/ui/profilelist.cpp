// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/profilelist.h"

#include "connection/profilestore.h"
#include "connection/ui/config.h"
#include "widgets/factrow.h"
#include "widgets/messagequeue.h"
#include "widgets/skinicon.h"
#include "widgets/textlabel.h"

#include <QGridLayout>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

/// How the profile reaches the network, in a word or two.
QString accessPoint(const ConnectionProfile &profile)
{
    const QString &apn = profile.text(ProfileField::Apn);
    return profile.isOn(ProfileField::UsesApn) ? apn : ProfileList::tr("access point from the network");
}

int rowHeight()
{
    return qMax(metrics::RowHeight, QFontMetrics(skinFont(TextRole::Strong)).height() + metrics::Grid);
}

QListWidgetItem *itemFor(const ConnectionProfile &profile, bool isDefault)
{
    auto *item = new QListWidgetItem(profile.name());
    item->setData(Qt::UserRole, profile.name());
    // As wide as the list: a long name is cut, not the list scrolled.
    item->setSizeHint({0, rowHeight()});
    item->setIcon(isDefault ? skinIcon(u"ok"_s, SkinRole::Accent)
                            : skinIcon(u"pending"_s, SkinRole::MutedText));
    item->setToolTip(
        u"<b>%1</b><br>%2"_s.arg(profile.name().toHtmlEscaped(), accessPoint(profile).toHtmlEscaped()));
    item->setData(Qt::AccessibleTextRole,
                  isDefault ? ProfileList::tr("%1, connects with it").arg(profile.name()) : profile.name());
    if (isDefault)
        item->setFont(skinFont(TextRole::Strong));
    return item;
}

} // namespace

ProfileList::ProfileList(ProfileStore *profiles, MessageQueue *messages, QWidget *parent)
    : QWidget(parent), m_profiles(profiles), m_messages(messages), m_list(new QListWidget(this)),
      m_empty(new TextLabel(tr("No profile yet"), TextRole::Text, m_list)),
      m_add(new QPushButton(tr("&Add"), this)), m_edit(new QPushButton(tr("&Edit"), this)),
      m_remove(new QPushButton(tr("De&lete"), this)), m_default(new QPushButton(tr("Make de&fault"), this))
{
    m_list->setObjectName(u"profiles"_s);
    m_list->setAccessibleName(tr("Profiles"));
    m_add->setObjectName(u"addProfile"_s);
    m_edit->setObjectName(u"editProfile"_s);
    m_remove->setObjectName(u"deleteProfile"_s);
    m_default->setObjectName(u"defaultProfile"_s);
    m_add->setToolTip(tr("%1 (%2)").arg(tr("Add a profile"), u"Ctrl+N"_s));
    m_default->setToolTip(tr("Connect with this profile from now on"));
    m_empty->setObjectName(u"noProfiles"_s);
    m_empty->setMuted(true);
    m_empty->setWordWrap(true);
    m_empty->setPlace(Qt::AlignCenter);
    build();
    fill();

    connect(m_profiles, &ProfileStore::sigChanged, this, &ProfileList::fill);
    connect(m_list, &QListWidget::currentRowChanged, this, &ProfileList::follow);
    connect(m_list, &QListWidget::itemActivated, this, &ProfileList::edit);
    connect(m_add, &QPushButton::clicked, this, &ProfileList::add);
    connect(m_edit, &QPushButton::clicked, this, &ProfileList::edit);
    connect(m_remove, &QPushButton::clicked, this, &ProfileList::remove);
    connect(m_default, &QPushButton::clicked, this, &ProfileList::makeDefault);
    auto *deletion = new QShortcut(Qt::Key_Delete, m_list);
    deletion->setContext(Qt::WidgetShortcut);
    connect(deletion, &QShortcut::activated, this, &ProfileList::remove);
}

void ProfileList::build()
{
    auto *room = new QVBoxLayout(m_list);
    room->setContentsMargins(2 * metrics::Grid, metrics::Grid, 2 * metrics::Grid, metrics::Grid);
    room->addWidget(m_empty);

    auto *buttons = new QGridLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(metrics::Grid);
    buttons->addWidget(m_add, 0, 0);
    buttons->addWidget(m_edit, 0, 1);
    buttons->addWidget(m_default, 1, 0);
    buttons->addWidget(m_remove, 1, 1);
    constexpr int fewestRows = 3;
    m_list->setMinimumHeight(fewestRows * rowHeight());
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(new SectionHeader(tr("Profiles"), this));
    layout->addWidget(m_list, 1);
    layout->addLayout(buttons);
}

QString ProfileList::current() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

void ProfileList::takeFocus()
{
    m_list->setFocus(Qt::OtherFocusReason);
}

void ProfileList::fill()
{
    const auto chosen = m_profiles->defaultProfile();
    const QString defaultName = chosen ? chosen->name() : QString();
    const QString wanted = current().isEmpty() ? defaultName : current();
    const int wantedRow = m_list->currentRow();
    m_list->clear();
    for (const ConnectionProfile &profile : m_profiles->list()) {
        if (!profile.isShown())
            continue;
        QListWidgetItem *item = itemFor(profile, profile.name() == defaultName);
        m_list->addItem(item);
        if (profile.name() == wanted)
            m_list->setCurrentItem(item);
    }
    if (m_list->currentRow() < 0) // what had the cursor is gone: its neighbour has it
        m_list->setCurrentRow(std::clamp(wantedRow, 0, std::max(m_list->count() - 1, 0)));
    m_empty->setVisible(m_list->count() == 0);
    follow();
}

void ProfileList::follow()
{
    const auto profile = m_profiles->find(current());
    const auto chosen = m_profiles->defaultProfile();
    const bool isEditable = profile && profile->isEditable();
    m_edit->setEnabled(profile.has_value());
    m_edit->setText(profile && !isEditable ? tr("Vi&ew") : tr("&Edit"));
    m_remove->setEnabled(isEditable);
    m_default->setEnabled(profile && (!chosen || chosen->name() != profile->name()));
}

void ProfileList::openEditor(const QString &name)
{
    auto *editor = new Config(m_profiles, name, window());
    editor->setAttribute(Qt::WA_DeleteOnClose);
    connect(editor, &Config::sigSaved, this, [this](const QString &saved) {
        if (!m_profiles->defaultProfile())
            m_profiles->setDefault(saved);
        const QList<QListWidgetItem *> items = m_list->findItems(saved, Qt::MatchExactly);
        if (!items.isEmpty())
            m_list->setCurrentItem(items.first());
        takeFocus();
    });
    editor->open();
}

void ProfileList::add()
{
    openEditor({});
}

void ProfileList::edit()
{
    if (!current().isEmpty())
        openEditor(current());
}

void ProfileList::editDefault()
{
    const auto chosen = m_profiles->defaultProfile();
    openEditor(chosen ? chosen->name() : QString());
}

void ProfileList::remove()
{
    if (!m_remove->isEnabled())
        return;
    m_messages->ask(tr("Delete the profile \"%1\"?").arg(current()), tr("&Delete"), [this, name = current()] {
        QString error;
        Q_EMIT sigSaid(m_profiles->remove(name, &error) ? QString() : error);
    });
}

void ProfileList::makeDefault()
{
    QString error;
    const QString name = current();
    Q_EMIT sigSaid(m_profiles->setDefault(name, &error) ? tr("Connects with \"%1\" from now on.").arg(name)
                                                        : error);
}

} // namespace corva

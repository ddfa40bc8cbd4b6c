// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/config.h"

#include "connection/profilechecks.h"
#include "connection/profilestore.h"
#include "connection/ui/flagchoice.h"
#include "widgets/buttonkind.h"
#include "widgets/contentscroll.h"
#include "widgets/factrow.h"
#include "widgets/textlabel.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{

constexpr QSize usualSize(600, 620);
constexpr int screenEdge = 16;

/// A text that no check has anything against.
struct SoundText {
    ProfileField field;
    const char16_t *text;
};

constexpr SoundText soundTexts[] = {
    {ProfileField::Name, u"-"},
    {ProfileField::Phone, u"*99#"},
    {ProfileField::Apn, u"internet"},
    {ProfileField::Pdp, u"10.0.0.1"},
    {ProfileField::PreferredDns, u"10.0.0.1"},
    {ProfileField::AlternativeDns, u"10.0.0.1"},
    {ProfileField::UserName, u""},
    {ProfileField::Password, u""},
    {ProfileField::Imsi, u""},
    {ProfileField::DefaultOpenUrl, u""},
};

/// The field that a refusal is about: the one whose mending changes what is refused.
std::optional<ProfileField> refusedField(const ConnectionProfile &profile, const QString &refusal)
{
    for (const SoundText &sound : soundTexts) {
        ConnectionProfile mended = profile;
        mended.setText(sound.field, QString::fromUtf16(sound.text));
        if (profileRefusal(mended) != refusal)
            return sound.field;
    }
    return std::nullopt;
}

/// With its caption and, once that is laid out, what is wrong with it.
void showWhole(QScrollArea *scroll, QWidget *focused)
{
    QWidget *field = qobject_cast<FormField *>(focused->parentWidget()) ? focused->parentWidget() : focused;
    QMetaObject::invokeMethod(
        field, [scroll, field] { scroll->ensureWidgetVisible(field, 0, metrics::PageMargin); },
        Qt::QueuedConnection);
}

} // namespace

Config::Config(ProfileStore *profiles, const QString &name, QWidget *parent)
    : QDialog(parent), m_profiles(profiles), m_name(name),
      m_profile(profiles->find(name).value_or(ProfileStore::newProfile())),
      m_isReadOnly(!name.isEmpty() && !m_profile.isEditable()), m_result(new TextLabel(TextRole::Text, this))
{
    setObjectName(u"config"_s);
    const QString title = name.isEmpty() ? tr("New profile")
                          : m_isReadOnly ? tr("Profile")
                                         : tr("Edit profile");
    setWindowTitle(title);
    m_result->setObjectName(u"configResult"_s);
    m_result->setWordWrap(true);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, metrics::PageMargin, 0, metrics::PageMargin - metrics::Grid);
    layout->setSpacing(metrics::Grid);
    auto *head = new TextLabel(title, TextRole::Title, this);
    head->setContentsMargins(metrics::PageMargin, 0, metrics::PageMargin, 0);
    layout->addWidget(head);
    QScrollArea *form = buildForm();
    layout->addWidget(form, 1);
    layout->addWidget(buildButtons());
    takeSize(*form);
    load();
    if (m_isReadOnly)
        setReadOnly();
    followChoices();
    showField(ProfileField::Name);
}

/// As wide as the longest captions need in this language; on a screen without that room they wrap.
void Config::takeSize(const QScrollArea &form)
{
    const QSize room = screen()->availableSize() - QSize(screenEdge, 3 * screenEdge);
    const int width = form.widget()->minimumSizeHint().width() + form.verticalScrollBar()->sizeHint().width();
    if (width > room.width()) {
        const auto captions = form.widget()->findChildren<TextLabel *>();
        for (TextLabel *caption : captions)
            caption->setWordWrap(true);
    }
    resize(usualSize.expandedTo({width, 0}).boundedTo(room));
}

QScrollArea *Config::buildForm()
{
    auto *content = new QWidget(this);
    auto *form = new QVBoxLayout(content);
    form->setContentsMargins(metrics::PageMargin, metrics::Grid, metrics::PageMargin, metrics::Grid);
    form->setSpacing(metrics::RowGap);
    buildGeneral(form);
    buildAccessPoint(form);
    buildAuthentication(form);
    buildAddresses(form);
    buildPage(form);
    form->addStretch(1);

    QScrollArea *scroll = scrollAreaFor(content, this);
    // Tab alone brings a field into view; so do mnemonics and refusals then.
    connect(qApp, &QApplication::focusChanged, content, [scroll, content](QWidget *, QWidget *focused) {
        if (focused && content->isAncestorOf(focused))
            showWhole(scroll, focused);
    });
    return scroll;
}

QWidget *Config::buildButtons()
{
    auto *foot = new QWidget(this);
    auto *cancel = new QPushButton(m_isReadOnly ? tr("&Close") : tr("&Cancel"), foot);
    cancel->setObjectName(u"cancel"_s);
    cancel->setAutoDefault(false);
    m_save = new QPushButton(tr("&Save"), foot);
    m_save->setObjectName(u"save"_s);
    m_save->setDefault(true);
    setButtonKind(m_save, ButtonKind::Primary);
    auto *layout = new QHBoxLayout(foot);
    layout->setContentsMargins(metrics::PageMargin, metrics::Grid, metrics::PageMargin, 0);
    layout->setSpacing(metrics::Grid);
    layout->addWidget(m_result, 1);
    layout->addWidget(cancel);
    layout->addWidget(m_save);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_save, &QPushButton::clicked, this, &Config::save);
    return foot;
}

void Config::addRow(QVBoxLayout *form, std::initializer_list<QWidget *> widgets)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(2 * metrics::Grid);
    for (QWidget *widget : widgets)
        row->addWidget(widget, 1, Qt::AlignTop);
    form->addLayout(row);
}

void Config::buildGeneral(QVBoxLayout *form)
{
    using enum FormField::Kind;
    form->addWidget(new SectionHeader(tr("General"), this));
    addRow(form, {addField(ProfileField::Name, tr("Profile &name"), Text),
                  addField(ProfileField::Phone, tr("&Dial number"), Code)});

    auto *kind = new QWidget(this);
    auto *caption = new TextLabel(tr("Connect as a &modem or a network card"), TextRole::Text, kind);
    m_kind = new QComboBox(kind);
    m_kind->setObjectName(u"linkKind"_s);
    m_kind->setAccessibleName(QString(caption->text()).remove(u'&'));
    m_kind->addItem(tr("As the card can"), int(LinkKind::Automatic));
    m_kind->addItem(tr("Modem (dial-up)"), int(LinkKind::DialUp));
    m_kind->addItem(tr("Network card"), int(LinkKind::NetworkCard));
    caption->setBuddy(m_kind);
    connect(m_kind, &QComboBox::currentIndexChanged, this, &Config::followChoices);
    auto *layout = new QVBoxLayout(kind);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(metrics::HalfGrid);
    layout->addWidget(caption);
    layout->addWidget(m_kind);
    addRow(form, {kind, addField(ProfileField::Imsi, tr("For S&IMs whose IMSI begins with"), Code)});
    m_fields[ProfileField::Imsi]->edit()->setPlaceholderText(tr("any"));
    form->addSpacing(metrics::Grid);
}

void Config::buildAccessPoint(QVBoxLayout *form)
{
    form->addWidget(new SectionHeader(tr("Access point (APN)"), this));
    m_accessPoint = addChoice(new FlagChoice(
        tr("Access point"),
        {{ProfileField::UsesApn, tr("&This one")}, {ProfileField::ObtainsApn, tr("&By the network")}}, this));
    form->addWidget(m_accessPoint);
    form->addWidget(addField(ProfileField::Apn, tr("Name of the access &point"), FormField::Kind::Code));
    form->addSpacing(metrics::Grid);
}

void Config::buildAuthentication(QVBoxLayout *form)
{
    using enum FormField::Kind;
    form->addWidget(new SectionHeader(tr("Authentication"), this));
    m_authentication = addChoice(new FlagChoice(tr("Authentication"),
                                                {{ProfileField::Pap, tr("P&AP")},
                                                 {ProfileField::Chap, tr("C&HAP")},
                                                 {ProfileField::NoAuthentication, tr("N&one")}},
                                                this));
    form->addWidget(m_authentication);
    addRow(form, {addField(ProfileField::UserName, tr("&User name"), Code),
                  addField(ProfileField::Password, tr("Pass&word"), Secret)});
    m_asks = new QCheckBox(tr("As&k for them when connecting"), this);
    m_asks->setObjectName(u"asks"_s);
    m_keeps = new QCheckBox(tr("Keep them in the profi&le"), this);
    m_keeps->setObjectName(u"keeps"_s);
    for (QCheckBox *box : {m_asks, m_keeps})
        box->setMinimumHeight(metrics::ControlHeight);
    addRow(form, {m_asks, m_keeps});
    // What is not kept has to be asked for.
    connect(m_keeps, &QCheckBox::clicked, this, [this](bool keeps) {
        if (!keeps)
            m_asks->setChecked(true);
    });
    form->addSpacing(metrics::Grid);
}

void Config::buildAddresses(QVBoxLayout *form)
{
    using enum FormField::Kind;
    form->addWidget(new SectionHeader(tr("IP address"), this));
    m_address = addChoice(new FlagChoice(tr("IP address"),
                                         {{ProfileField::ObtainsPdp, tr("From the network (d&ynamic)")},
                                          {ProfileField::UsesPdp, tr("Fi&xed")}},
                                         this));
    form->addWidget(m_address);
    form->addWidget(addField(ProfileField::Pdp, tr("Fixed add&ress"), Code));
    form->addSpacing(metrics::Grid);

    form->addWidget(new SectionHeader(tr("Name servers (DNS)"), this));
    m_nameServers = addChoice(new FlagChoice(
        tr("Name servers"),
        {{ProfileField::ObtainsDns, tr("&From the network")}, {ProfileField::UsesDns, tr("Th&ese")}}, this));
    form->addWidget(m_nameServers);
    addRow(form, {addField(ProfileField::PreferredDns, tr("Preferred (&1)"), Code),
                  addField(ProfileField::AlternativeDns, tr("Alternative (&2)"), Code)});
    form->addSpacing(metrics::Grid);
}

void Config::buildPage(QVBoxLayout *form)
{
    form->addWidget(new SectionHeader(tr("Once connected"), this));
    form->addWidget(
        addField(ProfileField::DefaultOpenUrl, tr("Pa&ge to open in the browser"), FormField::Kind::Code));
}

FormField *Config::addField(ProfileField field, const QString &caption, FormField::Kind kind)
{
    auto *line = new FormField(caption, u"field%1"_s.arg(int(field)), kind, this);
    m_fields[field] = line;
    connect(line, &FormField::sigEdited, m_result, &QLabel::clear);
    return line;
}

FlagChoice *Config::addChoice(FlagChoice *choice)
{
    m_choices.push_back(choice);
    connect(choice, &FlagChoice::sigChosen, this, &Config::followChoices);
    return choice;
}

void Config::load()
{
    for (const auto &[field, line] : m_fields)
        line->setText(m_profile.text(field));
    for (FlagChoice *choice : m_choices)
        choice->load(m_profile);
    m_kind->setCurrentIndex(m_kind->findData(int(m_profile.linkKind())));
    m_keeps->setChecked(m_profile.isOn(ProfileField::SavesUserName));
    m_asks->setChecked(m_profile.isOn(ProfileField::AsksUserName));
}

void Config::setReadOnly()
{
    for (const auto &[field, line] : m_fields)
        line->setReadOnly(true);
    for (QWidget *widget : std::initializer_list<QWidget *>{m_accessPoint, m_authentication, m_address,
                                                            m_nameServers, m_kind, m_asks, m_keeps})
        widget->setEnabled(false);
    m_save->hide();
    m_result->setText(tr("This profile came with the program and stays as it is."));
}

void Config::followChoices()
{
    if (m_isReadOnly)
        return;
    m_fields[ProfileField::Apn]->setEnabled(m_accessPoint->chosen() == ProfileField::UsesApn);
    m_fields[ProfileField::Pdp]->setEnabled(m_address->chosen() == ProfileField::UsesPdp);
    for (const ProfileField field : {ProfileField::PreferredDns, ProfileField::AlternativeDns})
        m_fields[field]->setEnabled(m_nameServers->chosen() == ProfileField::UsesDns);
    // A data call over the network card takes no name and no password.
    const bool isDialled = LinkKind(m_kind->currentData().toInt()) != LinkKind::NetworkCard;
    m_authentication->setEnabled(isDialled);
    const bool authenticates = isDialled && m_authentication->chosen() != ProfileField::NoAuthentication;
    for (QWidget *widget : std::initializer_list<QWidget *>{
             m_fields[ProfileField::UserName], m_fields[ProfileField::Password], m_asks, m_keeps})
        widget->setEnabled(authenticates);
    m_fields[ProfileField::UserName]->setReadOnly(m_profile.text(ProfileField::UserNameEditable) == u'0');
}

void Config::showField(ProfileField field)
{
    m_fields.at(field)->takeFocus();
}

ConnectionProfile Config::edited() const
{
    ConnectionProfile profile = m_profile;
    for (const auto &[field, line] : m_fields)
        if (line->text() != profile.text(field))
            profile.setText(field, field == ProfileField::Password ? line->text() : line->text().trimmed());
    for (const FlagChoice *choice : m_choices)
        choice->store(profile);
    const auto kind = static_cast<LinkKind>(m_kind->currentData().toInt());
    if (kind != profile.linkKind())
        profile.setLinkKind(kind);
    const auto setFlag = [&](ProfileField field, const QCheckBox *box) {
        if (profile.isOn(field) != box->isChecked())
            profile.setOn(field, box->isChecked());
    };
    setFlag(ProfileField::SavesUserName, m_keeps);
    setFlag(ProfileField::AsksUserName, m_asks);
    for (const ProfileField field : {ProfileField::UserName, ProfileField::Password})
        if (!m_keeps->isChecked() &&
            (m_profile.isOn(ProfileField::SavesUserName) || profile.text(field) != m_profile.text(field)))
            profile.setText(field, {});
    return profile;
}

void Config::save()
{
    const ConnectionProfile profile = edited();
    QString error;
    if (m_name.isEmpty() ? m_profiles->add(profile, &error) : m_profiles->change(m_name, profile, &error)) {
        Q_EMIT sigSaved(profile.name());
        accept();
        return;
    }
    showRefusal(profile, error);
}

void Config::showRefusal(const ConnectionProfile &profile, const QString &refusal)
{
    for (const auto &[field, line] : m_fields)
        line->setError({});
    std::optional<ProfileField> field = refusedField(profile, refusal);
    const bool isNameTaken = profile.name() != m_name && m_profiles->find(profile.name());
    if (profileRefusal(profile).isEmpty())
        field = isNameTaken ? std::optional(ProfileField::Name) : std::nullopt;
    if (!field || !m_fields.contains(*field)) {
        m_result->setText(refusal);
        return;
    }
    m_fields[*field]->setError(refusal);
    showField(*field);
}

} // namespace corva

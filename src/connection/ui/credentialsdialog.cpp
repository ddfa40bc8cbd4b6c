// SPDX-License-Identifier: GPL-3.0-or-later
#include "connection/ui/credentialsdialog.h"

#include "widgets/buttonkind.h"
#include "widgets/formfield.h"
#include "widgets/skin.h"
#include "widgets/textlabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int dialogWidth = 400;
}

CredentialsDialog::CredentialsDialog(const ConnectionProfile &profile, QWidget *parent)
    : QDialog(parent),
      m_userName(new FormField(tr("&User name"), u"userName"_s, FormField::Kind::Code, this)),
      m_password(new FormField(tr("&Password"), u"password"_s, FormField::Kind::Secret, this)),
      m_keep(new QCheckBox(tr("&Keep them and do not ask again"), this))
{
    setObjectName(u"credentials"_s);
    setWindowTitle(tr("Connect"));
    m_keep->setObjectName(u"keep"_s);
    m_keep->setMinimumHeight(metrics::ControlHeight);
    m_keep->setVisible(profile.isEditable());
    m_userName->setText(profile.text(ProfileField::UserName));
    m_userName->setReadOnly(profile.text(ProfileField::UserNameEditable) == u'0');
    m_password->setText(profile.text(ProfileField::Password));

    auto *cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setObjectName(u"cancel"_s);
    cancel->setAutoDefault(false);
    auto *go = new QPushButton(tr("C&onnect"), this);
    go->setObjectName(u"connectWith"_s);
    go->setDefault(true);
    setButtonKind(go, ButtonKind::Primary);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addStretch(1);
    buttons->addWidget(cancel);
    buttons->addWidget(go);

    auto *about = new TextLabel(
        tr("The profile \"%1\" asks for them at each connection.").arg(profile.name()), TextRole::Text, this);
    about->setWordWrap(true);
    about->setMuted(true);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(metrics::RowGap);
    layout->addWidget(new TextLabel(tr("User name and password"), TextRole::Title, this));
    layout->addWidget(about);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_userName);
    layout->addWidget(m_password);
    layout->addWidget(m_keep);
    layout->addStretch(1);
    layout->addSpacing(metrics::Grid);
    layout->addLayout(buttons);
    setMinimumWidth(dialogWidth);
    (m_userName->text().isEmpty() ? m_userName : m_password)->takeFocus();

    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(go, &QPushButton::clicked, this, &CredentialsDialog::take);
}

void CredentialsDialog::take()
{
    accept();
    Q_EMIT sigEntered(m_userName->text(), m_password->text(), m_keep->isChecked());
}

} // namespace corva

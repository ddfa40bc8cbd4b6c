// SPDX-License-Identifier: GPL-3.0-or-later
#include "sms/ui/servicecentredialog.h"

#include "sms/messageservice.h"
#include "sms/recipients.h"
#include "widgets/buttonkind.h"
#include "widgets/formfield.h"
#include "widgets/textlabel.h"

#include <QHBoxLayout>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace corva
{

namespace
{
constexpr int dialogWidth = 420;
}

ServiceCentreDialog::ServiceCentreDialog(MessageService *service, QWidget *parent)
    : QDialog(parent), m_service(service),
      m_number(new FormField(tr("&Number"), u"serviceCentre"_s, FormField::Kind::Code, this))
{
    setObjectName(u"serviceCentreDialog"_s);
    setWindowTitle(tr("Service centre"));
    setMinimumWidth(dialogWidth);
    build();
    m_number->setText(service->serviceCentre());
    connect(service, &MessageService::sigServiceCentreChanged, m_number, &FormField::setText);
}

void ServiceCentreDialog::build()
{
    auto *about =
        new TextLabel(tr("Every message goes through the operator's service centre. Its number is on the SIM "
                         "card; change it only when your operator asks you to."),
                      TextRole::Text, this);
    about->setMuted(true);
    about->setWordWrap(true);
    auto *cancel = new QPushButton(tr("&Cancel"), this);
    cancel->setAutoDefault(false);
    auto *save = new QPushButton(tr("&Save"), this);
    save->setObjectName(u"save"_s);
    save->setDefault(true);
    setButtonKind(save, ButtonKind::Primary);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(metrics::Grid);
    buttons->addStretch(1);
    buttons->addWidget(cancel);
    buttons->addWidget(save);
    auto *layout = new QVBoxLayout(this);
    layout->setSpacing(metrics::RowGap);
    layout->addWidget(new TextLabel(windowTitle(), TextRole::Title, this));
    layout->addWidget(about);
    layout->addSpacing(metrics::Grid);
    layout->addWidget(m_number);
    layout->addSpacing(metrics::Grid);
    layout->addLayout(buttons);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(save, &QPushButton::clicked, this, &ServiceCentreDialog::take);
}

void ServiceCentreDialog::take()
{
    const Recipients written = readRecipients(m_number->text());
    if (written.numbers.size() != 1 || !written.error.isEmpty()) {
        m_number->setError(written.error.isEmpty() ? tr("One number is needed.") : written.error);
        m_number->takeFocus();
        return;
    }
    m_service->setServiceCentre(written.numbers.front());
    accept();
}

} // namespace corva

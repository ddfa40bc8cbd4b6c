// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/connectionprofile.h"
#include "widgets/formfield.h"

#include <QDialog>
#include <map>

class QCheckBox;
class QComboBox;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace corva
{

class FlagChoice;
class ProfileStore;
class TextLabel;

/// The editor of a connection profile. What is refused is told at its field; one that may not be edited is
/// only shown.
class Config final : public QDialog
{
    Q_OBJECT

public:
    /// `name` is the profile to edit; empty for a new one.
    Config(ProfileStore *profiles, const QString &name, QWidget *parent);

    /// Puts the cursor into a field.
    void showField(ProfileField field);

Q_SIGNALS:
    /// The store has it, under this name.
    void sigSaved(const QString &name);

private:
    QScrollArea *buildForm();
    void takeSize(const QScrollArea &form);
    QWidget *buildButtons();
    void addRow(QVBoxLayout *form, std::initializer_list<QWidget *> widgets);
    void buildGeneral(QVBoxLayout *form);
    void buildAccessPoint(QVBoxLayout *form);
    void buildAuthentication(QVBoxLayout *form);
    void buildAddresses(QVBoxLayout *form);
    void buildPage(QVBoxLayout *form);
    FormField *addField(ProfileField field, const QString &caption, FormField::Kind kind);
    FlagChoice *addChoice(FlagChoice *choice);
    void load();
    void setReadOnly();
    void followChoices();
    ConnectionProfile edited() const;
    void save();
    void showRefusal(const ConnectionProfile &profile, const QString &refusal);

    ProfileStore *m_profiles;
    QString m_name;
    ConnectionProfile m_profile; ///< as the store has it
    bool m_isReadOnly = false;
    std::map<ProfileField, FormField *> m_fields;
    std::vector<FlagChoice *> m_choices;
    FlagChoice *m_accessPoint = nullptr;
    FlagChoice *m_authentication = nullptr;
    FlagChoice *m_address = nullptr;
    FlagChoice *m_nameServers = nullptr;
    QComboBox *m_kind = nullptr;
    QCheckBox *m_asks = nullptr;
    QCheckBox *m_keeps = nullptr;
    TextLabel *m_result;
    QPushButton *m_save = nullptr;
};

} // namespace corva

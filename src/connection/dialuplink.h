// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "connection/datalink.h"
#include "connection/wvdialoutput.h"

#include <QDateTime>

namespace corva
{

/// A link by wvdial and pppd on the card's data port.
class DialUpLink : public DataLink
{
    Q_OBJECT

public:
    using DataLink::DataLink;

    LinkFacts facts() const override;

    /// The files whose being there says that the link is built.
    void setLinkFiles(const QStringList &files) { m_linkFiles = files; }

protected:
    QString refusal() const override;
    void make() override;
    void takeDown() override;
    void look() override;
    void slotDelayMessageBox() override;

private:
    void slotStartWvdial();
    void slotKillWvdial();
    void takeOutput(const QByteArray &chunk);
    void take(const WvdialEvent &event);
    void endedByItself();
    void pppEnded(int exitCode);
    bool isBuilt() const;
    QString failureMessage(int exitCode) const;

    QStringList m_linkFiles;
    QDateTime m_dialledAt;
    WvdialOutput m_output;
    LinkFacts m_said;     ///< what the dialler told
    int m_killRounds = 0; ///< how often the kill waited for the card's reply
    bool m_isDialled = false;
    bool m_wasRefused = false;
    bool m_isRestarted = false;
    QString m_reason; ///< why the dialler gives up, as it said
};

} // namespace corva

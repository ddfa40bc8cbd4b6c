// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <atomic>

class SerialThread;

namespace corva
{

/// A packet data call that the card makes for its own network interface. It outlives who asked for it, a
/// killed program too: a note on disk names the card from before it is asked for until it is ended. All but
/// the making of the object is for the card worker, and blocks.
class DataCall
{
public:
    /// How the card was told to make it.
    enum class Activation { None, Maker, Standard };
    struct Answer {
        Activation by = Activation::None;
        int result = -1; ///< 1: it is made, or being made; 0: refused; -1: no answer
    };

    /// The card's reports tell of this context alone, whatever dial-up uses.
    static constexpr int contextId = 1;

    /// `imei` is the card's.
    explicit DataCall(const QString &imei) : m_imei(imei) {}

    /// By the maker's command where the card knows it, by the standard's otherwise. A call that nobody waits
    /// for any more is not made, or ended as soon as the card has answered: by none.
    Answer make(SerialThread &link);
    /// Nobody waits for the answer of `make` any more. False when it was given already. Any thread.
    bool abandon();

    /// `by`: how it was made. None while that is not known: then the maker's command comes first, as in the
    /// making. False: the card did not answer.
    static bool end(SerialThread &link, Activation by);

    /// Whether an earlier run noted a call of a card. Any thread.
    static bool isNoted();
    /// Ends the call that is noted of this card; one of another card went with that card. A card without an
    /// `imei` is that of a note without one, and leaves the others. False: the card did not answer.
    static bool endNoted(SerialThread &link, const QString &imei);

private:
    enum class Stage { Waiting, Answered, Abandoned };

    const QString m_imei;
    std::atomic<Stage> m_stage = Stage::Waiting;
};

} // namespace corva

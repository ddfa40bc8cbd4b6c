// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <span>

namespace corva
{

// The codec on the caller's buffers: what is written, without the NUL that follows it, is what is returned. A
// null source or a negative count is nothing.

/// Copies with a terminating NUL.
int copyOut(QByteArrayView text, char *dst);
/// `n` hex characters of either case; ends early at what is none, and half an octet is left out.
int hexToBuffer(const char *src, char *dst, int n);
/// `n` octets as upper-case hex.
int bufferToHex(const unsigned char *src, char *dst, int n);

/// The first `n` of a buffer.
template <typename T> std::span<const T> bufferView(const T *src, int n)
{
    return {src, std::size_t(src && n > 0 ? n : 0)};
}

} // namespace corva

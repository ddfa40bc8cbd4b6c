// SPDX-License-Identifier: GPL-3.0-or-later
// The default table and the national ones that stand for it, sixteen septets a row. A blank where the
// standard has no character; NUL at the escape. 3GPP TS 23.038 6.2.1 and A.3.
#include "sms/gsmalphabet.h"

#include <algorithm>
#include <iterator>

namespace corva
{

namespace
{

constexpr GsmTable table(const char16_t (&rows)[129])
{
    GsmTable made{};
    std::copy_n(rows, made.size(), made.begin());
    return made;
}

constexpr GsmTable defaultTable = table(u"@£$¥èéùìòÇ\nØø\rÅå"
                                        u"Δ_ΦΓΛΩΠΨΣΘΞ\0ÆæßÉ"
                                        u" !\"#¤%&'()*+,-./"
                                        u"0123456789:;<=>?"
                                        u"¡ABCDEFGHIJKLMNO"
                                        u"PQRSTUVWXYZÄÖÑÜ§"
                                        u"¿abcdefghijklmno"
                                        u"pqrstuvwxyzäöñüà");

constexpr GsmTable turkishLocking = table(u"@£$¥€éùıòÇ\nĞğ\rÅå"
                                          u"Δ_ΦΓΛΩΠΨΣΘΞ\0ŞşßÉ"
                                          u" !\"#¤%&'()*+,-./"
                                          u"0123456789:;<=>?"
                                          u"İABCDEFGHIJKLMNO"
                                          u"PQRSTUVWXYZÄÖÑÜ§"
                                          u"çabcdefghijklmno"
                                          u"pqrstuvwxyzäöñüà");

constexpr GsmTable portugueseLocking = table(u"@£$¥êéúíóç\nÔô\rÁá"
                                             u"Δ_ªÇÀ∞^\\€Ó|\0ÂâÊÉ"
                                             u" !\"#º%&'()*+,-./"
                                             u"0123456789:;<=>?"
                                             u"ÍABCDEFGHIJKLMNO"
                                             u"PQRSTUVWXYZÃÕÚÜ§"
                                             u"~abcdefghijklmno"
                                             u"pqrstuvwxyzãõ`üà");

constexpr GsmTable bengaliLocking =
    table(u"\u0981\u0982\u0983\u0985\u0986\u0987\u0988\u0989\u098a\u098b\n\u098c \r \u098f"
          u"\u0990  \u0993\u0994\u0995\u0996\u0997\u0998\u0999\u099a\0\u099b\u099c\u099d\u099e"
          u" !\u099f\u09a0\u09a1\u09a2\u09a3\u09a4)(\u09a5\u09a6,\u09a7.\u09a8"
          u"0123456789:; \u09aa\u09ab?"
          u"\u09ac\u09ad\u09ae\u09af\u09b0 \u09b2   \u09b6\u09b7\u09b8\u09b9\u09bc\u09bd"
          u"\u09be\u09bf\u09c0\u09c1\u09c2\u09c3\u09c4  \u09c7\u09c8  \u09cb\u09cc\u09cd"
          u"\u09ceabcdefghijklmno"
          u"pqrstuvwxyz\u09d7\u09dc\u09dd\u09f0\u09f1");

constexpr GsmTable gujaratiLocking =
    table(u"\u0a81\u0a82\u0a83\u0a85\u0a86\u0a87\u0a88\u0a89\u0a8a\u0a8b\n\u0a8c\u0a8d\r \u0a8f"
          u"\u0a90\u0a91 \u0a93\u0a94\u0a95\u0a96\u0a97\u0a98\u0a99\u0a9a\0\u0a9b\u0a9c\u0a9d\u0a9e"
          u" !\u0a9f\u0aa0\u0aa1\u0aa2\u0aa3\u0aa4)(\u0aa5\u0aa6,\u0aa7.\u0aa8"
          u"0123456789:; \u0aaa\u0aab?"
          u"\u0aac\u0aad\u0aae\u0aaf\u0ab0 \u0ab2\u0ab3 \u0ab5\u0ab6\u0ab7\u0ab8\u0ab9\u0abc\u0abd"
          u"\u0abe\u0abf\u0ac0\u0ac1\u0ac2\u0ac3\u0ac4\u0ac5 \u0ac7\u0ac8\u0ac9 \u0acb\u0acc\u0acd"
          u"\u0ad0abcdefghijklmno"
          u"pqrstuvwxyz\u0ae0\u0ae1\u0ae2\u0ae3\u0af1");

constexpr GsmTable hindiLocking =
    table(u"\u0901\u0902\u0903\u0905\u0906\u0907\u0908\u0909\u090a\u090b\n\u090c\u090d\r\u090e\u090f"
          u"\u0910\u0911\u0912\u0913\u0914\u0915\u0916\u0917\u0918\u0919\u091a\0\u091b\u091c\u091d\u091e"
          u" !\u091f\u0920\u0921\u0922\u0923\u0924)(\u0925\u0926,\u0927.\u0928"
          u"0123456789:;\u0929\u092a\u092b?"
          u"\u092c\u092d\u092e\u092f\u0930\u0931\u0932\u0933\u0934\u0935\u0936\u0937\u0938\u0939\u093c\u093d"
          u"\u093e\u093f\u0940\u0941\u0942\u0943\u0944\u0945\u0946\u0947\u0948\u0949\u094a\u094b\u094c\u094d"
          u"\u0950abcdefghijklmno"
          u"pqrstuvwxyz\u0972\u097b\u097c\u097e\u097f");

constexpr GsmTable kannadaLocking =
    table(u" \u0c82\u0c83\u0c85\u0c86\u0c87\u0c88\u0c89\u0c8a\u0c8b\n\u0c8c \r\u0c8e\u0c8f"
          u"\u0c90 \u0c92\u0c93\u0c94\u0c95\u0c96\u0c97\u0c98\u0c99\u0c9a\0\u0c9b\u0c9c\u0c9d\u0c9e"
          u" !\u0c9f\u0ca0\u0ca1\u0ca2\u0ca3\u0ca4)(\u0ca5\u0ca6,\u0ca7.\u0ca8"
          u"0123456789:; \u0caa\u0cab?"
          u"\u0cac\u0cad\u0cae\u0caf\u0cb0\u0cb1\u0cb2\u0cb3 \u0cb5\u0cb6\u0cb7\u0cb8\u0cb9\u0cbc\u0cbd"
          u"\u0cbe\u0cbf\u0cc0\u0cc1\u0cc2\u0cc3\u0cc4 \u0cc6\u0cc7\u0cc8 \u0cca\u0ccb\u0ccc\u0ccd"
          u"\u0cd5abcdefghijklmno"
          u"pqrstuvwxyz\u0cd6\u0ce0\u0ce1\u0ce2\u0ce3");

constexpr GsmTable malayalamLocking =
    table(u" \u0d02\u0d03\u0d05\u0d06\u0d07\u0d08\u0d09\u0d0a\u0d0b\n\u0d0c \r\u0d0e\u0d0f"
          u"\u0d10 \u0d12\u0d13\u0d14\u0d15\u0d16\u0d17\u0d18\u0d19\u0d1a\0\u0d1b\u0d1c\u0d1d\u0d1e"
          u" !\u0d1f\u0d20\u0d21\u0d22\u0d23\u0d24)(\u0d25\u0d26,\u0d27.\u0d28"
          u"0123456789:; \u0d2a\u0d2b?"
          u"\u0d2c\u0d2d\u0d2e\u0d2f\u0d30\u0d31\u0d32\u0d33\u0d34\u0d35\u0d36\u0d37\u0d38\u0d39 \u0d3d"
          u"\u0d3e\u0d3f\u0d40\u0d41\u0d42\u0d43\u0d44 \u0d46\u0d47\u0d48 \u0d4a\u0d4b\u0d4c\u0d4d"
          u"\u0d57abcdefghijklmno"
          u"pqrstuvwxyz\u0d60\u0d61\u0d62\u0d63\u0d79");

constexpr GsmTable oriyaLocking =
    table(u"\u0b01\u0b02\u0b03\u0b05\u0b06\u0b07\u0b08\u0b09\u0b0a\u0b0b\n\u0b0c \r \u0b0f"
          u"\u0b10  \u0b13\u0b14\u0b15\u0b16\u0b17\u0b18\u0b19\u0b1a\0\u0b1b\u0b1c\u0b1d\u0b1e"
          u" !\u0b1f\u0b20\u0b21\u0b22\u0b23\u0b24)(\u0b25\u0b26,\u0b27.\u0b28"
          u"0123456789:; \u0b2a\u0b2b?"
          u"\u0b2c\u0b2d\u0b2e\u0b2f\u0b30 \u0b32\u0b33 \u0b35\u0b36\u0b37\u0b38\u0b39\u0b3c\u0b3d"
          u"\u0b3e\u0b3f\u0b40\u0b41\u0b42\u0b43\u0b44  \u0b47\u0b48  \u0b4b\u0b4c\u0b4d"
          u"\u0b56abcdefghijklmno"
          u"pqrstuvwxyz\u0b57\u0b60\u0b61\u0b62\u0b63");

constexpr GsmTable punjabiLocking =
    table(u"\u0a01\u0a02\u0a03\u0a05\u0a06\u0a07\u0a08\u0a09\u0a0a \n  \r \u0a0f"
          u"\u0a10  \u0a13\u0a14\u0a15\u0a16\u0a17\u0a18\u0a19\u0a1a\0\u0a1b\u0a1c\u0a1d\u0a1e"
          u" !\u0a1f\u0a20\u0a21\u0a22\u0a23\u0a24)(\u0a25\u0a26,\u0a27.\u0a28"
          u"0123456789:; \u0a2a\u0a2b?"
          u"\u0a2c\u0a2d\u0a2e\u0a2f\u0a30 \u0a32\u0a33 \u0a35\u0a36 \u0a38\u0a39\u0a3c "
          u"\u0a3e\u0a3f\u0a40\u0a41\u0a42    \u0a47\u0a48  \u0a4b\u0a4c\u0a4d"
          u"\u0a51abcdefghijklmno"
          u"pqrstuvwxyz\u0a70\u0a71\u0a72\u0a73\u0a74");

constexpr GsmTable tamilLocking =
    table(u" \u0b82\u0b83\u0b85\u0b86\u0b87\u0b88\u0b89\u0b8a \n  \r\u0b8e\u0b8f"
          u"\u0b90 \u0b92\u0b93\u0b94\u0b95   \u0b99\u0b9a\0 \u0b9c \u0b9e"
          u" !\u0b9f   \u0ba3\u0ba4)(  , .\u0ba8"
          u"0123456789:;\u0ba9\u0baa ?"
          u"  \u0bae\u0baf\u0bb0\u0bb1\u0bb2\u0bb3\u0bb4\u0bb5\u0bb6\u0bb7\u0bb8\u0bb9  "
          u"\u0bbe\u0bbf\u0bc0\u0bc1\u0bc2   \u0bc6\u0bc7\u0bc8 \u0bca\u0bcb\u0bcc\u0bcd"
          u"\u0bd0abcdefghijklmno"
          u"pqrstuvwxyz\u0bd7\u0bf0\u0bf1\u0bf2\u0bf9");

constexpr GsmTable teluguLocking =
    table(u"\u0c01\u0c02\u0c03\u0c05\u0c06\u0c07\u0c08\u0c09\u0c0a\u0c0b\n\u0c0c \r\u0c0e\u0c0f"
          u"\u0c10 \u0c12\u0c13\u0c14\u0c15\u0c16\u0c17\u0c18\u0c19\u0c1a\0\u0c1b\u0c1c\u0c1d\u0c1e"
          u" !\u0c1f\u0c20\u0c21\u0c22\u0c23\u0c24)(\u0c25\u0c26,\u0c27.\u0c28"
          u"0123456789:; \u0c2a\u0c2b?"
          u"\u0c2c\u0c2d\u0c2e\u0c2f\u0c30\u0c31\u0c32\u0c33 \u0c35\u0c36\u0c37\u0c38\u0c39 \u0c3d"
          u"\u0c3e\u0c3f\u0c40\u0c41\u0c42\u0c43\u0c44 \u0c46\u0c47\u0c48 \u0c4a\u0c4b\u0c4c\u0c4d"
          u"\u0c55abcdefghijklmno"
          u"pqrstuvwxyz\u0c56\u0c60\u0c61\u0c62\u0c63");

constexpr GsmTable urduLocking =
    table(u"\u0627\u0622\u0628\u067b\u0680\u067e\u06a6\u062a\u06c2\u067f\n\u0679\u067d\r\u067a\u067c"
          u"\u062b\u062c\u0681\u0684\u0683\u0685\u0686\u0687\u062d\u062e\u062f\0\u068c\u0688\u0689\u068a"
          u" !\u068f\u068d\u0630\u0631\u0691\u0693)(\u0699\u0632,\u0696.\u0698"
          u"0123456789:;\u069a\u0633\u0634?"
          u"\u0635\u0636\u0637\u0638\u0639\u0641\u0642\u06a9\u06aa\u06ab\u06af\u06b3\u06b1\u0644\u0645\u0646"
          u"\u06ba\u06bb\u06bc\u0648\u06c4\u06d5\u06c1\u06be\u0621\u06cc\u06d0\u06d2\u064d\u0650\u064f\u0657"
          u"\u0654abcdefghijklmno"
          u"pqrstuvwxyz\u0655\u0651\u0653\u0656\u0670");

/// By language identifier.
constexpr const GsmTable *lockingTables[] = {
    &defaultTable,    &turkishLocking, &defaultTable,   &portugueseLocking, &bengaliLocking,
    &gujaratiLocking, &hindiLocking,   &kannadaLocking, &malayalamLocking,  &oriyaLocking,
    &punjabiLocking,  &tamilLocking,   &teluguLocking,  &urduLocking,
};

} // namespace

const GsmTable &gsmLockingTable(int language)
{
    return language >= 0 && language < int(std::size(lockingTables)) ? *lockingTables[language]
                                                                     : defaultTable;
}

bool hasLockingTable(int language)
{
    return &gsmLockingTable(language) != &defaultTable;
}

} // namespace corva

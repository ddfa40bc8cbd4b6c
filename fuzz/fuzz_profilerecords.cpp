// SPDX-License-Identifier: GPL-3.0-or-later
// Any record file comes out as it went in, and what is changed is found again.
#include "connection/profilechecks.h"
#include "connection/profilerecords.h"
#include "require.h"

using namespace corva;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    ProfileRecords records(text);
    REQUIRE(records.toBytes() == text);
    for (qsizetype i = 0; i < records.size(); ++i) {
        records.change(i, records.at(i));
        REQUIRE(records.only(i).at(0) == records.at(i));
    }
    REQUIRE(records.toBytes() == text);

    ConnectionProfile profile;
    for (int field = 0; field < profileFieldCount; ++field)
        profile.setText(ProfileField(field), QString::number(field));
    const qsizetype count = records.size();
    records.append(profile);
    REQUIRE(ProfileRecords(records.toBytes()).size() == count + 1);
    REQUIRE(ProfileRecords(records.toBytes()).at(count) == profile);
    for (qsizetype i = 0; i < count; ++i) {
        (void)profileRefusal(records.at(i));
        records.change(i, profile);
        REQUIRE(ProfileRecords(records.toBytes()).at(i) == profile);
    }
    records.remove(0);
    REQUIRE(ProfileRecords(records.toBytes()).size() == count);
    return 0;
}

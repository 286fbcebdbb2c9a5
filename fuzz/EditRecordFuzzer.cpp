// SPDX-License-Identifier: GPL-2.0-or-later
// The XMP packet of a picture of unknown origin: its records are read, or it is refused by an
// exception; what was read is the same after it has been added to a new packet.
#include "Zorvik/Exception.h"
#include "photo/metadata/EditRecord.h"

#include <QByteArray>

#include <cstdint>
#include <cstdlib>

using LumetraHost::EditRecord;
using LumetraHost::EditRecords;

namespace {

/// XMP holds no text that XML cannot hold.
bool CanBeWritten(const std::vector<EditRecord>& records)
{
    for (const EditRecord& record : records)
        if (record.preset.empty())
            return false;
    return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray packet(reinterpret_cast<const char*>(data), static_cast<int>(size));
    try {
        const auto records = EditRecords::Read(packet);
        if (!CanBeWritten(records))
            return 0;
        const auto again = EditRecords::Read(EditRecords::Add({}, records, "fuzz"));
        if (again.size() != records.size())
            std::abort();
        for (std::size_t i = 0; i < records.size(); ++i)
            if (again[i].preset != records[i].preset || again[i].look != records[i].look ||
                again[i].intensity != records[i].intensity)
                std::abort();
    } catch (const Zorvik::Exception&) {
    }
    return 0;
}

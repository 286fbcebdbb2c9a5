// SPDX-License-Identifier: GPL-2.0-or-later
// A text that the JSON reader accepts is written and read again: nothing may change on the way. All
// other texts must be refused with a place.
#include "storage/JsonDocument.h"
#include "storage/JsonException.h"

#include <cstdint>
#include <cstdlib>

using LumetraHost::JsonDocument;
using LumetraHost::JsonException;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    try {
        const QByteArray first = JsonDocument::Parse(text, "fuzz").ToText();
        const QByteArray second = JsonDocument::Parse(first, "fuzz").ToText();
        if (first != second)
            std::abort();
    } catch (const JsonException& error) {
        if (error.GetPlace().line == 0 || error.GetPlace().column == 0)
            std::abort();
    }
    return 0;
}

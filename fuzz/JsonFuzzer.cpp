// SPDX-License-Identifier: GPL-2.0-or-later
// What the JSON reader takes is written and read again: nothing may change on the way. Everything
// else must be refused with a place, and by both of the reader's ways to read.
#include "storage/JsonDocument.h"
#include "storage/JsonException.h"
#include "storage/JsonParser.h"
#include "storage/JsonScanner.h"
#include "storage/JsonWriter.h"

#include <cstdint>
#include <cstdlib>

using LumetraHost::JsonDocument;
using LumetraHost::JsonException;
using LumetraHost::JsonParser;
using LumetraHost::JsonScanner;
using LumetraHost::JsonWriter;

namespace {

std::string Parsed(std::string_view text)
{
    try {
        return JsonWriter::Write(*JsonParser::Parse(text, "fuzz"));
    } catch (const JsonException&) {
        return {};
    }
}

/// The scanner may leave a text to the parser, as it does with numbers that are too small for a
/// double. What it takes, the parser takes too and reads alike.
void Compare(std::string_view text)
{
    const auto scanned = JsonScanner(text).Scan();
    if (scanned && JsonWriter::Write(*scanned) != Parsed(text))
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    Compare({text.constData(), size});
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

// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LutExport.h"

#include "Zorvik/Exception.h"
#include "lut/LookExport.h"
#include "lut/LutWriter.h"
#include "storage/CheckedFileWriter.h"

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

using LumetraHost::LookExport;
using LumetraHost::LutFormat;
using LumetraHost::LutWriter;
using Zorvik::Quindle::EffectsSettings;

[[noreturn]] void Fail(const std::string& text)
{
    throw Zorvik::Exception(text, BOOST_CURRENT_FUNCTION, "core/LutExport", __LINE__);
}

/// The part of the look that fits into a table.
EffectsSettings TakeColours(const EffectsSettings& look)
{
    const EffectsSettings colours = LookExport::TakeColours(look);
    if (LookExport::ChangesNothing(colours))
        Fail("expected effects of colour, which fit into a table, found none");
    return colours;
}

} // namespace

std::optional<LutFormat> LutExport::FindFormat(const QString& path)
{
    const auto format = LumetraHost::GetLutFormatOfName(path);
    return format && LutWriter::CanWrite(*format) ? format : std::nullopt;
}

int LutExport::GetDefaultSize(LutFormat format)
{
    return format == LutFormat::Hald ? 64 : 33;
}

std::vector<std::string> LutExport::Write(const Request& request)
{
    auto unfit = LookExport::FindUnfitEffects(request.look);
    if (!unfit.empty() && !request.isColoursOnly)
        Fail(LookExport::DescribeUnfit(unfit));
    const EffectsSettings look = unfit.empty() ? request.look : TakeColours(request.look);
    const auto table = LookExport::MakeTable(look, request.size);
    LumetraHost::CheckedFileWriter::Write(
        request.path, LutWriter::Encode(table, request.format, request.title, request.path));
    return unfit;
}

} // namespace LumetraPlugin

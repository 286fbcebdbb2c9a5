// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExportCases.h"

#include "ApplyParts.h"
#include "PipelinedCodec.h"
#include "Thumbnails.h"

#include "common/Effects.h"
#include "engine/effects/EffectKinds.h"
#include "exporting/Export.h"
#include "photo/PhotoReader.h"
#include "storage/CheckedFileWriter.h"
#include "threads/ThreadPool.h"

#include <atomic>
#include <functional>
#include <future>
#include <map>
#include <memory>
#include <utility>

namespace LumetraBench {
namespace {

using namespace LumetraHost;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectsSettings;

constexpr int Thumbnails = 60;

/// The chain that PeerCommands repeats.
EffectsSettings MakeColours(double stops)
{
    EffectsSettings settings(1);
    settings.Effects() = MakeFiveColourEffects(stops);
    return settings;
}

/// The looks of the thumbnails, all different.
std::vector<EffectsSettings> GetLooks()
{
    std::vector<EffectsSettings> looks;
    for (int i = 0; i < Thumbnails; ++i)
        looks.push_back(MakeColours(0.02 * i));
    return looks;
}

EffectsSettings MakeNeighbours()
{
    EffectsSettings settings(1);
    settings.Effects() = {
        MakeEffect("clarity", {{"amount", 40}}), MakeEffect("sharpen", {{"amount", 80}}),
        MakeEffect("vignette", {{"amount", -1}}), MakeEffect("grain", {{"amount", 25}})};
    return settings;
}

EffectsSettings MakeAll()
{
    EffectsSettings settings = MakeColours(0.4);
    const EffectsSettings neighbours = MakeNeighbours();
    for (const EffectPtr& effect : neighbours.Effects())
        settings.Effects().push_back(effect);
    return settings;
}

ExportRecipe MakeRecipe(const EffectsSettings& settings,
                        ExportLook::Precision precision = ExportLook::Precision::Tables)
{
    ExportRecipe recipe;
    recipe.look = std::make_shared<ExportLook>(std::vector{settings}, precision);
    return recipe;
}

/// Exports from file to file, decoded in bands.
void ExportFile(const QStringList& files, const ExportRecipe& recipe, int threads = 0)
{
    ExportControl control;
    control.threads = threads;
    Export().Run(files[0], files[1], recipe, control);
}

/// Exports a photo that is whole in memory, as the editor has it.
void ExportWhole(const QStringList& files, const ExportRecipe& recipe)
{
    const auto result = Export().MakeFromPhoto(PhotoReader::Read(files[0]), recipe, "out");
    CheckedFileWriter::Write(files[1], result.file.data(), result.file.size());
}

/// Exports as lumetra-presets does: a thread for each of several photos.
void ExportEach(const QStringList& files, const ExportRecipe& recipe)
{
    std::atomic<int> next{0};
    const auto work = [&] {
        for (int i = next++; 2 * i + 1 < files.size(); i = next++)
            ExportFile(files.mid(2 * i, 2), recipe, 1);
    };
    std::vector<std::future<void>> threads;
    for (int i = 0; i < ThreadPool::GetShared().GetThreadCount(); ++i)
        threads.push_back(std::async(std::launch::async, work));
    for (auto& thread : threads)
        thread.get();
}

void RunCodecEach(const QStringList& files)
{
    for (int i = 0; i + 1 < files.size(); i += 2)
        RunPipelinedCodec(files[i], files[i + 1]);
}

} // namespace

bool RunCase(const std::string& name, const QStringList& files)
{
    RegisterEffects();
    const EffectsSettings colours = MakeColours(0.4);
    const std::map<std::string, std::function<void()>> cases = {
        {"idle", [] { ThreadPool::GetShared(); }},
        {"codec", [&] { RunPipelinedCodec(files[0], files[1]); }},
        {"codec-each", [&] { RunCodecEach(files); }},
        {"decode-eighth", [&] { RunReducedDecode(files[0], ThumbnailSide); }},
        {"thumbnails", [&] { MakeThumbnails(files, GetLooks()); }},
        {"thumbnails-ocio", [&] { MakeOcioThumbnails(files, GetLooks()); }},
        {"thumbnails-ocio-whole", [&] { MakeWholeOcioThumbnails(files, GetLooks()); }},
        {"exact", [&] { ExportFile(files, MakeRecipe(colours, ExportLook::Precision::Exact)); }},
        {"colour", [&] { ExportFile(files, MakeRecipe(colours)); }},
        {"colour-each", [&] { ExportEach(files, MakeRecipe(colours)); }},
        {"spatial", [&] { ExportFile(files, MakeRecipe(MakeNeighbours())); }},
        {"all", [&] { ExportFile(files, MakeRecipe(MakeAll())); }},
        {"whole", [&] { ExportWhole(files, MakeRecipe(colours)); }},
        {"apply-parts", [&] { MeasureApplyParts(files[0], files[1]); }}};
    const auto found = cases.find(name);
    if (found == cases.end())
        return false;
    found->second();
    return true;
}

} // namespace LumetraBench

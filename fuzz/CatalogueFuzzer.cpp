// SPDX-License-Identifier: GPL-2.0-or-later
// A catalogue of unknown origin in the presets model: every error is reported, and content that
// passes the checks can be read by the model and by the roles of a view.
#include "EffectPresets/EffectPresetModel.h"
#include "catalogue/CatalogueParser.h"
#include "core/PresetControllerFactory.h"
#include "engine/effects/EffectKinds.h"
#include "storage/JsonException.h"

#include <cstdint>
#include <cstdlib>

using LumetraHost::CatalogueParser;
using LumetraHost::JsonDocument;
using LumetraPlugin::PresetControllerFactory;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

namespace {

void ReadRoles(const EffectPresetModel& model)
{
    for (int group = 0; group < model.rowCount(); ++group) {
        const QModelIndex parent = model.index(group, 0);
        for (int row = 0; row < model.rowCount(parent); ++row)
            for (int role = EffectPresetModel::PresetNameRole;
                 role <= EffectPresetModel::DownloadableRole; ++role)
                if (role != EffectPresetModel::PreviewImageRole)
                    model.data(model.index(row, 0, parent), role);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    LumetraHost::RegisterEffects();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    CatalogueParser parser(PresetControllerFactory::GetKinds());
    try {
        parser.AddDocument(JsonDocument::Parse(text, "fuzz"));
    } catch (const LumetraHost::JsonException&) {
        return 0;
    }
    EffectPresetModel model(std::make_shared<PresetControllerFactory>("fuzz"));
    parser.Parse(model, nullptr);
    for (const auto& report : parser.GetReports())
        if (report.place.line == 0)
            std::abort();
    ReadRoles(model);
    return 0;
}

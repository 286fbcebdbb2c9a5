// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportLayer.h"

#include <optional>

namespace LumetraHost {
namespace {

PictureRunForm With(const ExportLook::Layer& layer, PictureRunForm form)
{
    form.blendAmount = layer.blendAmount;
    form.table = layer.table;
    return form;
}

std::optional<ColourSpace> GetFirstSpace(const ExportLook::Layer& layer)
{
    if (layer.table)
        return ColourSpace::Encoded;
    return std::nullopt;
}

} // namespace

ExportLayer::ExportLayer(const ExportLook::Layer& layer, const PictureRunForm& form)
    : m_hasTable(layer.table != nullptr),
      m_plan(layer.effects, {form.isa, PictureArea::Whole(form.width, form.height), form.depth},
             GetFirstSpace(layer)),
      m_run(m_plan, With(layer, form))
{
}

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/run/PictureRun.h"
#include "engine/run/RenderPlan.h"
#include "exporting/ExportLook.h"

namespace LumetraHost {

/// A layer of a look, made for one run of one graph, which it outlives.
class ExportLayer
{
public:
    /// `form` without what the layer knows: table and blend amount.
    ExportLayer(const ExportLook::Layer& layer, const PictureRunForm& form);

    bool ChangesNothing() const { return m_plan.IsEmpty() && !m_hasTable; }
    PictureRun& GetRun() { return m_run; }
    const PictureRun& GetRun() const { return m_run; }

private:
    const bool m_hasTable;
    const RenderPlan m_plan;
    PictureRun m_run;
};

} // namespace LumetraHost

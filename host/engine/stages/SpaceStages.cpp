// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/stages/SpaceStages.h"

#include "engine/stages/MatrixStage.h"
#include "engine/stages/TransferStage.h"

namespace LumetraHost {
namespace {

StagePtr MakeMatrix(const ColourMatrix& matrix, Isa isa)
{
    return std::make_shared<MatrixStage>(matrix, ColourSpace::Linear, isa);
}

} // namespace

std::vector<StagePtr> MakeStagesFromSpace(const std::shared_ptr<const RgbSpace>& space, Isa isa)
{
    std::vector<StagePtr> stages;
    if (!space->HasSrgbCurves())
        stages.push_back(
            std::make_shared<TransferStage>(space, TransferStage::Direction::Load, isa));
    stages.push_back(MakeMatrix({space->GetToSrgb()}, isa));
    return stages;
}

std::vector<StagePtr> MakeStagesToSpace(const std::shared_ptr<const RgbSpace>& space, Isa isa)
{
    std::vector<StagePtr> stages;
    stages.push_back(MakeMatrix(ColourMatrix{space->GetToSrgb()}.Inverse(), isa));
    if (!space->HasSrgbCurves())
        stages.push_back(
            std::make_shared<TransferStage>(space, TransferStage::Direction::Store, isa));
    return stages;
}

} // namespace LumetraHost

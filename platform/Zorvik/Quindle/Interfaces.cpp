// SPDX-License-Identifier: MIT
// The interfaces' destructors stand here, in the one place that emits their virtual tables and type
// information.
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/IStatisticsEventHandler.h"

namespace Zorvik::Quindle {

IQuindleDrawer::~IQuindleDrawer() = default;
IQuindleDrawerPainter::~IQuindleDrawerPainter() = default;
IStatisticsEventHandler::~IStatisticsEventHandler() = default;

} // namespace Zorvik::Quindle

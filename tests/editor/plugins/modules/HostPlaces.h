// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/effects/EffectKinds.h"
#include "threads/ThreadPool.h"

#include <QString>

/// The addresses of the host's pool of threads and of its kinds of effect, as the file that
/// includes this sees them.
inline QString DescribeHostPlaces()
{
    return QStringLiteral("%1 %2")
        .arg(reinterpret_cast<quintptr>(&LumetraHost::ThreadPool::GetShared()))
        .arg(reinterpret_cast<quintptr>(&LumetraHost::EffectKinds::GetAll()));
}

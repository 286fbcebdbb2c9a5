// SPDX-License-Identifier: GPL-2.0-or-later
#include "SceneObject.h"

namespace LumetraSample {

float SceneObject::Relief(const Vec3& /*point*/) const
{
    return 0.0f;
}

} // namespace LumetraSample

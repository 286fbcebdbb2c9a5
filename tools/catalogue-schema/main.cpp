// SPDX-License-Identifier: GPL-2.0-or-later
#include "CatalogueSchema.h"

#include "engine/effects/EffectKinds.h"

#include <iostream>

int main()
{
    LumetraHost::RegisterEffects();
    std::cout << LumetraTools::CatalogueSchema::ToText() << std::flush;
    return std::cout ? 0 : 1;
}

// SPDX-License-Identifier: GPL-2.0-or-later
#include "UnresolvedModule.h"

QString GetTitleOfAnotherRelease();

QString UnresolvedModule::GetTitle() const
{
    return GetTitleOfAnotherRelease();
}

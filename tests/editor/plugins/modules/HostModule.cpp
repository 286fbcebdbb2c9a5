// SPDX-License-Identifier: GPL-2.0-or-later
#include "HostModule.h"

#include "HostPlaces.h"

QString HostModule::GetTitle() const
{
    return DescribeHostPlaces();
}

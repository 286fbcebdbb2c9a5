// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <string>
#include <utility>
#include <vector>

namespace Zorvik::Quindle {
class IQuindleDrawer;
class IStatisticsEventHandler;
class ResetSettings;
} // namespace Zorvik::Quindle

namespace Zorvik::Util {
class IImageConverter;
}

namespace Zorvik::Lumetra {

/// Takes packages off the photo on request of presets. The host implements it.
class ZORVIKPLATFORM_EXPORT IResetReceiver
{
public:
    /// Takes the open package of that index off, with its painting. Does nothing when there is
    /// none.
    virtual void ResetPackage(const Quindle::ResetSettings& request) = 0;

    virtual ~IResetReceiver();
};

/// Learns which presets there are. The host implements it.
class ZORVIKPLATFORM_EXPORT IPresetRegistry
{
public:
    /// Replaces the list of (preset id, store id) pairs, which may hold a pair twice. The store id
    /// is empty for content that no store sells. A preset model calls it whenever it is attached to
    /// a workspace, even with an empty list.
    virtual void
    RegisterPresets(const std::vector<std::pair<std::string, std::string>>& idsAndStoreIds) = 0;

    virtual ~IPresetRegistry();
};

/// A workspace has the drawer of one photo and what belongs to it. The host implements it and holds
/// it as `std::shared_ptr`; presets hold it weakly. The five parts that it returns live as long as
/// it does and stay the same objects.
class ZORVIKPLATFORM_EXPORT IWorkspaceController
{
public:
    /// Returns the drawer that presets are applied to and render their previews with.
    virtual Quindle::IQuindleDrawer& GetCoreDrawer() = 0;
    /// Returns the receiver of usage events.
    virtual Quindle::IStatisticsEventHandler& GetStatisticsEventHandler() = 0;
    /// Returns the converter from rendered frames to the display's colours, for previews.
    virtual const Util::IImageConverter& GetImageConverter() = 0;
    /// Returns the receiver of requests to take a package off, for presets that are switched off.
    virtual IResetReceiver& GetResetReceiver() = 0;
    /// Returns the receiver of the list of presets.
    virtual IPresetRegistry& GetPresetRegistry() = 0;

    virtual ~IWorkspaceController();
};

} // namespace Zorvik::Lumetra

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

/// Takes packages off the photo on request.
class ZORVIKPLATFORM_EXPORT IResetReceiver
{
public:
    /// Takes the open package of that index off, with its painting; nothing when there is none.
    virtual void ResetPackage(const Quindle::ResetSettings& request) = 0;

    virtual ~IResetReceiver();
};

/// Learns which presets there are.
class ZORVIKPLATFORM_EXPORT IPresetRegistry
{
public:
    /// Replaces the list of (preset id, store id) pairs; the store id is empty for content that no
    /// store sells.
    virtual void
    RegisterPresets(const std::vector<std::pair<std::string, std::string>>& idsAndStoreIds) = 0;

    virtual ~IPresetRegistry();
};

/// One open photo and what belongs to it. Held by the host as `std::shared_ptr`; its five parts
/// live as long as it does.
class ZORVIKPLATFORM_EXPORT IWorkspaceController
{
public:
    virtual Quindle::IQuindleDrawer& GetCoreDrawer() = 0;
    virtual Quindle::IStatisticsEventHandler& GetStatisticsEventHandler() = 0;
    virtual const Util::IImageConverter& GetImageConverter() = 0;
    virtual IResetReceiver& GetResetReceiver() = 0;
    virtual IPresetRegistry& GetPresetRegistry() = 0;

    virtual ~IWorkspaceController();
};

} // namespace Zorvik::Lumetra

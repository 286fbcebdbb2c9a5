// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <string>

namespace Zorvik::Quindle {

/// Which layer of the drawer a set of effects belongs to: the layer's name and index, and the
/// preset that was drawn into it. A plain value; index 0xFFFFFFFF means none.
class ZORVIKPLATFORM_EXPORT EffectsSettingsPackage
{
public:
    const std::string& GetPackageName() const;
    void SetPackageName(const std::string& name);

    const std::string& GetPresetName() const;
    void SetPresetName(const std::string& name);

    unsigned GetIndex() const;
    void SetIndex(unsigned index);

private:
    std::string m_packageName;
    std::string m_presetName;
    unsigned m_index = 0xFFFFFFFF;
};

} // namespace Zorvik::Quindle

// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>

#include <string>

namespace Zorvik::Lumetra::LumetraPresets {

class IEffectPresetController;

/// Makes preset controllers; implemented by the host, shared with the model. Never returns null.
class LUMETRAPRESETSUTIL_EXPORT IEffectPresetControllerFactory
{
public:
    virtual ~IEffectPresetControllerFactory();

    /// `kind` is the catalogue's controller kind; "" asks for the host's default kind.
    virtual boost::intrusive_ptr<IEffectPresetController>
    CreateController(const std::string& kind) = 0;
    /// A new preset, with an ID of its own, that starts from the settings of `source`.
    virtual boost::intrusive_ptr<IEffectPresetController>
    CopyController(const boost::intrusive_ptr<IEffectPresetController>& source) = 0;

    IEffectPresetControllerFactory();
    IEffectPresetControllerFactory(const IEffectPresetControllerFactory& other);
    IEffectPresetControllerFactory& operator=(const IEffectPresetControllerFactory& other);
};

} // namespace Zorvik::Lumetra::LumetraPresets

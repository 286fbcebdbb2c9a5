// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetControllerFactory.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

constexpr char DefaultKind[] = "";
constexpr char PhotoKind[] = "photo";

[[noreturn]] void Fail(const std::string& description, const char* function, int line)
{
    throw Zorvik::Exception(description, function, "core/PresetControllerFactory", line);
}

} // namespace

PresetControllerFactory::PresetControllerFactory(const std::string& packageName)
    : m_packageName(packageName), m_previews(std::make_shared<PreviewOptions>())
{
}

PresetControllerFactory::~PresetControllerFactory() = default;

const std::set<std::string>& PresetControllerFactory::GetKinds()
{
    static const std::set<std::string> kinds = {DefaultKind, PhotoKind};
    return kinds;
}

void PresetControllerFactory::SetPreviewOptions(const PreviewOptions& options)
{
    *m_previews = options;
}

PresetControllerFactory::ControllerPtr
PresetControllerFactory::CreateController(const std::string& kind)
{
    if (GetKinds().count(kind) == 0)
        Fail("expected a kind of preset controller (\"\", \"photo\"), found \"" + kind + "\"",
             BOOST_CURRENT_FUNCTION, __LINE__);
    return new PresetController(m_packageName, m_previews);
}

PresetControllerFactory::ControllerPtr
PresetControllerFactory::CopyController(const ControllerPtr& source)
{
    const auto* preset = dynamic_cast<const PresetController*>(source.get());
    if (!preset)
        Fail("expected a preset of this program to copy", BOOST_CURRENT_FUNCTION, __LINE__);
    return preset->Copy();
}

} // namespace LumetraPlugin

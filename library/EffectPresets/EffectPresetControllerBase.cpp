// SPDX-License-Identifier: MIT
#include "EffectPresets/EffectPresetControllerBase.h"

#include "Settings/BlendingSetting.h"
#include "Settings/SettingKeys.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SettingsKeys.h"
#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"
#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/ResetSettings.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"
#include "Zorvik/Util/ObjectsConnector.h"

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

using Quindle::EffectsSettings;
using Quindle::IQuindleDrawerPainter;
using Quindle::SettingsPainterEffectsPackage;

constexpr unsigned NoIndex = Quindle::EffectsSettingsPackage::NoIndex;

void ListenToDrawerLock(EffectPresetControllerBase* receiver)
{
    static const QString slot = QStringLiteral("1OnCoreDrawerLock(bool)");
    Util::ObjectsConnector::registerReceiver(LumetraInt::IObjectsConnectorID::CORE_DRAWER_LOCK,
                                             receiver, slot, false);
}

boost::intrusive_ptr<SettingsPainterEffectsPackage> CreatePainterPackage(IntensitySettingType type)
{
    if (type == IntensitySettingType::Blending)
        return Quindle::SettingsPainterEffectsPackageBlendSource::Create();
    return Quindle::SettingsPainterEffectsPackageOneInput::Create();
}

} // namespace

EffectPresetControllerBase::EffectPresetControllerBase(const std::string& packageName)
    : m_packageName(packageName)
{
    ListenToDrawerLock(this);
}

EffectPresetControllerBase::EffectPresetControllerBase(const EffectPresetControllerBase& other)
    : WorkspaceReference(), IWorkspaceUser(), IRefCountable(), ISerializable(),
      IEffectPresetController(), QObject(), EffectPresetControllerAbstract(other),
      m_waitApply(other.m_waitApply), m_packageName(other.m_packageName)
{
    ListenToDrawerLock(this);
}

// The destructor unregisters nothing, because the bus drops dead receivers itself.
EffectPresetControllerBase::~EffectPresetControllerBase() = default;

void EffectPresetControllerBase::OnCoreDrawerLock(bool locked)
{
    m_drawerLocked = locked;
}

unsigned int EffectPresetControllerBase::AddRef() const
{
    return m_ownRefCount.AddRefImpl();
}

unsigned int EffectPresetControllerBase::Release() const
{
    const unsigned int count = m_ownRefCount.ReleaseImpl();
    if (count == 0)
        delete this;
    return count;
}

unsigned int EffectPresetControllerBase::GetRefCount() const
{
    return m_ownRefCount.GetRefCountImpl();
}

bool EffectPresetControllerBase::ApplySettingsOnProgress() const
{
    return false;
}

void EffectPresetControllerBase::ApplyInternal()
{
    if (m_drawerLocked)
        return;
    const auto workspace = GetWorkspaceController(true);
    auto& drawer = workspace->GetCoreDrawer();

    EffectsSettings effects(EffectsSettings::PhotoAlone);
    effects.SetEffectsConst(GetEffectInfo(false));
    effects.SetWaitApply(m_waitApply);

    // A package of our name that is open on top is used again; the preset's own index wins.
    const Quindle::EffectsSettingsPackage top = drawer.GetPackage(NoIndex);
    const unsigned candidate =
        top.GetPackageName() == m_packageName ? top.GetIndex() : drawer.GetDefaultPackageIndex();
    effects.Package().SetPackageName(m_packageName);
    effects.Package().SetPresetName(m_id);
    const unsigned index = m_resetIndex != NoIndex ? m_resetIndex : candidate;
    if (index != NoIndex)
        effects.Package().SetIndex(index);

    Intensity().SaveValue(effects);
    drawer.ApplyEffect(effects, std::map<std::string, int>());
    m_painting = false;
    m_resetIndex = index;
}

void EffectPresetControllerBase::ResetInternal()
{
    const auto workspace = GetWorkspaceController(true);
    const unsigned index = workspace->GetCoreDrawer().GetPackageIndex(m_packageName);
    if (index != NoIndex)
        workspace->GetResetReceiver().ResetPackage(Quindle::ResetSettings(index));
}

void EffectPresetControllerBase::SetIntensity(int value, bool live)
{
    EffectsSettings update(EffectsSettings::PhotoAlone);
    const int before = Intensity().Value();
    EffectPresetControllerAbstract::SetIntensity(value, live);
    if (Intensity().Value() == before || !live)
        return;
    if (FillLiveUpdate(update))
        DrawLive(update);
}

/// Fills `update` with what the painter needs for the current intensity. False when there is
/// nothing to draw.
bool EffectPresetControllerBase::FillLiveUpdate(EffectsSettings& update) const
{
    // The casts are dynamic, because the settings derive virtually from their interface.
    if (const auto* blending = dynamic_cast<const BlendingSetting*>(&Intensity())) {
        update.SetBlendAmount(blending->ValueToCore());
        return true;
    }
    const auto* slider = dynamic_cast<const SliderSetting*>(&Intensity());
    if (!slider)
        return false;
    Quindle::EffectList effects = GetEffectInfoInternal(false);
    slider->SaveValue(effects);
    for (const std::string& effectID : slider->GetEffectIDs())
        if (const auto effect = Quindle::IEffectSettings::Find(effects, effectID))
            update.Effects().push_back(effect);
    return true;
}

void EffectPresetControllerBase::DrawLive(const EffectsSettings& update)
{
    const auto package = CreatePainterPackage(Intensity().GetType());
    const auto workspace = GetWorkspaceController(true);
    auto& drawer = workspace->GetCoreDrawer();
    if (!m_painting) {
        m_painting = true;
        package->SetPackageName(m_packageName);
        package->SetPresetName(m_id);
        package->SetIsNeedRestoreAlpha(true);
        drawer.GetPainter().StartPainting(package);
        drawer.GetPainter().SetPositions(IQuindleDrawerPainter::MAX_POS,
                                         IQuindleDrawerPainter::MAX_POS);
    }
    drawer.GetPainter().UpdatePainting(update, 0);
}

void EffectPresetControllerBase::IntensityChangeEnd()
{
    if (!m_painting)
        return;
    const auto workspace = GetWorkspaceController(true);
    workspace->GetCoreDrawer().GetPainter().FinishPainting(IQuindleDrawerPainter::MAX_POS,
                                                           IQuindleDrawerPainter::MAX_POS, false);
    m_painting = false;
}

void EffectPresetControllerBase::Serialize(const Brassel::SerializerPtr& node) const
{
    EffectPresetControllerAbstract::Serialize(node);
    const auto intensity = node->CreateNode(Brassel::Settings::ConfigData::INTENSITY);
    intensity->Set(SettingKeys::Type, static_cast<int>(Intensity().GetType()));
    intensity->WriteObject(Intensity().GetClassId(), Intensity());
}

} // namespace Zorvik::Lumetra::LumetraPresets

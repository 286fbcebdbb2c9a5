// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/lut3d/Lut3dSettings.h"

#include "engine/lut3d/LookUpTableText.h"
#include "engine/lut3d/Lut3dParameters.h"

#include "Zorvik/Brassel/SerializerProperty.h"

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Quindle::EffectPtr;

LookUpTablePtr ReadTable(const ConstSerializerPtr& node, const char* key, LookUpTable::Kind kind)
{
    const ConstSerializerPtr table = node->GetNode(key);
    return table ? std::make_shared<const LookUpTable>(LookUpTableText::Read(table, kind))
                 : nullptr;
}

} // namespace

Lut3dSettings::Lut3dSettings() : EffectSettingsImpl(Lut3dParameters::EffectId) {}

EffectPtr Lut3dSettings::Create()
{
    return new Lut3dSettings;
}

EffectPtr Lut3dSettings::Create(const LookUpTable* curve, const LookUpTable* cube)
{
    const auto node = Zorvik::Brassel::SerializerProperty::Create(
        std::make_shared<Zorvik::Core::Property>(Lut3dParameters::EffectId));
    node->Set(KEY_EFFECT_ID, Lut3dParameters::EffectId);
    if (curve)
        LookUpTableText::Write(*curve, node->CreateNode(KeyCurve));
    if (cube)
        LookUpTableText::Write(*cube, node->CreateNode(KeyCube));
    const EffectPtr effect = Create();
    static_cast<Zorvik::Brassel::ISerializable&>(*effect).Deserialize(node);
    return effect;
}

EffectPtr Lut3dSettings::Clone() const
{
    return new Lut3dSettings(*this);
}

void Lut3dSettings::Deserialize(const ConstSerializerPtr& node)
{
    if (!node)
        return;
    const LookUpTablePtr curve = ReadTable(node, KeyCurve, LookUpTable::Kind::Curve);
    const LookUpTablePtr cube = ReadTable(node, KeyCube, LookUpTable::Kind::Cube);
    EffectSettingsImpl::Deserialize(node);
    if (curve)
        m_curve = curve;
    if (cube)
        m_cube = cube;
}

} // namespace LumetraHost

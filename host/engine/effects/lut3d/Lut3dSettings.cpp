// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/Lut3dSettings.h"

#include "engine/effects/lut3d/LookUpTableText.h"
#include "engine/effects/lut3d/Lut3dEffect.h"
#include "engine/effects/lut3d/StoredTable.h"
#include "storage/NodeParts.h"

#include "Zorvik/Brassel/SerializerProperty.h"

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Quindle::EffectPtr;

StoredTablePtr ReadTable(const ConstSerializerPtr& node, const char* key, LookUpTable::Kind kind)
{
    const ConstSerializerPtr table = node->GetNode(key);
    return table ? StoredTable::Read(table, kind) : nullptr;
}

bool AreSame(const StoredTablePtr& first, const StoredTablePtr& second)
{
    return first && second ? first->IsSameAs(*second) : first == second;
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
    const StoredTablePtr curve = ReadTable(node, KeyCurve, LookUpTable::Kind::Curve);
    const StoredTablePtr cube = ReadTable(node, KeyCube, LookUpTable::Kind::Cube);
    // The base class would copy the numbers, and copy them again with every clone.
    EffectSettingsImpl::Deserialize(HideKeys(node, {KeyCurve, KeyCube, KeyFile}));
    if (curve)
        m_curve = curve;
    if (cube)
        m_cube = cube;
}

void Lut3dSettings::Serialize(const Zorvik::Brassel::SerializerPtr& node) const
{
    EffectSettingsImpl::Serialize(node);
    WriteTables(node);
}

void Lut3dSettings::WriteTables(const Zorvik::Brassel::SerializerPtr& node) const
{
    if (m_curve)
        m_curve->Write(node->CreateNode(KeyCurve));
    if (m_cube)
        m_cube->Write(node->CreateNode(KeyCube));
}

LookUpTablePtr Lut3dSettings::GetCurve() const
{
    return m_curve ? m_curve->GetTable() : nullptr;
}

LookUpTablePtr Lut3dSettings::GetCube() const
{
    return m_cube ? m_cube->GetTable() : nullptr;
}

bool Lut3dSettings::HasSameTables(const Lut3dSettings& other) const
{
    return AreSame(m_curve, other.m_curve) && AreSame(m_cube, other.m_cube);
}

std::string Lut3dSettings::FindProblem(ContentCheck check) const
{
    const std::string problem = m_curve ? m_curve->FindProblem(check) : std::string();
    return problem.empty() && m_cube ? m_cube->FindProblem(check) : problem;
}

} // namespace LumetraHost

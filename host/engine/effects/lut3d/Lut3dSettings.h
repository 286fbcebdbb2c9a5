// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/IStoredElsewhere.h"
#include "engine/effects/lut3d/LookUpTable.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

namespace LumetraHost {

class StoredTable;

/// The settings of the effect "lut3d": the number "strength" and, in the stored form beside it, the
/// nodes "curve" and "cube" (see LookUpTableText), both optional. Unknown keys of the stored form
/// are kept. The tables are immutable and shared by all clones; those in files are read when they
/// are first wanted. The stored form contains the tables' numbers, except in the file beside which
/// they are kept.
class Lut3dSettings : public Zorvik::Quindle::EffectSettingsImpl, public IStoredElsewhere
{
public:
    static constexpr char KeyCurve[] = "curve";
    static constexpr char KeyCube[] = "cube";
    /// The name of the file that the tables came from, in catalogues. It is not kept, for it leads
    /// nowhere from any other file.
    static constexpr char KeyFile[] = "file";

    /// An effect without tables. The effect kind must be registered.
    static Zorvik::Quindle::EffectPtr Create();
    /// An effect with these tables; null for none. Their numbers have the precision of the stored
    /// form.
    static Zorvik::Quindle::EffectPtr Create(const LookUpTable* curve, const LookUpTable* cube);

    /// Null when there is none. Zorvik::Exception that names the file when it cannot be read.
    LookUpTablePtr GetCurve() const;
    LookUpTablePtr GetCube() const;
    bool HasTables() const { return m_curve || m_cube; }
    /// Writes the tables alone. Zorvik::Exception as of Serialize().
    void WriteTables(const Zorvik::Brassel::SerializerPtr& node) const;
    /// True when both have tables that draw the same, or none. Reads no file.
    bool HasSameTables(const Lut3dSettings& other) const;

    Zorvik::Quindle::EffectPtr Clone() const override;
    /// Zorvik::Exception for a table that cannot be read; nothing is changed then.
    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node) override;
    /// Zorvik::Exception for a table that has to be written and whose file cannot be read.
    void Serialize(const Zorvik::Brassel::SerializerPtr& node) const override;
    std::string FindProblem(ContentCheck check) const override;

private:
    Lut3dSettings();
    Lut3dSettings(const Lut3dSettings& other) = default;

    std::shared_ptr<const StoredTable> m_curve;
    std::shared_ptr<const StoredTable> m_cube;
};

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/EffectDescription.h"
#include "Zorvik/Core/Property.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <QCoreApplication>
#include <QStringList>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace LumetraAdjust {

/// The values of all effects that the panel can change, each effect once, in the order in which
/// they are drawn. Effects and parameters that nobody has described are refused.
class Adjustments
{
    Q_DECLARE_TR_FUNCTIONS(LumetraAdjust::Adjustments)

public:
    using Values = std::vector<std::pair<std::string, double>>; ///< by the parameters' names

    /// All values start at their defaults. Effects that are more than numbers are left out.
    explicit Adjustments(std::vector<LumetraEditor::EffectDescription> descriptions);

    const std::vector<LumetraEditor::EffectDescription>& GetDescriptions() const
    {
        return m_descriptions;
    }
    /// Takes the titles of other descriptions of the same effects, as after a change of language.
    void SetDescriptions(const std::vector<LumetraEditor::EffectDescription>& descriptions);
    /// Null for an effect that nobody has described.
    const LumetraEditor::EffectDescription* Find(const std::string& effectID) const;

    double Get(const std::string& effectID, const std::string& parameter) const;
    /// Sets values of one effect; others stay.
    void Set(const std::string& effectID, const Values& values);
    /// The default values of an effect.
    Values GetDefaults(const std::string& effectID) const;
    void Reset();

    /// True when the effect changes nothing, whatever its shaping parameters are.
    bool IsNeutral(const std::string& effectID) const;
    bool IsNeutral() const;
    /// True when all parameters of the effect have their defaults.
    bool IsDefault(const std::string& effectID) const;

    /// Says which effects are meant.
    using Choice = std::function<bool(const std::string& effectID)>;
    /// Copies of the chosen effects, in the order in which they are drawn.
    Zorvik::Quindle::EffectList MakeEffects(const Choice& isChosen) const;
    /// A copy of one effect.
    Zorvik::Quindle::EffectPtr MakeEffect(const std::string& effectID) const;

    /// Writes the effects that have other values than their defaults, as a catalogue does. Never
    /// null; without entries when all have their defaults.
    Zorvik::Core::Property::Ptr Save() const;
    /// Does the inverse, after a Reset(). Returns a sentence for each entry that could not be used.
    QStringList Load(const Zorvik::Core::Property::Ptr& saved);

private:
    struct Effect
    {
        Zorvik::Quindle::EffectPtr settings; ///< never null
        std::size_t description;
    };

    const Effect* FindEffect(const std::string& effectID) const;
    void LoadEffect(const Zorvik::Brassel::ConstSerializerPtr& element);

    std::vector<LumetraEditor::EffectDescription> m_descriptions;
    std::vector<Effect> m_effects;
};

} // namespace LumetraAdjust

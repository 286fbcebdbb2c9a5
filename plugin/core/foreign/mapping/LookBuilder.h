// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/ImportedLook.h"
#include "core/foreign/mapping/LookStep.h"
#include "core/foreign/mapping/MappingTable.h"

#include <QCoreApplication>

#include <array>

namespace LumetraPlugin {

/// Makes effects out of a foreign look: runs the rules of the mapping table over its settings and
/// notes which of them are only approximated or left out. Effects that change nothing in the end
/// are dropped, with their remarks. Reasons are in the user's language where the program has
/// translations.
class LookBuilder
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::LookBuilder)

public:
    /// `look` and `options` are kept by reference. `folder` is that of the look's file. Register
    /// the engine's effects first.
    LookBuilder(const ForeignLook& look, const ImportOptions& options, const QString& folder);

    /// Runs all rules. Call it once.
    void Build();
    /// The effects in the order in which they run; none when the look changes nothing here.
    Zorvik::Quindle::ConstEffectList GetEffects() const;
    std::vector<ImportRemark> GetRemarks() const;

    // Operations for rules.
    /// Sets a number, moved into the parameter's range, which makes the setting an approximation.
    void Set(LookStep step, const std::string& parameter, double value);
    /// Adds to what other settings have put there.
    void Add(LookStep step, const std::string& parameter, double value);
    void Put(LookStep step, const Zorvik::Quindle::EffectPtr& effect);
    /// Says that the setting of the running rule is not carried after all.
    void LeaveOut(const QString& reason);
    /// Says that the setting of the running rule is carried less well than the table says.
    void TellLimited() { m_isLimited = true; }
    const ForeignLook& GetLook() const { return m_look; }
    /// The number of a setting; `missing` where there is none.
    double GetNumber(const char* setting, double missing) const;
    const QStringList& GetTableFolders() const { return m_options.tableFolders; }
    const QString& GetFolder() const { return m_folder; }

private:
    struct Place
    {
        Zorvik::Quindle::EffectPtr effect; ///< null until a rule needs it
        std::vector<ImportRemark> remarks; ///< hold only if the effect stays
    };

    void Run(const QString& setting, const ForeignValue& value);
    void RunRule(const MappingRow& row, const ForeignValue& value);
    Place& GetPlace(LookStep step);
    bool IsKept(const Place& place) const;

    const ForeignLook& m_look;
    const ImportOptions& m_options;
    QString m_folder;
    std::array<Place, LookSteps> m_places;
    std::vector<ImportRemark> m_leftOut;
    // The rule that runs.
    bool m_isLeftOut = false;
    bool m_isLimited = false;
    LookStep m_step = LookStep::Exposure; // where it has written, or else where its row says
    QString m_reason;
};

} // namespace LumetraPlugin

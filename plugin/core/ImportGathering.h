// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "core/PresetImport.h"
#include "core/PresetModel.h"
#include "core/TakenNames.h"
#include "core/looks/KnownContents.h"

#include <QCoreApplication>

#include <vector>

namespace LumetraPlugin {

/// Collects the looks of an import, finds names for those that the user has not yet, and adds them
/// to the user's group. One for each import, on the thread of the model.
class ImportGathering
{
    Q_DECLARE_TR_FUNCTIONS(LumetraPlugin::ImportGathering)

public:
    /// A look that may come.
    struct Candidate
    {
        QString path;  ///< of its file
        QString name;  ///< in the file, in one line
        QString group; ///< of the file, in one line; may be empty
        std::vector<ImportRemark> remarks;
        PresetModel::PresetPtr preset; ///< in no model; it gets its name here
    };

    /// The collection is kept by reference.
    ImportGathering(PresetCollection& collection, const ImportNaming& naming);

    void Take(const Candidate& look);
    /// Asks about names, and adds what is new in one insertion. The report's problems are those
    /// about names alone.
    ImportReport Finish();

private:
    struct Entry
    {
        Candidate look;
        KnownContents::Key content;
    };

    std::vector<const Entry*> FindNew() const;
    /// False, after a problem, where the name would have to be that of several looks.
    bool CheckGivenName(ImportReport& report) const;
    void Ask();
    void Decide(const Entry& entry, ImportReport& report);
    /// A sentence that says why the look does not come; empty when it does.
    QString FindFault(const Candidate& look) const;
    QString MakeName(const Candidate& look) const;
    void Append(const Candidate& look, const QString& name, ImportReport& report);

    PresetCollection& m_collection;
    const ImportNaming m_naming;
    KnownContents m_contents;
    const TakenNames m_before; ///< without the names of this import
    TakenNames m_taken;        ///< with them
    std::vector<Entry> m_entries;
    std::vector<PresetModel::PresetPtr> m_presets; ///< to be added
    bool m_isShortening = false;
    bool m_isNumbering = true;
};

} // namespace LumetraPlugin

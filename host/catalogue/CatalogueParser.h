// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/IParserConfigGroup.h"
#include "catalogue/CatalogueReport.h"
#include "catalogue/CheckedNode.h"
#include "catalogue/LocalNames.h"
#include "catalogue/TableFolder.h"
#include "storage/JsonDocument.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

class QString;

namespace LumetraHost {

struct CheckedGroup;

/// Reads catalogue files and fills a preset model from them: the default sliders of all files,
/// then the groups of all files, then the user's data, each once and in order.
///
/// An error costs only itself: a file that is no catalogue, a group, a preset or a slider with an
/// error is reported with its place and left out. A catalogue file is a JSON object with "format"
/// "lumetra-catalogue", "version" 1, "defaultSettings" (sliders) and "groups"; each collection in
/// it is an array, or an object whose members are named elements. The effects must be registered
/// before. For one parse; make a new one for the next.
class CatalogueParser
{
public:
    static constexpr char FormatName[] = "lumetra-catalogue";
    static constexpr int Version = 1;

    /// `controllerKinds`: the kinds of preset controller that the target's factory makes.
    /// `readTable` reads the files of look-up tables that catalogues name; without it, and in
    /// documents that were read from no file, only tables in the catalogue itself are taken.
    explicit CatalogueParser(const std::set<std::string>& controllerKinds,
                             const TableFolder::Reader& readTable = {});

    /// Adds a file, or reports why it is not one. False when it was left out.
    bool AddFile(const QString& fileName);
    /// Adds a document that was read from `fileName`; empty for one from memory. Tables of files
    /// that it names are put into the document's values.
    bool AddDocument(const JsonDocument& document, const QString& fileName = {});

    /// Fills `target`. `userData` may be null: the user's group is then empty. Whoever stores user
    /// data checks it; exceptions from reading it pass.
    void Parse(Zorvik::Brassel::Config::IParserConfigGroup& target,
               const Zorvik::Brassel::ConstSerializerPtr& userData);

    /// Everything that was noticed, by file, line and column.
    const std::vector<CatalogueReport>& GetReports() const { return m_reports.GetAll(); }
    /// The translations of the groups' names, in the order in which Parse() has handed the groups
    /// to its target.
    const std::vector<LocalNames>& GetGroupNames() const { return m_groupNames; }

private:
    using Target = Zorvik::Brassel::Config::IParserConfigGroup;

    /// A document with the folder of its tables, null where it may name no files.
    struct Source
    {
        JsonDocument document;
        std::shared_ptr<const TableFolder> tables;
    };

    CheckedNode GetRoot(const Source& source);
    bool CheckHeader(const CheckedNode& root) const;
    std::vector<CheckedNode> CollectSliders();
    void AddSlider(std::vector<CheckedNode>& sliders, const CheckedNode& slider);
    void ParseSliders(Target& target, const std::vector<CheckedNode>& sliders);
    void ParseGroup(Target& target, const CheckedGroup& group);
    void ParseUserData(Target& target, const Zorvik::Brassel::ConstSerializerPtr& userData);

    std::set<std::string> m_controllerKinds;
    std::vector<std::string> m_files;
    TableFolder::Reader m_readTable;
    std::vector<Source> m_sources;
    std::vector<LocalNames> m_groupNames;
    CatalogueReports m_reports;
};

} // namespace LumetraHost

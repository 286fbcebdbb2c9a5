// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/CatalogueParser.h"

#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "Zorvik/RefCounted.h"
#include "catalogue/GroupChecker.h"
#include "catalogue/IntensityChecker.h"

#include <QString>

#include <boost/current_function.hpp>

#include <algorithm>

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ConstCollectionPtr;
using Zorvik::Brassel::ConstSerializerPtr;

constexpr char SchemaKey[] = "$schema"; // for text editors
constexpr char FormatKey[] = "format";
constexpr char VersionKey[] = "version";
constexpr char SlidersKey[] = "defaultSettings";
constexpr char GroupsKey[] = "groups";

/// A collection made of nodes from anywhere, each with its own name and path. It remembers the
/// element asked for last, which is the one to blame when its reader throws. Read-only.
class ElementList : public Zorvik::RefCounted<Zorvik::Brassel::ISerializerCollection>
{
public:
    static constexpr std::size_t NoIndex = ~std::size_t(0);

    explicit ElementList(std::vector<Zorvik::Brassel::ConstSerializerPtr> elements);

    /// NoIndex when no element was asked for.
    std::size_t GetLastRead() const { return m_lastRead; }

    std::size_t GetCount() const override { return m_elements.size(); }
    Zorvik::Brassel::ConstSerializerPtr GetElement(std::size_t index) const override;
    /// Always an Exception.
    Zorvik::Brassel::SerializerPtr AddElement(const std::string& name) override;

private:
    std::vector<Zorvik::Brassel::ConstSerializerPtr> m_elements;
    mutable std::size_t m_lastRead = NoIndex;
};

ElementList::ElementList(std::vector<Zorvik::Brassel::ConstSerializerPtr> elements)
    : m_elements(std::move(elements))
{
}

Zorvik::Brassel::ConstSerializerPtr ElementList::GetElement(std::size_t index) const
{
    if (index >= m_elements.size())
        throw Zorvik::Exception("expected an element " + std::to_string(index) + ", found " +
                                    std::to_string(m_elements.size()) + " elements",
                                BOOST_CURRENT_FUNCTION, "catalogue/ElementList", __LINE__);
    m_lastRead = index;
    return m_elements[index];
}

Zorvik::Brassel::SerializerPtr ElementList::AddElement(const std::string& /*name*/)
{
    throw Zorvik::Exception("the list of a catalogue's elements cannot grow",
                            BOOST_CURRENT_FUNCTION, "catalogue/ElementList", __LINE__);
}

/// Hands the nodes to `read` as one collection. When that throws, the element at which it stopped
/// is reported and left out, and the rest is tried again. False when no element was to blame.
template <class Read>
bool ReadElements(std::vector<CheckedNode> nodes, const CheckedNode* holder, const Read& read)
{
    for (;;) {
        std::vector<ConstSerializerPtr> serializers;
        for (const CheckedNode& node : nodes)
            serializers.emplace_back(node.GetSerializer());
        const boost::intrusive_ptr<ElementList> list(new ElementList(std::move(serializers)));
        try {
            read(list);
            return true;
        } catch (const std::exception& error) {
            const std::size_t last = list->GetLastRead();
            if (last == ElementList::NoIndex) {
                if (holder)
                    holder->Error(error);
                return false;
            }
            nodes[last].Error(error);
            nodes.erase(nodes.begin() + static_cast<std::ptrdiff_t>(last));
        }
    }
}

} // namespace

CatalogueParser::CatalogueParser(const std::set<std::string>& controllerKinds,
                                 const TableFolder::Reader& readTable)
    : m_controllerKinds(controllerKinds), m_readTable(readTable)
{
}

bool CatalogueParser::AddFile(const QString& fileName)
{
    const std::string file = fileName.toStdString();
    m_files.push_back(file);
    try {
        return AddDocument(JsonDocument::Read(fileName), fileName);
    } catch (const JsonException& error) {
        m_reports.Add({CatalogueReport::Severity::Error, error.GetPlace(), {}, error.GetMessage()});
    } catch (const Zorvik::Exception& error) {
        const std::string message = error.GetDescription().substr(file.size() + 2);
        m_reports.Add({CatalogueReport::Severity::Error, {file, 0, 0}, {}, message});
    }
    return false;
}

bool CatalogueParser::AddDocument(const JsonDocument& document, const QString& fileName)
{
    if (std::find(m_files.begin(), m_files.end(), document.GetName()) == m_files.end())
        m_files.push_back(document.GetName());
    if (!CheckHeader(CheckedNode(document.GetObject(), document.GetName(), m_reports)))
        return false;
    const bool mayNameTables = m_readTable && !fileName.isEmpty();
    m_sources.push_back({document, mayNameTables
                                       ? std::make_shared<const TableFolder>(fileName, m_readTable)
                                       : nullptr});
    return true;
}

CheckedNode CatalogueParser::GetRoot(const Source& source)
{
    return CheckedNode(source.document.GetObject(), source.document.GetName(), m_reports, nullptr,
                       source.tables);
}

bool CatalogueParser::CheckHeader(const CheckedNode& root) const
{
    const std::size_t errorCount = m_reports.GetErrorCount();
    const auto format = root.Text(FormatKey);
    if (m_reports.GetErrorCount() == errorCount && format != std::string(FormatName))
        root.ErrorAt(FormatKey, "expected a catalogue, whose \"format\" is \"" +
                                    std::string(FormatName) + "\", found " +
                                    (format ? "\"" + *format + "\"" : "none"));
    if (m_reports.GetErrorCount() != errorCount)
        return false;
    const auto version = root.Int(VersionKey);
    if (version && *version > Version)
        root.ErrorAt(VersionKey, "expected version " + std::to_string(Version) + ", found " +
                                     std::to_string(*version) + ": made for a newer program");
    else if (m_reports.GetErrorCount() == errorCount && version != Version)
        root.ErrorAt(VersionKey, "expected version " + std::to_string(Version) + ", found " +
                                     (version ? std::to_string(*version) : "none"));
    root.NoteUnknownKeys({SchemaKey, FormatKey, VersionKey, SlidersKey, GroupsKey});
    return m_reports.GetErrorCount() == errorCount;
}

/// A slider of a later file replaces the one of the same name.
void CatalogueParser::AddSlider(std::vector<CheckedNode>& sliders, const CheckedNode& slider)
{
    const std::size_t errorCount = m_reports.GetErrorCount();
    IntensityChecker::CheckSlider(slider);
    if (m_reports.GetErrorCount() != errorCount)
        return;
    const auto same = std::find_if(sliders.begin(), sliders.end(), [&slider](const auto& other) {
        return !slider.GetName().empty() && other.GetName() == slider.GetName();
    });
    if (same == sliders.end())
        sliders.push_back(slider);
    else
        *same = slider;
}

std::vector<CheckedNode> CatalogueParser::CollectSliders()
{
    std::vector<CheckedNode> sliders;
    for (const Source& source : m_sources)
        for (const CheckedNode& slider : GetRoot(source).Elements(SlidersKey))
            AddSlider(sliders, slider);
    return sliders;
}

void CatalogueParser::ParseSliders(Target& target, const std::vector<CheckedNode>& sliders)
{
    ReadElements(sliders, nullptr,
                 [&target](const ConstCollectionPtr& list) { target.ParseAdditionalInfo(list); });
}

void CatalogueParser::ParseGroup(Target& target, const CheckedGroup& group)
{
    const ConstSerializerPtr settings =
        group.settings ? ConstSerializerPtr(group.settings->GetSerializer()) : nullptr;
    const bool isThere =
        ReadElements(group.items, &group.node, [&](const ConstCollectionPtr& items) {
            target.ParseGroup(group.name, items, settings);
        });
    if (isThere)
        m_groupNames.push_back(LocalNames::Read(group.node.GetSerializer()));
}

void CatalogueParser::ParseUserData(Target& target, const ConstSerializerPtr& userData)
{
    if (userData)
        return target.ParseAdditionalInfo(userData);
    const auto nothing = std::make_shared<Zorvik::Core::Property>(std::string());
    target.ParseAdditionalInfo(
        ConstSerializerPtr(Zorvik::Brassel::SerializerProperty::Create(nothing)));
}

void CatalogueParser::Parse(Target& target, const ConstSerializerPtr& userData)
{
    const std::vector<CheckedNode> sliders = CollectSliders();
    ParseSliders(target, sliders);
    std::vector<SliderParameters> parameters;
    for (const CheckedNode& slider : sliders)
        parameters.push_back(IntensityChecker::ReadParameters(slider));
    GroupChecker checker(m_controllerKinds, std::move(parameters));
    for (const Source& source : m_sources)
        for (const CheckedNode& node : GetRoot(source).Elements(GroupsKey))
            if (const auto group = checker.Check(node))
                ParseGroup(target, *group);
    m_reports.Sort(m_files);
    ParseUserData(target, userData);
}

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/EditRecord.h"

#include "photo/metadata/MetadataTags.h"

#include "storage/FailWith.h"

#include <mutex>
#include <unordered_map>
#include <utility>

#include <exiv2/exiv2.hpp>

namespace LumetraHost {
namespace {

constexpr char ListKey[] = "Xmp.lumetra.Presets";
constexpr char JobKey[] = "Xmp.lumetra.Job";

void Initialise()
{
    static std::once_flag once;
    MetadataTags::Initialise();
    std::call_once(once,
                   [] { Exiv2::XmpProperties::registerNs(EditRecords::Namespace, "lumetra"); });
}

[[noreturn]] void Fail(const std::string& text)
{
    FailWith("XMP packet: " + text);
}

Exiv2::XmpData Decode(const QByteArray& packet)
{
    Initialise();
    Exiv2::XmpData properties;
    if (!packet.isEmpty() && !MetadataTags::DecodeXmp(packet, properties))
        Fail("it is damaged");
    return properties;
}

std::string MemberKey(std::size_t place, const char* member)
{
    return ListKey + ("[" + std::to_string(place) + "]/lumetra:") + member;
}

/// The properties by their keys. The library itself looks for a key from the first one on, which
/// would take minutes with thousands of records.
using Index = std::unordered_map<std::string, const Exiv2::Xmpdatum*>;

Index MakeIndex(const Exiv2::XmpData& properties)
{
    Index index;
    for (const Exiv2::Xmpdatum& property : properties)
        index.emplace(property.key(), &property);
    return index;
}

/// The text of a member; empty where there is none.
std::string ReadMember(const Index& index, std::size_t place, const char* member)
{
    const auto found = index.find(MemberKey(place, member));
    return found == index.end() ? std::string() : found->second->toString();
}

std::size_t Count(const Index& index)
{
    std::size_t count = 0;
    while (index.count(MemberKey(count + 1, "Name")) != 0)
        ++count;
    return count;
}

void AddAll(Exiv2::XmpData& properties, const std::vector<EditRecord>& records)
{
    std::size_t place = Count(MakeIndex(properties));
    if (place == 0 && !records.empty()) {
        Exiv2::XmpTextValue list;
        list.setXmpArrayType(Exiv2::XmpValue::xaSeq);
        properties.add(Exiv2::XmpKey(ListKey), &list);
    }
    for (const EditRecord& record : records) {
        ++place;
        properties[MemberKey(place, "Name")] = record.preset;
        properties[MemberKey(place, "Intensity")] = std::to_string(record.intensity);
        for (const auto& [member, text] :
             {std::pair("Look", record.look), std::pair("LookLeftOut", record.lookLeftOut)})
            if (!text.empty())
                properties[MemberKey(place, member)] = text;
    }
}

void SetJob(Exiv2::XmpData& properties, const std::string& job)
{
    const auto earlier = properties.findKey(Exiv2::XmpKey(JobKey));
    if (earlier != properties.end())
        properties.erase(earlier);
    if (!job.empty())
        properties[JobKey] = job;
}

} // namespace

QByteArray EditRecords::Add(const QByteArray& packet, const std::vector<EditRecord>& records,
                            const std::string& creatorTool, const std::string& job)
{
    Exiv2::XmpData properties = Decode(packet);
    try {
        AddAll(properties, records);
        SetJob(properties, job);
        properties["Xmp.xmp.CreatorTool"] = creatorTool;
        std::string text;
        if (!MetadataTags::EncodeXmp(properties, text))
            Fail("it cannot be written");
        return QByteArray::fromStdString(text);
    } catch (const Exiv2::AnyError& error) {
        Fail(error.what());
    }
}

std::vector<EditRecord> EditRecords::Read(const QByteArray& packet)
{
    const Exiv2::XmpData properties = Decode(packet);
    const Index index = MakeIndex(properties);
    std::vector<EditRecord> records;
    const std::size_t count = Count(index);
    for (std::size_t place = 1; place <= count; ++place) {
        const std::string intensity = ReadMember(index, place, "Intensity");
        EditRecord record;
        record.preset = ReadMember(index, place, "Name");
        if (!intensity.empty())
            record.intensity = QByteArray::fromStdString(intensity).toInt();
        record.look = ReadMember(index, place, "Look");
        record.lookLeftOut = ReadMember(index, place, "LookLeftOut");
        records.push_back(record);
    }
    return records;
}

std::string EditRecords::ReadJob(const QByteArray& packet)
{
    const Exiv2::XmpData properties = Decode(packet);
    const auto found = properties.findKey(Exiv2::XmpKey(JobKey));
    return found == properties.end() ? std::string() : found->toString();
}

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/metadata/ExtendedXmp.h"

#include "photo/metadata/MetadataTags.h"

#include <QCryptographicHash>

#include <algorithm>
#include <cctype>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <exiv2/exiv2.hpp>

namespace LumetraHost {
namespace {

constexpr char NoteKey[] = "Xmp.xmpNote.HasExtendedXMP";
constexpr int GuidLength = 32;

bool Decode(const QByteArray& packet, Exiv2::XmpData& properties)
{
    MetadataTags::Initialise();
    return MetadataTags::DecodeXmp(packet, properties);
}

std::optional<QByteArray> Encode(const Exiv2::XmpData& properties, std::uint16_t flags)
{
    std::string text;
    if (!MetadataTags::EncodeXmp(properties, text, Exiv2::XmpParser::useCompactFormat | flags))
        return std::nullopt;
    return QByteArray::fromStdString(text);
}

QByteArray MakeGuid(const QByteArray& extension)
{
    return QCryptographicHash::hash(extension, QCryptographicHash::Md5).toHex().toUpper();
}

/// The property of the packet's first level that a key belongs to: "Xmp.a.B" of "Xmp.a.B[1]/a:C".
std::string GetRoot(const std::string& key)
{
    return key.substr(0, key.find_first_of("[/"));
}

struct Root
{
    std::string key;
    std::size_t size = 0; ///< bytes, about
};

/// The properties of the first level and their sizes, the largest first.
std::vector<Root> MeasureRoots(const Exiv2::XmpData& properties)
{
    std::map<std::string, std::size_t> sizes;
    for (const auto& property : properties)
        if (property.key() != NoteKey)
            sizes[GetRoot(property.key())] +=
                property.key().size() + static_cast<std::size_t>(property.size());
    std::vector<Root> roots;
    for (const auto& [key, size] : sizes)
        roots.push_back({key, size});
    std::stable_sort(roots.begin(), roots.end(),
                     [](const Root& a, const Root& b) { return a.size > b.size; });
    return roots;
}

/// The properties below the given roots, or all others.
Exiv2::XmpData Select(const Exiv2::XmpData& properties, const std::set<std::string>& roots,
                      bool isAmongRoots)
{
    Exiv2::XmpData selected;
    for (const auto& property : properties)
        if ((roots.count(GetRoot(property.key())) != 0) == isAmongRoots)
            selected.add(property);
    return selected;
}

/// A packet that says nothing but where the extension is.
QByteArray MakeStub(const QByteArray& guid)
{
    return "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"><rdf:RDF "
           "xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\"><rdf:Description "
           "rdf:about=\"\" xmlns:xmpNote=\"http://ns.adobe.com/xmp/note/\" "
           "xmpNote:HasExtendedXMP=\"" +
           guid + "\"/></rdf:RDF></x:xmpmeta>";
}

ExtendedXmp MoveWhole(const QByteArray& packet)
{
    return {MakeStub(MakeGuid(packet)), packet};
}

/// Moves `roots` into an extension. Nothing when the main part does not fit even so, or a part
/// cannot be encoded.
std::optional<ExtendedXmp> Move(const Exiv2::XmpData& properties,
                                const std::set<std::string>& roots)
{
    const auto extension =
        Encode(Select(properties, roots, true), Exiv2::XmpParser::omitPacketWrapper);
    if (!extension)
        return std::nullopt;
    Exiv2::XmpData rest = Select(properties, roots, false);
    rest[NoteKey] = MakeGuid(*extension).toStdString();
    const auto main = Encode(rest, 0);
    if (!main || main->size() > ExtendedXmp::LargestMain)
        return std::nullopt;
    return ExtendedXmp{*main, *extension};
}

/// Moves the largest properties. Nothing for a packet that cannot be decoded and encoded again.
std::optional<ExtendedXmp> MoveLargest(const QByteArray& packet)
{
    Exiv2::XmpData properties;
    if (!Decode(packet, properties))
        return std::nullopt;
    const auto compact = Encode(properties, 0); // packets may be filled up with blanks
    if (!compact)
        return std::nullopt;
    auto excess = compact->size() - ExtendedXmp::LargestMain;
    if (excess <= 0)
        return ExtendedXmp{*compact, {}};
    // Text between the properties takes space as well, so the sizes are only a beginning.
    std::set<std::string> moved;
    for (const Root& root : MeasureRoots(properties)) {
        moved.insert(root.key);
        excess -= static_cast<int>(root.size);
        if (excess > 0)
            continue;
        if (const auto divided = Move(properties, moved))
            return divided;
    }
    return std::nullopt;
}

std::optional<QByteArray> Join(const QByteArray& main, const QByteArray& extension)
{
    Exiv2::XmpData properties;
    Exiv2::XmpData others;
    if (!Decode(main, properties))
        return std::nullopt;
    const auto note = properties.findKey(Exiv2::XmpKey(NoteKey));
    if (note != properties.end())
        properties.erase(note);
    if (properties.empty())
        return extension;
    if (!Decode(extension, others))
        return std::nullopt;
    std::set<std::string> known;
    for (const auto& property : properties)
        known.insert(GetRoot(property.key()));
    for (const auto& property : Select(others, known, false))
        properties.add(property);
    return Encode(properties, 0);
}

} // namespace

QByteArray ExtendedXmp::FindGuid(const QByteArray& main)
{
    const QByteArray name("HasExtendedXMP");
    const int at = main.indexOf(name);
    if (at < 0)
        return {};
    int begin = at + name.size();
    while (begin < main.size() && !std::isxdigit(static_cast<unsigned char>(main[begin])))
        ++begin;
    const QByteArray guid = main.mid(begin, GuidLength);
    const bool isHex = std::all_of(guid.begin(), guid.end(), [](char digit) {
        return std::isxdigit(static_cast<unsigned char>(digit)) != 0;
    });
    return guid.size() == GuidLength && isHex ? guid : QByteArray();
}

ExtendedXmp ExtendedXmp::Divide(const QByteArray& packet)
{
    try {
        if (const auto divided = MoveLargest(packet))
            return *divided;
    } catch (const Exiv2::AnyError&) {
        // The toolkit reads more than it writes. The packet needs neither as a whole.
    }
    return MoveWhole(packet);
}

std::optional<QByteArray> ExtendedXmp::Merge() const
{
    if (extension.isEmpty())
        return main;
    try {
        return Join(main, extension);
    } catch (const Exiv2::AnyError&) {
        return std::nullopt;
    }
}

} // namespace LumetraHost

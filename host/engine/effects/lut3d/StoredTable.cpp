// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/StoredTable.h"

#include "Zorvik/Brassel/NodeCopy.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "storage/ContentFolder.h"
#include "storage/FailWith.h"
#include "storage/JsonSerializer.h"
#include "storage/NodeParts.h"

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::NodeCopy;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Brassel::SerializerPtr;

/// The name of the file that holds the numbers.
std::string ReadName(const ConstSerializerPtr& node)
{
    const std::string name = node->Get(LookUpTableText::KeyName, "");
    const std::string place = node->GetPath() + "/" + LookUpTableText::KeyName;
    if (!ContentFolder::IsName(name))
        FailWith(place + ": expected 64 hexadecimal digits, found \"" + name + "\"");
    return name;
}

} // namespace

StoredTablePtr StoredTable::Read(const ConstSerializerPtr& node, LookUpTable::Kind kind)
{
    const std::shared_ptr<StoredTable> table(new StoredTable);
    table->m_form = LookUpTableText::ReadForm(node, kind);
    table->m_place = node->GetPath();
    const bool isElsewhere =
        node->Has(LookUpTableText::KeyName) && !node->Has(LookUpTableText::KeyData);
    if (isElsewhere) {
        table->m_name = ReadName(node);
        table->m_folder = JsonSerializer::FindContents(*node);
        if (!table->m_folder)
            FailWith(table->m_place +
                     ": expected \"data\", found only the name of a file: tables in "
                     "files are for the file of the user's own presets alone");
    } else {
        table->m_data = LookUpTableText::ReadData(node, table->m_form);
    }
    table->m_description = std::make_shared<Zorvik::Core::Property>(std::string());
    NodeCopy::CopyAll(*HideKeys(node, {LookUpTableText::KeyName, LookUpTableText::KeyData}),
                      *SerializerProperty::Create(table->m_description));
    return table;
}

const QByteArray& StoredTable::LoadData() const
{
    if (!m_data.isNull())
        return m_data;
    try {
        const QByteArray data = m_folder->Read(m_name, static_cast<qint64>(m_form.GetByteCount()));
        if (!LookUpTableText::AreNumbers(m_form, data))
            FailWith(m_folder->GetPath().toStdString() + "/" + m_name +
                     ": expected finite numbers, found infinity or \"not a number\"");
        m_data = data;
        return m_data;
    } catch (const Zorvik::Exception& error) {
        FailWith(m_place + ": " + error.GetDescription());
    }
}

const QByteArray& StoredTable::GetData() const
{
    const std::lock_guard lock(m_mutex);
    return LoadData();
}

LookUpTablePtr StoredTable::GetTable() const
{
    const std::lock_guard lock(m_mutex);
    if (!m_table)
        m_table = std::make_shared<const LookUpTable>(LookUpTableText::Decode(m_form, LoadData()));
    return m_table;
}

const std::string& StoredTable::GetName() const
{
    const std::lock_guard lock(m_mutex);
    if (m_name.empty())
        m_name = ContentFolder::NameOf(m_data);
    return m_name;
}

/// True when the node need not hold the numbers. Numbers that exist only in a file of that folder
/// are named even when the file is missing: it may come back.
bool StoredTable::IsKeptIn(const ContentFolder& folder) const
{
    const bool isFromThere = m_folder && m_folder->GetPath() == folder.GetPath();
    if (!isFromThere && !folder.HasSeen(GetName()))
        return false;
    if (folder.FindProblem(GetName(), static_cast<qint64>(m_form.GetByteCount())).empty())
        return true;
    const std::lock_guard lock(m_mutex);
    return isFromThere && m_data.isNull();
}

void StoredTable::Write(const SerializerPtr& node) const
{
    NodeCopy::CopyAll(*SerializerProperty::Create(m_description), *node);
    const auto folder = JsonSerializer::FindContents(*node);
    if (folder && IsKeptIn(*folder))
        node->Set(LookUpTableText::KeyName, GetName());
    else
        node->Set(LookUpTableText::KeyData, GetData().toBase64().toStdString());
}

std::string StoredTable::FindProblem(ContentCheck check) const
{
    const std::lock_guard lock(m_mutex);
    if (!m_data.isNull())
        return {};
    if (check == ContentCheck::Presence)
        return m_folder->FindProblem(m_name, static_cast<qint64>(m_form.GetByteCount()));
    try {
        LoadData();
        return {};
    } catch (const Zorvik::Exception& error) {
        return error.GetDescription();
    }
}

bool StoredTable::IsSameAs(const StoredTable& other) const
{
    return this == &other || (m_form == other.m_form && GetName() == other.GetName());
}

} // namespace LumetraHost

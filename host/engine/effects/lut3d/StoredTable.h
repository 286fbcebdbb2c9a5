// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/IStoredElsewhere.h"
#include "engine/effects/lut3d/LookUpTableText.h"

#include "Zorvik/Core/Property.h"

#include <QByteArray>

#include <memory>
#include <mutex>
#include <string>

namespace LumetraHost {

class ContentFolder;
class StoredTable;

using StoredTablePtr = std::shared_ptr<const StoredTable>;

/// One table of an effect, with its numbers in memory or in a file that is read when they are first
/// wanted. Does not change; shared by all clones of an effect and safe to use from several threads.
class StoredTable
{
public:
    /// Reads a table's node: the description alone where the numbers are in a file.
    /// Zorvik::Exception that names the place for anything that is not such a table.
    static StoredTablePtr Read(const Zorvik::Brassel::ConstSerializerPtr& node,
                               LookUpTable::Kind kind);

    /// The table, made from its numbers at the first call. Zorvik::Exception that names the place
    /// and the file when they cannot be read; the next call tries again.
    LookUpTablePtr GetTable() const;

    /// Writes everything that was read. The numbers are written too, unless the node belongs to a
    /// file beside which they are kept. Exception when they are needed and cannot be read.
    void Write(const Zorvik::Brassel::SerializerPtr& node) const;

    /// See IStoredElsewhere.
    std::string FindProblem(ContentCheck check) const;
    /// True when both tables draw the same. Reads no file.
    bool IsSameAs(const StoredTable& other) const;

private:
    StoredTable() = default;

    bool IsKeptIn(const ContentFolder& folder) const;
    const std::string& GetName() const;
    const QByteArray& GetData() const;
    const QByteArray& LoadData() const; // under the lock

    LookUpTableForm m_form;
    std::string m_place;
    Zorvik::Core::Property::Ptr m_description; // the node without the numbers
    std::shared_ptr<const ContentFolder> m_folder;

    mutable std::mutex m_mutex;
    mutable std::string m_name; // of the numbers' file; worked out when it is first wanted
    mutable QByteArray m_data;  // null while it is only in the file
    mutable LookUpTablePtr m_table;
};

} // namespace LumetraHost

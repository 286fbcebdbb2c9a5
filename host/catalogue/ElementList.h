// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/RefCounted.h"

#include <vector>

namespace LumetraHost {

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

} // namespace LumetraHost

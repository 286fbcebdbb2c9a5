// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/ElementList.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

namespace LumetraHost {

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

} // namespace LumetraHost

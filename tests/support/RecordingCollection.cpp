// SPDX-License-Identifier: MIT
#include "support/RecordingCollection.h"

#include "support/RecordingSerializer.h"

namespace LumetraTest {

using namespace Zorvik::Brassel;

RecordingCollection::RecordingCollection(CallLog& log, const CollectionPtr& collection)
    : m_log(log), m_collection(collection)
{
}

CollectionPtr RecordingCollection::Wrap(CallLog& log, const CollectionPtr& collection)
{
    return new RecordingCollection(log, collection);
}

ConstCollectionPtr RecordingCollection::Wrap(CallLog& log, const ConstCollectionPtr& collection)
{
    if (!collection)
        return nullptr;
    // The wrapper is handed out as const, so nothing is written through it.
    return new RecordingCollection(log, const_cast<ISerializerCollection*>(collection.get()));
}

std::size_t RecordingCollection::GetCount() const
{
    return m_collection->GetCount();
}

ConstSerializerPtr RecordingCollection::GetElement(std::size_t index) const
{
    const ConstSerializerPtr element = m_collection->GetElement(index);
    m_log.Add("element " + element->GetPath());
    return RecordingSerializer::Wrap(m_log, element);
}

SerializerPtr RecordingCollection::AddElement(const std::string& name)
{
    const SerializerPtr element = m_collection->AddElement(name);
    m_log.Add("add " + element->GetPath() + (name.empty() ? "" : " named " + CallText(name)));
    return RecordingSerializer::Wrap(m_log, element);
}

} // namespace LumetraTest

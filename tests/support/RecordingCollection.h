// SPDX-License-Identifier: MIT
#pragma once

#include "support/CallLog.h"

#include "Zorvik/Brassel/ISerializerCollection.h"
#include "Zorvik/RefCounted.h"

namespace LumetraTest {

/// Wraps a collection of any serializer and records the elements that are taken and added.
class RecordingCollection : public Zorvik::RefCounted<Zorvik::Brassel::ISerializerCollection>
{
public:
    static Zorvik::Brassel::CollectionPtr Wrap(CallLog& log,
                                               const Zorvik::Brassel::CollectionPtr& collection);
    /// Wraps a collection; null for null.
    static Zorvik::Brassel::ConstCollectionPtr
    Wrap(CallLog& log, const Zorvik::Brassel::ConstCollectionPtr& collection);

    std::size_t GetCount() const override;
    Zorvik::Brassel::ConstSerializerPtr GetElement(std::size_t index) const override;
    Zorvik::Brassel::SerializerPtr AddElement(const std::string& name) override;

private:
    RecordingCollection(CallLog& log, const Zorvik::Brassel::CollectionPtr& collection);

    CallLog& m_log;
    Zorvik::Brassel::CollectionPtr m_collection;
};

} // namespace LumetraTest

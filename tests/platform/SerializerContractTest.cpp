// SPDX-License-Identifier: MIT
#include "contract/SerializerContract.h"

#include "support/RecordingSerializer.h"

#include "Zorvik/Brassel/SerializerProperty.h"

namespace LumetraTest {
namespace {

using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::SerializerProperty;
using Zorvik::Brassel::SerializerPtr;
using Zorvik::Core::Property;

/// The in-memory tree; nothing is stored, so reading again means another wrapper.
class PropertySubject
{
public:
    SerializerPtr MakeRoot() { return SerializerProperty::Create(m_tree, "presets.json"); }
    ConstSerializerPtr Reload(const SerializerPtr& /*root*/) { return MakeRoot(); }

private:
    Property::Ptr m_tree = std::make_shared<Property>("root");
};

class RecordingSubject
{
public:
    SerializerPtr MakeRoot()
    {
        return RecordingSerializer::Wrap(m_log, SerializerProperty::Create(m_tree, "presets.json"));
    }
    ConstSerializerPtr Reload(const SerializerPtr& root) { return root; }

private:
    CallLog m_log;
    Property::Ptr m_tree = std::make_shared<Property>("root");
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Property, SerializerContract, PropertySubject);
INSTANTIATE_TYPED_TEST_SUITE_P(Recording, SerializerContract, RecordingSubject);

} // namespace LumetraTest

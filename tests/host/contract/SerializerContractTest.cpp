// SPDX-License-Identifier: GPL-2.0-or-later
#include "contract/SerializerContract.h"

#include "storage/JsonDocument.h"

namespace LumetraTest {
namespace {

using LumetraHost::JsonDocument;

/// Reading again means printing the text and parsing it.
class JsonSubject
{
public:
    Zorvik::Brassel::SerializerPtr MakeRoot() { return m_document.GetRoot(); }

    Zorvik::Brassel::ConstSerializerPtr Reload(const Zorvik::Brassel::SerializerPtr& /*root*/)
    {
        return JsonDocument::Parse(m_document.ToText(), "presets.json").GetRoot();
    }

private:
    JsonDocument m_document{"presets.json"};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Json, SerializerContract, JsonSubject);

} // namespace LumetraTest

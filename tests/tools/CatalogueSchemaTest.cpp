// SPDX-License-Identifier: GPL-2.0-or-later
#include "CatalogueSchema.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "engine/effects/EffectKinds.h"
#include "storage/JsonDocument.h"

#include <QString>

#include <gtest/gtest.h>

using LumetraHost::JsonDocument;
using LumetraTools::CatalogueSchema;
using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Quindle::EffectDescriptor;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectRegistry;

namespace {

ConstSerializerPtr ReadShipped()
{
    return JsonDocument::Read(QStringLiteral(LUMETRA_SHIPPED_SCHEMA)).GetRoot();
}

void ExpectRange(const ConstSerializerPtr& properties, const EffectParameter& parameter,
                 const std::string& effectID)
{
    const auto range = properties->GetNode(parameter.name);
    ASSERT_TRUE(range) << effectID << ", " << parameter.name;
    EXPECT_EQ(range->Get("minimum", 1e9), parameter.minimum) << effectID << ", " << parameter.name;
    EXPECT_EQ(range->Get("maximum", -1e9), parameter.maximum) << effectID << ", " << parameter.name;
}

} // namespace

TEST(CatalogueSchema, knowsEveryEffectAndParameterWithItsRange)
{
    LumetraHost::RegisterEffects();
    const auto definitions = ReadShipped()->GetNode("$defs");
    ASSERT_FALSE(EffectRegistry::GetEffectIDs().empty());
    for (const std::string& id : EffectRegistry::GetEffectIDs()) {
        const auto effect = definitions->GetNode("effect-" + id);
        ASSERT_TRUE(effect) << id;
        for (const EffectParameter& parameter : EffectRegistry::Find(id)->parameters)
            ExpectRange(effect->GetNode("properties"), parameter, id);
    }
}

TEST(CatalogueSchema, shipsAsTheToolWritesIt)
{
    LumetraHost::RegisterEffects();
    const QByteArray shipped = JsonDocument::Read(QStringLiteral(LUMETRA_SHIPPED_SCHEMA)).ToText();
    EXPECT_TRUE(shipped.toStdString() == CatalogueSchema::ToText())
        << "the effects have changed: lumetra-catalogue-schema > catalogue/catalogue.schema.json";
}

TEST(CatalogueSchema, takesUpAnEffectThatIsRegistered)
{
    EffectDescriptor descriptor;
    descriptor.effectID = "testOnly";
    descriptor.parameters = {{"strength", -3, 7, 1, "lx"}};
    EffectRegistry::Register(descriptor);
    const std::string text = CatalogueSchema::ToText();
    EffectRegistry::Unregister("testOnly");

    const auto schema = JsonDocument::Parse(QByteArray::fromStdString(text), "schema").GetRoot();
    const auto effect = schema->GetNode("$defs")->GetNode("effect-testOnly");
    ASSERT_TRUE(effect);
    ExpectRange(effect->GetNode("properties"), descriptor.parameters.front(), "testOnly");
}

// SPDX-License-Identifier: MIT
#pragma once

#include "support/StoredForm.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace LumetraTest {

/// Requirements on every IEffectSettings. A Subject registers one kind of effect while it lives,
/// with at least one parameter, and offers `std::string GetEffectID()`.
template <class Subject>
class EffectContract : public testing::Test
{
protected:
    using Effect = Zorvik::Quindle::IEffectSettings;

    Zorvik::Quindle::EffectPtr MakeEffect() const
    {
        const StoredNode node{{"id", subject.GetEffectID()}};
        return Effect::CreateEffectSettings(node.ToSerializer());
    }

    const std::vector<Zorvik::Quindle::EffectParameter>& Parameters() const
    {
        return Zorvik::Quindle::EffectRegistry::Find(subject.GetEffectID())->parameters;
    }

    std::string FirstName() const { return Parameters().front().name; }

    /// A value inside the first parameter's range that is not its default.
    double OtherValue() const
    {
        const auto& first = Parameters().front();
        return first.defaultValue == first.maximum ? first.minimum : first.maximum;
    }

    Subject subject;
};

TYPED_TEST_SUITE_P(EffectContract);

TYPED_TEST_P(EffectContract, isCreatedUnderItsIdAtItsDefaults)
{
    const auto effect = this->MakeEffect();
    EXPECT_EQ(effect->GetEffectID(), this->subject.GetEffectID());
    for (const auto& parameter : this->Parameters()) {
        EXPECT_TRUE(effect->HasParameter(parameter.name)) << parameter.name;
        EXPECT_EQ(effect->GetParameter(parameter.name), parameter.defaultValue) << parameter.name;
    }
}

TYPED_TEST_P(EffectContract, doesNotKnowOtherNames)
{
    const auto effect = this->MakeEffect();
    for (const char* name : {"", "id", "no such parameter"}) {
        EXPECT_FALSE(effect->HasParameter(name)) << name;
        EXPECT_THROW(effect->GetParameter(name), Zorvik::Exception) << name;
        EXPECT_THROW(effect->SetParameter(name, 0), Zorvik::Exception) << name;
    }
}

TYPED_TEST_P(EffectContract, takesFiniteValuesWithoutClamping)
{
    const auto effect = this->MakeEffect();
    const double beyond = this->Parameters().front().maximum + 1000;
    effect->SetParameter(this->FirstName(), beyond);
    EXPECT_EQ(effect->GetParameter(this->FirstName()), beyond);
    effect->SetParameter(this->FirstName(), 0.1 + 0.2);
    EXPECT_EQ(effect->GetParameter(this->FirstName()), 0.1 + 0.2);
}

TYPED_TEST_P(EffectContract, ignoresValuesThatAreNotFinite)
{
    const auto effect = this->MakeEffect();
    effect->SetParameter(this->FirstName(), 0.5);
    effect->SetParameter(this->FirstName(), std::nan(""));
    effect->SetParameter(this->FirstName(), std::numeric_limits<double>::infinity());
    effect->SetParameter(this->FirstName(), -std::numeric_limits<double>::infinity());
    EXPECT_EQ(effect->GetParameter(this->FirstName()), 0.5);
}

TYPED_TEST_P(EffectContract, aCloneIsEqualAndIndependent)
{
    const auto effect = this->MakeEffect();
    effect->SetParameter(this->FirstName(), this->OtherValue());
    const auto clone = effect->Clone();
    EXPECT_EQ(clone->GetEffectID(), effect->GetEffectID());
    EXPECT_EQ(clone->GetParameter(this->FirstName()), this->OtherValue());
    EXPECT_EQ(StoredText(*clone), StoredText(*effect));

    clone->SetParameter(this->FirstName(), 0.125);
    EXPECT_EQ(effect->GetParameter(this->FirstName()), this->OtherValue());
}

TYPED_TEST_P(EffectContract, storesItsIdAndEachParameterByName)
{
    const auto effect = this->MakeEffect();
    effect->SetParameter(this->FirstName(), this->OtherValue());
    const auto node = StoredNode{}.ToSerializer();
    effect->Serialize(node);
    EXPECT_EQ(node->GetKeys().front(), "id");
    EXPECT_EQ(node->Get("id", ""), this->subject.GetEffectID());
    EXPECT_EQ(node->Get(this->FirstName(), -999.0), this->OtherValue());
}

TYPED_TEST_P(EffectContract, comesBackFromItsStoredForm)
{
    const auto effect = this->MakeEffect();
    effect->SetParameter(this->FirstName(), this->OtherValue());
    const auto node = StoredNode{}.ToSerializer();
    effect->Serialize(node);

    const auto restored = TestFixture::Effect::CreateEffectSettings(node);
    restored->Deserialize(node);
    EXPECT_EQ(StoredText(*restored), StoredText(*effect));
}

TYPED_TEST_P(EffectContract, aMissingParameterKeepsItsValue)
{
    const auto effect = this->MakeEffect();
    effect->Deserialize(StoredNode{{"id", this->subject.GetEffectID()}}.ToSerializer());
    EXPECT_EQ(effect->GetParameter(this->FirstName()), this->Parameters().front().defaultValue);
}

TYPED_TEST_P(EffectContract, refusesAParameterThatIsNoNumber)
{
    const auto effect = this->MakeEffect();
    const StoredNode node{{"id", this->subject.GetEffectID()}, {this->FirstName(), "much"}};
    EXPECT_THROW(effect->Deserialize(node.ToSerializer()), Zorvik::Exception);
}

TYPED_TEST_P(EffectContract, diesWithItsLastReference)
{
    auto effect = this->MakeEffect();
    EXPECT_EQ(effect->GetRefCount(), 1U);
    const Zorvik::Quindle::ConstEffectPtr second = effect;
    EXPECT_EQ(effect->GetRefCount(), 2U);
    effect.reset();
    EXPECT_EQ(second->GetRefCount(), 1U);
}

REGISTER_TYPED_TEST_SUITE_P(EffectContract, isCreatedUnderItsIdAtItsDefaults, doesNotKnowOtherNames,
                            takesFiniteValuesWithoutClamping, ignoresValuesThatAreNotFinite,
                            aCloneIsEqualAndIndependent, storesItsIdAndEachParameterByName,
                            comesBackFromItsStoredForm, aMissingParameterKeepsItsValue,
                            refusesAParameterThatIsNoNumber, diesWithItsLastReference);

} // namespace LumetraTest

// SPDX-License-Identifier: MIT
#include "contract/EffectContract.h"

#include "support/CallLog.h"
#include "support/RegisteredEffects.h"

namespace LumetraTest {
namespace {

class PlainSubject
{
public:
    std::string GetEffectID() const { return "plain"; }

private:
    CallLog m_log;
    RegisteredEffects m_effects{m_log};
};

class RecordingSubject
{
public:
    std::string GetEffectID() const { return "tone"; }

private:
    CallLog m_log;
    RegisteredEffects m_effects{m_log};
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(EffectSettingsImpl, EffectContract, PlainSubject);
INSTANTIATE_TYPED_TEST_SUITE_P(Recording, EffectContract, RecordingSubject);

} // namespace LumetraTest

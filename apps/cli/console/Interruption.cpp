// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/Interruption.h"

#include <optional>

namespace LumetraCli {
namespace {

// A signal's handler reaches nothing but variables like these. The token is made anew before the
// handlers are installed.
std::optional<LumetraHost::CancelToken> Token;
volatile std::sig_atomic_t Signal = 0;

void TakeSignal(int signal)
{
    Signal = signal;
    Token->Cancel();
}

/// Returns the handling before. The handler serves for one signal, so that a second one has its
/// usual effect.
struct sigaction Install(int signal)
{
    struct sigaction before = {};
    ::sigaction(signal, nullptr, &before);
    if (before.sa_handler == SIG_IGN)
        return before;
    struct sigaction action = {};
    action.sa_handler = &TakeSignal;
    action.sa_flags = SA_RESETHAND | SA_RESTART;
    ::sigemptyset(&action.sa_mask);
    ::sigaction(signal, &action, nullptr);
    return before;
}

} // namespace

Interruption::Interruption()
{
    Token.emplace();
    Signal = 0;
    m_interrupt = Install(SIGINT);
    m_terminate = Install(SIGTERM);
}

Interruption::~Interruption()
{
    ::sigaction(SIGINT, &m_interrupt, nullptr);
    ::sigaction(SIGTERM, &m_terminate, nullptr);
}

const LumetraHost::CancelToken& Interruption::GetToken() const
{
    return *Token;
}

ExitCode Interruption::GetExitCode(ExitCode code) const
{
    if (!HasCome())
        return code;
    return Signal == SIGTERM ? ExitCode::Terminated : ExitCode::Interrupted;
}

} // namespace LumetraCli

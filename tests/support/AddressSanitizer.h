// SPDX-License-Identifier: MIT
#pragma once

namespace LumetraTest {

/// True in builds with AddressSanitizer. It reserves terabytes of address space at the start, so
/// that a limit of the address space means nothing there.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool HasAddressSanitizer = true;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool HasAddressSanitizer = true;
#else
constexpr bool HasAddressSanitizer = false;
#endif
#else
constexpr bool HasAddressSanitizer = false;
#endif

} // namespace LumetraTest

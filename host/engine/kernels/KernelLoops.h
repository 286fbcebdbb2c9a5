// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

// These macros tell compilers what they cannot see of loops over pixels.

/// Before a loop whose steps do not read what other steps write: spares the vector code a test
/// whether the arrays overlap, and with many arrays the compiler giving up.
#ifdef __clang__
#define LUMETRA_KERNEL_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#else
#define LUMETRA_KERNEL_INDEPENDENT _Pragma("GCC ivdep")
#endif

/// Before a loop of few instructions that cannot become vector code: four steps at a time.
#ifdef __clang__
#define LUMETRA_KERNEL_UNROLLED _Pragma("clang loop unroll_count(4)")
#else
#define LUMETRA_KERNEL_UNROLLED _Pragma("GCC unroll 4")
#endif

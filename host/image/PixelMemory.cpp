// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/PixelMemory.h"

#include <new>

#include <sys/mman.h>
#include <unistd.h>

namespace LumetraHost {
namespace {

constexpr std::align_val_t Alignment{PixelMemory::RowAlignment};

/// The number of bytes from `bytes` to the next page's begin.
std::size_t FindPage(const std::uint8_t* bytes, std::size_t page)
{
    const std::size_t behind = reinterpret_cast<std::uintptr_t>(bytes) % page;
    return behind == 0 ? 0 : page - behind;
}

} // namespace

std::shared_ptr<std::uint8_t> PixelMemory::Allocate(std::size_t size)
{
    auto* const bytes = static_cast<std::uint8_t*>(::operator new(size, Alignment));
    return {bytes, [](std::uint8_t* pixels) { ::operator delete(pixels, Alignment); }};
}

void PixelMemory::GiveBackEnd(std::uint8_t* bytes, std::size_t size, std::size_t used)
{
    const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
    const std::size_t first = used + FindPage(bytes + used, page);
    if (first >= size)
        return;
    const std::size_t whole = (size - first) / page * page;
    // A system that refuses this keeps the memory until the picture is freed, as it would anyway.
    if (whole > 0)
        madvise(bytes + first, whole, MADV_DONTNEED);
}

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/tiff/TiffStream.h"

#include "storage/FailWith.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <memory>
#include <new>

#include <tiffio.h>

namespace LumetraHost {
namespace {

/// A header may ask for any amount; no table or strip of a photo within our limits needs more.
constexpr tmsize_t LargestAllocation = tmsize_t(1) << 32;

} // namespace

/// The functions that the library calls; no exception may leave them.
struct TiffStream::Callbacks
{
    static TiffStream& Self(thandle_t handle) { return *static_cast<TiffStream*>(handle); }

    static std::uint64_t GetSize(const TiffStream& self)
    {
        return self.m_source ? self.m_source->size() : self.m_target.size();
    }

    static tmsize_t Read(thandle_t handle, void* target, tmsize_t size)
    {
        TiffStream& self = Self(handle);
        const Bytes& bytes = self.m_source ? *self.m_source : self.m_target;
        const std::uint64_t begin = std::min<std::uint64_t>(self.m_position, bytes.size());
        const auto count =
            std::min<std::uint64_t>(static_cast<std::uint64_t>(size), bytes.size() - begin);
        std::memcpy(target, bytes.data() + begin, count);
        self.m_position = begin + count;
        return static_cast<tmsize_t>(count);
    }

    static tmsize_t Write(thandle_t handle, void* source, tmsize_t size)
    {
        TiffStream& self = Self(handle);
        const std::uint64_t end = self.m_position + static_cast<std::uint64_t>(size);
        if (self.m_source || !Grow(self, end))
            return -1;
        std::memcpy(self.m_target.data() + self.m_position, source, static_cast<std::size_t>(size));
        self.m_position = end;
        return size;
    }

    static bool Grow(TiffStream& self, std::uint64_t size)
    {
        try {
            if (size > self.m_target.size())
                self.m_target.resize(size);
            return true;
        } catch (const std::bad_alloc&) {
            self.m_outOfMemory = true;
            return false;
        }
    }

    static toff_t Seek(thandle_t handle, toff_t offset, int whence)
    {
        TiffStream& self = Self(handle);
        const std::uint64_t base = whence == SEEK_CUR   ? self.m_position
                                   : whence == SEEK_END ? GetSize(self)
                                                        : 0;
        self.m_position = base + offset;
        return self.m_position;
    }

    static int Close(thandle_t) { return 0; }

    static toff_t Size(thandle_t handle) { return GetSize(Self(handle)); }

    static int Map(thandle_t handle, void** base, toff_t* size)
    {
        TiffStream& self = Self(handle);
        if (!self.m_source)
            return 0;
        *base = const_cast<std::uint8_t*>(self.m_source->data()); // the library only reads it
        *size = self.m_source->size();
        return 1;
    }

    static void Unmap(thandle_t, void*, toff_t) {}

    static int OnError(TIFF*, void* stream, const char*, const char* format, va_list arguments)
    {
        auto& self = *static_cast<TiffStream*>(stream);
        char text[256];
        std::vsnprintf(text, sizeof text, format, arguments);
        if (self.m_message.empty())
            self.m_message = text;
        return 1;
    }

    /// Warnings are about tags that do not change the pixels.
    static int OnWarning(TIFF*, void*, const char*, const char*, va_list) { return 1; }
};

TiffStream::TiffStream(const Bytes& content, const std::string& name)
    : m_source(&content), m_name(name)
{
    Open("r");
    if (!m_tiff)
        Throw("the TIFF header cannot be read");
}

TiffStream::TiffStream(const std::string& name) : m_name(name)
{
    Open("w");
    if (!m_tiff)
        Throw("cannot be encoded as TIFF");
}

TiffStream::~TiffStream()
{
    if (m_tiff)
        TIFFClose(m_tiff);
}

void TiffStream::Open(const char* mode)
{
    const std::unique_ptr<TIFFOpenOptions, void (*)(TIFFOpenOptions*)> options(
        TIFFOpenOptionsAlloc(), TIFFOpenOptionsFree);
    if (!options)
        throw std::bad_alloc();
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), LargestAllocation);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), Callbacks::OnError, this);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), Callbacks::OnWarning, this);
    m_tiff = TIFFClientOpenExt(m_name.c_str(), mode, this, Callbacks::Read, Callbacks::Write,
                               Callbacks::Seek, Callbacks::Close, Callbacks::Size, Callbacks::Map,
                               Callbacks::Unmap, options.get());
}

Bytes TiffStream::Finish()
{
    const bool written = TIFFWriteDirectory(m_tiff) == 1;
    TIFFClose(m_tiff);
    m_tiff = nullptr;
    if (!written || !m_message.empty())
        Throw("cannot be encoded as TIFF");
    return std::move(m_target);
}

void TiffStream::Throw(const std::string& text) const
{
    if (m_outOfMemory)
        throw std::bad_alloc();
    FailWith(m_name + ": " + text + (m_message.empty() ? "" : ": " + m_message));
}

} // namespace LumetraHost

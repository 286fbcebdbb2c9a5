// SPDX-License-Identifier: MIT
#include "Zorvik/IRefCountable.h"
#include "Zorvik/RefCountImpl.h"

namespace Zorvik {

IRefCountable::~IRefCountable() = default;

void intrusive_ptr_add_ref(const IRefCountable* object)
{
    object->AddRef();
}

void intrusive_ptr_release(const IRefCountable* object)
{
    object->Release();
}

RefCountImpl::RefCountImpl() : m_count(0) {}

RefCountImpl::RefCountImpl(const RefCountImpl&) : m_count(0) {}

RefCountImpl& RefCountImpl::operator=(const RefCountImpl&)
{
    return *this;
}

unsigned RefCountImpl::AddRefImpl() const
{
    return m_count.fetch_add(1, std::memory_order_relaxed) + 1;
}

unsigned RefCountImpl::ReleaseImpl() const
{
    return m_count.fetch_sub(1, std::memory_order_acq_rel) - 1;
}

unsigned RefCountImpl::GetRefCountImpl() const
{
    return m_count.load(std::memory_order_acquire);
}

} // namespace Zorvik

// SPDX-License-Identifier: MIT
#include "Zorvik/RefCounted.h"

#include "Zorvik/IRefCountable.h"
#include "Zorvik/RefCountImpl.h"

#include <gtest/gtest.h>

#include <thread>
#include <vector>

using boost::intrusive_ptr;
using namespace Zorvik;

namespace {

class INamed : public virtual IRefCountable
{
public:
    INamed(int number, int& deaths) : m_number(number), m_deaths(deaths) {}
    INamed(const INamed&) = default;
    ~INamed() override { ++m_deaths; }

    int GetNumber() const { return m_number; }

private:
    int m_number;
    int& m_deaths;
};

using Named = RefCounted<INamed>;

} // namespace

TEST(RefCountImpl, startsAtZeroAndReturnsTheNewCount)
{
    const RefCountImpl count;
    EXPECT_EQ(count.GetRefCountImpl(), 0U);
    EXPECT_EQ(count.AddRefImpl(), 1U);
    EXPECT_EQ(count.AddRefImpl(), 2U);
    EXPECT_EQ(count.ReleaseImpl(), 1U);
    EXPECT_EQ(count.GetRefCountImpl(), 1U);
}

TEST(RefCountImpl, aCopyStartsAtZero)
{
    const RefCountImpl count;
    count.AddRefImpl();
    const RefCountImpl copy(count);
    EXPECT_EQ(copy.GetRefCountImpl(), 0U);
    EXPECT_EQ(count.GetRefCountImpl(), 1U);
}

TEST(RefCountImpl, assigningLeavesBothCountsAlone)
{
    RefCountImpl one;
    RefCountImpl two;
    one.AddRefImpl();
    two = one;
    EXPECT_EQ(one.GetRefCountImpl(), 1U);
    EXPECT_EQ(two.GetRefCountImpl(), 0U);
}

TEST(RefCountImpl, countsAcrossThreads)
{
    const RefCountImpl count;
    std::vector<std::thread> threads;
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([&count] {
            for (int i = 0; i < 20000; ++i)
                count.AddRefImpl();
            for (int i = 0; i < 10000; ++i)
                count.ReleaseImpl();
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(count.GetRefCountImpl(), 40000U);
}

TEST(RefCounted, deletesItselfWithTheLastReference)
{
    int deaths = 0;
    intrusive_ptr<INamed> first(new Named(7, deaths));
    EXPECT_EQ(first->GetRefCount(), 1U);
    intrusive_ptr<const INamed> second = first;
    EXPECT_EQ(second->GetRefCount(), 2U);
    first.reset();
    EXPECT_EQ(deaths, 0);
    EXPECT_EQ(second->GetNumber(), 7);
    EXPECT_EQ(second->AddRef(), 2U);
    EXPECT_EQ(second->Release(), 1U);
    second.reset();
    EXPECT_EQ(deaths, 1);
}

TEST(RefCounted, aCopyHasACountOfItsOwn)
{
    int deaths = 0;
    const intrusive_ptr<Named> first(new Named(7, deaths));
    const intrusive_ptr<Named> alias = first;
    const intrusive_ptr<Named> copy(new Named(*first));
    EXPECT_EQ(first->GetRefCount(), 2U);
    EXPECT_EQ(copy->GetRefCount(), 1U);
    EXPECT_EQ(copy->GetNumber(), 7);
}

TEST(RefCounted, releaseReturnsZeroWhenTheObjectIsGone)
{
    int deaths = 0;
    const INamed* object = new Named(7, deaths);
    object->AddRef();
    EXPECT_EQ(object->Release(), 0U);
    EXPECT_EQ(deaths, 1);
}

// SPDX-License-Identifier: MIT
#include "support/ExpectLog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <mutex>
#include <vector>

namespace LumetraTest {
namespace {

// Messages may come from a render thread.
std::mutex& Mutex()
{
    static std::mutex mutex;
    return mutex;
}

std::vector<ExpectLog*>& Living()
{
    static std::vector<ExpectLog*> living;
    return living;
}

} // namespace

ExpectLog::ExpectLog(const char* pattern) : m_pattern(QString::fromUtf8(pattern))
{
    EXPECT_TRUE(m_pattern.isValid()) << "not a regular expression: " << pattern;
    const std::lock_guard lock(Mutex());
    Living().push_back(this);
}

ExpectLog::~ExpectLog()
{
    {
        const std::lock_guard lock(Mutex());
        Living().erase(std::find(Living().begin(), Living().end(), this));
    }
    EXPECT_GT(m_count, 0) << "expected a message in the log like \""
                          << m_pattern.pattern().toStdString() << "\", found none";
}

int ExpectLog::GetCount() const
{
    const std::lock_guard lock(Mutex());
    return m_count;
}

bool ExpectLog::Take(const QString& message)
{
    const std::lock_guard lock(Mutex());
    const auto& living = Living();
    const auto taker = std::find_if(living.rbegin(), living.rend(), [&message](ExpectLog* e) {
        return e->m_pattern.match(message).hasMatch();
    });
    if (taker == living.rend())
        return false;
    ++(*taker)->m_count;
    return true;
}

} // namespace LumetraTest

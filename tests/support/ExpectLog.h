// SPDX-License-Identifier: MIT
#pragma once

#include <QRegularExpression>

namespace LumetraTest {

/// Declares that, during its life, Qt's log receives at least one warning or critical message in
/// which `pattern` is found. Messages that match no living ExpectLog fail the running test, and so
/// does an ExpectLog that ends unmatched. The innermost match takes the message. Needs LogGuard.
class ExpectLog
{
public:
    explicit ExpectLog(const char* pattern);
    ~ExpectLog();

    ExpectLog(const ExpectLog&) = delete;
    ExpectLog& operator=(const ExpectLog&) = delete;

    /// How many messages matched so far.
    int GetCount() const;

    /// Hands `message` to the innermost living ExpectLog that matches it; false when none does.
    static bool Take(const QString& message);

private:
    QRegularExpression m_pattern;
    int m_count = 0;
};

} // namespace LumetraTest

// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <sys/mount.h>

namespace LumetraTest {

/// A separate file system, where the machine allows one.
class Medium
{
public:
    explicit Medium(const QString& folder) : m_folder(QFile::encodeName(folder))
    {
        EXPECT_TRUE(QDir().mkpath(folder));
        m_isMounted = mount("tmpfs", m_folder.constData(), "tmpfs", 0, "size=1m") == 0;
    }
    ~Medium()
    {
        if (m_isMounted)
            umount2(m_folder.constData(), MNT_DETACH);
    }
    Medium(const Medium&) = delete;
    Medium& operator=(const Medium&) = delete;

    bool Protect() const
    {
        return mount("tmpfs", m_folder.constData(), "tmpfs", MS_REMOUNT | MS_RDONLY, nullptr) == 0;
    }

private:
    QByteArray m_folder;
    bool m_isMounted = false;
};

} // namespace LumetraTest

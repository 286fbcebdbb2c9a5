// SPDX-License-Identifier: MIT
#pragma once

namespace Zorvik::Quindle {

/// Requests that one package be taken off the photo, by its index. A preset that is switched off
/// hands it to IResetReceiver.
class ResetSettings
{
public:
    /// `packageIndex` is an index as IQuindleDrawer::GetPackageIndex() returns it.
    explicit ResetSettings(unsigned packageIndex) : m_index(packageIndex) {}

    /// Returns the index of the package to be taken off; the package may be closed by then.
    unsigned GetIndex() const { return m_index; }

private:
    unsigned m_index;
};

} // namespace Zorvik::Quindle

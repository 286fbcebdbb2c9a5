// SPDX-License-Identifier: MIT
#pragma once

namespace Zorvik::Quindle {

/// A request to take one package off the photo, by its index.
class ResetSettings
{
public:
    explicit ResetSettings(unsigned packageIndex) : m_index(packageIndex) {}

    unsigned GetIndex() const { return m_index; }

private:
    unsigned m_index;
};

} // namespace Zorvik::Quindle

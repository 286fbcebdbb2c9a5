// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "image/RootGrid.h"

#include <QByteArray>

#include <array>
#include <functional>
#include <string>
#include <vector>

namespace LumetraHost {

/// An RGB space other than sRGB that the pixels of a picture are in, as its ICC profile describes
/// it by three transfer curves and a matrix: Display P3, Adobe RGB, ProPhoto RGB. Immutable; shared
/// by all pictures that come from one photo.
class RgbSpace
{
public:
    using Matrix = std::array<std::array<double, 3>, 3>;
    /// Linear light of an encoded value: rises from 0 to 1; asked up to 2.
    using Curve = std::function<double(double)>;

    /// `toSrgb`: from linear light of this space to that of sRGB; can be inverted. `profile`: the
    /// ICC profile as it stands in the photo. `name`: what users call the space.
    RgbSpace(const std::array<Curve, 3>& curves, const Matrix& toSrgb, const QByteArray& profile,
             const std::string& name);

    const Matrix& GetToSrgb() const { return m_toSrgb; }
    const QByteArray& GetProfile() const { return m_profile; }
    const std::string& GetName() const { return m_name; }

    /// True when the transfer curves are those of sRGB within a thirtieth of an 8-bit step, as
    /// those of Display P3 are: they are taken for them.
    bool HasSrgbCurves() const { return m_hasSrgbCurves; }

    /// Table of a channel over RootGrid: what a pixel value that was decoded with the curve of sRGB
    /// is with the curve of this space. Not for spaces that have the curves of sRGB.
    const float* GetDecoding(std::size_t channel) const { return m_decoding[channel].data(); }
    /// The inverse: what linear light has to be for the curve of sRGB to encode it as that of this
    /// space would.
    const float* GetEncoding(std::size_t channel) const { return m_encoding[channel].data(); }

    /// True when values of that many bits, 8 or 16, come back within one step when they are decoded
    /// and encoded again: some curves are level near black.
    bool KeepsValues(int bits) const;

private:
    bool KeepsValue(double encoded, double tolerance) const;
    void AddTables(const Curve& curve, std::size_t channel);

    Matrix m_toSrgb;
    QByteArray m_profile;
    std::string m_name;
    bool m_hasSrgbCurves;
    std::array<std::vector<float>, 3> m_decoding;
    std::array<std::vector<float>, 3> m_encoding;
};

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#include "image/ImageOrientation.h"

#include <algorithm>

namespace LumetraHost {
namespace {

/// Turning reads columns: in blocks the lines that were fetched are used up before they are lost.
constexpr int BlockSide = 32;

/// The stored picture's axes as the upright picture's pixels are walked.
struct Turn
{
    bool swapAxes;
    bool flipX; // of the stored picture
    bool flipY;

    bool IsNone() const { return !swapAxes && !flipX && !flipY; }
};

constexpr Turn Turns[] = {
    {false, false, false}, // 1
    {false, true, false},  // 2
    {false, true, true},   // 3
    {false, false, true},  // 4
    {true, false, false},  // 5
    {true, false, true},   // 6
    {true, true, true},    // 7
    {true, true, false},   // 8
};

Turn FindTurn(int orientation)
{
    return Turns[orientation < 1 || orientation > 8 ? 0 : orientation - 1];
}

template <class Pixel>
void CopyBlock(const Image& source, Image& target, const Turn& turn, int left, int top)
{
    const int right = std::min(left + BlockSide, target.GetWidth());
    const int bottom = std::min(top + BlockSide, target.GetHeight());
    for (int y = top; y < bottom; ++y) {
        auto* const row = reinterpret_cast<Pixel*>(target.Row(y));
        for (int x = left; x < right; ++x) {
            int sourceX = turn.swapAxes ? y : x;
            int sourceY = turn.swapAxes ? x : y;
            if (turn.flipX)
                sourceX = source.GetWidth() - 1 - sourceX;
            if (turn.flipY)
                sourceY = source.GetHeight() - 1 - sourceY;
            row[x] = reinterpret_cast<const Pixel*>(source.Row(sourceY))[sourceX];
        }
    }
}

template <class Pixel>
void Copy(const Image& source, Image& target, const Turn& turn)
{
    for (int top = 0; top < target.GetHeight(); top += BlockSide) {
        for (int left = 0; left < target.GetWidth(); left += BlockSide)
            CopyBlock<Pixel>(source, target, turn, left, top);
    }
}

} // namespace

Image TurnUpright(const Image& image, int orientation)
{
    const Turn turn = FindTurn(orientation);
    if (image.IsNull() || turn.IsNone())
        return image;
    Image target = Image::AllocateUninitialised(
        turn.swapAxes ? image.GetHeight() : image.GetWidth(),
        turn.swapAxes ? image.GetWidth() : image.GetHeight(), image.GetDepth(), image.GetSpace());
    if (image.GetDepth() == Image::Depth::Bits16)
        Copy<std::uint64_t>(image, target, turn);
    else
        Copy<std::uint32_t>(image, target, turn);
    return target;
}

PixelRect FindUprightPlace(int width, int height, int first, int count, int orientation)
{
    const Turn turn = FindTurn(orientation);
    const int begin = turn.flipY ? height - first - count : first;
    return turn.swapAxes ? PixelRect{begin, 0, count, width} : PixelRect{0, begin, width, count};
}

} // namespace LumetraHost

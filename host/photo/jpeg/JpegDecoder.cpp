// SPDX-License-Identifier: GPL-2.0-or-later
#include "photo/file/Decoders.h"

#include "photo/jpeg/JpegRowReader.h"

namespace LumetraHost {

DecodedPhoto DecodeJpeg(const Bytes& content, const std::string& name, int smallestSide)
{
    JpegRowReader reader(content, name);
    if (smallestSide > 0)
        reader.ScaleDown(smallestSide);
    DecodedPhoto photo;
    photo.meaning = reader.GetMeaning();
    photo.iccProfile = reader.GetProfile();
    photo.isProfileDamaged = reader.IsProfileDamaged();
    photo.pixels =
        Image::AllocateUninitialised(reader.GetWidth(), reader.GetHeight(), Image::Depth::Bits8);
    reader.Read(photo.pixels, 0, reader.GetHeight());
    return photo;
}

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "photo/Photo.h"
#include "photo/file/EncodingOptions.h"
#include "photo/file/PhotoFormat.h"
#include "photo/file/RowEncoder.h"

#include <QString>

#include <memory>
#include <string>

namespace LumetraHost {

/// Stores photos as JPEG, PNG, TIFF or WebP with their metadata and colour profile. 16 bits are
/// kept where the format holds them, else rounded to 8; alpha is kept where the format holds it,
/// else composed over white. Pictures are encoded in memory and reach the disk whole or not at all.
/// Usable from any thread.
class PhotoWriter
{
public:
    using Options = EncodingOptions;

    /// Replaces or creates the file in the format of its extension. Zorvik::Exception naming the
    /// file and the reason: an unknown extension, a quality out of range, a picture that the format
    /// cannot hold, a full disk. The old file is then untouched.
    static void Write(const QString& path, const Photo& photo, const Options& options);
    static void Write(const QString& path, const Photo& photo) { Write(path, photo, Options()); }

    /// The format of a file name to be written; Zorvik::Exception for an unknown extension.
    static PhotoFormat GetFormatOf(const QString& path);

    /// True when files of that format can carry this profile. One that cannot be carried is left
    /// out with a warning.
    static bool HoldsProfile(PhotoFormat format, const QByteArray& iccProfile);

    /// Begins a file in memory whose rows come later; it becomes equal to that of Encode().
    /// `metadata` are those of an upright picture. `warnings` may grow until the encoder has
    /// finished and outlives it; null where nobody asks for them. `goesOn` is asked by encoders
    /// that work on whole pictures (WebP); may be empty.
    static std::unique_ptr<RowEncoder> Start(const PictureForm& form, const PhotoMetadata& metadata,
                                             PhotoFormat format, const Options& options,
                                             const std::string& name, Warnings* warnings = nullptr,
                                             const GoesOn& goesOn = {});

    /// The encoded file in memory; `name` stands for it in errors. `warnings`, unless null, tells
    /// of transparency, metadata blocks and profiles that the format cannot hold.
    static Bytes Encode(const Photo& photo, PhotoFormat format, const Options& options,
                        const std::string& name, Warnings* warnings = nullptr);
};

} // namespace LumetraHost

// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/PreviewRenderer.h"
#include "drawer/stack/PictureRecipe.h"

#include "Zorvik/Proc/Frame.h"

#include <QHash>
#include <QString>

#include <cstddef>
#include <list>

namespace LumetraHost {

/// The effects, size and policies of a preview.
struct PreviewRequest
{
    Zorvik::Proc::FrameTarget target;
    SharedSettings effects;
    PreviewPolicies policies;
};

/// True when both are the same picture of the same photo.
bool ShowTheSame(const PreviewRequest& first, const PreviewRequest& second);

/// The newest preview of each key, ready or not, within a number of bytes. One thread only.
class PreviewCache
{
public:
    struct Entry
    {
        QString key;
        PreviewRequest request;
        Zorvik::Proc::Frame frame; ///< null: not ready
    };

    explicit PreviewCache(std::size_t capacity);

    /// The entry of the key, if it is that of the request, else null. Counts as a use. Good until
    /// the next operation.
    const Entry* Find(const QString& key, const PreviewRequest& request);
    /// Puts a request that is not ready in the place of the key's entry.
    void Add(const QString& key, const PreviewRequest& request);
    /// Sets the picture of an added request; false when that is no longer wanted. May drop others.
    bool SetFrame(const QString& key, const SharedSettings& effects,
                  const Zorvik::Proc::Frame& frame);
    void RemovePending();
    void Clear();

private:
    using Entries = std::list<Entry>;

    void Remove(Entries::iterator entry);
    void DropBeyondCapacity();

    std::size_t m_capacity;
    std::size_t m_bytes = 0;
    Entries m_entries; ///< the one used last first
    QHash<QString, Entries::iterator> m_byKey;
};

} // namespace LumetraHost

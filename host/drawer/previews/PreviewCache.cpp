// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/previews/PreviewCache.h"

#include "drawer/stack/SameEffects.h"

#include <iterator>

namespace LumetraHost {
namespace {

std::size_t CountBytes(const Zorvik::Proc::Frame& frame)
{
    return frame.stride * static_cast<std::size_t>(frame.height);
}

} // namespace

bool ShowTheSame(const PreviewRequest& first, const PreviewRequest& second)
{
    return first.target.width == second.target.width &&
           first.target.height == second.target.height &&
           first.target.pixelAspect == second.target.pixelAspect &&
           first.policies.crop == second.policies.crop &&
           first.policies.fit == second.policies.fit &&
           first.policies.flags == second.policies.flags &&
           first.policies.portraitMiddle == second.policies.portraitMiddle &&
           DrawTheSame(*first.effects, *second.effects);
}

PreviewCache::PreviewCache(std::size_t capacity) : m_capacity(capacity) {}

const PreviewCache::Entry* PreviewCache::Find(const QString& key, const PreviewRequest& request)
{
    const auto found = m_byKey.constFind(key);
    if (found == m_byKey.constEnd() || !ShowTheSame((*found)->request, request))
        return nullptr;
    m_entries.splice(m_entries.begin(), m_entries, *found);
    return &m_entries.front();
}

void PreviewCache::Add(const QString& key, const PreviewRequest& request)
{
    const auto found = m_byKey.constFind(key);
    if (found != m_byKey.constEnd())
        Remove(*found);
    m_entries.push_front({key, request, {}});
    m_byKey.insert(key, m_entries.begin());
}

bool PreviewCache::SetFrame(const QString& key, const SharedSettings& effects,
                            const Zorvik::Proc::Frame& frame)
{
    const auto found = m_byKey.constFind(key);
    if (found == m_byKey.constEnd() || (*found)->request.effects != effects)
        return false;
    (*found)->frame = frame;
    m_bytes += CountBytes(frame);
    m_entries.splice(m_entries.begin(), m_entries, *found);
    DropBeyondCapacity();
    return true;
}

void PreviewCache::RemovePending()
{
    for (auto entry = m_entries.begin(); entry != m_entries.end();) {
        const auto current = entry++;
        if (current->frame.IsNull())
            Remove(current);
    }
}

void PreviewCache::Clear()
{
    m_entries.clear();
    m_byKey.clear();
    m_bytes = 0;
}

void PreviewCache::Remove(Entries::iterator entry)
{
    m_bytes -= CountBytes(entry->frame);
    m_byKey.remove(entry->key);
    m_entries.erase(entry);
}

// Keeps the newest preview, however large it is: somebody is about to show it.
void PreviewCache::DropBeyondCapacity()
{
    auto entry = m_entries.end();
    while (m_bytes > m_capacity && std::prev(entry) != m_entries.begin()) {
        const auto last = std::prev(entry);
        if (last->frame.IsNull())
            entry = last;
        else
            Remove(last);
    }
}

} // namespace LumetraHost

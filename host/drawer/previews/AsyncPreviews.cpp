// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/previews/AsyncPreviews.h"

#include "drawer/Drawer.h"
#include "drawer/previews/PreviewCache.h"
#include "drawer/previews/PreviewWorker.h"

#include <QMetaObject>

namespace LumetraHost {

AsyncPreviews::AsyncPreviews(Drawer& drawer, QObject* parent, std::size_t capacity)
    : QObject(parent), m_drawer(drawer), m_cache(std::make_unique<PreviewCache>(capacity)),
      m_worker(std::make_unique<PreviewWorker>([this] {
          QMetaObject::invokeMethod(
              this, [this] { Deliver(); }, Qt::QueuedConnection);
      }))
{
    m_drawer.AddObserver(this);
}

AsyncPreviews::~AsyncPreviews()
{
    m_drawer.RemoveObserver(this);
    // The worker's thread posts events to this object, so it ends first.
    m_worker.reset();
}

Zorvik::Proc::Frame AsyncPreviews::Request(const QString& key,
                                           const Zorvik::Proc::FrameTarget& target,
                                           const Zorvik::Quindle::EffectsSettings& effects,
                                           const PreviewPolicies& policies)
{
    const KeptImage& photo = m_drawer.GetPhoto();
    if (photo.IsNull())
        return {};
    // Throws for a bad target here, where the caller hears of it.
    MakePreviewPart(photo.GetWidth(), photo.GetHeight(), target, policies.crop, policies.fit,
                    policies.portraitMiddle);
    const PreviewRequest request{
        target, std::make_shared<Zorvik::Quindle::EffectsSettings>(effects), policies};
    if (const auto* const entry = m_cache->Find(key, request)) {
        if (entry->frame.IsNull())
            m_worker->MoveToFront(key);
        return entry->frame;
    }
    if (!m_committed)
        m_committed = std::make_shared<PictureRecipe>(m_drawer.GetCommittedRecipe());
    m_cache->Add(key, request);
    m_worker->Add({key, request, m_committed});
    return {};
}

void AsyncPreviews::CancelAll()
{
    m_worker->CancelAll();
    m_cache->RemovePending();
}

void AsyncPreviews::WaitForAll()
{
    m_worker->WaitForAll();
    Deliver();
}

void AsyncPreviews::CommittedPhotoChanged()
{
    m_worker->CancelAll();
    m_cache->Clear();
    m_committed.reset();
}

void AsyncPreviews::Deliver()
{
    for (const PreviewResult& result : m_worker->TakeResults()) {
        if (result.frame.IsNull())
            qWarning("preview \"%s\" could not be rendered: %s", qUtf8Printable(result.key),
                     result.error.c_str());
        else if (m_cache->SetFrame(result.key, result.effects, result.frame))
            emit previewReady(result.key);
    }
}

} // namespace LumetraHost

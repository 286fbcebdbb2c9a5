// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/PreviewRenderer.h"
#include "drawer/stack/IDrawerObserver.h"

#include "Zorvik/Proc/Frame.h"
#include "Zorvik/Quindle/EffectsSettings.h"

#include <QObject>
#include <QString>

#include <memory>

namespace LumetraHost {

class Drawer;
class PreviewWorker;
class PreviewCache;

/// Small pictures of a drawer's committed photo with various effects, rendered on a thread of their
/// own: a request returns the picture that is ready, and a signal tells when a missing one is. The
/// previews share one scaled photo. All of them are dropped when the committed photo changes;
/// whoever shows one then asks again.
class AsyncPreviews : public QObject, private IDrawerObserver
{
    Q_OBJECT

public:
    /// Bytes that the kept frames may take together, unless the constructor is told otherwise.
    static constexpr std::size_t DefaultCapacity = std::size_t{64} << 20;

    /// `drawer` is kept by reference and outlives the previews. `capacity`: bytes of kept frames;
    /// beyond it those used longest ago are dropped.
    explicit AsyncPreviews(Drawer& drawer, QObject* parent = nullptr,
                           std::size_t capacity = DefaultCapacity);
    ~AsyncPreviews() override;

    /// The newest preview of this key, if it was asked for with the same arguments and is ready;
    /// else a null frame, and previewReady() tells when to ask again. The newest request is
    /// rendered first. A null frame without a photo. See IQuindleDrawer::RenderPreview for target
    /// and policies; Zorvik::Exception for a bad target.
    Zorvik::Proc::Frame Request(const QString& key, const Zorvik::Proc::FrameTarget& target,
                                const Zorvik::Quindle::EffectsSettings& effects,
                                const PreviewPolicies& policies = {});

    /// Forgets the requests that are not ready; their signals do not come.
    void CancelAll();
    /// Blocks until all requests are ready, and announces them. For commands and tests.
    void WaitForAll();

signals:
    /// Emitted on this object's thread. Not emitted for a preview that could not be rendered.
    void previewReady(const QString& key);

private:
    void FrameChanged() override {}
    void CommittedPhotoChanged() override;
    void Deliver();

    Drawer& m_drawer;
    std::shared_ptr<const PictureRecipe> m_committed; ///< null: to be taken from the drawer
    std::unique_ptr<PreviewCache> m_cache;
    std::unique_ptr<PreviewWorker> m_worker;
};

} // namespace LumetraHost

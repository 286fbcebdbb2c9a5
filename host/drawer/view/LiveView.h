// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/stack/IDrawerObserver.h"
#include "drawer/view/LiveViewOptions.h"
#include "drawer/view/ViewFrame.h"

#include "image/Image.h"
#include "image/KeptImage.h"

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace LumetraHost {

class DisplayTransform;
class Drawer;
class ViewWorker;
struct ViewResult;

/// Shows what a drawer shows, on a canvas: the visible part of the photo, as many pixels as the
/// screen has there, rendered on a thread of its own. The thread that owns the view and the drawer
/// never renders; it takes cheap snapshots.
///
/// The newest state wins: a superseded one is cancelled and not shown, except that two
/// cancellations in a row always have a frame between them. Where a full frame would be late a
/// reduced one comes first, and while an effect is dragged one from tables, where that is quicker
/// by measurement. The last frame depends only on the last state.
class LiveView : public QObject, private IDrawerObserver
{
    Q_OBJECT

public:
    /// `drawer` is kept by reference and outlives the view.
    explicit LiveView(Drawer& drawer, QObject* parent = nullptr,
                      const LiveViewOptions& options = {});
    ~LiveView() override;

    /// Nothing is rendered before the first call.
    void SetView(const ViewRequest& request);
    const ViewRequest& GetView() const { return m_request; }

    /// Shows the photo as it would be with these settings applied, replacing the open package that
    /// they would replace, without applying them; empty: as it is.
    void SetShownOnTop(std::optional<Zorvik::Quindle::EffectsSettings> settings);
    /// Frames are shown in these colours; null: in sRGB.
    void SetDisplay(const std::shared_ptr<const DisplayTransform>& display);
    /// True: frames come with the untouched photo, see GetShownOriginal().
    void SetNeedsOriginal(bool needsOriginal);

    /// The frame that was announced last; null before the first one.
    const ViewFrame& GetFrame() const { return m_frame; }
    /// The untouched photo in the part and size of that frame.
    Image GetOriginal() const { return m_original; }
    /// The untouched photo in the display's colours. With a display it is null until it has been
    /// needed; the frame that is announced then has it.
    Image GetShownOriginal() const { return m_shownOriginal; }

    /// Blocks until the full frame of the present state is there, and announces it. For commands
    /// and tests; throws what the rendering threw.
    void WaitForFrame();

signals:
    /// Emitted on this object's thread.
    void frameReady(const LumetraHost::ViewFrame& frame);
    /// Emitted instead of frameReady() when the present state cannot be rendered.
    void renderingFailed(const QString& reason);

private:
    void FrameChanged() override;
    void CommittedPhotoChanged() override;
    /// True when the announced frame is the full one of the present state.
    bool IsUpToDate() const { return m_doneSerial == m_serial; }
    void StartRendering();
    void Deliver();
    void Announce(const ViewResult& result);

    Drawer& m_drawer;
    ViewRequest m_request;
    std::optional<Zorvik::Quindle::EffectsSettings> m_shownOnTop;
    bool m_needsOriginal = false;
    std::shared_ptr<const DisplayTransform> m_display;
    quint64 m_serial = 0; ///< of the present state
    KeptImage m_photo;    ///< of the last job
    quint64 m_doneSerial = 0;
    ViewFrame m_frame;
    Image m_original;
    Image m_shownOriginal;
    std::unique_ptr<ViewWorker> m_worker;
};

} // namespace LumetraHost

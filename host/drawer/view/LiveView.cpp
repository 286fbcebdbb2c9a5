// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/view/LiveView.h"

#include "drawer/Drawer.h"
#include "drawer/view/ViewGeometry.h"
#include "drawer/view/ViewWorker.h"

#include <QMetaObject>

#include <utility>

namespace LumetraHost {
namespace {

QString DescribeError(const std::exception_ptr& error)
{
    try {
        std::rethrow_exception(error);
    } catch (const std::exception& exception) {
        return QString::fromUtf8(exception.what());
    } catch (...) {
        return QStringLiteral("unknown error");
    }
}

} // namespace

LiveView::LiveView(Drawer& drawer, QObject* parent, const LiveViewOptions& options)
    : QObject(parent), m_drawer(drawer), m_worker(std::make_unique<ViewWorker>(options, [this] {
          QMetaObject::invokeMethod(
              this, [this] { Deliver(); }, Qt::QueuedConnection);
      }))
{
    qRegisterMetaType<ViewFrame>();
    m_drawer.AddObserver(this);
}

LiveView::~LiveView()
{
    m_drawer.RemoveObserver(this);
    // The worker's thread posts events to this object, so it ends first.
    m_worker.reset();
}

void LiveView::SetView(const ViewRequest& request)
{
    if (m_request == request)
        return;
    m_request = request;
    StartRendering();
}

void LiveView::SetShownOnTop(std::optional<Zorvik::Quindle::EffectsSettings> settings)
{
    if (!settings && !m_shownOnTop)
        return;
    m_shownOnTop = std::move(settings);
    StartRendering();
}

void LiveView::SetDisplay(const std::shared_ptr<const DisplayTransform>& display)
{
    if (m_display == display)
        return;
    m_display = display;
    StartRendering();
}

void LiveView::SetNeedsOriginal(bool needsOriginal)
{
    if (m_needsOriginal == needsOriginal)
        return;
    m_needsOriginal = needsOriginal;
    if (needsOriginal && m_shownOriginal.IsNull())
        StartRendering();
}

void LiveView::WaitForFrame()
{
    if (IsUpToDate())
        return;
    m_worker->WaitFor(m_serial);
    const auto result = m_worker->TakeResult();
    if (!result)
        return;
    Announce(*result);
    if (result->error)
        std::rethrow_exception(result->error);
}

void LiveView::FrameChanged()
{
    StartRendering();
}

// A commit changes no pixel of the frame, but settings shown on top now have more below them.
void LiveView::CommittedPhotoChanged()
{
    if (m_shownOnTop)
        StartRendering();
}

void LiveView::StartRendering()
{
    if (m_request.size.isEmpty())
        return;
    ViewJob job;
    job.recipe = m_shownOnTop ? m_drawer.GetRecipeWith(*m_shownOnTop) : m_drawer.GetRecipe();
    const KeptImage& photo = job.recipe.photo;
    job.serial = ++m_serial;
    job.geometry = ViewGeometry::Make({photo.GetWidth(), photo.GetHeight()}, m_request);
    job.display = m_display;
    job.needsOriginal = m_needsOriginal;
    job.isOtherPhoto = !photo.SharesPixelsWith(m_photo);
    m_photo = photo;
    m_worker->Start(std::move(job));
}

void LiveView::Deliver()
{
    if (const auto result = m_worker->TakeResult())
        Announce(*result);
}

void LiveView::Announce(const ViewResult& result)
{
    if (!result.frame.isReduced)
        m_doneSerial = result.frame.serial;
    if (result.error) {
        emit renderingFailed(DescribeError(result.error));
        return;
    }
    m_frame = result.frame;
    m_original = result.original;
    m_shownOriginal = result.shownOriginal;
    emit frameReady(m_frame);
}

} // namespace LumetraHost

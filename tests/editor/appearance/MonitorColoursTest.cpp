// SPDX-License-Identifier: GPL-2.0-or-later
#include "Places.h"
#include "drawer/view/LiveView.h"
#include "editor/EditorFixture.h"
#include "host/drawer/view/DisplaySamples.h"

#include "appearance/MonitorColours.h"
#include "canvas/CanvasFeed.h"
#include "canvas/PhotoCanvas.h"
#include "drawer/previews/AsyncPreviews.h"
#include "export/ExportJob.h"
#include "histogram/HistogramFeed.h"
#include "histogram/HistogramWidget.h"
#include "photo/PhotoReader.h"

#include <QApplication>
#include <QListView>
#include <QSlider>
#include <QToolButton>

#include <gmock/gmock.h>

#ifdef LUMETRA_HAS_XCB
#include <xcb/xcb.h>
#endif

using namespace LumetraTest;
using LumetraEditor::PhotoCanvas;
using testing::HasSubstr;

namespace {

class MonitorColoursTest : public EditorTest
{
protected:
    MonitorColoursTest()
    {
        LoadExamplePanel();
        Open(WritePhoto("lake.png", 120, 90));
        Find<QSlider>("exposureSlider")->setValue(10);
        GetPart<LumetraEditor::PhotoCanvas>().SetZoom(1);
        plain = GetPicture();
    }

    QString WriteMonitor() const { return WriteFile("monitor.icc", monitor); }

    /// Expects the shown colours within the precision of 8 bits.
    void ExpectShown(const QImage& shown, const QImage& photo) const
    {
        const MonitorOracle oracle(monitor);
        ASSERT_EQ(shown.size(), photo.size());
        double largest = 0;
        for (int y = 0; y < photo.height(); y += 7) {
            for (int x = 0; x < photo.width(); x += 5) {
                const QColor colour = photo.pixelColor(x, y);
                const auto expected =
                    oracle.Convert({colour.redF(), colour.greenF(), colour.blueF()});
                const QColor found = shown.pixelColor(x, y);
                largest = std::max({largest, std::abs(found.redF() - expected[0]),
                                    std::abs(found.greenF() - expected[1]),
                                    std::abs(found.blueF() - expected[2])});
            }
        }
        EXPECT_LE(255 * largest, 1.6);
    }

    LumetraHost::Image Export(const char* name)
    {
        LumetraEditor::ExportOptions options;
        options.path = Path(name);
        options.recipe.format = LumetraHost::PhotoFormat::Png;
        LumetraEditor::ExportJob job(editor->GetPhoto(), editor->GetPackages(), {}, options);
        EXPECT_TRUE(job.Run([](int) {}));
        return LumetraHost::PhotoReader::Read(options.path).image;
    }

    const QByteArray monitor = MakeStrangeMonitor();
    QImage plain;
};

} // namespace

TEST_F(MonitorColoursTest, areThoseOfTheCanvas)
{
    window->UseMonitorProfile(WriteMonitor());
    EXPECT_NE(GetPicture(), plain);
    ExpectShown(GetPicture(), plain);

    window->UseMonitorProfile(QLatin1String(LumetraEditor::MonitorColours::Srgb));
    EXPECT_EQ(GetPicture(), plain);
}

TEST_F(MonitorColoursTest, areThoseOfTheOriginalToo)
{
    window->UseMonitorProfile(WriteMonitor());
    auto& canvas = GetPart<LumetraEditor::PhotoCanvas>();
    GetPicture();
    canvas.SetSplit(true);
    GetPicture();

    const QImage shown = canvas.GetFrame(PhotoCanvas::Layer::Original).image;
    const LumetraHost::Image photo = editor->GetPhoto().image.ToImage();
    ExpectShown(shown, LumetraHost::ViewFrame::WrapImage(photo, true));
}

TEST_F(MonitorColoursTest, doNotReachTheExport)
{
    const LumetraHost::Image before = Export("before.png");

    window->UseMonitorProfile(WriteMonitor());
    GetPicture();

    EXPECT_TRUE(HaveSamePixels(Export("after.png"), before));
}

TEST_F(MonitorColoursTest, doNotReachTheHistogram)
{
    const auto grab = [this] {
        GetHistogramView().WaitForFrame();
        return Find<QWidget>("histogram")->grab().toImage();
    };
    const QImage before = grab();

    window->UseMonitorProfile(WriteMonitor());
    GetPicture();

    EXPECT_EQ(grab(), before);
}

TEST_F(MonitorColoursTest, areThoseOfTheThumbnails)
{
    window->LoadPanels({QStringLiteral(LUMETRA_MODULES)});
    QApplication::processEvents();
    const auto [list, index] = FindLook(QStringLiteral("Fresh"));
    const auto thumbnail = [&, row = QPersistentModelIndex(index)] {
        row.data(Qt::DecorationRole);
        editor->findChild<LumetraHost::AsyncPreviews*>()->WaitForAll();
        QApplication::processEvents();
        return row.data(Qt::DecorationRole).value<QPixmap>().toImage();
    };
    const QImage before = thumbnail();
    ASSERT_FALSE(before.isNull());

    window->UseMonitorProfile(WriteMonitor());

    ExpectShown(thumbnail(), before);
}

TEST_F(MonitorColoursTest, thatCannotBeUsedAreReported)
{
    window->UseMonitorProfile(WriteFile("photo.icc", "no profile at all"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(Path("photo.icc").toStdString()));
    EXPECT_THAT(GetMessage().toStdString(),
                HasSubstr("expected the ICC profile of an RGB monitor"));
    EXPECT_EQ(GetPicture(), plain);

    window->UseMonitorProfile(Path("missing.icc"));
    EXPECT_THAT(GetMessage().toStdString(), HasSubstr(Path("missing.icc").toStdString()));
    EXPECT_EQ(GetPicture(), plain);
}

TEST_F(MonitorColoursTest, areRememberedInTheSettings)
{
    LumetraEditor::EditorSettings().Set(QStringLiteral("monitorProfile"), WriteMonitor());

    Restart();
    Open(Path("lake.png"));

    EXPECT_NE(editor->GetDisplay(), nullptr);
}

#ifdef LUMETRA_HAS_XCB

namespace {

/// Sets the profile of the X server's first monitor, or removes it.
void SetProfileOfServer(const QByteArray& icc)
{
    xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
    const auto root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const QByteArray name = QByteArrayLiteral("_ICC_PROFILE");
    auto* const atom = xcb_intern_atom_reply(
        connection,
        xcb_intern_atom(connection, false, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr);
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, root, atom->atom, XCB_ATOM_CARDINAL, 8,
                        static_cast<std::uint32_t>(icc.size()), icc.constData());
    free(atom);
    // The answer comes after all earlier requests have been carried out.
    free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    xcb_disconnect(connection);
}

} // namespace

TEST_F(MonitorColoursTest, areThoseThatTheWindowSystemHas)
{
    if (QApplication::platformName() != QLatin1String("xcb"))
        GTEST_SKIP() << "only X11 is asked";
    SetProfileOfServer(monitor);
    window->UseMonitorProfile(QString());
    const QImage shown = GetPicture();
    SetProfileOfServer({});
    window->UseMonitorProfile(QString());

    ExpectShown(shown, plain);
    EXPECT_EQ(GetPicture(), plain);
}

#endif

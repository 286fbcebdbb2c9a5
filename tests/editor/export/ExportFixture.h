// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "editor/EditorFixture.h"

#include "export/ExportDialog.h"
#include "export/ExportJob.h"
#include "export/Exporter.h"
#include "photo/PhotoReader.h"

#include <QAction>
#include <QSlider>
#include <QTimer>

#include <functional>

namespace LumetraTest {

/// A part of the dialog by its object name.
template <class Widget>
Widget* Part(LumetraEditor::ExportDialog& dialog, const char* name)
{
    auto* const widget = dialog.findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(widget, nullptr) << name;
    return widget;
}

/// The photo "lake.png" is open and edited.
class ExportTest : public EditorTest
{
protected:
    ExportTest()
    {
        LoadExamplePanel();
        Open(WritePhoto("lake.png", 80, 60));
        Find<QSlider>("exposureSlider")->setValue(10);
        options.path = Path("out.png");
        options.recipe.format = LumetraHost::PhotoFormat::Png;
    }

    LumetraHost::Photo Export()
    {
        LumetraEditor::ExportJob job(editor->GetPhoto(), editor->GetPackages(), {}, options);
        EXPECT_TRUE(job.Run([](int) {}));
        return LumetraHost::PhotoReader::Read(options.path);
    }

    /// Runs the command; `fill` works on the dialog, which has to be closed by it.
    void StartByHand(const std::function<void(LumetraEditor::ExportDialog&)>& fill)
    {
        QTimer::singleShot(0, window.get(), [this, fill] {
            auto* const dialog = window->findChild<LumetraEditor::ExportDialog*>();
            ASSERT_NE(dialog, nullptr);
            fill(*dialog);
        });
        FindAction("exportPhoto")->trigger();
    }

    void ExportByHand(const std::function<void(LumetraEditor::ExportDialog&)>& fill)
    {
        StartByHand(fill);
        WaitForExport();
    }

    void WaitForExport()
    {
        WaitUntil([this] { return !IsExporting(); });
    }

    LumetraEditor::ExportOptions options;
};

} // namespace LumetraTest

// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "editor/EditorFixture.h"
#include "host/drawer/DrawnPicture.h"

#include "export/ExportJob.h"
#include "layers/LayersModel.h"
#include "layers/LayersView.h"
#include "photo/PhotoReader.h"
#include "workspace/WorkspaceController.h"

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QUndoStack>

#include <string>
#include <vector>

namespace LumetraTest {

/// A photo in the editor's window with the looks, the adjustments and the list of layers.
class ListedLayers : public EditorTest
{
protected:
    ListedLayers()
    {
        LoadPresetsPanel();
        Open(WritePhoto("lake.png", 90, 60));
        original = Draw();
    }

    LumetraEditor::LayersView& List() const { return GetPart<LumetraEditor::LayersView>(); }

    /// The rows as they are seen, the topmost first: "NAME INTENSITY", with a minus before a layer
    /// that is off and an asterisk behind an open one.
    std::vector<std::string> Rows() const
    {
        std::vector<std::string> rows;
        const auto& model = *List().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            const QModelIndex name = model.index(row, 0);
            const QString intensity = model.index(row, 1).data().toString();
            const bool isOn = name.data(Qt::CheckStateRole).toInt() == Qt::Checked;
            const bool isOpen = !name.data(Qt::DecorationRole).isNull();
            rows.push_back((QLatin1String(isOn ? "" : "-") + name.data().toString() +
                            (intensity.isEmpty() ? intensity : QLatin1Char(' ') + intensity) +
                            QLatin1String(isOpen ? "*" : ""))
                               .toStdString());
        }
        return rows;
    }

    void Select(int row) const
    {
        List().setFocus();
        List().setCurrentIndex(List().model()->index(row, 0));
    }
    void Press(int row, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const
    {
        Select(row);
        QTest::keyClick(&List(), key, modifiers);
    }
    void Apply() const { Find<QPushButton>("applyButton")->click(); }
    QSlider* Intensity() const { return Find<QSlider>("intensitySlider"); }
    /// A key moves the intensity, and the step ends by itself.
    void LowerIntensity() const
    {
        const int steps = editor->GetUndoStack().index();
        QTest::keyClick(Intensity(), Qt::Key_PageDown);
        WaitUntil([&] { return editor->GetUndoStack().index() > steps; });
    }

    LumetraHost::Image Draw() const
    {
        return LumetraHost::DrawWhole(editor->GetHost().GetDrawer());
    }
    /// The photo as the editor exports it at this moment.
    LumetraHost::Image Export() const
    {
        LumetraEditor::ExportOptions options;
        options.path = Path("out.png");
        options.recipe.format = LumetraHost::PhotoFormat::Png;
        LumetraEditor::ExportJob job(editor->GetPhoto(), editor->GetPackages(),
                                     editor->GetRecords(), options);
        EXPECT_TRUE(job.Run([](int) {}));
        return LumetraHost::PhotoReader::Read(options.path).image;
    }
    void ExpectDrawnAsExported(const char* when) const
    {
        EXPECT_TRUE(LumetraHost::HaveSamePixels(Draw(), Export())) << when;
    }
    void ExpectSamePicture(const LumetraHost::Image& picture, const char* when) const
    {
        EXPECT_TRUE(LumetraHost::HaveSamePixels(Draw(), picture)) << when;
    }

    LumetraHost::Image original;
};

} // namespace LumetraTest

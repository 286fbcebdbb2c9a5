// SPDX-License-Identifier: GPL-2.0-or-later
#include "StressRun.h"

#include "AdjustAudit.h"
#include "PanelAudit.h"

#include "host/drawer/DrawnPicture.h"

#include "canvas/PhotoCanvas.h"
#include "edit/EditChanges.h"
#include "edits/DrawnEdit.h"
#include "edits/EditFile.h"
#include "layers/LayersView.h"
#include "userdata/EditPlaces.h"
#include "workspace/WorkspaceController.h"

#include <QFile>
#include <QPixmap>
#include <QScreen>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

namespace LumetraTest {
namespace {

using LumetraHost::Image;

/// Growth of the heap between two restarts that is allowed: libraries keep some memory for good.
constexpr std::size_t MostGrowth = std::size_t{8} << 20;

int FindLargestDifference(const QImage& shown, const Image& picture, const QPoint& corner)
{
    int largest = 0;
    for (int y = 0; y < shown.height(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(shown.constScanLine(y));
        for (int x = 0; x < shown.width(); ++x) {
            const std::uint8_t* const pixel =
                picture.Row(corner.y() + y) + Image::Channels * (corner.x() + x);
            largest =
                std::max({largest, std::abs(qRed(row[x]) - pixel[0]),
                          std::abs(qGreen(row[x]) - pixel[1]), std::abs(qBlue(row[x]) - pixel[2])});
        }
    }
    return largest;
}

LumetraHost::EditState ReadEditBeside(const QString& photo)
{
    const QString file = LumetraHost::EditPlaces::GetBeside(photo);
    return QFile::exists(file) ? LumetraHost::EditFile::Read(file).state : LumetraHost::EditState();
}

} // namespace

bool StressRun::Check(const char* what, bool isTrue)
{
    if (!isTrue)
        std::fprintf(stderr, "action %d: expected that %s\n", m_action, what);
    return isTrue;
}

/// True when the canvas, at actual size, shows the very pixels that the drawer makes, with the look
/// that the pointer rests on, if there is one.
bool StressRun::CheckCanvas()
{
    GetCanvas().SetZoom(1);
    Settle();
    const auto& frame = GetCanvas().GetFrame(LumetraEditor::PhotoCanvas::Layer::Edited);
    if (!Check("the canvas shows pixels as they are",
               !frame.image.isNull() && frame.image.size() == frame.part.size()))
        return false;
    const auto& drawer = m_editor->GetHost().GetDrawer();
    const auto& onTop = m_editor->GetShownOnTop();
    const auto recipe = onTop ? drawer.GetRecipeWith(*onTop) : drawer.GetRecipe();
    const Image expected = LumetraHost::DrawRecipe(recipe);
    const int difference = FindLargestDifference(frame.image, expected, frame.part.topLeft());
    if (difference > 1)
        std::fprintf(stderr, "%d steps apart%s\n", difference, onTop ? ", with a look on top" : "");
    return Check("the canvas shows what the drawer makes", difference <= 1);
}

/// True when the list shows the layers that are on the photo, as they are.
bool StressRun::CheckList()
{
    const auto layers = m_editor->CaptureLayers();
    const auto& model = *GetList().model();
    bool isSame = model.rowCount() == static_cast<int>(layers.size());
    for (int row = 0; isSame && row < model.rowCount(); ++row) {
        const auto& layer = layers[layers.size() - 1 - static_cast<std::size_t>(row)];
        const QModelIndex name = model.index(row, 0);
        const bool isLook = !layer.settings->Package().GetPresetName().empty();
        isSame = (name.data().toString().toStdString() == layer.record.preset || !isLook) &&
                 (name.data(Qt::CheckStateRole).toInt() == Qt::Checked) == layer.isOn &&
                 name.data(Qt::DecorationRole).isNull() != layer.isOpen &&
                 model.index(row, 1).data().toInt() == (isLook ? layer.record.intensity : 0);
    }
    return Check("the list shows the layers", isSame);
}

/// True when the file has the edit, and a program that reads it draws the same photo.
bool StressRun::CheckFile()
{
    const LumetraHost::EditState kept = ReadEdit();
    auto& drawer = m_editor->GetHost().GetDrawer();
    LumetraHost::PictureRecipe recipe = drawer.GetRecipe();
    recipe.layers.clear();
    for (const auto& package : LumetraHost::DrawnEdit::Make(kept.layers).packages)
        recipe.layers.push_back(
            {std::make_shared<Zorvik::Quindle::EffectsSettings>(package), std::nullopt});
    recipe.committed = 0;
    return Check("the file has the edit",
                 LumetraEditor::EditChanges::AreSame(kept, m_editor->GetEdit())) &&
           Check("the file draws what is shown",
                 HaveSamePixels(LumetraHost::DrawRecipe(recipe), LumetraHost::DrawWhole(drawer)));
}

bool StressRun::CheckPanels()
{
    const QStringList differences = PanelAudit(*m_editor, m_looks.GetPanel()).FindDifferences() +
                                    AdjustAudit(*m_editor, m_adjust.GetPanel()).FindDifferences();
    for (const QString& difference : differences)
        std::fprintf(stderr, "%s\n", qUtf8Printable(difference));
    return Check("the panels show their values, and so does the photo", differences.isEmpty());
}

/// True when every change has been painted.
bool StressRun::CheckScreen()
{
    const QImage painted = m_window->screen()
                               ->grabWindow(m_window->winId())
                               .toImage()
                               .convertToFormat(QImage::Format_RGB32);
    const QImage now = m_window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    const bool isSame = painted == now;
    const QString folder = qEnvironmentVariable("LUMETRA_STRESS_PICTURES");
    if (!isSame && !folder.isEmpty()) {
        painted.save(folder + QStringLiteral("/painted.png"));
        now.save(folder + QStringLiteral("/now.png"));
    }
    return Check("the screen shows what the window would paint", !painted.isNull() && isSame);
}

/// The edit in the file beside the photo; that of no step where there is none.
LumetraHost::EditState StressRun::ReadEdit()
{
    m_editor->SaveEdit();
    return ReadEditBeside(m_editor->GetPhotoPath());
}

/// The edits of all photos, in their files.
std::map<QString, LumetraHost::EditState> StressRun::ReadEdits()
{
    m_editor->SaveEdit();
    m_editor->GetManySteps().GetEdits().WaitForAll();
    std::map<QString, LumetraHost::EditState> edits;
    for (const QString& photo : m_photos)
        edits[photo] = ReadEditBeside(photo);
    return edits;
}

LumetraEditor::PhotoCanvas& StressRun::GetCanvas()
{
    return *m_window->findChild<LumetraEditor::PhotoCanvas*>();
}

bool StressRun::CheckUndo()
{
    Settle();
    auto& stack = m_editor->GetUndoStack();
    const Image now = LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer());
    const int steps = stack.index();
    const auto before = ReadEdits();
    while (stack.canUndo())
        stack.undo();
    m_editor->GetManySteps().GetEdits().WaitForAll();
    while (stack.index() < steps && stack.canRedo())
        stack.redo();
    const auto after = ReadEdits();
    const bool areSame = std::all_of(m_photos.begin(), m_photos.end(), [&](const QString& photo) {
        return LumetraEditor::EditChanges::AreSame(before.at(photo), after.at(photo));
    });
    return Check("undoing and redoing all steps changes no photo", areSame) &&
           Check("undoing and redoing all steps changes nothing",
                 HaveSamePixels(now, LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer())));
}

bool StressRun::CheckRestart()
{
    Settle();
    m_editor->SaveEdit();
    const QString photo = m_editor->GetPhotoPath();
    const Image now = LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer());
    Start();
    Open(photo);
    return Check("a restart brings the edit back",
                 HaveSamePixels(now, LumetraHost::DrawWhole(m_editor->GetHost().GetDrawer())));
}

/// True when memory has not grown. Called right after a restart, when the session's objects are
/// gone. Sanitizers count for themselves.
bool StressRun::CheckMemory()
{
    const std::size_t used = mallinfo2().uordblks;
    if (!m_memory)
        m_memory = used;
    if (used > *m_memory + MostGrowth)
        std::fprintf(stderr, "%zu bytes, %zu after the first restart\n", used, *m_memory);
    return Check("memory does not grow from restart to restart", used <= *m_memory + MostGrowth);
}

bool StressRun::CheckNow()
{
    if (m_action % 100 == 0 &&
        !(CheckCanvas() && CheckPanels() && CheckList() && CheckFile() && CheckScreen()))
        return false;
    if (m_action % 250 == 0 && !CheckUndo())
        return false;
    return m_action % 1000 != 0 ||
           (CheckRestart() && CheckCanvas() && CheckPanels() && CheckMemory());
}

} // namespace LumetraTest

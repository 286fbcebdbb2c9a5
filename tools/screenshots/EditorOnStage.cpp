// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorOnStage.h"

#include "canvas/CanvasFeed.h"
#include "drawer/AsyncPreviews.h"
#include "plugins/PluginFolders.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QScrollArea>
#include <QSettings>
#include <QSlider>

namespace LumetraScreenshots {
namespace {

constexpr int SettlingRounds = 6;

void Send(QWidget& widget, QEvent::Type type, const QPoint& at, Qt::MouseButtons down)
{
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, down, Qt::NoModifier);
    QApplication::sendEvent(&widget, &event);
}

} // namespace

EditorOnStage::EditorOnStage(LumetraHost::PaletteKind kind, const QString& language)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(m_folder.filePath(QStringLiteral("data"))));
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       m_folder.filePath(QStringLiteral("settings")));
    m_editor = std::make_unique<LumetraEditor::Editor>();
    m_window = std::make_unique<LumetraEditor::EditorWindow>(*m_editor);
    m_window->UsePalette(kind);
    m_window->UseLanguage(language);
    m_window->LoadPanels(LumetraEditor::GetPluginFolders());
    m_window->resize(1280, 800);
    m_window->show();
    Settle();
}

EditorOnStage::~EditorOnStage() = default;

QString EditorOnStage::CopySample()
{
    const QString path = m_folder.filePath(QStringLiteral("lake.jpg"));
    QFile::copy(QStringLiteral(LUMETRA_SAMPLE_PHOTO), path);
    return path;
}

void EditorOnStage::WaitUntilOpen()
{
    while (m_editor->IsOpening())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    Settle();
}

void EditorOnStage::OpenSample()
{
    m_window->OpenPhotos({CopySample()});
    WaitUntilOpen();
}

void EditorOnStage::OpenText()
{
    QFile file(m_folder.filePath(QStringLiteral("shopping-list.jpg")));
    if (file.open(QIODevice::WriteOnly))
        file.write("milk, bread, apples");
    file.close();
    m_window->OpenPhotos({file.fileName()});
    WaitUntilOpen();
}

QModelIndex EditorOnStage::FindLook(const QString& name, QAbstractItemView*& view) const
{
    for (auto* const list : m_window->findChildren<QListView*>()) {
        const auto* const model = list->model();
        for (int row = 0; model && row < model->rowCount(); ++row)
            if (model->index(row, 0).data().toString() == name) {
                view = list;
                return model->index(row, 0);
            }
    }
    qFatal("expected a look named \"%s\"", qPrintable(name));
}

void EditorOnStage::ClickLook(const QString& name)
{
    QAbstractItemView* view = nullptr;
    const QModelIndex look = FindLook(name, view);
    const QPoint place = view->visualRect(look).center();
    Send(*view->viewport(), QEvent::MouseButtonPress, place, Qt::LeftButton);
    Send(*view->viewport(), QEvent::MouseButtonRelease, place, Qt::NoButton);
    Settle();
}

void EditorOnStage::MoveIntensity(int percent)
{
    auto* const slider = m_window->findChild<QSlider*>(QStringLiteral("intensitySlider"));
    slider->setSliderDown(true);
    slider->setValue(slider->minimum() + (slider->maximum() - slider->minimum()) * percent / 100);
    slider->setSliderDown(false);
    Settle();
}

void EditorOnStage::Search(const QString& text)
{
    m_window->findChild<QLineEdit*>(QStringLiteral("searchField"))->setText(text);
    Settle();
}

void EditorOnStage::Settle()
{
    // What is painted asks for pictures, and pictures that have come are painted.
    for (int round = 0; round < SettlingRounds; ++round) {
        QApplication::processEvents();
        m_window->grab();
        m_editor->GetPreviews().WaitForAll();
        if (m_editor->HasPhoto())
            m_window->GetFeed().GetLiveView().WaitForFrame();
    }
}

QImage EditorOnStage::Grab()
{
    Settle();
    return m_window->grab().toImage();
}

} // namespace LumetraScreenshots

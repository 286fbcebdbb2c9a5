// SPDX-License-Identifier: GPL-2.0-or-later
#include "MisbehavingModule.h"

#include "OddEdits.h"

#include <QApplication>
#include <QDialog>
#include <QDragEnterEvent>
#include <QPointer>
#include <QTimer>
#include <QUndoCommand>
#include <QVBoxLayout>

#include <cstdint>
#include <memory>
#include <stdexcept>

namespace {

using Zorvik::Core::Property;

constexpr char StrengthKey[] = "strength";

QString Mode()
{
    return qApp->property("misbehaviour").toString();
}

/// Fails at `operation` when the test says so: "OPERATION" throws a std::exception, "OPERATION 42"
/// an int.
void Enter(const char* operation)
{
    qApp->setProperty("moduleCalls", qApp->property("moduleCalls").toInt() + 1);
    if (Mode() == QLatin1String(operation))
        throw std::runtime_error("the module fails\nwith a call stack");
    if (Mode() == QLatin1String(operation) + QLatin1String(" 42"))
        throw 42;
}

class Command : public QUndoCommand
{
public:
    Command() : QUndoCommand(QStringLiteral("Misbehave")) {}
    ~Command() override { qApp->setProperty("commandIsDeleted", true); }
    void redo() override { Enter("redo"); }
    void undo() override { Enter("undo"); }
    int id() const override { return 7; }
    bool mergeWith(const QUndoCommand*) override
    {
        Enter("mergeWith");
        return true;
    }
};

} // namespace

bool MisbehavingButton::event(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        Enter("event");
    if (event->type() == QEvent::Paint)
        Enter("paint");
    return QPushButton::event(event);
}

MisbehavingWidget::MisbehavingWidget()
{
    setAcceptDrops(true);
}

void MisbehavingWidget::dragEnterEvent(QDragEnterEvent* event)
{
    Enter("drag");
    event->ignore();
}

MisbehavingPanel::MisbehavingPanel(LumetraEditor::IEditor& editor)
    : m_editor(editor), m_widget(new MisbehavingWidget), m_button(new MisbehavingButton)
{
    m_button->setObjectName(QStringLiteral("misbehave"));
    (new QVBoxLayout(m_widget))->addWidget(m_button);
    connect(m_button, &QPushButton::clicked, this, &MisbehavingPanel::Act);
}

MisbehavingPanel::~MisbehavingPanel()
{
    if (m_widget && !m_widget->parentWidget())
        delete m_widget;
}

QWidget* MisbehavingPanel::GetWidget()
{
    Enter("GetWidget");
    return Mode() == QLatin1String("no widget") ? nullptr : m_widget.data();
}

void MisbehavingPanel::PhotoChanged()
{
    Enter("PhotoChanged");
    if (Mode() == QLatin1String("delete widget"))
        delete m_widget;
    m_strength = 0;
}

void MisbehavingPanel::PreviewReady(const QString&)
{
    Enter("PreviewReady");
}

Property::Ptr MisbehavingPanel::SaveEdit() const
{
    Enter("SaveEdit");
    if (Mode() == QLatin1String("save again"))
        m_editor.NoteEdit(QStringLiteral("Again"));
    const auto edit = std::make_shared<Property>(std::string());
    if (m_strength != 0)
        edit->Set(StrengthKey, std::int64_t(m_strength));
    return OddEdits::Spoil(edit, Mode().toStdString());
}

void MisbehavingPanel::RestoreEdit(const Property::Ptr& edit)
{
    Enter("RestoreEdit");
    const Property::Value* const strength = edit->Find(StrengthKey);
    m_strength = strength ? static_cast<int>(std::get<std::int64_t>(*strength)) : 0;
}

bool MisbehavingPanel::MayEnd()
{
    Enter("MayEnd");
    return true;
}

void MisbehavingPanel::Act()
{
    if (Mode() == QLatin1String("dialog")) {
        FailBelowADialog();
    } else if (Mode() == QLatin1String("step")) {
        ++m_strength;
        m_editor.NoteEdit(QStringLiteral("Strength"));
    } else {
        m_editor.PushUndo(new Command);
    }
}

/// A child of the panel throws while the panel waits for a dialog.
void MisbehavingPanel::FailBelowADialog()
{
    const QPointer<MisbehavingPanel> self(this);
    QDialog dialog(m_widget->window());
    auto* const timer = new QTimer(this);
    timer->setSingleShot(true);
    connect(timer, &QTimer::timeout, [] { throw std::runtime_error("the module fails"); });
    timer->start(0);
    // The loop still runs long after the failure.
    for (int i = 0, *const rounds = &m_strength; i < 20; ++i)
        QMetaObject::invokeMethod(
            &dialog,
            [&dialog, rounds] {
                if (++*rounds == 20)
                    dialog.reject();
            },
            Qt::QueuedConnection);
    dialog.exec();
    qApp->setProperty("panelSurvivedItsDialog", !self.isNull());
}

QString MisbehavingModule::GetTitle() const
{
    Enter("GetTitle");
    return Mode() == QLatin1String("no title") ? QString() : QStringLiteral("Trouble");
}

std::unique_ptr<LumetraEditor::IEditorPanel>
MisbehavingModule::CreatePanel(LumetraEditor::IEditor& editor)
{
    Enter("CreatePanel");
    if (Mode() == QLatin1String("no panel"))
        return nullptr;
    if (Mode() == QLatin1String("early"))
        editor.NoteEdit(QStringLiteral("Early"));
    if (Mode() == QLatin1String("complain"))
        editor.ShowMessage(QStringLiteral("the module complains"));
    return std::make_unique<MisbehavingPanel>(editor);
}

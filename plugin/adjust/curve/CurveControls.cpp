// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/curve/CurveControls.h"

#include "adjust/curve/CurveEditor.h"

#include <QButtonGroup>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

namespace LumetraAdjust {
namespace {

constexpr int Gap = 4;
constexpr int NumberWidth = 56;

/// Colours that are seen on light and dark grounds alike; the first is the palette's own.
QColor ColourOfChannel(int channel)
{
    static const std::array<QColor, CurvePoints::Channels> colours = {
        QColor(), QColor(0xd8, 0x4a, 0x44), QColor(0x2f, 0x9e, 0x54), QColor(0x45, 0x7f, 0xe0)};
    return colours[static_cast<std::size_t>(channel)];
}

} // namespace

CurveControls::CurveControls(AdjustCommands& commands, QWidget* parent)
    : EffectControls(parent), m_commands(commands), m_editor(new CurveEditor(this)),
      m_channels(new QButtonGroup(this))
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Gap);
    MakeChannels(*column);
    m_editor->setObjectName(QStringLiteral("curveEditor"));
    column->addWidget(m_editor);
    MakeNumbers(*column);
    connect(m_channels, &QButtonGroup::idClicked, this, &CurveControls::SetChannel);
    connect(m_editor, &CurveEditor::selectionChanged, this, &CurveControls::ShowNumbers);
    connect(m_editor, &CurveEditor::moved, this, [this] {
        m_commands.Move(CurvePoints::EffectID, m_editor->GetPoints().Write(m_channel));
    });
    connect(m_editor, &CurveEditor::finished, this, [this] { m_commands.Finish(GetTitle()); });
    ShowTexts();
    ShowCurve();
}

void CurveControls::MakeChannels(QVBoxLayout& column)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(Gap);
    for (int channel = 0; channel < CurvePoints::Channels; ++channel) {
        auto* const button = new QToolButton(this);
        button->setCheckable(true);
        button->setObjectName(QStringLiteral("curveChannel%1").arg(channel));
        button->setProperty("segment", true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        row->addWidget(button);
        m_channels->addButton(button, channel);
        m_buttons[static_cast<std::size_t>(channel)] = button;
    }
    m_buttons[0]->setChecked(true);
    column.addLayout(row);
}

QDoubleSpinBox* CurveControls::MakeNumber(const char* name)
{
    auto* const number = new QDoubleSpinBox(this);
    number->setObjectName(QLatin1String(name));
    number->setRange(0, 100);
    number->setDecimals(1);
    number->setFixedWidth(NumberWidth);
    number->setButtonSymbols(QAbstractSpinBox::NoButtons);
    number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    number->setKeyboardTracking(false);
    number->setFocusPolicy(Qt::StrongFocus);
    number->installEventFilter(this);
    connect(number, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &CurveControls::TakeNumbers);
    return number;
}

void CurveControls::MakeNumbers(QVBoxLayout& column)
{
    m_inName = new QLabel(this);
    m_outName = new QLabel(this);
    m_in = MakeNumber("curveIn");
    m_out = MakeNumber("curveOut");
    m_remove = new QToolButton(this);
    m_remove->setObjectName(QStringLiteral("curveRemove"));
    m_reset = new QToolButton(this);
    m_reset->setObjectName(QStringLiteral("curveReset"));
    auto* const numbers = new QHBoxLayout;
    numbers->setSpacing(Gap);
    for (QWidget* const widget : std::initializer_list<QWidget*>{m_inName, m_in, m_outName, m_out})
        numbers->addWidget(widget);
    numbers->addStretch();
    column.addLayout(numbers);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(Gap);
    for (QToolButton* const button : {m_remove, m_reset}) {
        button->setProperty("segment", true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        buttons->addWidget(button);
    }
    column.addLayout(buttons);
    connect(m_remove, &QToolButton::clicked, m_editor, &CurveEditor::RemoveSelected);
    connect(m_reset, &QToolButton::clicked, this, &CurveControls::ResetCurve);
}

QString CurveControls::GetTitle() const
{
    return m_commands.GetAdjustments().Find(CurvePoints::EffectID)->title;
}

/// A point that has been added and not moved yet changes nothing, so the effect does not have it.
void CurveControls::ShowValues()
{
    const CurvePoints points = CurvePoints::Read(m_commands.GetAdjustments(), m_channel);
    if (!points.IsDiagonal() || !m_editor->GetPoints().IsDiagonal())
        m_editor->Show(points);
}

void CurveControls::ShowCurve()
{
    m_editor->Show(CurvePoints::Read(m_commands.GetAdjustments(), m_channel));
}

/// The wheel scrolls the panel over a number that does not have the focus.
bool CurveControls::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return EffectControls::eventFilter(watched, event);
}

void CurveControls::SetChannel(int channel)
{
    m_channel = channel;
    m_editor->SetColour(ColourOfChannel(channel));
    m_editor->Select(0);
    ShowCurve();
    ShowTexts();
}

void CurveControls::ShowNumbers()
{
    const CurvePoints& points = m_editor->GetPoints();
    const QPointF point = points.Get()[static_cast<std::size_t>(m_editor->GetSelected())];
    const QSignalBlocker inBlocker(m_in), outBlocker(m_out);
    m_in->setValue(point.x());
    m_out->setValue(point.y());
    m_remove->setEnabled(points.Count() > 2);
    m_reset->setEnabled(!points.IsDiagonal() || points.Count() > 2);
}

void CurveControls::TakeNumbers()
{
    m_editor->MoveSelected({m_in->value(), m_out->value()});
}

void CurveControls::ResetCurve()
{
    m_commands.Set(CurvePoints::EffectID, CurvePoints().Write(m_channel),
                   tr("Reset “%1”").arg(GetTitle()));
    ShowCurve();
}

void CurveControls::ShowTexts()
{
    const QString names[] = {tr("All"), tr("Red"), tr("Green"), tr("Blue")};
    for (std::size_t channel = 0; channel < m_buttons.size(); ++channel)
        m_buttons[channel]->setText(names[channel]);
    m_editor->SetName(QStringLiteral("%1: %2").arg(GetTitle(), names[m_channel]));
    m_editor->setToolTip(tr("Click to add a point, drag to move it, double-click to remove it.\n"
                            "Keys: Page Up and Page Down select a point, arrows move it,\n"
                            "Insert adds one, Del removes it."));
    m_inName->setText(tr("In"));
    m_outName->setText(tr("Out"));
    m_in->setAccessibleName(tr("Selected point: brightness before, in per cent"));
    m_out->setAccessibleName(tr("Selected point: brightness after, in per cent"));
    for (QDoubleSpinBox* const number : {m_in, m_out}) {
        number->setLocale(QLocale());
        number->findChild<QLineEdit*>()->setAccessibleName(number->accessibleName());
    }
    m_remove->setText(tr("Remove point"));
    m_reset->setText(tr("Reset curve"));
}

} // namespace LumetraAdjust

// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/SliderRow.h"

#include "Zorvik/Lumetra/ClickSlider.h"
#include "style/StyleSheet.h"
#include "widgets/GrooveStyle.h"

#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace LumetraPlugin {
namespace {

using Zorvik::Lumetra::ClickSlider;

constexpr int NameWidth = 88;
constexpr int NumberWidth = 48;

LumetraHost::PaletteKind KindOf(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < 128 ? LumetraHost::PaletteKind::Dark
                                                             : LumetraHost::PaletteKind::Light;
}

} // namespace

SliderRow::SliderRow(ClickSlider* slider, QWidget* parent)
    : QWidget(parent), m_name(new QLabel(this)), m_slider(slider), m_number(new QSpinBox(this))
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(m_name);
    row->addWidget(m_slider, 1);
    row->addWidget(m_number);
    m_name->setFixedWidth(NameWidth);
    m_slider->setOrientation(Qt::Horizontal);
    m_number->setFixedWidth(NumberWidth);
    m_number->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_number->setKeyboardTracking(false);
    for (QWidget* const widget : {static_cast<QWidget*>(m_slider), static_cast<QWidget*>(m_number)})
        widget->setFocusPolicy(Qt::StrongFocus);
    for (QWidget* const widget : {static_cast<QWidget*>(m_slider), static_cast<QWidget*>(m_number),
                                  static_cast<QWidget*>(m_name)})
        widget->installEventFilter(this);
    connect(m_slider, &QSlider::valueChanged, this, &SliderRow::FollowSlider);
    connect(m_slider, &QSlider::rangeChanged, this, &SliderRow::FollowSlider);
    connect(m_slider, &QSlider::sliderReleased, this, &SliderRow::finished);
    connect(m_slider, &ClickSlider::wheelFinished, this, &SliderRow::finished);
    connect(m_number, QOverload<int>::of(&QSpinBox::valueChanged), this, &SliderRow::OnTyped);
}

void SliderRow::SetName(const QString& name)
{
    m_name->setText(fontMetrics().elidedText(name, Qt::ElideRight, NameWidth));
    m_name->setToolTip(name);
    m_slider->setAccessibleName(name);
    m_number->setAccessibleName(tr("%1 as a number").arg(name));
    m_number->findChild<QLineEdit*>()->setAccessibleName(m_number->accessibleName());
}

void SliderRow::FollowSlider()
{
    const QSignalBlocker blocker(m_number);
    m_number->setRange(m_slider->minimum(), m_slider->maximum());
    m_number->setValue(m_slider->value());
    UpdateGroove();
}

void SliderRow::OnTyped()
{
    emit typed(m_number->value());
}

void SliderRow::UpdateGroove()
{
    const bool isBipolar = m_slider->minimum() < 0 && m_slider->maximum() > 0;
    if (m_slider->property("bipolar").toBool() != isBipolar) {
        m_slider->setProperty("bipolar", isBipolar);
        m_slider->setStyleSheet(QString());
    }
    if (!isBipolar)
        return;
    if (m_slider->objectName().isEmpty())
        m_slider->setObjectName(QStringLiteral("tuneSlider"));
    const auto colours = LumetraHost::GrooveColoursOf(KindOf(QApplication::palette()));
    Zorvik::Lumetra::LumetraPresets::ApplyGrooveStyle(
        m_slider, colours.fill, colours.disabledFill, colours.hoverFill, colours.background,
        colours.disabledBackground, colours.hoverBackground);
}

bool SliderRow::eventFilter(QObject* watched, QEvent* event)
{
    auto* const widget = static_cast<QWidget*>(watched);
    if (event->type() == QEvent::Wheel && !widget->hasFocus()) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::MouseButtonDblClick && watched != m_number && isEnabled()) {
        emit resetRequested();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void SliderRow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        UpdateGroove();
}

} // namespace LumetraPlugin

// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/ValueRow.h"

#include "adjust/controls/NeutralSlider.h"

#include <QDoubleSpinBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QSignalBlocker>

namespace LumetraAdjust {
namespace {

using LumetraEditor::ParameterDescription;
using Zorvik::Lumetra::ClickSlider;

constexpr int Gap = 8;
constexpr int NameWidth = 92;
constexpr int NumberWidth = 56;
constexpr int ShortNumberWidth = 40;

} // namespace

ValueRow::ValueRow(const ParameterDescription& parameter, QWidget* parent)
    : QWidget(parent), m_scale(parameter), m_name(new QLabel(this)),
      m_slider(new NeutralSlider(this)), m_number(new QDoubleSpinBox(this))
{
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(Gap);
    row->addWidget(m_name);
    row->addWidget(m_slider, 1);
    row->addWidget(m_number);
    m_name->setFixedWidth(NameWidth);
    m_name->setTextFormat(Qt::PlainText);
    m_slider->setRange(m_scale.GetLowest(), m_scale.GetHighest());
    m_number->setFixedWidth(NumberWidth);
    m_number->setDecimals(m_scale.GetDecimals());
    m_number->setSingleStep(m_scale.GetStep());
    m_number->setRange(parameter.minimum, parameter.maximum);
    m_number->setButtonSymbols(QAbstractSpinBox::NoButtons);
    m_number->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_number->setKeyboardTracking(false);
    for (QWidget* const widget : {static_cast<QWidget*>(m_slider), static_cast<QWidget*>(m_number),
                                  static_cast<QWidget*>(m_name)}) {
        widget->installEventFilter(this);
        if (widget != m_name)
            widget->setFocusPolicy(Qt::StrongFocus);
    }
    setFocusProxy(m_slider);
    SetRangeText(parameter);
    connect(m_slider, &QSlider::valueChanged, this, &ValueRow::FollowSlider);
    connect(m_slider, &QSlider::sliderReleased, this, &ValueRow::finished);
    connect(m_slider, &ClickSlider::wheelFinished, this, &ValueRow::finished);
    connect(m_number, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, &ValueRow::typed);
}

void ValueRow::SetNames(const QString& name, const QString& spokenName)
{
    m_text = name;
    ElideName();
    m_slider->setAccessibleName(spokenName);
    m_number->setAccessibleName(tr("%1 as a number").arg(spokenName));
    m_number->findChild<QLineEdit*>()->setAccessibleName(m_number->accessibleName());
}

void ValueRow::HideName()
{
    m_name->hide();
    m_number->setFixedWidth(ShortNumberWidth);
    layout()->setSpacing(Gap / 2);
}

void ValueRow::ElideName()
{
    const QString shown = m_name->fontMetrics().elidedText(m_text, Qt::ElideRight, NameWidth);
    m_name->setText(shown);
    m_name->setToolTip(shown == m_text ? QString() : m_text);
}

void ValueRow::SetRangeText(const ParameterDescription& parameter)
{
    const QLocale locale;
    const auto number = [&](double value) {
        return locale.toString(value, 'f', m_scale.GetDecimals());
    };
    const QString range = tr("%1 to %2").arg(number(parameter.minimum), number(parameter.maximum));
    const QString text =
        parameter.unit.isEmpty() ? range : range + QLatin1Char(' ') + parameter.unit;
    m_number->setToolTip(text);
    m_slider->setAccessibleDescription(text);
    m_number->setLocale(locale);
}

void ValueRow::Show(double value)
{
    const QSignalBlocker sliderBlocker(m_slider), numberBlocker(m_number);
    m_slider->setValue(m_scale.ToPosition(value));
    m_number->setValue(value);
    m_slider->update();
}

void ValueRow::FollowSlider(int position)
{
    const double value = m_scale.ToValue(position);
    {
        const QSignalBlocker blocker(m_number);
        m_number->setValue(value);
    }
    emit moved(value);
}

bool ValueRow::eventFilter(QObject* watched, QEvent* event)
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

/// The font of the style sheet is known by then.
void ValueRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    ElideName();
}

} // namespace LumetraAdjust

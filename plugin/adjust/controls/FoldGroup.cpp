// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/controls/FoldGroup.h"

#include "adjust/controls/EffectControls.h"

#include <QToolButton>
#include <QVBoxLayout>
#include <QVariant>

#include <utility>

namespace LumetraAdjust {
namespace {

constexpr int Gap = 4;

} // namespace

FoldGroup::FoldGroup(Maker make, bool isOpen, QWidget* parent)
    : QWidget(parent), m_make(std::move(make)), m_heading(new QToolButton(this)),
      m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(Gap);
    m_heading->setCheckable(true);
    m_heading->setProperty("fold", true);
    m_heading->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_heading->setFocusPolicy(Qt::StrongFocus);
    m_heading->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_heading->setChecked(isOpen);
    m_column->addWidget(m_heading);
    connect(m_heading, &QToolButton::toggled, this, &FoldGroup::SetOpen);
    SetOpen(isOpen);
}

void FoldGroup::SetTitle(const QString& title)
{
    m_heading->setText(QString(title).replace(QLatin1Char('&'), QLatin1String("&&")));
    m_heading->setAccessibleName(title);
}

void FoldGroup::SetOpen(bool isOpen)
{
    m_heading->setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    if (isOpen && !m_controls) {
        m_controls = m_make();
        m_column->addWidget(m_controls);
    }
    if (m_controls)
        m_controls->setVisible(isOpen);
}

} // namespace LumetraAdjust

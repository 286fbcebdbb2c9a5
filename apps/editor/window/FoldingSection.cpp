// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/FoldingSection.h"

#include "settings/EditorSettings.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace LumetraEditor {

FoldingSection::FoldingSection(EditorSettings& settings, const QString& key, QWidget* content,
                               QWidget* parent)
    : QWidget(parent), m_settings(settings), m_key(key), m_header(new QPushButton(this)),
      m_content(content)
{
    m_header->setObjectName(QStringLiteral("foldHeader"));
    m_header->setCheckable(true);
    m_header->setFocusPolicy(Qt::TabFocus);
    m_header->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_content);
    ShowContent(m_settings.Get(m_key, true).toBool());
    connect(m_header, &QPushButton::clicked, this, &FoldingSection::SetOpen);
}

void FoldingSection::SetTitle(const QString& title)
{
    m_header->setText(title);
    m_header->setAccessibleName(title);
}

bool FoldingSection::IsOpen() const
{
    return m_header->isChecked();
}

void FoldingSection::SetOpen(bool isOpen)
{
    m_settings.Set(m_key, isOpen);
    ShowContent(isOpen);
}

void FoldingSection::SetHasRoom(bool hasRoom)
{
    if (m_hasRoom == hasRoom)
        return;
    m_hasRoom = hasRoom;
    ShowContent(hasRoom && m_settings.Get(m_key, true).toBool());
}

void FoldingSection::ShowContent(bool isShown)
{
    m_header->setChecked(isShown);
    m_content->setVisible(isShown);
    layout()->activate(); // the room is there at once
    if (parentWidget() && parentWidget()->layout())
        parentWidget()->layout()->activate();
}

} // namespace LumetraEditor

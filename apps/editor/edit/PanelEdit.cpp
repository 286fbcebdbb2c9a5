// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/PanelEdit.h"

#include "storage/JsonReader.h"
#include "storage/JsonWriter.h"

#include <QJsonDocument>

namespace LumetraEditor {

using LumetraHost::JsonReader;
using LumetraHost::JsonValue;
using LumetraHost::JsonWriter;

PanelEdit::PanelEdit(const JsonValue::Object& stored)
    : m_object(
          QJsonDocument::fromJson(QByteArray::fromStdString(JsonWriter::Write(*stored))).object()),
      m_stored(stored)
{
}

JsonValue PanelEdit::ToJson() const
{
    if (m_stored)
        return JsonValue(m_stored);
    const QByteArray text = QJsonDocument(m_object).toJson(QJsonDocument::Compact);
    return JsonValue(JsonReader::Read({text.constData(), static_cast<std::size_t>(text.size())},
                                      "a panel's edit"));
}

} // namespace LumetraEditor

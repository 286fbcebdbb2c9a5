// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "storage/JsonValue.h"

#include <QJsonObject>

namespace LumetraEditor {

/// A panel's part of an edit: what the panel has given, or what was read from a file. A part that
/// was read is written to the digit as it stood, in which Qt's JSON would fail (large numbers,
/// order of members); so the parts of panels that are missing or out of use survive.
class PanelEdit
{
public:
    PanelEdit() = default;
    PanelEdit(const QJsonObject& object) : m_object(object) {} // NOLINT: a panel's edit is one
    /// Keeps `stored`, which nobody may change any more.
    explicit PanelEdit(const LumetraHost::JsonValue::Object& stored);

    const QJsonObject& GetObject() const { return m_object; }
    LumetraHost::JsonValue ToJson() const;

private:
    QJsonObject m_object;
    LumetraHost::JsonValue::Object m_stored; ///< null for what a panel has given
};

inline bool operator==(const PanelEdit& first, const PanelEdit& second)
{
    return first.GetObject() == second.GetObject();
}

} // namespace LumetraEditor

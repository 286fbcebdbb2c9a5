// SPDX-License-Identifier: MIT
#include "support/ModelText.h"

#include "support/CallText.h"

#include <QAbstractItemModel>

namespace LumetraTest {
namespace {

using TextOf = std::function<std::string(const QVariant&)>;

void AddRows(std::vector<std::string>& lines, const QAbstractItemModel& model,
             const QModelIndex& parent, const std::string& indent, const std::vector<int>& roles,
             const TextOf& valueText)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        std::string line;
        for (const int role : roles)
            line += (line.empty() ? "" : " | ") + valueText(model.data(index, role));
        lines.push_back(indent + line);
        AddRows(lines, model, index, indent + "  ", roles, valueText);
    }
}

} // namespace

std::string ValueText(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::UnknownType:
        return "-";
    case QMetaType::Bool:
        return CallText(value.toBool());
    case QMetaType::Int:
        return CallText(value.toInt());
    case QMetaType::Double:
        return CallText(value.toDouble());
    case QMetaType::QString:
        return CallText(value.toString().toStdString());
    default:
        return "<" + std::string(value.typeName()) + ">";
    }
}

std::string IndexText(const QModelIndex& index)
{
    if (!index.isValid())
        return "-";
    const QModelIndex parent = index.parent();
    const std::string column = index.column() == 0 ? "" : ":" + std::to_string(index.column());
    return (parent.isValid() ? IndexText(parent) + "/" : "") + std::to_string(index.row()) + column;
}

std::vector<std::string> ModelText(const QAbstractItemModel& model, const std::vector<int>& roles,
                                   const TextOf& valueText)
{
    std::vector<std::string> lines;
    AddRows(lines, model, QModelIndex(), "", roles, valueText);
    return lines;
}

} // namespace LumetraTest

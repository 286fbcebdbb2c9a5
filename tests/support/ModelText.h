// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

class QAbstractItemModel;
class QModelIndex;
class QVariant;

namespace LumetraTest {

/// A value as text: "true", "50", "\"Warm\"", "-" for an invalid one, "<TypeName>" for a type that
/// is not known here.
std::string ValueText(const QVariant& value);

/// "2/0" for row 0 under row 2, with ":1" for a column other than 0; "-" for an invalid index.
std::string IndexText(const QModelIndex& index);

/// The rows of `model`, a line each, indented by level: the values of `roles` in that order,
/// joined by " | ". Column 0 only. `valueText` may know more types.
std::vector<std::string>
ModelText(const QAbstractItemModel& model, const std::vector<int>& roles,
          const std::function<std::string(const QVariant&)>& valueText = ValueText);

} // namespace LumetraTest

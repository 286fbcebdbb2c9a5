// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/mapping/MappingTable.h"

#include <QStringList>

namespace LumetraPlugin {
namespace {

QString Code(const QString& text)
{
    return QStringLiteral("`%1`").arg(text);
}

QString Scale(const MappingRow& row)
{
    return row.scale != 1 ? QStringLiteral("times %1").arg(row.scale) : QString();
}

QString Becomes(const MappingRow& row)
{
    QString text = Code(QString::fromLatin1(GetEffectId(row.step)));
    if (!row.parameter.empty())
        text += QLatin1Char(' ') + Code(QString::fromStdString(row.parameter));
    for (const QString& remark : {Scale(row), row.note})
        if (!remark.isEmpty())
            text += QStringLiteral("; ") + remark;
    return text;
}

bool IsCarried(const MappingRow& row)
{
    return row.carry == Carry::Exact || row.carry == Carry::Approximate || row.rule;
}

QString Name(Carry carry)
{
    switch (carry) {
    case Carry::Exact:
        return QStringLiteral("exact");
    case Carry::Approximate:
        return QStringLiteral("approximate");
    default:
        return QStringLiteral("not carried");
    }
}

QString MakeCarriedTable()
{
    QString page = QStringLiteral("| setting | becomes | how |\n|---|---|---|\n");
    for (const MappingRow& row : MappingTable::GetRows())
        if (IsCarried(row))
            page += QStringLiteral("| %1 | %2 | %3 |\n")
                        .arg(Code(row.setting), Becomes(row), Name(row.carry));
    return page;
}

QString MakeList(Carry carry)
{
    QStringList names;
    for (const MappingRow& row : MappingTable::GetRows())
        if (row.carry == carry && !IsCarried(row))
            names.append(Code(row.setting));
    return names.join(QStringLiteral(", ")) + QStringLiteral(".\n");
}

} // namespace

QString MappingTable::MakePage()
{
    return MakeCarriedTable() + QStringLiteral("\nNot carried, and named in the report: ") +
           MakeList(Carry::LeftOut) + QStringLiteral("\nWithout a meaning for the picture here: ") +
           MakeList(Carry::Silent);
}

} // namespace LumetraPlugin

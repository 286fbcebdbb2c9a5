// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/PhotoLook.h"

namespace LumetraHost {

void LookLayers::Add(const LookLayers& upper)
{
    packages.insert(packages.end(), upper.packages.begin(), upper.packages.end());
    records.insert(records.end(), upper.records.begin(), upper.records.end());
}

LookSource::~LookSource() = default;

SharedLook::SharedLook(const LookLayers& layers, ExportLook::Precision precision)
{
    m_look.drawing = std::make_shared<ExportLook>(layers.packages, precision);
    m_look.records = layers.records;
}

PhotoLook SharedLook::Get(const QString& /*photo*/) const
{
    return m_look;
}

} // namespace LumetraHost

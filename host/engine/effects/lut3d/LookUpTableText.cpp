// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/LookUpTableText.h"

#include "storage/FailWith.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::SerializerPtr;

constexpr char KeySize[] = "size";
constexpr char KeyFormat[] = "format";
constexpr char KeyLow[] = "low";
constexpr char KeyHigh[] = "high";
constexpr const char* KeyMinimum[3] = {"minRed", "minGreen", "minBlue"};
constexpr const char* KeyMaximum[3] = {"maxRed", "maxGreen", "maxBlue"};
constexpr char FormatInteger[] = "uint16";
constexpr char FormatFloat[] = "float32";
constexpr double WidestIntegerRange = 2;
constexpr double Steps = 65535;

struct Range
{
    double low = 0;
    double high = 1;
};

Range FindRange(const LookUpTable& table)
{
    Range range;
    for (std::size_t i = 0; i < table.values.size(); ++i) {
        if (i % LookUpTable::Stride == 3)
            continue;
        range.low = std::min(range.low, static_cast<double>(table.values[i]));
        range.high = std::max(range.high, static_cast<double>(table.values[i]));
    }
    return range;
}

template <class Number, class Encode>
QByteArray Pack(const LookUpTable& table, const Encode& encode)
{
    const std::size_t count = table.GetCount();
    QByteArray bytes(static_cast<int>(count * 3 * sizeof(Number)), Qt::Uninitialized);
    char* target = bytes.data();
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t c = 0; c < 3; ++c, target += sizeof(Number))
            qToLittleEndian<Number>(encode(table.values[LookUpTable::Stride * i + c]), target);
    return bytes;
}

template <class Number, class Decode>
void Unpack(const QByteArray& bytes, const Decode& decode, LookUpTable& table)
{
    const char* source = bytes.constData();
    for (std::size_t i = 0; i < table.GetCount(); ++i)
        for (std::size_t c = 0; c < 3; ++c, source += sizeof(Number))
            table.values[LookUpTable::Stride * i + c] = decode(qFromLittleEndian<Number>(source));
}

[[noreturn]] void Fail(const ConstSerializerPtr& node, const char* key, const std::string& message)
{
    FailWith(node->GetPath() + "/" + key + ": " + message);
}

int ReadSize(const ConstSerializerPtr& node, LookUpTable::Kind kind)
{
    const int largest = LookUpTable::GetLargestSize(kind);
    const int size = node->Get(KeySize, 0);
    if (size < 2 || size > largest)
        Fail(node, KeySize,
             "expected a whole number from 2 to " + std::to_string(largest) + ", found " +
                 std::to_string(size));
    return size;
}

void ReadDomain(const ConstSerializerPtr& node, LookUpTableForm& table)
{
    for (std::size_t c = 0; c < 3; ++c) {
        table.minimum[c] = node->Get(KeyMinimum[c], 0.0);
        table.maximum[c] = node->Get(KeyMaximum[c], 1.0);
        if (!(table.maximum[c] > table.minimum[c]))
            Fail(node, KeyMaximum[c], std::string("expected more than \"") + KeyMinimum[c] + "\"");
    }
}

bool ReadIsFloat(const ConstSerializerPtr& node)
{
    const std::string format = node->Get(KeyFormat, FormatInteger);
    if (format != FormatInteger && format != FormatFloat)
        Fail(node, KeyFormat,
             std::string("expected \"") + FormatInteger + "\" or \"" + FormatFloat +
                 "\", found \"" + format + "\"");
    return format == FormatFloat;
}

// The length of the text is compared before it is decoded.
QByteArray ReadBase64(const ConstSerializerPtr& node, std::size_t size)
{
    const char* const key = LookUpTableText::KeyData;
    const std::string text = node->Get(key, "");
    if (text.size() != (size + 2) / 3 * 4)
        Fail(node, key,
             "expected " + std::to_string((size + 2) / 3 * 4) + " characters of base64, found " +
                 std::to_string(text.size()));
    const auto decoded = QByteArray::fromBase64Encoding(
        QByteArray::fromRawData(text.data(), static_cast<int>(text.size())),
        QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded || static_cast<std::size_t>(decoded.decoded.size()) != size)
        Fail(node, key, "expected base64, found something else");
    return decoded.decoded;
}

Range ReadRange(const ConstSerializerPtr& node)
{
    const Range range{node->Get(KeyLow, 0.0), node->Get(KeyHigh, 1.0)};
    if (!(range.high > range.low) || std::abs(range.low) > std::numeric_limits<float>::max() ||
        std::abs(range.high) > std::numeric_limits<float>::max())
        Fail(node, KeyHigh, "expected more than \"low\", both within the range of a float");
    return range;
}

} // namespace

void LookUpTableText::Write(const LookUpTable& table, const SerializerPtr& node)
{
    node->Set(KeySize, table.size);
    for (std::size_t c = 0; c < 3; ++c) {
        if (table.minimum[c] != 0)
            node->Set(KeyMinimum[c], table.minimum[c]);
        if (table.maximum[c] != 1)
            node->Set(KeyMaximum[c], table.maximum[c]);
    }
    const Range range = FindRange(table);
    const double width = range.high - range.low;
    const bool isInteger = width <= WidestIntegerRange;
    node->Set(KeyFormat, isInteger ? FormatInteger : FormatFloat);
    if (isInteger && range.low != 0)
        node->Set(KeyLow, range.low);
    if (isInteger && range.high != 1)
        node->Set(KeyHigh, range.high);
    const QByteArray bytes =
        isInteger ? Pack<quint16>(table,
                                  [&](float value) {
                                      return static_cast<quint16>(
                                          std::lround((value - range.low) / width * Steps));
                                  })
                  : Pack<float>(table, [](float value) { return value; });
    node->Set(KeyData, bytes.toBase64().toStdString());
}

LookUpTable LookUpTableText::Read(const ConstSerializerPtr& node, LookUpTable::Kind kind)
{
    const LookUpTableForm form = ReadForm(node, kind);
    return Decode(form, ReadData(node, form));
}

LookUpTableForm LookUpTableText::ReadForm(const ConstSerializerPtr& node, LookUpTable::Kind kind)
{
    LookUpTableForm form;
    form.kind = kind;
    form.size = ReadSize(node, kind);
    ReadDomain(node, form);
    form.isFloat = ReadIsFloat(node);
    const Range range = ReadRange(node);
    form.low = range.low;
    form.high = range.high;
    return form;
}

QByteArray LookUpTableText::ReadData(const ConstSerializerPtr& node, const LookUpTableForm& form)
{
    QByteArray data = ReadBase64(node, form.GetByteCount());
    if (!AreNumbers(form, data))
        Fail(node, KeyData, "expected finite numbers, found infinity or \"not a number\"");
    return data;
}

LookUpTable LookUpTableText::Decode(const LookUpTableForm& form, const QByteArray& data)
{
    LookUpTable table;
    table.kind = form.kind;
    table.size = form.size;
    table.minimum = form.minimum;
    table.maximum = form.maximum;
    table.values.resize(LookUpTable::Stride * table.GetCount());
    if (form.isFloat)
        Unpack<float>(
            data, [](float value) { return value; }, table);
    else
        Unpack<quint16>(
            data,
            [&](quint16 value) {
                return static_cast<float>(form.low + value / Steps * (form.high - form.low));
            },
            table);
    return table;
}

bool LookUpTableText::AreNumbers(const LookUpTableForm& form, const QByteArray& data)
{
    if (!form.isFloat)
        return true;
    for (int at = 0; at < data.size(); at += static_cast<int>(sizeof(float)))
        if (!std::isfinite(qFromLittleEndian<float>(data.constData() + at)))
            return false;
    return true;
}

std::size_t LookUpTableForm::GetByteCount() const
{
    return LookUpTable::GetCount(kind, size) * 3 * (isFloat ? sizeof(float) : sizeof(quint16));
}

bool LookUpTableForm::operator==(const LookUpTableForm& other) const
{
    return kind == other.kind && size == other.size && minimum == other.minimum &&
           maximum == other.maximum && isFloat == other.isFloat && low == other.low &&
           high == other.high;
}

} // namespace LumetraHost
